#include "Mirel/Layout/CLayoutCell.h"

#include "Common/Mirel/Layout/LayoutRig.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::Layout;
using namespace Tests;

namespace
{

class CCountingGroup : public CGroupLayoutCell
{
public:
    using CGroupLayoutCell::CGroupLayoutCell;

    void Update() override
    {
        ++updates;
        CGroupLayoutCell::Update();
    }

    void ComputeNaturalSize(bool recurse) override
    {
        ++sizePasses;
        CGroupLayoutCell::ComputeNaturalSize(recurse);
    }

    void Arrange(const CPoint& point) override
    {
        ++arrangePasses;
        CGroupLayoutCell::Arrange(point);
    }

    int updates = 0;
    int sizePasses = 0;
    int arrangePasses = 0;
};

} // namespace

TEST(CLayoutCell, BeginsDisplayedAloneAndWithoutAutoUpdate)
{
    const CGroupLayoutCell cell;
    EXPECT_EQ(cell.GetSize(), CSize({0, 0}));
    EXPECT_EQ(cell.GetPosition(), CPoint({0, 0}));
    EXPECT_FALSE(cell.HasParent());
    EXPECT_FALSE(cell.GetAutoUpdate());
    EXPECT_TRUE(cell.IsDisplayed());
    EXPECT_TRUE(cell.IsVisible());
}

TEST(CLayoutCell, SizeFiresOnAChangeOnly)
{
    CGroupLayoutCell cell;
    CEventCounter events(cell.GetSizeChangedEvent());
    cell.SetSize({0, 0});
    EXPECT_EQ(events.Take(), 0);
    cell.SetSize({1, 0});
    EXPECT_EQ(events.Take(), 1);
    cell.SetSize({1, 2});
    EXPECT_EQ(events.Take(), 1);
    cell.SetSize({1, 2});
    EXPECT_EQ(events.Take(), 0);
    EXPECT_EQ(cell.GetSize(), CSize({1, 2}));
}

TEST(CLayoutCell, VisibleMeansDisplayedAllTheWayUp)
{
    CGroupLayoutCell outer;
    CGroupLayoutCell inner;
    CBox box({1, 1});
    outer.AddCell(&inner, {}, false);
    inner.AddCell(&box, {}, false);
    EXPECT_TRUE(box.IsVisible());
    outer.SetDisplayed(false);
    EXPECT_TRUE(box.IsDisplayed());
    EXPECT_FALSE(box.IsVisible());
    outer.SetDisplayed(true);
    box.SetDisplayed(false);
    EXPECT_FALSE(box.IsVisible());
    EXPECT_TRUE(inner.IsVisible());
}

TEST(CLayoutCell, WithoutAutoUpdateChangesWait)
{
    CGroupLayoutCell row;
    CBox& box = AddBox(row, {10, 10});
    EXPECT_EQ(row.GetSize(), CSize({0, 0}));
    row.SetAutoUpdate(true);
    EXPECT_TRUE(box.GetAutoUpdate());
    EXPECT_EQ(row.GetSize(), CSize({10, 10}));

    row.SetAutoUpdate(false);
    EXPECT_FALSE(box.GetAutoUpdate());
    box.SetContent({20, 20});
    row.SetHMargin(5);
    EXPECT_EQ(row.GetSize(), CSize({10, 10}));
    row.SetAutoUpdate(true);
    EXPECT_EQ(row.GetSize(), CSize({30, 20}));
    EXPECT_EQ(box.GetPosition(), CPoint({5, 0}));
}

TEST(CLayoutCell, ChangesThatWaitedReachTheTopOnceItIsOn)
{
    CGroupLayoutCell outer(ELayoutType::Row);
    CGroupLayoutCell inner(ELayoutType::Row);
    CBox box({10, 10});
    outer.AddCell(&inner, {}, false);
    CBox& behind = AddBox(outer, {10, 10});
    inner.AddCell(&box, {}, false);
    outer.SetAutoUpdate(true);
    outer.SetAutoUpdate(false);
    box.SetDisplayed(false);
    EXPECT_EQ(behind.GetPosition().x, 10);
    outer.SetAutoUpdate(true);
    EXPECT_EQ(behind.GetPosition().x, 0);
}

TEST(CLayoutCell, TurningOnRunsOneSizePassAndOneArrangePassFromTheRoot)
{
    CCountingGroup root;
    CCountingGroup inner;
    root.AddCell(&inner, {}, false);
    AddBox(inner, {10, 10});
    root.SetAutoUpdate(true);
    EXPECT_EQ(root.sizePasses, 1);
    EXPECT_EQ(root.arrangePasses, 1);
    EXPECT_EQ(inner.sizePasses, 1);
    EXPECT_EQ(inner.arrangePasses, 1);
}

TEST(CLayoutCell, ChangeTravelsUpUntilASizeStaysTheSame)
{
    CCountingGroup root;
    CCountingGroup fixed;
    CCountingGroup inner;
    root.AddCell(&fixed, {}, false);
    fixed.AddCell(&inner, {}, false);
    CBox& box = AddBox(inner, {10, 10});
    fixed.SetAutoSize(false);
    fixed.SetFixedSize({100, 100});
    root.SetAutoUpdate(true);
    root.updates = fixed.updates = inner.updates = 0;

    box.SetContent({20, 10});
    EXPECT_EQ(inner.updates, 1);
    EXPECT_EQ(fixed.updates, 1);
    EXPECT_EQ(root.updates, 0);
    EXPECT_EQ(inner.GetSize(), CSize({20, 10}));

    box.SetContent({20, 10});
    EXPECT_EQ(inner.updates, 1);
}

TEST(CLayoutCell, DisplayAlwaysReachesTheParent)
{
    CCountingGroup root;
    CBox& box = AddBox(root, {0, 0});
    root.SetAutoUpdate(true);
    root.updates = 0;
    box.SetDisplayed(false);
    EXPECT_EQ(root.updates, 1);
    box.SetDisplayed(false);
    EXPECT_EQ(root.updates, 1);
    box.SetDisplayed(true);
    EXPECT_EQ(root.updates, 2);
    box.Update(); // The change of display is taken up by now.
    EXPECT_EQ(root.updates, 2);
}

TEST(CLayoutCell, ContentThatGrowsToTheSizeGivenStillReachesTheParent)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& first = AddBox(row, {20, 5}, WithFlex(1.0F));
    CBox& second = AddBox(row, {20, 5}, WithFlex(1.0F));
    row.SetAutoSize(false);
    row.SetFixedSize({120, 5});
    row.SetAutoUpdate(true);
    ASSERT_EQ(first.GetSize().width, 60);

    first.SetContent({60, 5}); // Leaves 40 pixels to share instead of 80.
    EXPECT_EQ(first.GetSize().width, 80);
    EXPECT_EQ(second.GetSize().width, 40);
}

TEST(CLayoutCell, RelayoutKeepsThePlace)
{
    CGroupLayoutCell row;
    CBox& box = AddBox(row, {10, 10});
    row.SetPosition({30, 40});
    row.SetHMargin(5);
    EXPECT_EQ(box.GetPosition(), CPoint({30, 40}));
    row.Relayout();
    EXPECT_EQ(row.GetPosition(), CPoint({30, 40}));
    EXPECT_EQ(box.GetPosition(), CPoint({35, 40}));
}

TEST(CLayoutCell, DetachLeavesTheGroup)
{
    CGroupLayoutCell row;
    CBox box({10, 10});
    row.AddCell(&box, {}, false);
    row.SetAutoUpdate(true);
    EXPECT_TRUE(box.HasParent());
    box.Detach();
    EXPECT_FALSE(box.HasParent());
    EXPECT_EQ(row.GetSize(), CSize({0, 0}));
    box.Detach();
}

TEST(CLayoutCell, SizeGivenByTheGroupIsNotItsOwn)
{
    CBox box({10, 20});
    box.GiveSize({50, 60});
    EXPECT_EQ(box.GetSize(), CSize({50, 60}));
    EXPECT_EQ(box.GetOwnSize(), CSize({10, 20}));
    box.GiveSize({50, 60});
    EXPECT_EQ(box.GetOwnSize(), CSize({10, 20}));
    box.SetSize({70, 80});
    EXPECT_EQ(box.GetOwnSize(), CSize({70, 80}));
    box.UpdateSize();
    EXPECT_EQ(box.GetSize(), CSize({10, 20}));
}
