#include "Mirel/Core/Numeric.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

using Mirel::Core::SaturateToInt32;
using Mirel::Core::TruncateToInt32;

namespace
{

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

} // namespace

TEST(TruncateToInt32, RoundsTowardsZero)
{
    EXPECT_EQ(TruncateToInt32(2.9), 2);
    EXPECT_EQ(TruncateToInt32(-2.9), -2);
    EXPECT_EQ(TruncateToInt32(-0.5), 0);
    EXPECT_EQ(TruncateToInt32(0.0), 0);
}

TEST(TruncateToInt32, HoldsTheWholeRangeOfTheInteger)
{
    EXPECT_EQ(TruncateToInt32(2147483647.0), highest);
    EXPECT_EQ(TruncateToInt32(2147483647.9), highest);
    EXPECT_EQ(TruncateToInt32(-2147483648.0), lowest);
    EXPECT_EQ(TruncateToInt32(-2147483648.9), lowest);
    EXPECT_EQ(TruncateToInt32(-2147483647.9), -highest);
}

TEST(TruncateToInt32, WhatTheIntegerCannotHoldGivesTheLowest)
{
    EXPECT_EQ(TruncateToInt32(2147483648.0), lowest);
    EXPECT_EQ(TruncateToInt32(-2147483649.0), lowest);
    EXPECT_EQ(TruncateToInt32(std::numeric_limits<double>::max()), lowest);
    EXPECT_EQ(TruncateToInt32(std::numeric_limits<double>::infinity()), lowest);
    EXPECT_EQ(TruncateToInt32(-std::numeric_limits<double>::infinity()), lowest);
    EXPECT_EQ(TruncateToInt32(std::numeric_limits<double>::quiet_NaN()), lowest);
}

TEST(TruncateToInt32, WorksAtCompileTime)
{
    static_assert(TruncateToInt32(3.5) == 3);
    static_assert(TruncateToInt32(std::numeric_limits<double>::quiet_NaN()) == lowest);
    SUCCEED();
}

TEST(SaturateToInt32, KeepsWhatFitsAndStopsAtTheEnds)
{
    EXPECT_EQ(SaturateToInt32(0), 0);
    EXPECT_EQ(SaturateToInt32(highest), highest);
    EXPECT_EQ(SaturateToInt32(lowest), lowest);
    EXPECT_EQ(SaturateToInt32(std::int64_t{highest} + 1), highest);
    EXPECT_EQ(SaturateToInt32(std::int64_t{lowest} - 1), lowest);
    EXPECT_EQ(SaturateToInt32(std::numeric_limits<std::int64_t>::max()), highest);
    EXPECT_EQ(SaturateToInt32(std::numeric_limits<std::int64_t>::min()), lowest);
}
