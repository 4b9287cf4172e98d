#include "Mirel/GUI/SiblingCover.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using Mirel::Graphics::CRect;
using Mirel::GUI::WithoutCover;

TEST(SiblingCover, FullWidthCoverMovesTheTopEdge)
{
    EXPECT_EQ(WithoutCover({10, 10, 20, 20}, {0, 0, 100, 15}), CRect(10, 15, 20, 15));
}

TEST(SiblingCover, FullWidthCoverMovesTheBottomEdge)
{
    EXPECT_EQ(WithoutCover({10, 10, 20, 20}, {10, 25, 20, 50}), CRect(10, 10, 20, 15));
}

TEST(SiblingCover, FullHeightCoverMovesTheLeftAndRightEdges)
{
    EXPECT_EQ(WithoutCover({10, 10, 20, 20}, {5, 5, 10, 30}), CRect(15, 10, 15, 20));
    EXPECT_EQ(WithoutCover({10, 10, 20, 20}, {28, 10, 10, 20}), CRect(10, 10, 18, 20));
}

TEST(SiblingCover, CoverOfAllLeavesNothing)
{
    EXPECT_TRUE(WithoutCover({10, 10, 20, 20}, {10, 10, 20, 20}).IsEmpty());
    EXPECT_TRUE(WithoutCover({10, 10, 20, 20}, {0, 0, 100, 100}).IsEmpty());
}

TEST(SiblingCover, OtherOverlapsChangeNothing)
{
    const CRect rect = {10, 10, 20, 20};
    EXPECT_EQ(WithoutCover(rect, {5, 5, 10, 10}), rect);  // a corner
    EXPECT_EQ(WithoutCover(rect, {15, 15, 5, 5}), rect);  // a hole
    EXPECT_EQ(WithoutCover(rect, {0, 15, 100, 5}), rect); // a band across
    EXPECT_EQ(WithoutCover(rect, {11, 0, 19, 50}), CRect(10, 10, 1, 20));
    EXPECT_EQ(WithoutCover(rect, {50, 50, 5, 5}), rect);
    EXPECT_EQ(WithoutCover(rect, {0, 0, 100, 0}), rect);
}

TEST(SiblingCover, HugeCoversDoNotOverflow)
{
    EXPECT_TRUE(WithoutCover({10, 10, 20, 20}, {-2000000000, -2000000000, INT32_MAX, INT32_MAX}).IsEmpty());
    // The cover ends one pixel before INT32_MAX, the rectangle beyond it.
    EXPECT_EQ(WithoutCover({INT32_MAX - 5, 0, 100, 10}, {0, 0, INT32_MAX, 10}), CRect(INT32_MAX, 0, 95, 10));
}

/// What is taken away was covered, and what is left is part of what was there.
RC_GTEST_PROP(SiblingCover, OnlyCoveredPixelsGo, ())
{
    const auto rectOf = []
    {
        return CRect(*rc::gen::inRange(0, 12), *rc::gen::inRange(0, 12), *rc::gen::inRange(1, 12),
                     *rc::gen::inRange(1, 12));
    };
    const CRect rect = rectOf();
    const CRect cover = rectOf();
    const CRect left = WithoutCover(rect, cover);
    for (int y = 0; y < 24; ++y)
    {
        for (int x = 0; x < 24; ++x)
        {
            if (left.Contains({x, y}))
            {
                RC_ASSERT(rect.Contains({x, y}));
            }
            else if (rect.Contains({x, y}))
            {
                RC_ASSERT(cover.Contains({x, y}));
            }
        }
    }
}
