#include "Mirel/DataModel/Objects/SignificantDigits.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

using Mirel::DataModel::Objects::RoundToSignificantDigits;

TEST(RoundToSignificantDigits, KeepsTheLeadingDigits)
{
    const struct
    {
        float value;
        int digits;
        float rounded;
    } cases[] = {
        {1234.5F, 3, 1230.0F}, // the logarithm is 3.09, so tens are the last digits kept
        {1234.5F, 1, 1000.0F}, {1234.5F, 4, 1235.0F}, {1235.0F, 3, 1240.0F}, {15.0F, 1, 20.0F},
        {12.0F, 1, 10.0F},     {10.0F, 1, 10.0F},     {99.96F, 3, 100.0F},   {1.0F, 3, 1.0F},
        {0.5F, 1, 0.5F},       {3.14159F, 3, 3.14F},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(RoundToSignificantDigits(each.value, each.digits), each.rounded)
            << each.value << " to " << each.digits;
        EXPECT_EQ(RoundToSignificantDigits(-each.value, each.digits), -each.rounded)
            << -each.value << " to " << each.digits;
    }
}

TEST(RoundToSignificantDigits, BelowATenthADigitIsLostToTheTruncatedLogarithm)
{
    // log10(0.05) + 1 is -0.3, which truncates to 0: the first place after the point is the last one kept.
    EXPECT_EQ(RoundToSignificantDigits(0.05F, 1), 0.1F);
    // log10(0.00123456) + 1 is -1.9, which truncates to -1: four places are kept for three digits.
    EXPECT_EQ(RoundToSignificantDigits(0.00123456F, 3), 0.0012F);
}

TEST(RoundToSignificantDigits, NoDigitsGiveTheWholeNumberAwayFromZero)
{
    for (const int digits : {0, -1, std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(RoundToSignificantDigits(2.4F, digits), 2.0F);
        EXPECT_EQ(RoundToSignificantDigits(2.5F, digits), 3.0F);
        EXPECT_EQ(RoundToSignificantDigits(0.0F, digits), -1.0F);
        EXPECT_EQ(RoundToSignificantDigits(-2.4F, digits), -3.0F);
        EXPECT_EQ(RoundToSignificantDigits(-2.5F, digits), -3.0F);
    }
}

TEST(RoundToSignificantDigits, WhatDigitsCannotChangeStays)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(RoundToSignificantDigits(0.0F, 3), 0.0F);
    EXPECT_EQ(RoundToSignificantDigits(infinity, 3), infinity);
    EXPECT_EQ(RoundToSignificantDigits(-infinity, 3), -infinity);
    EXPECT_TRUE(std::isnan(RoundToSignificantDigits(std::numeric_limits<float>::quiet_NaN(), 3)));
    for (const int digits : {400, std::numeric_limits<int>::max()})
    {
        EXPECT_EQ(RoundToSignificantDigits(1234.5F, digits), 1234.5F);
        EXPECT_EQ(RoundToSignificantDigits(std::numeric_limits<float>::denorm_min(), digits),
                  std::numeric_limits<float>::denorm_min());
    }
    // 3.4028e38 to four digits is 3.403e38, which a float does not hold.
    EXPECT_EQ(RoundToSignificantDigits(std::numeric_limits<float>::max(), 4),
              std::numeric_limits<float>::max());
}

RC_GTEST_PROP(RoundToSignificantDigits, MovesAValueByHalfOfItsLastDigitAtMost, ())
{
    const int digits = *rc::gen::inRange(1, 7);
    const float value = static_cast<float>(*rc::gen::inRange(1000, 1 << 30)) * 0.001F;
    const auto wide = static_cast<double>(value);

    const auto rounded = static_cast<double>(RoundToSignificantDigits(value, digits));

    // Independent of logarithms: the digits before the point are counted by multiplication.
    double lastDigit = 1.0;
    while (lastDigit * 10.0 <= wide)
    {
        lastDigit *= 10.0;
    }
    for (int digit = 1; digit < digits; ++digit)
    {
        lastDigit /= 10.0;
    }
    const double singleRounding = wide * 1e-6;
    RC_ASSERT(std::abs(rounded - wide) <= lastDigit * 0.5 + singleRounding);
}
