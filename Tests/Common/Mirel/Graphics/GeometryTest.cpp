#include "Mirel/Graphics/Geometry.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

using namespace Mirel::Graphics;

TEST(Geometry, RoundingAddsHalfAndTruncates)
{
    EXPECT_EQ(RoundToPixel(1.4), 1);
    EXPECT_EQ(RoundToPixel(1.5), 2);
    EXPECT_EQ(RoundToPixel(-0.6), 0);
    EXPECT_EQ(RoundToPixel(-1.6), -1);
}

TEST(Geometry, RectanglesThatOnlyTouchShareNothing)
{
    EXPECT_TRUE(Intersect({0, 0, 4, 4}, {4, 0, 4, 4}).IsEmpty());
    EXPECT_EQ(Intersect({0, 0, 4, 4}, {2, 3, 9, 9}), CRect(2, 3, 2, 1));
}

TEST(Geometry, IntersectionStandsTheLargestNumbers)
{
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(Intersect({most, most, most, most}, {0, 0, most, most}).GetSize(), CSize());
    EXPECT_EQ(Intersect({-most, -most, most, most}, {-5, -5, 10, 10}), CRect(-5, -5, 5, 5));
}

RC_GTEST_PROP(Geometry, IntersectionHoldsThePointsThatBothHold, ())
{
    const auto side = [] { return *rc::gen::inRange(-6, 7); };
    const CRect a(side(), side(), side(), side());
    const CRect b(side(), side(), side(), side());
    const CRect both = Intersect(a, b);
    for (int y = -15; y < 15; ++y)
    {
        for (int x = -15; x < 15; ++x)
        {
            RC_ASSERT(both.Contains({x, y}) == (a.Contains({x, y}) && b.Contains({x, y})));
        }
    }
}
