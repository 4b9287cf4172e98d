#include "Mirel/DataModel/Controls/ValueOfKind.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using Mirel::DataModel::Controls::RoundAwayFromZero;
using Mirel::DataModel::Controls::ValueOfKind;

TEST(ValueOfKind, IntegersRoundHalvesAwayFromZero)
{
    EXPECT_EQ(ValueOfKind(1, -9.0F, 9.0F, 2.5F), 3.0F);
    EXPECT_EQ(ValueOfKind(1, -9.0F, 9.0F, -2.5F), -3.0F);
    EXPECT_EQ(ValueOfKind(1, -9.0F, 9.0F, 2.4F), 2.0F);
    EXPECT_EQ(ValueOfKind(1, -9.0F, 9.0F, -2.4F), -2.0F);
    EXPECT_EQ(ValueOfKind(1, -9.0F, 9.0F, 0.0F), 0.0F);
}

TEST(ValueOfKind, RoundedZeroHasNoSign)
{
    EXPECT_FALSE(std::signbit(RoundAwayFromZero(0.0F)));
    EXPECT_FALSE(std::signbit(RoundAwayFromZero(-0.0F)));
    EXPECT_FALSE(std::signbit(RoundAwayFromZero(-0.3F)));
}

TEST(ValueOfKind, LargeNumbersKeepTheirSize)
{
    EXPECT_EQ(RoundAwayFromZero(2147483648.0F), 2147483648.0F);
    EXPECT_EQ(RoundAwayFromZero(-1e30F), -1e30F);
    EXPECT_EQ(RoundAwayFromZero(std::numeric_limits<float>::infinity()),
              std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(RoundAwayFromZero(std::numeric_limits<float>::quiet_NaN())));
}

TEST(ValueOfKind, TwoStatesTakeMaxAboveHalfTheWidthOfTheRange)
{
    for (const int kind : {0, 3})
    {
        EXPECT_EQ(ValueOfKind(kind, 0.0F, 2.0F, 1.01F), 2.0F);
        EXPECT_EQ(ValueOfKind(kind, 0.0F, 2.0F, 1.0F), 0.0F);
        EXPECT_EQ(ValueOfKind(kind, 0.0F, 2.0F, std::numeric_limits<float>::quiet_NaN()), 0.0F);
    }
}

TEST(ValueOfKind, RealsStayAsTheyAre)
{
    EXPECT_EQ(ValueOfKind(2, 0.0F, 1.0F, 0.3F), 0.3F);
}
