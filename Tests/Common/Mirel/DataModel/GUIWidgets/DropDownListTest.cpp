#include "CScriptedMenus.h"
#include "Common/Mirel/GUI/Popups/PopupRig.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamDropDownList.h"
#include "Mirel/DataModel/GUIWidgets/ParamStops.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/GUI/Popups/CDrawnMenus.h"
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

DataModel::Objects::CParamInfo Modes()
{
    return {1,           0.0F, 2.0F, 2.0F,
            "View Mode", "",   "",   new DataModel::Objects::CEnumToText({"Flow", "Loop", "Trigger"})};
}

/// A list at 10, 10 of 20 by 20 pixels, in a window at 300, 200 of the screen.
struct CList : public CControlRig
{
    explicit CList(const DataModel::Objects::CParamInfo& info = Modes()) : noted(info)
    {
        noted.param.SetValue(0.0F);
        noted.Take();
        widget = std::make_unique<CGUIImageParamDropDownList>(
            noted.param, SPushImage{Tests::MakeCatalog({20, 20}), true}, &menus, root);
        widget->Move({10, 10});
        platform.Pump();
    }

    void Open()
    {
        Click(15, 15);
        EXPECT_NE(menus.menu, nullptr);
    }

    bool IsPushed() const { return widget->GetPushGraphics().IsPushed(); }

    Tests::CScriptedMenus menus;
    CNotedParam noted;
    std::unique_ptr<CGUIImageParamDropDownList> widget;
};

/// The counts of collections are such parameters.
TEST(CGUIImageParamDropDownList, MoreStopsThanAnIntegerCountsAreNone)
{
    const DataModel::Objects::CParamInfo info(1, 0.0F, 2147483647.0F, 0.0F, "Count", "", "", nullptr);
    EXPECT_EQ(GetLastStop(DataModel::Controls::CParamViewerConfig(info)), 0);
}

} // namespace

TEST(CGUIImageParamDropDownList, OpensTheValuesBelowItAtTheReleaseOverIt)
{
    CList rig;
    rig.Move(15, 15);
    rig.Press();
    EXPECT_EQ(rig.menus.opened, 0);
    EXPECT_TRUE(rig.IsPushed());
    rig.Release();
    ASSERT_EQ(rig.menus.opened, 1);
    EXPECT_EQ(rig.menus.GetItems(), "*Flow|Loop|Trigger");
    EXPECT_EQ(rig.menus.menu->GetCurrent(), 0);
    EXPECT_EQ(rig.menus.owner, rig.window->GetNativeWindow());
    const Core::CPoint origin = rig.Native().GetScreenPosition();
    EXPECT_EQ(rig.menus.place, (Core::CPoint{origin.x + 10, origin.y + 30}));
    EXPECT_TRUE(rig.IsPushed());
    EXPECT_EQ(rig.noted.Take(), ""); // no gesture yet
}

TEST(CGUIImageParamDropDownList, ListOfManyValuesBeginsAtThePresentOne)
{
    CList rig(Tests::Integer(-20.0F, 300.0F, 0.0F));
    rig.noted.param.SetValue(180.0F);
    rig.Open();
    EXPECT_EQ(rig.menus.menu->GetItems().size(), 321U);
    EXPECT_EQ(rig.menus.menu->GetCurrent(), 200);
    EXPECT_EQ(rig.menus.menu->GetItems()[200].text, "180");
    EXPECT_TRUE(rig.menus.menu->GetItems()[200].isChecked);
}

TEST(CGUIImageParamDropDownList, ValuesBeyondTheLimitOpenNoList)
{
    CList rig(Tests::Integer(0.0F, 1023.0F, 0.0F));
    rig.Open();
    EXPECT_EQ(rig.menus.menu->GetItems().size(), 1024U);
    CList more(Tests::Integer(0.0F, 1024.0F, 0.0F));
    more.Click(15, 15);
    EXPECT_EQ(more.menus.menu, nullptr);
    EXPECT_FALSE(more.IsPushed());
    more.platform.TurnWheel(1.0);
    EXPECT_EQ(more.noted.param.GetValue(), 1.0F) << "the wheel still steps";
}

TEST(CGUIImageParamDropDownList, ChoiceIsOneGesture)
{
    CList rig;
    rig.Open();
    rig.menus.Choose(2);
    EXPECT_EQ(rig.noted.Take(), "[2.00 ]");
    EXPECT_FALSE(rig.IsPushed());
    rig.Rest();
    rig.Open();
    EXPECT_EQ(rig.menus.GetItems(), "Flow|Loop|*Trigger");
    rig.menus.Close();
    EXPECT_EQ(rig.noted.Take(), "");
    EXPECT_FALSE(rig.IsPushed());
}

TEST(CGUIImageParamDropDownList, ReleaseOutsideOpensNothing)
{
    CList rig;
    rig.Move(15, 15);
    rig.Press();
    rig.MoveAway();
    EXPECT_FALSE(rig.IsPushed());
    rig.Release();
    EXPECT_EQ(rig.menus.opened, 0);
}

TEST(CGUIImageParamDropDownList, PointerThatGoesToTheListLeavesTheButtonDown)
{
    CList rig;
    rig.Open();
    rig.MoveAway();
    EXPECT_TRUE(rig.IsPushed());
    rig.Move(15, 15);
    rig.menus.Close();
    EXPECT_FALSE(rig.IsPushed());
    rig.MoveAway();
    rig.Move(15, 15);
    EXPECT_FALSE(rig.IsPushed());
}

TEST(CGUIImageParamDropDownList, ListThatCannotOpenLeavesTheButtonUp)
{
    CList refused;
    refused.menus.refuses = true;
    refused.Click(15, 15);
    EXPECT_FALSE(refused.IsPushed());

    CList continuous(Tests::Real(0.0F, 1.0F));
    continuous.Click(15, 15);
    EXPECT_EQ(continuous.menus.opened, 0);
    EXPECT_FALSE(continuous.IsPushed());

    CList endless(Tests::Integer(0.0F, 1e6F));
    endless.Click(15, 15);
    EXPECT_EQ(endless.menus.opened, 0);

    CControlRig rig;
    CNotedParam noted(Modes());
    CGUIImageParamDropDownList without(noted.param, {Tests::MakeCatalog({20, 20}), true}, nullptr, rig.root);
    rig.Click(15, 15);
    EXPECT_FALSE(without.GetPushGraphics().IsPushed());
}

TEST(CGUIImageParamDropDownList, RealWithStopsListsThem)
{
    CList rig(Tests::Real(0.0F, 1.0F));
    rig.widget->GetControl().SetPositionsCount(3);
    rig.noted.param.SetValue(0.6F);
    rig.noted.Take();
    rig.Open();
    EXPECT_EQ(rig.menus.GetItems(), "0.00|*0.50|1.00");
    rig.menus.Choose(1);
    EXPECT_EQ(rig.noted.Take(), "[0.50 ]");
}

TEST(CGUIImageParamDropDownList, WheelAndKeysStep)
{
    CList rig;
    rig.Move(15, 15);
    rig.platform.TurnWheel(1.0);
    EXPECT_EQ(rig.noted.Take(), "[1.00 ]");
    rig.platform.TurnWheel(-1.0);
    EXPECT_EQ(rig.noted.Take(), "[0.00 ]");
    rig.widget->SetFocus();
    rig.Type(ENativeKey::Right);
    EXPECT_EQ(rig.noted.Take(), "[1.00 ]");
    rig.Type(ENativeKey::Left);
    EXPECT_EQ(rig.noted.Take(), "[0.00 ]");
    rig.Type(ENativeKey::Character, U'd');
    EXPECT_EQ(rig.noted.Take(), "[2.00 ]");
    EXPECT_EQ(rig.menus.opened, 0);
}

TEST(CGUIImageParamDropDownList, KeysOpenItAtTheReleaseWithThePresentValueSelected)
{
    CList rig;
    rig.widget->SetFocus();
    rig.noted.param.SetValue(1.0F);
    rig.noted.Take();
    int opened = 0;
    for (const auto& [key, character] :
         {std::pair(ENativeKey::Return, U'\0'), std::pair(ENativeKey::Character, U' '),
          std::pair(ENativeKey::Down, U'\0'), std::pair(ENativeKey::Up, U'\0')})
    {
        rig.Down(key, character);
        EXPECT_EQ(rig.menus.opened, opened);
        EXPECT_TRUE(rig.IsPushed());
        rig.Up(key, character);
        ASSERT_EQ(rig.menus.opened, ++opened);
        EXPECT_EQ(rig.menus.menu->GetCurrent(), 1);
        rig.menus.Close();
        EXPECT_FALSE(rig.IsPushed());
        EXPECT_EQ(rig.noted.Take(), "");
    }
}

TEST(CGUIImageParamDropDownList, IsSeenToHaveTheFocus)
{
    CList rig;
    rig.widget->SetFocus();
    EXPECT_EQ(rig.Seen(15, 15), Tests::ColorOf(StateFocus).Pack());
}

TEST(CGUIImageParamDropDownList, AlternateClickSetsTheDefaultAndRightClickIsTold)
{
    CList rig;
    Tests::CEventCounter notices(rig.widget->GetControl().GetRightClickEventProvider());
    rig.Move(15, 15);
    rig.Press(EMouseButton::Right);
    rig.Release(EMouseButton::Right);
    EXPECT_EQ(notices.Take(), 2);
    rig.platform.SetModifiers(CControlRig::alternate);
    rig.Click(15, 15);
    EXPECT_EQ(rig.noted.Take(), "[2.00 ]");
    EXPECT_EQ(rig.menus.opened, 0);
}

TEST(CGUIImageParamDropDownList, OpenListClosesWithTheWidget)
{
    CList disabled;
    disabled.Open();
    disabled.widget->Enable(false);
    EXPECT_EQ(disabled.menus.menu, nullptr);
    EXPECT_FALSE(disabled.IsPushed());

    CList destroyed;
    destroyed.Open();
    destroyed.widget.reset();
    EXPECT_EQ(destroyed.menus.menu, nullptr);
}

TEST(CGUIImageParamDropDownList, ChoiceMayDestroyIt)
{
    CList rig;
    CFunctionCommand destroy([&rig] { rig.widget.reset(); });
    rig.noted.param.GetValueChangedEventProvider().Connect(&destroy);
    rig.Open();
    const auto& items = rig.menus.menu->GetItems();
    items[1].command->Execute();
    EXPECT_EQ(rig.widget, nullptr);
    EXPECT_EQ(rig.noted.Take(), "[1.00 ]");
    rig.noted.param.GetValueChangedEventProvider().Disconnect(&destroy);
}

TEST(CGUIInvisibleParamDropDownList, OpensInADrawnMenu)
{
    CControlRig rig({300, 200});
    GUI::CDrawnMenus menus(rig.platform, Tests::TestLook());
    CNotedParam noted(Modes());
    CGUIInvisibleParamDropDownList widget(noted.param, &menus, rig.root);
    widget.Move({10, 10});
    widget.SetSize({80, 20});
    rig.Click(50, 20);
    ASSERT_TRUE(menus.IsOpen());
    rig.Type(ENativeKey::Down);
    rig.Type(ENativeKey::Down);
    rig.Type(ENativeKey::Return);
    EXPECT_FALSE(menus.IsOpen());
    EXPECT_FALSE(widget.GetPushGraphics().IsPushed());
    EXPECT_EQ(noted.Take().substr(0, 1), "[");
    rig.Rest();
    rig.Click(50, 20);
    EXPECT_TRUE(menus.IsOpen());
    rig.Type(ENativeKey::Escape);
    EXPECT_FALSE(widget.GetPushGraphics().IsPushed());
}
