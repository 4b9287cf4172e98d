#include "Common/Mirel/GUI/GUIRig.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;
using namespace Tests;

namespace
{

/// What the window presented for the last changes.
CRect TakePainted(CLightRig& rig)
{
    rig.platform.Pump();
    return rig.Native().TakePresented().GetBounds();
}

} // namespace

TEST(Invalidation, ChangeRepaintsItsRectangleAlone)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 20, 30, 40}, "a", rig.script);
    EXPECT_EQ(TakePainted(rig), CRect(10, 20, 30, 40));
    a.InvalidateRect({5, 5, 10, 10});
    EXPECT_EQ(TakePainted(rig), CRect(15, 25, 10, 10));
    a.InvalidateRect({-5, -5, 10, 10});
    EXPECT_EQ(TakePainted(rig), CRect(5, 15, 10, 10));
    EXPECT_EQ(TakePainted(rig), CRect());
}

TEST(Invalidation, EmptyRectanglesAndInvisibleWidgetsAskForNothing)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 20, 30, 40}, "a", rig.script);
    TakePainted(rig);
    a.InvalidateRect({5, 5, 0, 10});
    EXPECT_EQ(TakePainted(rig), CRect());
    a.Show(false);
    EXPECT_EQ(TakePainted(rig), CRect(10, 20, 30, 40));
    a.Invalidate();
    a.Move({50, 50});
    EXPECT_EQ(TakePainted(rig), CRect());
    a.Show(true);
    EXPECT_EQ(TakePainted(rig), CRect(50, 50, 30, 40));
}

TEST(Invalidation, IsCutOffAtTheParent)
{
    CLightRig rig;
    CNotingLight parent(rig.root, {10, 10, 20, 20}, "p", rig.script);
    CNotingLight child(&parent, {10, 10, 50, 50}, "c", rig.script);
    TakePainted(rig);
    child.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect(20, 20, 10, 10));
}

TEST(Invalidation, MoveRepaintsOldAndNewPlace)
{
    CLightRig rig({1000, 1000});
    CNotingLight a(rig.root, {0, 0, 10, 10}, "a", rig.script);
    TakePainted(rig);
    a.Move({500, 600});
    rig.platform.Pump();
    const auto painted = rig.Native().TakePresented();
    EXPECT_EQ(painted.GetRectCount(), 2);
    EXPECT_TRUE(painted.Contains({0, 0}));
    EXPECT_TRUE(painted.Contains({505, 605}));
    EXPECT_FALSE(painted.Contains({250, 300}));
}

TEST(Invalidation, ResizeRepaintsOldAndNewArea)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 10, 20, 5}, "a", rig.script);
    TakePainted(rig);
    a.SetSize({5, 20});
    EXPECT_EQ(TakePainted(rig), CRect(10, 10, 20, 20));
}

TEST(Invalidation, OpaqueSiblingsInFrontHideWhatIsBehindThem)
{
    CLightRig rig;
    CNotingLight behind(rig.root, {10, 10, 20, 20}, "b", rig.script);
    CNotingLight cover(rig.root, {0, 0, 100, 15}, "c", rig.script);
    TakePainted(rig);
    behind.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect(10, 15, 20, 15));

    cover.SetOpacity(0.5F);
    TakePainted(rig);
    behind.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect(10, 10, 20, 20));

    cover.SetOpacity(1.0F);
    cover.SetSize({100, 100});
    TakePainted(rig);
    behind.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect());

    cover.Show(false);
    TakePainted(rig);
    behind.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect(10, 10, 20, 20));
}

TEST(Invalidation, SiblingsOfParentsHideToo)
{
    CLightRig rig;
    CNotingLight group(rig.root, {0, 0, 50, 50}, "g", rig.script);
    CNotingLight inner(&group, {10, 10, 20, 20}, "i", rig.script);
    CNotingLight cover(rig.root, {20, 0, 100, 100}, "c", rig.script);
    TakePainted(rig);
    inner.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect(10, 10, 10, 20));
}

TEST(Invalidation, WidgetsBehindDoNotHide)
{
    CLightRig rig;
    CNotingLight back(rig.root, {0, 0, 100, 100}, "b", rig.script);
    CNotingLight front(rig.root, {10, 10, 20, 20}, "f", rig.script);
    TakePainted(rig);
    front.Invalidate();
    EXPECT_EQ(TakePainted(rig), CRect(10, 10, 20, 20));
}

TEST(Invalidation, RemovalRepaintsWhereTheWidgetStood)
{
    CLightRig rig;
    {
        CNotingLight a(rig.root, {10, 20, 30, 40}, "a", rig.script, {255, 0, 0});
        CNotingLight b(rig.root, {60, 60, 5, 5}, "b", rig.script);
        TakePainted(rig);
        EXPECT_EQ(rig.PixelAt(15, 25), 0xFF0000U);
        rig.root->RemoveChild(&b);
        EXPECT_EQ(TakePainted(rig), CRect(60, 60, 5, 5));
    }
    EXPECT_EQ(TakePainted(rig), CRect(10, 20, 30, 40));
    EXPECT_EQ(rig.PixelAt(15, 25), 0U);
}

TEST(Invalidation, ChangesAreCoalescedIntoOnePaint)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 10, 30, 30}, "a", rig.script);
    TakePainted(rig);
    a.fill->TakeDraws();
    for (int i = 0; i < 10; ++i)
    {
        a.Invalidate();
    }
    TakePainted(rig);
    EXPECT_EQ(a.fill->TakeDraws(), 1);
}

TEST(Invalidation, UpdatePaintsAtOnce)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 10, 30, 30}, "a", rig.script, {0, 0, 255});
    EXPECT_EQ(rig.PixelAt(15, 15), 0U);
    rig.adapter->Update();
    EXPECT_EQ(rig.PixelAt(15, 15), 0x0000FFU);
}

TEST(Invalidation, ScaledWindowsPaintWholeBlocks)
{
    CLightRig rig({50, 50}, 3);
    CNotingLight a(rig.root, {10, 10, 2, 2}, "a", rig.script, {0, 0, 255});
    EXPECT_EQ(TakePainted(rig), CRect(30, 30, 6, 6));
    EXPECT_EQ(rig.PixelAt(30, 30), 0x0000FFU);
    EXPECT_EQ(rig.PixelAt(35, 35), 0x0000FFU);
    EXPECT_EQ(rig.PixelAt(36, 35), 0U);
    EXPECT_EQ(rig.PixelAt(29, 30), 0U);
}
