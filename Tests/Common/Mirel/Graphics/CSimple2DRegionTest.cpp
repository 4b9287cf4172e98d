#include "Mirel/Graphics/CSimple2DRegion.h"

#include <gtest/gtest.h>

using namespace Mirel::Graphics;

TEST(CSimple2DRegion, StartsEmptyWithoutBounds)
{
    const CSimple2DRegion region;
    EXPECT_TRUE(region.IsEmpty());
    EXPECT_EQ(region.GetBounds(), CRect());
    EXPECT_EQ(region.GetRectCount(), 0);
    EXPECT_EQ(region.GetRect(0), CRect());
}

TEST(CSimple2DRegion, RectangleWithoutPixelsAddsNothing)
{
    CSimple2DRegion region(CRect(3, 3, -2, 5));
    region.Union(CRect(1, 1, 0, 4));
    EXPECT_TRUE(region.IsEmpty());
}

TEST(CSimple2DRegion, BoundsSpanPartsThatLieApart)
{
    CSimple2DRegion region(CRect(0, 0, 2, 2));
    region.Union(CRect(8, 6, 2, 4));
    EXPECT_EQ(region.GetBounds(), CRect(0, 0, 10, 10));
    EXPECT_EQ(region.GetRectCount(), 2);
    EXPECT_TRUE(region.Contains({9, 9}));
    EXPECT_FALSE(region.Contains({4, 4}));
}

TEST(CSimple2DRegion, OffsetMovesAndComesBack)
{
    CSimple2DRegion region(CRect(1, 2, 3, 4));
    region.Offset({-5, 7});
    EXPECT_EQ(region.GetBounds(), CRect(-4, 9, 3, 4));
    region.Offset({5, -7});
    EXPECT_EQ(region.GetBounds(), CRect(1, 2, 3, 4));
}

TEST(CSimple2DRegion, IntersectsWithRectanglesAndRegions)
{
    CSimple2DRegion region(CRect(0, 0, 10, 10));
    region.Intersect(CRect(5, 5, 10, 10));
    EXPECT_EQ(region.GetBounds(), CRect(5, 5, 5, 5));
    region.Intersect(CSimple2DRegion(CRect(0, 0, 6, 7)));
    EXPECT_EQ(region.GetBounds(), CRect(5, 5, 1, 2));
}

TEST(CSimple2DRegion, CopyIsIndependent)
{
    CSimple2DRegion region(CRect(0, 0, 4, 4));
    const CSimple2DRegion copy = region;
    region.Union(copy);
    region.Offset({9, 9});
    EXPECT_EQ(copy.GetBounds(), CRect(0, 0, 4, 4));
}
