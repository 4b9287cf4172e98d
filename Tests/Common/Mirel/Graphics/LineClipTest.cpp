#include "Mirel/Graphics/LineClip.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

using namespace Mirel::Graphics;

TEST(LineClip, SegmentInsideStaysWhatItIs)
{
    CSegment segment = {0.1, 9.7, 3.3, 0.3};
    ASSERT_TRUE(ClipSegment(segment, 0.0, 0.0, 10.0, 10.0));
    EXPECT_EQ(segment.ax, 0.1);
    EXPECT_EQ(segment.ay, 9.7);
    EXPECT_EQ(segment.bx, 3.3);
    EXPECT_EQ(segment.by, 0.3);
}

TEST(LineClip, EndsThatAreNotFiniteLeaveNothing)
{
    for (const double odd : {std::nan(""), std::numeric_limits<double>::infinity()})
    {
        CSegment segment = {odd, 1.0, 2.0, 3.0};
        EXPECT_FALSE(ClipSegment(segment, 0.0, 0.0, 10.0, 10.0));
        segment = {1.0, 1.0, 2.0, -odd};
        EXPECT_FALSE(ClipSegment(segment, 0.0, 0.0, 10.0, 10.0));
    }
}

TEST(LineClip, HugeSegmentEndsOnTheBox)
{
    CSegment segment = {5.0, -1e30, 5.0, 1e30};
    ASSERT_TRUE(ClipSegment(segment, 0.0, 0.0, 10.0, 10.0));
    EXPECT_EQ(segment.ay, 0.0);
    EXPECT_EQ(segment.by, 10.0);
}

RC_GTEST_PROP(LineClip, KeepsThePointsOfTheSegmentThatLieInTheBox, ())
{
    const auto number = [] { return *rc::gen::inRange(-200, 300) / 10.0; };
    const CSegment whole = {number(), number(), number(), number()};
    CSegment kept = whole;
    const bool any = ClipSegment(kept, 0.0, 0.0, 10.0, 10.0);
    constexpr int steps = 1000;
    constexpr double slack = 1e-6;
    for (int i = 0; i <= steps; ++i)
    {
        const double t = static_cast<double>(i) / steps;
        const double x = whole.ax + t * (whole.bx - whole.ax);
        const double y = whole.ay + t * (whole.by - whole.ay);
        if (x < slack || x > 10.0 - slack || y < slack || y > 10.0 - slack)
        {
            continue;
        }
        RC_ASSERT(any);
        RC_ASSERT(x >= std::min(kept.ax, kept.bx) - slack && x <= std::max(kept.ax, kept.bx) + slack);
        RC_ASSERT(y >= std::min(kept.ay, kept.by) - slack && y <= std::max(kept.ay, kept.by) + slack);
    }
    if (any)
    {
        for (const double end : {kept.ax, kept.ay, kept.bx, kept.by})
        {
            RC_ASSERT(end >= -slack && end <= 10.0 + slack);
        }
    }
}
