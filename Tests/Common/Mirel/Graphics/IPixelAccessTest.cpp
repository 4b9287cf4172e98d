#include "Mirel/Graphics/IPixelAccess.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Graphics;

namespace
{

/// The bytes that a pixel written at (0, 0) leaves.
std::vector<int> Written(int depth, CColor color)
{
    std::vector<std::uint8_t> memory(4, 0);
    CreatePixelAccess(depth, {memory.data(), 4, {0, 0, 1, 1}})->SetPixel(0, 0, color);
    return {memory.begin(), memory.begin() + depth / 8};
}

CColor ReadFrom(int depth, std::vector<std::uint8_t> memory)
{
    return CreatePixelAccess(depth, {memory.data(), 4, {0, 0, 1, 1}})->GetPixel(0, 0);
}

} // namespace

TEST(IPixelAccess, StridesOfEachDepth)
{
    struct CCase
    {
        int width, depth;
        std::int64_t stride;
    };
    for (const CCase& c : {CCase{1, 8, 4},
                           {4, 8, 4},
                           {5, 8, 8},
                           {1, 16, 4},
                           {2, 16, 4},
                           {3, 16, 8},
                           {1, 24, 4},
                           {4, 24, 12},
                           {5, 24, 16},
                           {1, 32, 4},
                           {5, 32, 20},
                           {5, 15, 0}})
    {
        EXPECT_EQ(GetStride(c.width, c.depth), c.stride) << c.width << " pixels of " << c.depth << " bits";
    }
}

TEST(IPixelAccess, EightBitsHoldGrey)
{
    EXPECT_EQ(Written(8, {200, 100, 50}), std::vector<int>{(200 + 2 * 100 + 50) / 4});
    EXPECT_EQ(ReadFrom(8, {77}), (CColor{77, 77, 77}));
}

TEST(IPixelAccess, SixteenBitsHoldFiveOfEachAndReadThemUnwidened)
{
    const int pixel = (200 / 8) * 1024 + (100 / 8) * 32 + 50 / 8;
    EXPECT_EQ(Written(16, {200, 100, 50}), (std::vector<int>{pixel % 256, pixel / 256}));
    EXPECT_EQ(ReadFrom(16, {0xff, 0x7f}), (CColor{31, 31, 31}));
    EXPECT_EQ(ReadFrom(16, {pixel % 256, pixel / 256}), (CColor{25, 12, 6}));
}

TEST(IPixelAccess, TwentyFourBitsHoldBlueFirst)
{
    EXPECT_EQ(Written(24, {200, 100, 50}), (std::vector<int>{50, 100, 200}));
    EXPECT_EQ(ReadFrom(24, {50, 100, 200}), (CColor{200, 100, 50}));
}

TEST(IPixelAccess, ThirtyTwoBitsAreWrittenOpaqueAndReadWithoutAlpha)
{
    EXPECT_EQ(Written(32, {200, 100, 50}), (std::vector<int>{50, 100, 200, 255}));
    EXPECT_EQ(ReadFrom(32, {50, 100, 200, 7}), (CColor{200, 100, 50}));
}

TEST(IPixelAccess, OtherDepthsHaveNone)
{
    std::uint8_t memory = 0;
    EXPECT_EQ(CreatePixelAccess(1, {&memory, 1, {0, 0, 1, 1}}), nullptr);
}

TEST(IPixelAccess, OffsetAndPitchFindThePixel)
{
    std::vector<std::uint8_t> memory(40, 0);
    CreatePixelAccess(8, {memory.data(), 10, {3, 2, 4, 2}})->SetPixel(1, 1, {9, 9, 9});
    EXPECT_EQ(memory[3 * 10 + 4], 9);
}

RC_GTEST_PROP(IPixelAccess, OutsideReadsBlackAndIsNotWritten, ())
{
    const int depth = *rc::gen::element(8, 16, 24, 32);
    std::vector<std::uint8_t> memory(64, 0x55);
    const auto access = CreatePixelAccess(depth, {memory.data() + 16, 16, {0, 0, 3, 2}});
    const int x = *rc::gen::arbitrary<int>();
    const int y = *rc::gen::arbitrary<int>();
    RC_PRE(x < 0 || x >= 3 || y < 0 || y >= 2);
    access->SetPixel(x, y, {255, 255, 255});
    RC_ASSERT(access->GetPixel(x, y) == CColor());
    RC_ASSERT(memory == std::vector<std::uint8_t>(64, 0x55));
}
