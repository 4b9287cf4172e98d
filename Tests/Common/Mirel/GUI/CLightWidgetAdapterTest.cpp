#include "Mirel/GUI/CLightWidgetAdapter.h"

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/CCustomWidget.h"
#include "Mirel/GUI/CEmptyGraphics.h"
#include "Mirel/GUI/CInputManager.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;
using namespace Tests;

namespace
{

/// Two widgets side by side, the second one's left neighbour being the first.
class CAdapterTest : public testing::Test
{
protected:
    CLightRig rig;
    CNotingLight a{rig.root, {10, 10, 30, 30}, "a", rig.script};
    CNotingLight b{rig.root, {50, 10, 30, 30}, "b", rig.script};
};

using CLightWidgetAdapterRouting = CAdapterTest;

} // namespace

TEST_F(CLightWidgetAdapterRouting, MoveEntersThenMovesThenLeaves)
{
    rig.Move(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter ");
    EXPECT_TRUE(a.IsMouseOver());
    rig.Move(21, 20);
    EXPECT_EQ(rig.TakeScript(), "a.move ");
    rig.Move(60, 20);
    EXPECT_EQ(rig.TakeScript(), "a.leave b.enter ");
    EXPECT_FALSE(a.IsMouseOver());
    rig.Move(90, 90);
    EXPECT_EQ(rig.TakeScript(), "b.leave ");
}

TEST_F(CLightWidgetAdapterRouting, PositionsAreTheWidgetsOwn)
{
    CNotingLight inner(&a, {5, 6, 10, 10}, "i", rig.script);
    inner.mouse.notesPositions = true;
    rig.Move(18, 19);
    rig.Press();
    rig.Move(90, 5);
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "i.enter(3,3) i.down(3,3) i.leave(75,-11) i.drag(75,-11) i.up(75,-11) ");
}

TEST_F(CLightWidgetAdapterRouting, ClickIsDownUpClick)
{
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.down a.up a.click ");
    EXPECT_EQ(rig.adapter->GetInputManager().GetCaptured(), nullptr);
}

TEST_F(CLightWidgetAdapterRouting, RightButtonHasItsOwnCalls)
{
    rig.Move(20, 20);
    rig.TakeScript();
    rig.Press(CLightRig::Button::Right);
    rig.Release(CLightRig::Button::Right);
    EXPECT_EQ(rig.TakeScript(), "a.rdown a.rup a.rclick ");
    rig.Press(CLightRig::Button::Right);
    rig.Release(CLightRig::Button::Right);
    EXPECT_EQ(rig.TakeScript(), "a.rup a.rdouble ");
}

TEST_F(CLightWidgetAdapterRouting, DoubleClickComesOnTheWayUpAndTripleClickNotAtAll)
{
    rig.Click(20, 20);
    rig.TakeScript();
    rig.Press();
    EXPECT_EQ(rig.TakeScript(), "");
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.up a.double ");
    rig.Press();
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.up ");
}

TEST_F(CLightWidgetAdapterRouting, DoubleClickOnAnotherWidgetIsNone)
{
    rig.Move(39, 20);
    rig.Press();
    rig.Release();
    a.Show(false);
    CNotingLight over(rig.root, {30, 10, 15, 30}, "o", rig.script);
    rig.TakeScript();
    rig.Press();
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "o.up ");
}

TEST_F(CLightWidgetAdapterRouting, DragThatLeavesIsToldAndStillGetsTheUp)
{
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    rig.Move(25, 20);
    EXPECT_EQ(rig.TakeScript(), "a.drag ");
    rig.Move(60, 20);
    EXPECT_EQ(rig.TakeScript(), "a.leave a.drag ");
    rig.Move(65, 20);
    EXPECT_EQ(rig.TakeScript(), "a.drag ");
    rig.Move(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.drag ");
    rig.Move(60, 20);
    rig.TakeScript();
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.up ");
    rig.Move(61, 20);
    EXPECT_EQ(rig.TakeScript(), "b.enter ");
}

TEST_F(CLightWidgetAdapterRouting, DragOutOfTheWindowGoesOn)
{
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    rig.Move(-500, -500);
    rig.Move(-501, -500);
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.leave a.drag a.drag a.up ");
}

TEST_F(CLightWidgetAdapterRouting, ReleaseOverAnotherWidgetIsNoClick)
{
    rig.Move(20, 20);
    rig.Press();
    rig.Move(60, 20);
    rig.TakeScript();
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.up ");
}

TEST_F(CLightWidgetAdapterRouting, UpWithoutADownIsNoClick)
{
    rig.Move(45, 20);
    rig.Press();
    rig.Move(20, 20);
    rig.TakeScript();
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.up ");
}

TEST_F(CLightWidgetAdapterRouting, SecondButtonBelongsToTheSameWidgetUntilTheLastIsUp)
{
    rig.Move(20, 20);
    rig.Press();
    rig.Move(60, 20);
    rig.TakeScript();
    rig.Press(CLightRig::Button::Right);
    EXPECT_EQ(rig.TakeScript(), "a.rdown ");
    rig.Release(CLightRig::Button::Right);
    EXPECT_EQ(rig.TakeScript(), "a.rup ");
    rig.Move(61, 20);
    EXPECT_EQ(rig.TakeScript(), "a.drag ");
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.up ");
}

TEST_F(CLightWidgetAdapterRouting, LeftAndTopEdgesLetThePointerThrough)
{
    CNotingLight beneath(rig.root, {0, 0, 100, 100}, "x", rig.script);
    rig.root->AddChild(&a);
    rig.Move(10, 20);
    EXPECT_EQ(rig.TakeScript(), "x.enter ");
    rig.Move(11, 20);
    EXPECT_EQ(rig.TakeScript(), "x.leave a.enter ");
    rig.Move(20, 10);
    EXPECT_EQ(rig.TakeScript(), "a.leave x.enter ");
    rig.Move(39, 39);
    EXPECT_EQ(rig.TakeScript(), "x.leave a.enter ");
    rig.Move(40, 39);
    EXPECT_EQ(rig.TakeScript(), "a.leave x.enter ");
}

TEST_F(CLightWidgetAdapterRouting, FrontWidgetsAreHitFirst)
{
    CNotingLight front(rig.root, {10, 10, 30, 30}, "f", rig.script);
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "f.enter f.down f.up f.click ");
}

TEST_F(CLightWidgetAdapterRouting, WidgetsWithoutATargetSensitivityOrHitLetThrough)
{
    CNotingLight front(rig.root, {10, 10, 30, 30}, "f", rig.script);
    front.SetMouseSensitive(false);
    rig.Move(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter ");
    front.SetMouseSensitive(true);
    front.fill->hit = false;
    rig.Move(21, 20);
    EXPECT_EQ(rig.TakeScript(), "a.move ");
    front.fill->hit = true;
    front.SetMouseTarget(nullptr, false);
    rig.Move(22, 20);
    EXPECT_EQ(rig.TakeScript(), "a.move ");
}

TEST_F(CLightWidgetAdapterRouting, HiddenWidgetsAndTheirChildrenGetNothing)
{
    CNotingLight inner(&a, {5, 5, 20, 20}, "i", rig.script);
    a.Show(false);
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "");
    a.Show(true);
    rig.Rest();
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "i.enter i.down i.up i.click ");
}

TEST_F(CLightWidgetAdapterRouting, WidgetHiddenDuringACaptureLosesTheRest)
{
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    CEventCounter over(a.GetMouseOverChangedEvent());
    a.Show(false);
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    EXPECT_EQ(over.Take(), 1);
    EXPECT_FALSE(a.IsMouseOver());
    rig.Move(60, 20);
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "");
    rig.Move(61, 20);
    EXPECT_EQ(rig.TakeScript(), "b.enter ");
}

TEST_F(CLightWidgetAdapterRouting, WidgetRemovedDuringACaptureHearsThatItIsLost)
{
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    rig.root->RemoveChild(&a);
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    rig.Move(60, 20);
    EXPECT_EQ(rig.TakeScript(), "");
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "b.up ");
}

TEST_F(CLightWidgetAdapterRouting, ParentRemovedDuringACaptureTakesTheCaptureAlong)
{
    CNotingLight inner(&a, {5, 5, 20, 20}, "i", rig.script);
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    a.SetParent(nullptr);
    EXPECT_EQ(rig.TakeScript(), "i.lost ");
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "");
}

TEST_F(CLightWidgetAdapterRouting, MouseLostToAnotherProgramEndsTheCapture)
{
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    rig.platform.LoseCapture();
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    EXPECT_EQ(rig.adapter->GetInputManager().GetCaptured(), nullptr);
}

TEST_F(CLightWidgetAdapterRouting, WidgetThatDeletesItselfInAnyHandlerIsSafe)
{
    for (const char* when : {"enter", "down", "drag", "leave", "up", "click", "double", "move", "wheel"})
    {
        rig.Rest();
        rig.Move(99, 99);
        auto* doomed = new CNotingLight(rig.root, {10, 50, 30, 30}, "d", rig.script);
        bool gone = false;
        doomed->mouse.onCall = [&, when](const std::string& call)
        {
            if (call == when)
            {
                gone = true;
                delete doomed;
            }
        };
        rig.Move(20, 60);
        rig.Move(21, 60);
        rig.platform.TurnWheel(1.0);
        rig.Press();
        rig.Move(22, 60);
        rig.Release();
        rig.Press();
        rig.Release();
        rig.Move(90, 60);
        EXPECT_TRUE(gone) << when;
        EXPECT_EQ(rig.adapter->GetInputManager().GetHover(), nullptr) << when;
        EXPECT_EQ(rig.adapter->GetInputManager().GetCaptured(), nullptr) << when;
    }
}

TEST_F(CLightWidgetAdapterRouting, WidgetDeletedByAnothersHandlerIsSafe)
{
    auto doomed = std::make_unique<CNotingLight>(rig.root, CRect(10, 50, 30, 30), "d", rig.script);
    a.mouse.onCall = [&doomed](const std::string& call)
    {
        if (call == "leave")
        {
            doomed.reset();
        }
    };
    rig.Move(20, 20);
    rig.TakeScript();
    rig.Move(20, 60);
    EXPECT_EQ(rig.TakeScript(), "a.leave ");
}

TEST_F(CLightWidgetAdapterRouting, HandlerMayDestroyTheWindow)
{
    auto* doomed = new CNotingLight(nullptr, {10, 50, 30, 30}, "d", rig.script);
    auto target = std::make_unique<CNotingMouse>("d", rig.script);
    target->onCall = [this](const std::string& call)
    {
        if (call == "up")
        {
            a.SetParent(nullptr);
            b.SetParent(nullptr);
            rig.window.reset();
        }
    };
    rig.root->AddChild(doomed);
    doomed->SetMouseTarget(target.get(), false);
    rig.Click(20, 60);
    EXPECT_EQ(rig.window, nullptr);
    doomed->SetMouseTarget(nullptr, false);
    delete doomed;
}

TEST_F(CLightWidgetAdapterRouting, DisabledWidgetIsHitButPressesDoNotReachIt)
{
    CNotingLight front(rig.root, {10, 10, 30, 30}, "f", rig.script);
    front.TakeKeys();
    front.Enable(false);
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "f.enter f.up ");
    EXPECT_FALSE(front.HasFocus());
    rig.platform.TurnWheel(1.0);
    EXPECT_EQ(rig.TakeScript(), "");
}

TEST_F(CLightWidgetAdapterRouting, WidgetDisabledDuringAGestureStillEndsIt)
{
    rig.Move(20, 20);
    rig.Press();
    a.Enable(false);
    rig.TakeScript();
    rig.Move(21, 20);
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.drag a.up ");
}

TEST_F(CLightWidgetAdapterRouting, WheelGoesToTheWidgetUnderThePointer)
{
    rig.Move(60, 20);
    rig.TakeScript();
    rig.platform.TurnWheel(-2.0);
    EXPECT_EQ(rig.TakeScript(), "b.wheel ");
    EXPECT_EQ(b.mouse.wheel, -2.0F);
}

TEST_F(CLightWidgetAdapterRouting, LeavingTheWindowLeavesTheHover)
{
    rig.Move(20, 20);
    rig.TakeScript();
    rig.Move(200, 200);
    EXPECT_EQ(rig.TakeScript(), "a.leave ");
    EXPECT_EQ(rig.adapter->GetInputManager().GetHover(), nullptr);
}

TEST_F(CLightWidgetAdapterRouting, CapturedWidgetGetsMovesFromEverywhere)
{
    EXPECT_TRUE(a.CaptureMouse());
    EXPECT_FALSE(b.CaptureMouse());
    rig.Move(60, 20);
    rig.Move(20, 20);
    rig.Move(60, 20);
    EXPECT_EQ(rig.TakeScript(), "a.move a.enter a.leave a.move ");
    rig.Move(400, 400);
    EXPECT_EQ(rig.TakeScript(), "a.move ");
    a.ReleaseMouse();
    rig.Move(60, 20);
    EXPECT_EQ(rig.TakeScript(), "b.enter ");
}

TEST_F(CLightWidgetAdapterRouting, CursorIsThatOfTheWidgetOrOfWhatItStandsIn)
{
    CNotingLight inner(&a, {5, 5, 20, 20}, "i", rig.script);
    a.SetCursor(CCursor::FindSystem("hand"));
    rig.Move(20, 20);
    EXPECT_EQ(rig.Native().GetCursorShape(), ECursorShape::Hand);
    inner.SetCursor(CCursor::FindSystem("cross"));
    EXPECT_EQ(rig.Native().GetCursorShape(), ECursorShape::Cross);
    rig.Move(60, 20);
    EXPECT_EQ(rig.Native().GetCursorShape(), ECursorShape::Normal);
    rig.adapter->SetCursor(CCursor::FindSystem("wait"));
    EXPECT_EQ(rig.Native().GetCursorShape(), ECursorShape::Wait);
}

TEST_F(CLightWidgetAdapterRouting, ModifiersComeAlong)
{
    rig.platform.SetModifiers(ModifierFlags::shift | ModifierFlags::alternate);
    rig.Move(20, 20);
    CModifierState state;
    state.modifiers = a.mouse.modifiers;
    EXPECT_TRUE(state.IsModifierDown(EModifierKey::Alternate));
    EXPECT_TRUE(state.IsModifierDown(EModifierKey::Shift));
    EXPECT_FALSE(state.IsModifierDown(EModifierKey::Control));
}

TEST_F(CLightWidgetAdapterRouting, PressGivesTheFocusAndKeysFollow)
{
    a.TakeKeys();
    b.TakeKeys();
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.gained a.down a.up a.click ");
    EXPECT_TRUE(a.HasFocus());
    SNativeKeyEvent key;
    key.text = "x";
    rig.platform.PressKey(key);
    rig.platform.ReleaseKey(key);
    EXPECT_EQ(rig.TakeScript(), "a.accepts a.keydown:x a.accepts a.keyup ");
    rig.Rest();
    rig.Click(60, 20);
    EXPECT_EQ(rig.TakeScript(), "a.leave b.enter a.lost b.gained b.down b.up b.click ");
    EXPECT_FALSE(a.HasFocus());
    rig.Click(60, 20);
    EXPECT_EQ(rig.TakeScript(), "b.move b.up b.double ");
}

TEST_F(CLightWidgetAdapterRouting, KeysThatAreNotAcceptedAreNotDelivered)
{
    a.TakeKeys();
    a.keys.accepts = false;
    a.SetFocus();
    rig.TakeScript();
    rig.platform.PressKey({});
    EXPECT_EQ(rig.TakeScript(), "a.accepts ");
}

TEST_F(CLightWidgetAdapterRouting, FocusOnClickCanBeOff)
{
    a.TakeKeys();
    a.SetFocusOnClick(false);
    rig.Click(20, 20);
    EXPECT_FALSE(a.HasFocus());
    a.SetFocus();
    EXPECT_TRUE(a.HasFocus());
}

TEST_F(CLightWidgetAdapterRouting, FocusStaysWhileTheHostIsWithoutIt)
{
    a.TakeKeys();
    a.SetFocus();
    EXPECT_TRUE(rig.adapter->HasFocus());
    rig.TakeScript();
    rig.window->SetFocusWidget(nullptr);
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    EXPECT_EQ(rig.adapter->GetInputManager().GetFocus(), &a);
    EXPECT_FALSE(a.HasFocus());
    rig.adapter->CWidget::SetFocus();
    EXPECT_EQ(rig.TakeScript(), "a.gained ");
}

TEST_F(CLightWidgetAdapterRouting, PressTakesTheKeysBackFromAnotherWindow)
{
    a.TakeKeys();
    b.TakeKeys();
    a.SetFocus();
    CWindow other(rig.platform, {});
    other.Show(true);
    EXPECT_FALSE(a.HasFocus());
    a.SetFocus();
    EXPECT_TRUE(a.HasFocus());
    EXPECT_TRUE(rig.Native().HasFocus());

    other.GetNativeWindow()->SetFocus();
    rig.TakeScript();
    b.SetFocus();
    EXPECT_EQ(rig.TakeScript(), "b.gained ");
    EXPECT_TRUE(rig.Native().HasFocus());
    EXPECT_FALSE(a.HasFocus());
}

TEST_F(CLightWidgetAdapterRouting, WithoutAFocusWidgetNothingIsHandled)
{
    a.TakeKeys();
    a.SetFocus();
    rig.adapter->GetInputManager().SetFocus(nullptr);
    rig.TakeScript();
    EXPECT_FALSE(rig.adapter->GetKeyboardTarget()->AcceptsKey({}));
    EXPECT_FALSE(rig.adapter->GetKeyboardTarget()->OnKeyDown({}));
    EXPECT_EQ(rig.TakeScript(), "");
}

TEST_F(CLightWidgetAdapterRouting, HiddenRemovedAndDestroyedWidgetsLoseTheFocus)
{
    a.TakeKeys();
    a.SetFocus();
    rig.TakeScript();
    a.Show(false);
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    EXPECT_EQ(rig.adapter->GetInputManager().GetFocus(), nullptr);
    a.SetFocus();
    EXPECT_EQ(rig.adapter->GetInputManager().GetFocus(), nullptr);
    a.Show(true);
    a.SetFocus();
    rig.root->RemoveChild(&a);
    EXPECT_EQ(rig.TakeScript(), "a.gained a.lost ");
    {
        CNotingLight c(rig.root, {0, 0, 5, 5}, "c", rig.script);
        c.TakeKeys();
        c.SetFocus();
        rig.TakeScript();
    }
    EXPECT_EQ(rig.TakeScript(), "");
    EXPECT_EQ(rig.adapter->GetInputManager().GetFocus(), nullptr);
}

TEST_F(CLightWidgetAdapterRouting, FocusHandlerMayDeleteItsWidget)
{
    auto* doomed = new CNotingLight(rig.root, {10, 50, 30, 30}, "d", rig.script);
    doomed->TakeKeys();
    doomed->keys.onCall = [doomed](const std::string& call)
    {
        if (call == "gained")
        {
            delete doomed;
        }
    };
    rig.Click(20, 60);
    EXPECT_EQ(rig.TakeScript(), "d.enter d.gained ");
}

TEST(CLightWidgetAdapter, RootAndAdapterHaveOneSize)
{
    CLightWidget root(nullptr, new CFill({30, 20}, {0, 0, 0}), true);
    CLightWidgetAdapter adapter(&root, false);
    EXPECT_EQ(adapter.GetSize(), CSize({30, 20}));
    adapter.SetSize({50, 60});
    EXPECT_EQ(root.GetSize(), CSize({50, 60}));
    root.SetSize({7, 8});
    EXPECT_EQ(adapter.GetSize(), CSize({7, 8}));
    EXPECT_EQ(root.GetRootWidget(), &adapter);
    adapter.SetLightRoot(nullptr, false);
    EXPECT_EQ(root.GetRootWidget(), nullptr);
}

TEST(CLightWidgetAdapter, RootsOfOthersAreIgnored)
{
    CLightWidget root;
    CLightWidget child(&root);
    CLightWidgetAdapter first(&root, false);
    CLightWidgetAdapter second;
    second.SetLightRoot(&root, true);
    second.SetLightRoot(&child, true);
    EXPECT_EQ(second.GetLightRoot(), nullptr);
    CLightWidget other;
    other.AddChild(&root);
    EXPECT_EQ(other.GetChildCount(), 0);
}

TEST(CLightWidgetAdapter, DestroyedRootIsForgotten)
{
    CLightWidgetAdapter adapter;
    {
        CLightWidget root;
        adapter.SetLightRoot(&root, false);
    }
    EXPECT_EQ(adapter.GetLightRoot(), nullptr);
}

TEST(CLightWidgetAdapter, TransparentPartsLetTheClickThroughToWhatLiesBeneath)
{
    CWindowRig rig;
    CNotingMouse beneathMouse("x", rig.script);
    CCustomWidget container;
    CCustomWidget beneath;
    CLightWidget root;
    CNotingLight spot(&root, {50, 50, 20, 20}, "s", rig.script);
    CLightWidgetAdapter adapter(&root, false);
    rig.window->SetContent(&container, false);
    for (CWidget* widget : {static_cast<CWidget*>(&beneath), static_cast<CWidget*>(&adapter)})
    {
        container.AddChild(widget, false);
        widget->SetSize({100, 100});
        widget->Show(true);
    }
    container.Show(true);
    beneath.SetMouseTarget(&beneathMouse, false);
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "x.enter x.move x.down x.up x.click ");
    rig.Rest();
    rig.Click(60, 60);
    EXPECT_EQ(rig.TakeScript(), "x.leave s.enter s.down s.up s.click ");
    rig.window->SetContent(nullptr, false);
}

TEST(CLightWidgetAdapter, HidingTheHostForgetsThePointer)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 10, 30, 30}, "a", rig.script);
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    rig.adapter->Show(false);
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    EXPECT_FALSE(a.IsMouseOver());
    EXPECT_FALSE(a.IsVisible());
    rig.Release();
    rig.adapter->Show(true);
    rig.Rest();
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.down a.up a.click ");
}

TEST(CLightWidgetAdapter, InvisibleGraphicsCanBeHit)
{
    CLightRig rig;
    rig.background->hit = false;
    CNotingLight a(rig.root, {10, 10, 30, 30}, "a", rig.script);
    a.SetGraphics(new CEmptyGraphics({30, 30}, true), true);
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.down a.up a.click ");
}
