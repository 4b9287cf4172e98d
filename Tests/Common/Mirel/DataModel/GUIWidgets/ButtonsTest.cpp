#include "Mirel/DataModel/GUIWidgets/CGUIImageActionButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamToggleSwitch.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "PushRig.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using GUI::EMouseButton;
using GUI::ENativeKey;
using Tests::CControlRig;
using Tests::CFunctionCommand;
using Tests::CNotedParam;

namespace
{

/// A widget at 10, 10 of 20 by 20 pixels with two frames, over a parameter.
template <class Widget>
struct CPushed : public CControlRig
{
    explicit CPushed(const DataModel::Objects::CParamInfo& info)
        : noted(info),
          widget(std::make_unique<Widget>(noted.param, SPushImage{Tests::MakeCatalog({20, 20}, 2), true, 2},
                                          root))
    {
        widget->Move({10, 10});
        platform.Pump();
    }

    void Over() { Move(15, 15); }
    std::string Take() { return noted.Take(); }
    std::uint32_t Seen() { return CControlRig::Seen(15, 15); }

    CNotedParam noted;
    std::unique_ptr<Widget> widget;
};

using CButton = CPushed<CGUIImageParamButton>;
using CToggle = CPushed<CGUIImageParamToggleSwitch>;

} // namespace

TEST(CGUIImageParamButton, StepsATwoStateParameterUpAndWithLoopBack)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[1.00 ]");
    rig.Rest();
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[]"); // stops at the top
    rig.widget->GetPushGraphics().SetLoop(true);
    rig.Rest();
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[0.00 ]");
}

TEST(CGUIImageParamButton, StepsThroughAllStops)
{
    CButton rig(Tests::Integer(-1.0F, 2.0F, 1.0F));
    rig.noted.param.SetValue(-1.0F);
    rig.Take();
    for (const char* expected : {"[0.00 ]", "[1.00 ]", "[2.00 ]", "[]"})
    {
        rig.Click(15, 15);
        EXPECT_EQ(rig.Take(), expected);
        rig.Rest();
    }
}

TEST(CGUIImageParamButton, ContinuousParameterHasNoSteps)
{
    CButton rig(Tests::Real(0.0F, 1.0F));
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[]");
    rig.widget->GetControl().SetPositionsCount(5);
    rig.Rest();
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[0.25 ]");
}

TEST(CGUIImageParamButton, StepsThroughTheStopsOfItsWindow)
{
    CButton rig(Tests::Real(0.0F, 1.0F));
    rig.widget->GetControl().SetPositionsCount(5);
    rig.widget->GetControl().SetZoom(2.0F); // (5 - 1) / 2 + 1 = 3 stops, from 0 to 0.5
    for (const char* expected : {"[0.25 ]", "[0.50 ]", "[]"})
    {
        rig.Click(15, 15);
        EXPECT_EQ(rig.Take(), expected);
        rig.Rest();
    }
    rig.widget->GetPushGraphics().SetLoop(true);
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[0.00 ]");
}

TEST(CGUIImageParamButton, StepsAReversedParameterDown)
{
    CButton rig(Tests::Integer(0.0F, 2.0F, 2.0F));
    rig.widget->GetControl().SetReverse(true);
    rig.noted.param.SetValue(2.0F);
    rig.Take();
    for (const char* expected : {"[1.00 ]", "[0.00 ]", "[]"})
    {
        rig.Click(15, 15);
        EXPECT_EQ(rig.Take(), expected);
        rig.Rest();
    }
}

TEST(CGUIImageParamButton, OneStopHasNoSteps)
{
    CButton rig(Tests::Real(0.0F, 1.0F));
    rig.widget->GetControl().SetPositionsCount(1);
    rig.widget->GetPushGraphics().SetLoop(true);
    rig.noted.param.SetValue(0.7F);
    rig.Take();
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[]");
}

TEST(CGUIImageParamButton, TakesEffectAtTheReleaseOnly)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    rig.Over();
    rig.Press();
    EXPECT_EQ(rig.Take(), "[");
    EXPECT_TRUE(rig.widget->GetPushGraphics().IsPushed());
    rig.Release();
    EXPECT_EQ(rig.Take(), "1.00 ]");
    EXPECT_FALSE(rig.widget->GetPushGraphics().IsPushed());
}

TEST(CGUIImageParamButton, ReleaseOutsideChangesNothing)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    rig.Over();
    rig.Press();
    rig.MoveAway();
    EXPECT_EQ(rig.Take(), "[]");
    EXPECT_FALSE(rig.widget->GetPushGraphics().IsPushed());
    rig.Release();
    rig.Over();
    EXPECT_FALSE(rig.widget->GetPushGraphics().IsPushed());
    EXPECT_EQ(rig.Take(), "");
}

TEST(CGUIImageParamButton, LeavingAndComingBackWithTheButtonHeldKeepsItDown)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    rig.Over();
    rig.Press();
    rig.MoveAway();
    rig.Over();
    EXPECT_TRUE(rig.widget->GetPushGraphics().IsPushed());
    rig.Release();
    EXPECT_EQ(rig.Take(), "[][1.00 ]");
}

TEST(CGUIImageParamButton, AlternateClickSetsTheDefaultAndShowsNoPush)
{
    CButton rig(Tests::Integer(0.0F, 5.0F, 3.0F));
    rig.noted.param.SetValue(0.0F);
    rig.Take();
    rig.platform.SetModifiers(CControlRig::alternate);
    rig.Over();
    rig.Press();
    EXPECT_FALSE(rig.widget->GetPushGraphics().IsPushed());
    EXPECT_EQ(rig.Take(), "[3.00 ]");
    rig.Release();
    EXPECT_EQ(rig.Take(), "");
}

TEST(CGUIImageParamButton, EachOfTwoQuickClicksIsAStep)
{
    CButton rig(Tests::Integer(0.0F, 5.0F));
    rig.Click(15, 15);
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[1.00 ][2.00 ]");
}

TEST(CGUIImageParamButton, ShiftRefinesTheStopsWhereTheParameterHasRoom)
{
    CButton rig(Tests::Real(0.0F, 1.0F));
    rig.widget->GetControl().SetPositionsCount(3);
    rig.widget->GetControl().SetFineRatio(5);
    rig.platform.SetModifiers(CControlRig::shift);
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[0.10 ]");
    rig.platform.SetModifiers(0);
    rig.Rest();
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[0.50 ]");
}

TEST(CGUIImageParamButton, AcceptsReturnArrowsPagesAndD)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    CButtonUserControl& user = rig.widget->GetUserControl();
    for (int kind = 0; kind <= 20; ++kind)
    {
        GUI::COSXKeyEvent event;
        event.key = static_cast<ENativeKey>(kind);
        event.character = U'x';
        EXPECT_EQ(user.AcceptsKey(event), kind == 1 || (kind >= 7 && kind <= 12)) << kind;
    }
    GUI::COSXKeyEvent event;
    event.character = U'd';
    EXPECT_TRUE(user.AcceptsKey(event));
    event.character = U'x';
    EXPECT_FALSE(user.OnKeyDown(event));
}

TEST(CGUIImageParamButton, LeavesShortcutsToTheHost)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    CButtonUserControl& user = rig.widget->GetUserControl();
    for (const std::uint32_t modifier :
         {GUI::ModifierFlags::control, GUI::ModifierFlags::alternate, GUI::ModifierFlags::command})
    {
        GUI::COSXKeyEvent event;
        event.modifiers = modifier;
        event.character = U'd';
        EXPECT_FALSE(user.AcceptsKey(event));
        event.key = ENativeKey::Left;
        EXPECT_FALSE(user.AcceptsKey(event));
        event.key = ENativeKey::Return;
        EXPECT_TRUE(user.AcceptsKey(event)) << "the release of a press may come with any modifier";
    }
}

TEST(CGUIImageParamButton, KeysPushStepAndSetTheDefault)
{
    CButton rig(Tests::Integer(0.0F, 5.0F, 3.0F));
    rig.noted.param.SetValue(0.0F);
    rig.widget->SetFocus();
    rig.Take();
    rig.Down(ENativeKey::Return);
    EXPECT_EQ(rig.Take(), "[");
    EXPECT_TRUE(rig.widget->GetPushGraphics().IsPushed());
    rig.Down(ENativeKey::Right); // the press goes on
    rig.Down(ENativeKey::Return);
    EXPECT_EQ(rig.Take(), "");
    rig.Up(ENativeKey::Return);
    EXPECT_EQ(rig.Take(), "1.00 ]");
    rig.Type(ENativeKey::Up);
    rig.Type(ENativeKey::Right);
    rig.Type(ENativeKey::PageUp);
    EXPECT_EQ(rig.Take(), "[2.00 ][3.00 ][4.00 ]");
    rig.Type(ENativeKey::Down);
    rig.Type(ENativeKey::Left);
    rig.Type(ENativeKey::PageDown);
    EXPECT_EQ(rig.Take(), "[3.00 ][2.00 ][1.00 ]");
    rig.Type(ENativeKey::Character, U'd');
    EXPECT_EQ(rig.Take(), "[3.00 ]");
}

TEST(CGUIImageParamButton, PointerDoesNotDisturbAPressOfAKey)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    rig.widget->SetFocus();
    rig.Over();
    rig.Down(ENativeKey::Return);
    rig.MoveAway();
    rig.Over();
    EXPECT_TRUE(rig.widget->GetPushGraphics().IsPushed());
    rig.Up(ENativeKey::Return);
    EXPECT_EQ(rig.Take(), "[1.00 ]");
}

TEST(CGUIImageParamButton, PressThatCannotEndEndsWithoutEffect)
{
    const auto press = [](CButton& rig)
    {
        rig.Over();
        rig.Press();
        EXPECT_EQ(rig.Take(), "[");
    };
    const auto expectEnded = [](CButton& rig)
    {
        EXPECT_EQ(rig.Take(), "]");
        EXPECT_FALSE(rig.widget->GetPushGraphics().IsPushed());
        rig.Release();
        rig.MoveAway();
        rig.Over();
        EXPECT_EQ(rig.Take(), "");
    };
    {
        CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
        press(rig);
        rig.widget->Show(false);
        expectEnded(rig);
    }
    {
        CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
        press(rig);
        rig.widget->Enable(false);
        expectEnded(rig);
    }
    {
        CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
        press(rig);
        rig.platform.LoseCapture();
        expectEnded(rig);
    }
    {
        CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
        rig.widget->SetFocus();
        rig.Down(ENativeKey::Return);
        rig.Take();
        rig.widget->Show(false);
        expectEnded(rig);
    }
    {
        CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
        press(rig);
        rig.widget.reset();
        EXPECT_EQ(rig.Take(), "]");
        rig.Release();
        EXPECT_EQ(rig.Take(), "");
    }
}

TEST(CGUIImageParamButton, ListenerMayDestroyIt)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    CFunctionCommand destroy([&rig] { rig.widget.reset(); });
    rig.noted.param.GetValueChangedEventProvider().Connect(&destroy);
    rig.Click(15, 15);
    EXPECT_EQ(rig.Take(), "[1.00 ]");
    rig.noted.param.GetValueChangedEventProvider().Disconnect(&destroy);
}

TEST(CGUIImageParamButton, RightButtonTellsTheControlDownAndUp)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    Tests::CEventCounter notices(rig.widget->GetControl().GetRightClickEventProvider());
    rig.Over();
    rig.Press(EMouseButton::Right);
    EXPECT_EQ(notices.Take(), 1);
    rig.Release(EMouseButton::Right);
    EXPECT_EQ(notices.Take(), 1);
    EXPECT_EQ(rig.Take(), "");
}

TEST(CGUIImageParamButton, ShowsItsStateAndTheStopOfTheParameter)
{
    CButton rig(Tests::TwoState(0, 0.0F, 1.0F));
    const auto color = [](int state, int frame) { return Tests::ColorOf(state, frame).Pack(); };
    EXPECT_EQ(rig.Seen(), color(0, 0));
    rig.Over();
    EXPECT_EQ(rig.Seen(), color(2, 0));
    rig.Press();
    EXPECT_EQ(rig.Seen(), color(4, 0));
    rig.Release();
    EXPECT_EQ(rig.Seen(), color(3, 1)); // the click gave it the focus
    rig.MoveAway();
    EXPECT_EQ(rig.Seen(), color(3, 1)); // the click gave it the focus
    rig.widget->Enable(false);
    EXPECT_EQ(rig.Seen(), color(1, 1));
    EXPECT_EQ(rig.CControlRig::Seen(40, 40), 0U);
}

TEST(CGUIInvisibleParamButton, IsHitAllOverAndShowsNothing)
{
    CControlRig rig;
    CNotedParam noted(Tests::TwoState(0, 0.0F, 1.0F));
    CGUIInvisibleParamButton widget(noted.param, rig.root);
    widget.Move({10, 10});
    widget.SetSize({30, 30});
    EXPECT_EQ(rig.Seen(20, 20), 0U);
    EXPECT_TRUE(widget.IsTransparent());
    rig.Click(39, 39);
    EXPECT_EQ(noted.Take(), "[1.00 ]");
    rig.Rest();
    rig.Click(41, 20);
    EXPECT_EQ(noted.Take(), "");
}

TEST(CGUIImageParamToggleSwitch, HoldsTheParameterAtItsTopWhilePressed)
{
    CToggle rig(Tests::Real(0.0F, 2.0F, 1.0F));
    rig.Take();
    rig.Over();
    rig.Press();
    EXPECT_EQ(rig.Take(), "[2.00 ");
    EXPECT_EQ(rig.Seen(), Tests::ColorOf(4, 1).Pack());
    rig.Release();
    EXPECT_EQ(rig.Take(), "0.00 ]");
    EXPECT_EQ(rig.Seen(), Tests::ColorOf(3, 0).Pack()); // the press gave it the focus
}

TEST(CGUIImageParamToggleSwitch, LeavingReleasesItAndComingBackPressesItAgain)
{
    CToggle rig(Tests::Real(0.0F, 2.0F));
    rig.Over();
    rig.Press();
    rig.MoveAway();
    EXPECT_EQ(rig.Take(), "[2.00 0.00 ]");
    rig.Over();
    EXPECT_EQ(rig.Take(), "[2.00 ");
    rig.MoveAway();
    rig.Release();
    rig.Over();
    EXPECT_EQ(rig.Take(), "0.00 ]");
}

TEST(CGUIImageParamToggleSwitch, KeysHoldIt)
{
    for (const int kind : {1, 7, 8, 9, 10, 11, 12})
    {
        CToggle rig(Tests::Real(0.0F, 2.0F));
        rig.widget->SetFocus();
        rig.Down(static_cast<ENativeKey>(kind));
        EXPECT_EQ(rig.Take(), "[2.00 ") << kind;
        rig.Up(static_cast<ENativeKey>(kind));
        EXPECT_EQ(rig.Take(), "0.00 ]") << kind;
    }
    CToggle rig(Tests::Real(0.0F, 2.0F));
    rig.widget->SetFocus();
    rig.Type(ENativeKey::Tab);
    rig.Type(ENativeKey::Character, U'd');
    EXPECT_EQ(rig.Take(), "");
}

TEST(CGUIImageParamToggleSwitch, NeverLeavesTheParameterAtItsTop)
{
    const auto press = [](CToggle& rig)
    {
        rig.Over();
        rig.Press();
        EXPECT_EQ(rig.Take(), "[2.00 ");
    };
    CToggle hidden(Tests::Real(0.0F, 2.0F));
    press(hidden);
    hidden.widget->Show(false);
    EXPECT_EQ(hidden.Take(), "0.00 ]");
    CToggle disabled(Tests::Real(0.0F, 2.0F));
    press(disabled);
    disabled.widget->Enable(false);
    EXPECT_EQ(disabled.Take(), "0.00 ]");
    CToggle destroyed(Tests::Real(0.0F, 2.0F));
    press(destroyed);
    destroyed.widget.reset();
    EXPECT_EQ(destroyed.Take(), "0.00 ]");
    destroyed.Release();
    EXPECT_EQ(destroyed.Take(), "");
}

TEST(CGUIInvisibleParamToggleSwitch, WorksWithoutAPicture)
{
    CControlRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIInvisibleParamToggleSwitch widget(noted.param, rig.root);
    widget.SetSize({30, 30});
    rig.Click(20, 20);
    EXPECT_EQ(noted.Take(), "[1.00 0.00 ]");
}

namespace
{

struct CActionRig : public CControlRig
{
    CActionRig()
        : action("", "", new CFunctionCommand([this] { ++runs; })),
          widget(std::make_unique<CGUIImageActionButton>(
              action, SPushImage{Tests::MakeCatalog({20, 20}), true}, root))
    {
        widget->Move({10, 10});
    }

    int TakeRuns() { return std::exchange(runs, 0); }

    int runs = 0;
    DataModel::Objects::CAction action;
    std::unique_ptr<CGUIImageActionButton> widget;
};

} // namespace

TEST(CGUIImageActionButton, RunsTheActionAtAReleaseOverIt)
{
    CActionRig rig;
    rig.Move(15, 15);
    rig.Press();
    EXPECT_EQ(rig.TakeRuns(), 0);
    EXPECT_EQ(rig.Seen(15, 15), Tests::ColorOf(4).Pack());
    rig.Release();
    EXPECT_EQ(rig.TakeRuns(), 1);
    rig.Rest();
    rig.Press();
    rig.MoveAway();
    rig.Release();
    EXPECT_EQ(rig.TakeRuns(), 0);
}

TEST(CGUIImageActionButton, ReturnRunsItAndOtherKeysDoNot)
{
    CActionRig rig;
    rig.widget->SetFocus();
    for (int kind = 0; kind <= 20; ++kind)
    {
        rig.Type(static_cast<ENativeKey>(kind), U'd');
        EXPECT_EQ(rig.TakeRuns(), kind == 1 ? 1 : 0) << kind;
    }
}

TEST(CGUIImageActionButton, ActionMayDestroyIt)
{
    CActionRig rig;
    DataModel::Objects::CAction closing("", "", new CFunctionCommand([&rig] { rig.widget.reset(); }));
    rig.widget = std::make_unique<CGUIImageActionButton>(
        closing, SPushImage{Tests::MakeCatalog({20, 20}), true}, rig.root);
    rig.Click(15, 15);
    EXPECT_EQ(rig.widget, nullptr);
}

TEST(CGUIInvisibleActionButton, WorksWithoutAPicture)
{
    CActionRig rig;
    CGUIInvisibleActionButton widget(rig.action, rig.root);
    widget.Move({40, 40});
    widget.SetSize({30, 30});
    rig.Click(50, 50);
    EXPECT_EQ(rig.TakeRuns(), 1);
}

TEST(CPushableImageWidgetGraphics, PushedIsToldAndInvalidates)
{
    CActionRig rig;
    CPushableImageWidgetGraphics& graphics = rig.widget->GetPushGraphics();
    Tests::CEventCounter told(graphics.GetPushedChangedEventProvider());
    rig.platform.Pump();
    graphics.SetPushed(true);
    graphics.SetPushed(true);
    EXPECT_EQ(told.Take(), 1);
    EXPECT_EQ(rig.Seen(15, 15), Tests::ColorOf(4).Pack());
    EXPECT_EQ(graphics.GetState(), 4);
}
