#include "Mirel/Layout/LayoutRules.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace Mirel::Layout;

namespace
{

std::vector<std::int32_t> Shares(std::int64_t freePixels, const std::vector<float>& weights)
{
    float total = 0.0F;
    for (const float weight : weights)
    {
        total += weight;
    }
    CFlexSharing sharing(freePixels, total);
    std::vector<std::int32_t> shares;
    shares.reserve(weights.size());
    for (const float weight : weights)
    {
        shares.push_back(sharing.Next(weight));
    }
    return shares;
}

using CShares = std::vector<std::int32_t>;

} // namespace

TEST(LayoutRules, RatioIsTakenInSinglePrecisionAndTruncated)
{
    EXPECT_EQ(RatioExtent(100, 0.5F), 50);
    EXPECT_EQ(RatioExtent(99, 0.5F), 49);
    EXPECT_EQ(RatioExtent(-99, 0.5F), -49);
    EXPECT_EQ(RatioExtent(100, 0.0F), 0);
    EXPECT_EQ(RatioExtent(100, 1.5F), 150);
    // In double precision 0.7F of 10 is 6.9999998; as a float it is 7.
    EXPECT_EQ(RatioExtent(10, 0.7F), 7);
}

TEST(LayoutRules, RestIsHalvedTowardsZero)
{
    EXPECT_EQ(AlignedOffset(EAlign::Begin, 7), 0);
    EXPECT_EQ(AlignedOffset(EAlign::Center, 7), 3);
    EXPECT_EQ(AlignedOffset(EAlign::Center, -7), -3);
    EXPECT_EQ(AlignedOffset(EAlign::End, 7), 7);
    EXPECT_EQ(AlignedOffset(EAlign::End, -7), -7);
}

TEST(LayoutRules, RoundingErrorOfAShareGoesToTheNext)
{
    EXPECT_EQ(Shares(100, {1, 1, 1}), CShares({33, 34, 33}));
    EXPECT_EQ(Shares(-100, {1, 1, 1}), CShares({-33, -34, -33}));
    EXPECT_EQ(Shares(5, {1, 1}), CShares({3, 2})); // 2.5 rounds away from zero, then 2.5 - 0.5.
    EXPECT_EQ(Shares(-5, {1, 1}), CShares({-3, -2}));
    EXPECT_EQ(Shares(100, {1, 3}), CShares({25, 75}));
    EXPECT_EQ(Shares(100, {1, -3}), CShares({-50, 150}));
}

TEST(LayoutRules, SharesOfWhatIsNoNumberAreNothing)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Shares(100, {infinity, 1}), CShares({0, 0}));
    EXPECT_EQ(Shares(100, {infinity, -infinity}), CShares({0, 0}));
}
