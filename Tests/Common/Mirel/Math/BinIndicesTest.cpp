#include "Mirel/Math/BinIndices.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Math;

namespace
{

constexpr CBinRange range{-1.0f, 1.0f, 75.0f};
constexpr std::uint8_t untouched = 200;

std::uint8_t LiteralBin(float value)
{
    float clamped = -1.0f;
    if (value > 1.0f)
    {
        clamped = 1.0f;
    }
    else if (value > -1.0f)
    {
        clamped = value;
    }
    return static_cast<std::uint8_t>(static_cast<int>((clamped - -1.0f) * 75.0f + 0.5f));
}

/// One entry more than there are values.
std::vector<std::uint8_t> Find(CFindBins* variant, const std::vector<float>& values)
{
    std::vector<std::uint8_t> indices(values.size() + 1, untouched);
    variant(values, range, indices.data());
    return indices;
}

} // namespace

TEST(BinIndices, HalvesGoUp)
{
    for (CFindBins* variant : FindBinsVariants())
    {
        EXPECT_EQ(Find(variant, std::vector<float>(40, 0.5f))[0], 113); // 1.5 * 75 = 112.5
    }
}

TEST(BinIndices, ValuesBeyondTheRangeGoToTheEndsAndNaNToTheFirstBin)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    for (CFindBins* variant : FindBinsVariants())
    {
        for (const std::size_t count : {1U, 16U, 32U, 77U})
        {
            EXPECT_EQ(Find(variant, std::vector<float>(count, infinity))[count - 1], 150);
            EXPECT_EQ(Find(variant, std::vector<float>(count, 1e30f))[count - 1], 150);
            EXPECT_EQ(Find(variant, std::vector<float>(count, -infinity))[count - 1], 0);
            EXPECT_EQ(Find(variant, std::vector<float>(count, nan))[count - 1], 0);
            EXPECT_EQ(Find(variant, std::vector<float>(count, -nan))[count - 1], 0);
        }
    }
}

TEST(BinIndices, BinsOf256ReachTheLast)
{
    constexpr CBinRange widest{0.0f, 1.0f, 255.0f};
    const std::vector<float> values(40, 1.0f);
    for (CFindBins* variant : FindBinsVariants())
    {
        std::vector<std::uint8_t> indices(values.size());
        variant(values, widest, indices.data());
        EXPECT_EQ(indices, std::vector<std::uint8_t>(values.size(), 255));
    }
}

RC_GTEST_PROP(BinIndices, EveryVariantFindsTheBinOfEachValueAndWritesNoFurther, (std::uint32_t state))
{
    std::vector<float> values(*rc::gen::inRange<std::size_t>(0, 200));
    std::vector<std::uint8_t> expected;
    for (float& value : values)
    {
        state = state * 1664525U + 1013904223U;
        value = static_cast<float>(state) / 2147483648.0f * 1.2f - 1.2f;
        expected.push_back(LiteralBin(value));
    }
    expected.push_back(untouched);
    for (CFindBins* variant : FindBinsVariants())
    {
        RC_ASSERT(Find(variant, values) == expected);
    }
}
