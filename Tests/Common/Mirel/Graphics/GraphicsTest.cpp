#include "Mirel/Graphics/C2DRectangleGraphics.h"
#include "Mirel/Graphics/CColorDrawer.h"

#include "Canvas.h"
#include "Changes.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

#include <gtest/gtest.h>
#include <vector>

using namespace Mirel::Graphics;
using Tests::CCanvas;
using Tests::CChanges;

TEST(C2DRectangleGraphics, StartsWithoutASizeAndDrawsNothing)
{
    C2DRectangleGraphics graphics({255, 255, 255});
    EXPECT_EQ(graphics.GetSize(), CSize());
    CCanvas canvas(5, 5);
    graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 0);
    EXPECT_FALSE(canvas->GetTextNoClip());
}

TEST(C2DRectangleGraphics, OutlinesItsArea)
{
    C2DRectangleGraphics graphics({255, 0, 0}, 2);
    graphics.SetSize({4, 4});
    CCanvas canvas(6, 6);
    graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 12);
    EXPECT_EQ(canvas.At(1, 0), 0xffff0000U);
    EXPECT_EQ(canvas.AlphaAt(1, 1), 0);
    EXPECT_TRUE(canvas->GetTextNoClip());
}

TEST(C2DRectangleGraphics, OutlinesWhatItsAreaSharesWithTheRegion)
{
    C2DRectangleGraphics graphics({255, 0, 0});
    graphics.SetSize({6, 6});
    const CSimple2DRegion region(CRect(3, 3, 8, 8));
    CCanvas canvas(10, 10);
    graphics.Draw(*canvas, &region);
    EXPECT_EQ(canvas.CountPainted(), 8);
    EXPECT_EQ(canvas.AlphaAt(4, 3), 255);
    EXPECT_EQ(canvas.AlphaAt(4, 4), 0);
    const CSimple2DRegion apart(CRect(7, 7, 2, 2));
    graphics.Draw(*canvas, &apart);
    EXPECT_EQ(canvas.CountPainted(), 8);
}

TEST(C2DRectangleGraphics, OnlyAChangeOfColourIsToldWithTheWholeArea)
{
    C2DRectangleGraphics graphics({1, 2, 3});
    graphics.SetSize({4, 5});
    const CChanges changes(graphics);
    graphics.SetColor({1, 2, 3});
    EXPECT_TRUE(changes.areas.empty());
    graphics.SetColor({1, 2, 4});
    EXPECT_EQ(changes.areas, std::vector<CRect>{CRect(0, 0, 4, 5)});
    EXPECT_EQ(graphics.GetColor(), (CColor{1, 2, 4}));
    graphics.SetPenStyle(0);
    graphics.SetPenStyle(3);
    EXPECT_EQ(changes.areas.size(), 2U);
}

TEST(C2DRectangleGraphics, ObserverThatChangesTheColourIsNotEnteredAgain)
{
    C2DRectangleGraphics graphics;
    const CChanges first(graphics, [&] { graphics.SetColor({9, 9, 9}); });
    const CChanges second(graphics);
    graphics.SetColor({1, 1, 1});
    EXPECT_EQ(first.areas.size(), 1U);
    EXPECT_EQ(second.areas.size(), 2U);
    EXPECT_EQ(graphics.GetColor(), (CColor{9, 9, 9}));
}

TEST(C2DRectangleGraphics, ChangeOfSizeTellsTheOldAndTheNewArea)
{
    C2DRectangleGraphics graphics;
    graphics.SetSize({4, 9});
    const CChanges changes(graphics);
    graphics.SetSize({4, 9});
    graphics.SetSize({7, 3});
    EXPECT_EQ(changes.areas, std::vector<CRect>{CRect(0, 0, 7, 9)});
}

TEST(C2DRectangleGraphics, HitIsInsideOfTheArea)
{
    C2DRectangleGraphics graphics;
    graphics.SetSize({3, 2});
    EXPECT_TRUE(graphics.HitTest({0, 0}));
    EXPECT_TRUE(graphics.HitTest({2, 1}));
    EXPECT_FALSE(graphics.HitTest({3, 1}));
    EXPECT_FALSE(graphics.HitTest({-1, 0}));
    EXPECT_FALSE(graphics.IsOpaque());
}

TEST(CColorDrawer, FillsItsSizeWithoutARegion)
{
    CColorDrawer drawer({1, 2, 3});
    drawer.SetSize({3, 2});
    CCanvas canvas(6, 6);
    drawer.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 6);
    EXPECT_EQ(canvas.At(2, 1), 0xff010203U);
}

TEST(CColorDrawer, FillsTheBoundsOfTheRegion)
{
    CColorDrawer drawer({1, 2, 3});
    CSimple2DRegion region(CRect(1, 1, 1, 1));
    region.Union(CRect(3, 3, 1, 1));
    CCanvas canvas(6, 6);
    drawer.Draw(*canvas, &region);
    EXPECT_EQ(canvas.CountPainted(), 9);
}

TEST(CColorDrawer, AnswersTheOpaqueFlagItWasGiven)
{
    EXPECT_TRUE(CColorDrawer({0, 0, 0}, true).IsOpaque());
    EXPECT_FALSE(CColorDrawer({0, 0, 0}, false).IsOpaque());
}

TEST(CColorDrawer, OnlyAChangeOfColourIsTold)
{
    CColorDrawer drawer({1, 2, 3});
    const CChanges changes(drawer);
    drawer.SetColor({1, 2, 3});
    EXPECT_TRUE(changes.areas.empty());
    drawer.SetColor({3, 2, 1});
    EXPECT_EQ(changes.areas.size(), 1U);
}
