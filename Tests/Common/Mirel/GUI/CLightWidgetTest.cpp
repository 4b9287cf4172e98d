#include "Mirel/GUI/CLightWidget.h"

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace Mirel::GUI;
using namespace Tests;

TEST(CLightWidget, BeginsShownEnabledSensitiveAndOpaque)
{
    CLightWidget widget;
    EXPECT_TRUE(widget.IsShown());
    EXPECT_TRUE(widget.IsEnabled());
    EXPECT_TRUE(widget.IsMouseSensitive());
    EXPECT_EQ(widget.GetOpacity(), 1.0F);
    EXPECT_FALSE(widget.IsBuffered());
    EXPECT_EQ(widget.GetParent(), nullptr);
    EXPECT_EQ(widget.GetRootWidget(), nullptr);
    EXPECT_EQ(widget.GetCursor(), nullptr);
}

TEST(CLightWidget, ChildrenJoinAtTheInsertionPoint)
{
    CLightWidget parent;
    CLightWidget a(&parent);
    CLightWidget b(&parent);
    CLightWidget inFront;
    parent.AddChild(&inFront, true);
    const auto children = [&parent]
    {
        std::vector<const CLightWidget*> all;
        for (int i = 0; i < parent.GetChildCount(); ++i)
        {
            all.push_back(parent.GetChild(i));
        }
        return all;
    };
    using Children = std::vector<const CLightWidget*>;

    parent.SetInsertionPoint(&a);
    CLightWidget c(&parent);
    CLightWidget d(&parent);
    EXPECT_EQ(children(), (Children{&a, &c, &d, &b, &inFront}));

    // What goes in front of the point does not move it.
    parent.RemoveChild(&a);
    CLightWidget e(&parent);
    EXPECT_EQ(children(), (Children{&c, &d, &e, &b, &inFront}));

    parent.SetInsertionPoint(nullptr);
    parent.AddChild(&b);
    EXPECT_EQ(children(), (Children{&b, &c, &d, &e, &inFront}));

    parent.MoveInsertionPointToEnd();
    parent.AddChild(&a);
    EXPECT_EQ(children(), (Children{&b, &c, &d, &e, &a, &inFront}));

    // Neither a front child nor a stranger is a place for those that are no front ones.
    CLightWidget stranger;
    for (const CLightWidget* place : {&inFront, &stranger})
    {
        parent.SetInsertionPoint(place);
        parent.AddChild(&b);
        EXPECT_EQ(parent.GetChild(4), &b);
        parent.AddChild(&a);
    }
}

TEST(CLightWidget, FrontChildrenStandBeforeAllOthers)
{
    CLightWidget parent;
    CLightWidget a;
    CLightWidget b;
    CLightWidget c;
    CLightWidget d;
    parent.AddChild(&a, true);
    parent.AddChild(&b, false);
    parent.AddChild(&c, true);
    parent.AddChild(&d, false);
    EXPECT_EQ(parent.GetChild(0), &b);
    EXPECT_EQ(parent.GetChild(1), &d);
    EXPECT_EQ(parent.GetChild(2), &a);
    EXPECT_EQ(parent.GetChild(3), &c);
    EXPECT_EQ(parent.GetChild(4), nullptr);
    EXPECT_EQ(parent.GetChild(-1), nullptr);
}

TEST(CLightWidget, AddingAgainMovesInsideTheParent)
{
    CLightWidget parent;
    CLightWidget a(&parent);
    CLightWidget b(&parent);
    parent.AddChild(&a);
    EXPECT_EQ(parent.GetChildCount(), 2);
    EXPECT_EQ(parent.GetChild(1), &a);
}

TEST(CLightWidget, ImpossibleChildrenAreIgnored)
{
    CLightWidget parent;
    CLightWidget child(&parent);
    parent.AddChild(nullptr);
    parent.AddChild(&parent);
    child.AddChild(&parent);
    EXPECT_EQ(parent.GetChildCount(), 1);
    EXPECT_EQ(child.GetChildCount(), 0);
    EXPECT_EQ(parent.GetParent(), nullptr);
}

TEST(CLightWidget, RemovingAStrangerAnswersFalse)
{
    CLightWidget parent;
    CLightWidget child(&parent);
    CLightWidget stranger;
    EXPECT_FALSE(parent.RemoveChild(&stranger));
    EXPECT_FALSE(parent.RemoveChild(nullptr));
    EXPECT_TRUE(parent.RemoveChild(&child));
    EXPECT_FALSE(parent.RemoveChild(&child));
    EXPECT_EQ(child.GetParent(), nullptr);
}

TEST(CLightWidget, SettingAParentMovesBetweenParents)
{
    CLightWidget first;
    CLightWidget second;
    CLightWidget child(&first);
    child.Move({3, 4});
    child.SetParent(&second);
    EXPECT_EQ(first.GetChildCount(), 0);
    EXPECT_EQ(second.GetChild(0), &child);
    child.SetParent(nullptr);
    EXPECT_EQ(second.GetChildCount(), 0);
    EXPECT_EQ(child.GetPosition(), CPoint({3, 4}));
    child.Attach(first, true);
    EXPECT_EQ(child.GetParent(), &first);
    EXPECT_TRUE(child.IsInFront());
}

TEST(CLightWidget, DestructionLeavesTheParentAndLetsChildrenGo)
{
    CLightWidget child;
    CLightWidget parent;
    {
        CLightWidget middle(&parent);
        middle.AddChild(&child);
        EXPECT_EQ(parent.GetChildCount(), 1);
    }
    EXPECT_EQ(parent.GetChildCount(), 0);
    EXPECT_EQ(child.GetParent(), nullptr);
}

TEST(CLightWidget, VisibleMeansShownWithAllAround)
{
    CLightWidget a;
    CLightWidget b(&a);
    CLightWidget c(&b);
    EXPECT_TRUE(c.IsVisible());
    a.Show(false);
    EXPECT_FALSE(c.IsVisible());
    EXPECT_TRUE(c.IsShown());
}

TEST(CLightWidget, AbsolutePositionSumsUpAndStaysInRange)
{
    CLightWidget a;
    CLightWidget b(&a);
    CLightWidget c(&b);
    a.Move({1, 2});
    b.Move({10, 20});
    c.Move({100, 200});
    EXPECT_EQ(c.GetAbsolutePosition(), CPoint({111, 222}));
    b.Move({INT32_MAX, INT32_MIN});
    c.Move({INT32_MAX, INT32_MIN});
    EXPECT_EQ(c.GetAbsolutePosition(), CPoint({INT32_MAX, INT32_MIN}));
}

TEST(CLightWidget, SettersFireOnceAndOnlyOnChange)
{
    CLightWidget widget;
    CEventCounter shown(widget.GetShownChangedEvent());
    CEventCounter moved(widget.GetMovedEvent());
    CEventCounter opacity(widget.GetOpacityChangedEvent());
    CEventCounter enabled(widget.GetEnabledChangedEvent());
    CEventCounter sized(widget.GetSizeChangedEvent());
    for (int round = 0; round < 2; ++round)
    {
        widget.Show(false);
        widget.Move({5, 6});
        widget.SetOpacity(0.5F);
        widget.Enable(false);
        widget.SetSize({7, 8});
    }
    EXPECT_EQ(shown.Take(), 1);
    EXPECT_EQ(moved.Take(), 1);
    EXPECT_EQ(opacity.Take(), 1);
    EXPECT_EQ(enabled.Take(), 1);
    EXPECT_EQ(sized.Take(), 1);
    widget.MoveBy({1, 1});
    EXPECT_EQ(widget.GetPosition(), CPoint({6, 7}));
    EXPECT_EQ(moved.Take(), 1);
}

TEST(CLightWidget, OpacityIsClampedAndNotANumberIsNoChange)
{
    CLightWidget widget;
    CEventCounter counter(widget.GetOpacityChangedEvent());
    widget.SetOpacity(2.0F);
    widget.SetOpacity(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(counter.Take(), 0);
    EXPECT_EQ(widget.GetOpacity(), 1.0F);
    widget.SetOpacity(-1.0F);
    EXPECT_EQ(widget.GetOpacity(), 0.0F);
}

TEST(CLightWidget, IsTransparentByGraphicsOrOpacity)
{
    CLightWidget widget(nullptr, new CFill({5, 5}, {1, 2, 3}), true);
    EXPECT_FALSE(widget.IsTransparent());
    widget.SetOpacity(0.99F);
    EXPECT_TRUE(widget.IsTransparent());
    widget.SetOpacity(1.0F);
    dynamic_cast<CFill*>(widget.GetGraphics())->opaque = false;
    EXPECT_TRUE(widget.IsTransparent());
    EXPECT_TRUE(CLightWidget().IsTransparent());
}

TEST(CLightWidget, OwnedGraphicsGoAndBorrowedStay)
{
    CFill borrowed({5, 5}, {1, 2, 3});
    {
        CLightWidget widget(nullptr, &borrowed, false);
        EXPECT_EQ(widget.GetSize(), CSize({5, 5}));
        widget.SetGraphics(nullptr, false);
        EXPECT_EQ(widget.GetSize(), CSize({5, 5}));
        widget.SetGraphics(new CFill({8, 9}, {0, 0, 0}), true);
        EXPECT_EQ(widget.GetSize(), CSize({8, 9}));
    }
    borrowed.SetColor({9, 9, 9});
}

TEST(CLightWidget, FocusTargetNeedsKeysAndTheFocusOnClick)
{
    std::string script;
    CNotingLight widget(nullptr, {0, 0, 5, 5}, "a", script);
    EXPECT_EQ(widget.GetFocusTarget(), nullptr);
    widget.TakeKeys();
    EXPECT_EQ(widget.GetFocusTarget(), &widget);
    widget.SetFocusOnClick(false);
    EXPECT_EQ(widget.GetFocusTarget(), nullptr);
}

TEST(CLightWidget, HitTestAsksTheGraphicsFirstAndThenShownChildren)
{
    CLightWidget parent(nullptr, new CFill({50, 50}, {0, 0, 0}), true);
    auto* const own = dynamic_cast<CFill*>(parent.GetGraphics());
    own->hit = false;
    CLightWidget child(&parent, new CFill({10, 10}, {0, 0, 0}), true);
    child.Move({20, 20});
    EXPECT_TRUE(parent.GetRecursiveGraphics().HitTest({20, 20}));
    EXPECT_FALSE(parent.GetRecursiveGraphics().HitTest({19, 20}));
    child.Show(false);
    EXPECT_FALSE(parent.GetRecursiveGraphics().HitTest({20, 20}));
    own->hit = true;
    EXPECT_TRUE(parent.GetRecursiveGraphics().HitTest({20, 20}));
}

TEST(CLightWidget, LayoutMovesSizesAndShows)
{
    CLightWidget widget(nullptr, new CFill({30, 20}, {0, 0, 0}), true);
    CLightWidgetLayoutCell& cell = widget.GetCell();
    EXPECT_EQ(&cell, &widget.GetCell());
    Mirel::Layout::CGroupLayoutCell row(Mirel::Layout::ELayoutType::Row, 0, 5, 5);
    Mirel::Layout::CLayoutOptions options;
    options.SetFlex(1.0F);
    row.AddCell(&cell, options, false);
    row.SetAutoWidth(false);
    row.SetFixedSize({110, 0});
    row.SetAutoUpdate(true);
    row.SetPosition({0, 0});
    EXPECT_EQ(widget.GetPosition(), CPoint({5, 5}));
    EXPECT_EQ(widget.GetSize(), CSize({100, 20}));
    cell.SetShown(false);
    EXPECT_FALSE(widget.IsShown());
}

TEST(CLightWidget, OwnSizeChangeLaysOutAgain)
{
    CLightWidget first(nullptr, new CFill({30, 20}, {0, 0, 0}), true);
    CLightWidget second(nullptr, new CFill({10, 20}, {0, 0, 0}), true);
    Mirel::Layout::CGroupLayoutCell row;
    row.AddCell(&first.GetCell(), {}, false);
    row.AddCell(&second.GetCell(), {}, false);
    row.SetAutoUpdate(true);
    EXPECT_EQ(second.GetPosition(), CPoint({30, 0}));
    first.GetGraphics()->SetSize({50, 20});
    EXPECT_EQ(second.GetPosition(), CPoint({50, 0}));
    EXPECT_EQ(row.GetSize(), CSize({60, 20}));
}
