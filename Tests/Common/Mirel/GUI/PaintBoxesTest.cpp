#include "Mirel/GUI/PaintBoxes.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using Mirel::Graphics::CRect;
using Mirel::Graphics::CSimple2DRegion;
using Mirel::GUI::GetPaintBoxes;

TEST(PaintBoxes, EmptyRegionHasNone)
{
    EXPECT_TRUE(GetPaintBoxes(CSimple2DRegion()).empty());
}

TEST(PaintBoxes, DistantRectanglesStayApart)
{
    CSimple2DRegion region({0, 0, 10, 10});
    region.Union({900, 900, 10, 10});
    const auto boxes = GetPaintBoxes(region);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0], CRect(0, 0, 10, 10));
    EXPECT_EQ(boxes[1], CRect(900, 900, 10, 10));
}

TEST(PaintBoxes, NeighboursArePaintedTogether)
{
    CSimple2DRegion region({0, 0, 10, 10});
    region.Union({20, 20, 10, 10});
    const auto boxes = GetPaintBoxes(region);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0], CRect(0, 0, 30, 30));
}

TEST(PaintBoxes, CountlessRectanglesAreOneBox)
{
    CSimple2DRegion region;
    for (int i = 0; i < 200; ++i)
    {
        region.Union({i * 200, i * 200, 1, 1});
    }
    EXPECT_EQ(GetPaintBoxes(region).size(), 1U);
}

RC_GTEST_PROP(PaintBoxes, HoldTheWholeRegion, ())
{
    CSimple2DRegion region;
    const int count = *rc::gen::inRange(0, 30);
    for (int i = 0; i < count; ++i)
    {
        region.Union({*rc::gen::inRange(0, 2000), *rc::gen::inRange(0, 2000), *rc::gen::inRange(1, 300),
                      *rc::gen::inRange(1, 300)});
    }
    CSimple2DRegion boxes;
    for (const CRect& box : GetPaintBoxes(region))
    {
        boxes.Union(box);
    }
    CSimple2DRegion shared = region;
    shared.Intersect(boxes);
    long long pixels = 0;
    long long sharedPixels = 0;
    for (int i = 0; i < region.GetRectCount(); ++i)
    {
        pixels += static_cast<long long>(region.GetRect(i).width) * region.GetRect(i).height;
    }
    for (int i = 0; i < shared.GetRectCount(); ++i)
    {
        sharedPixels += static_cast<long long>(shared.GetRect(i).width) * shared.GetRect(i).height;
    }
    RC_ASSERT(pixels == sharedPixels);
}
