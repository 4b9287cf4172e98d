#include "Mirel/GUI/FocusStops.h"
#include "GUIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace Mirel::GUI;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CLightRig;
using Tests::CNotingLight;

/// Three widgets that want keys, from the back to the front, in a window of 100 by 100.
class TabKey : public testing::Test
{
protected:
    TabKey()
    {
        for (CNotingLight* widget : {&a, &b, &c})
        {
            widget->TakeKeys();
            widget->keys.accepts = false;
        }
    }

    ~TabKey() override { rig.window->SetContent(nullptr, false); }

    void Tab(std::uint32_t modifiers = 0)
    {
        SNativeKeyEvent event;
        event.key = ENativeKey::Tab;
        rig.platform.SetModifiers(modifiers);
        rig.platform.PressKey(event);
        rig.platform.ReleaseKey(event);
        rig.platform.SetModifiers(0);
    }

    void TabBack() { Tab(ModifierFlags::shift); }

    const CLightWidget* GetFocused() const
    {
        const CLightWidget* focused = nullptr;
        for (const CLightWidget* widget : {&a, &b, &c})
        {
            if (widget->HasFocus())
            {
                EXPECT_EQ(focused, nullptr) << "two with the focus";
                focused = widget;
            }
        }
        return focused;
    }

    CLightRig rig;
    CNotingLight a{rig.root, {10, 10, 20, 20}, "a", rig.script};
    CNotingLight b{rig.root, {40, 10, 20, 20}, "b", rig.script};
    CNotingLight c{rig.root, {10, 40, 20, 20}, "c", rig.script};
};

TEST_F(TabKey, GoesThroughTheTreeAndRoundItsEnd)
{
    for (const CLightWidget* expected : {&a, &b, &c, &a})
    {
        Tab();
        EXPECT_EQ(GetFocused(), expected);
    }
}

TEST_F(TabKey, GoesBackWithShift)
{
    for (const CLightWidget* expected : {&c, &b, &a, &c})
    {
        TabBack();
        EXPECT_EQ(GetFocused(), expected);
    }
}

TEST_F(TabKey, GoesOnFromTheWidgetThatWasClicked)
{
    rig.Click(45, 15);
    ASSERT_EQ(GetFocused(), &b);
    Tab();
    EXPECT_EQ(GetFocused(), &c);
}

TEST_F(TabKey, TellsTheOldWidgetBeforeTheNewOne)
{
    Tab();
    rig.TakeScript();
    Tab();
    EXPECT_EQ(rig.TakeScript(), "a.accepts a.lost b.gained b.accepts ");
}

TEST_F(TabKey, GivesTheWindowTheFocus)
{
    rig.Native().SetFocus();
    Tab();
    EXPECT_EQ(rig.window->GetFocusWidget(), rig.adapter);
}

TEST_F(TabKey, IsTheWidgetsOwnIfThatWantsIt)
{
    Tab();
    a.keys.accepts = true;
    Tab();
    EXPECT_EQ(GetFocused(), &a);
}

TEST_F(TabKey, DoesNothingTogetherWithOtherModifiers)
{
    for (const std::uint32_t other :
         {ModifierFlags::control, ModifierFlags::alternate, ModifierFlags::command})
    {
        Tab(other);
        Tab(other | ModifierFlags::shift);
        EXPECT_EQ(GetFocused(), nullptr);
    }
    Tab(ModifierFlags::capsLock);
    EXPECT_EQ(GetFocused(), &a);
}

TEST_F(TabKey, DoesNothingInAWindowWithoutStops)
{
    for (CNotingLight* widget : {&a, &b, &c})
    {
        widget->SetKeyboardTarget(nullptr, false);
    }
    Tab();
    EXPECT_EQ(GetFocused(), nullptr);
    rig.window->SetContent(nullptr, false);
    Tab();
}

TEST_F(TabKey, SkipsWhatCannotTakeKeysOrCannotBeSeen)
{
    const CWidget& adapter = *rig.adapter;
    ASSERT_THAT(FindFocusStops(adapter), ElementsAre(&a, &b, &c));
    a.SetKeyboardTarget(nullptr, false);
    EXPECT_THAT(FindFocusStops(adapter), ElementsAre(&b, &c));
    b.Enable(false);
    EXPECT_THAT(FindFocusStops(adapter), ElementsAre(&c));
    c.Show(false);
    EXPECT_THAT(FindFocusStops(adapter), IsEmpty());
    c.Show(true);
    c.SetOpacity(0.0F);
    EXPECT_THAT(FindFocusStops(adapter), IsEmpty());
    c.SetOpacity(0.01F);
    EXPECT_THAT(FindFocusStops(adapter), ElementsAre(&c));
    c.Move({100, 40});
    EXPECT_THAT(FindFocusStops(adapter), IsEmpty());
    c.Move({99, 40});
    EXPECT_THAT(FindFocusStops(adapter), ElementsAre(&c));
    c.SetSize({0, 20});
    EXPECT_THAT(FindFocusStops(adapter), IsEmpty());
}

TEST_F(TabKey, SkipsWhatStandsInAHiddenWidget)
{
    b.SetParent(&a);
    b.Move({5, 5});
    EXPECT_THAT(FindFocusStops(*rig.adapter), ElementsAre(&a, &b, &c));
    a.SetOpacity(0.0F);
    EXPECT_THAT(FindFocusStops(*rig.adapter), ElementsAre(&c));
    a.SetOpacity(1.0F);
    a.Show(false);
    EXPECT_THAT(FindFocusStops(*rig.adapter), ElementsAre(&c));
    rig.adapter->Show(false);
    EXPECT_THAT(FindFocusStops(*rig.adapter), IsEmpty());
    rig.adapter->Show(true);
    rig.adapter->Enable(false);
    EXPECT_THAT(FindFocusStops(*rig.adapter), IsEmpty());
}

TEST_F(TabKey, ComesToWidgetsThatAClickDoesNotFocus)
{
    a.SetFocusOnClick(false);
    Tab();
    EXPECT_EQ(GetFocused(), &a);
}

TEST_F(TabKey, GoesOnFromAWidgetThatWasDisabledMeanwhile)
{
    Tab();
    Tab();
    b.Enable(false);
    Tab();
    EXPECT_EQ(GetFocused(), &c);
    TabBack();
    EXPECT_EQ(GetFocused(), &a);
}

TEST_F(TabKey, ComesToFrontWidgetsLast)
{
    a.Attach(*rig.root, true);
    EXPECT_THAT(FindFocusStops(*rig.adapter), ElementsAre(&b, &c, &a));
}

TEST_F(TabKey, LeadsFromOneHostToTheNext)
{
    CWidget content;
    CLightWidget secondRoot;
    CLightWidgetAdapter second(&secondRoot, false);
    rig.window->SetContent(nullptr, false);
    CLightWidget firstRoot;
    CLightWidgetAdapter first(&firstRoot, false);
    b.SetParent(&firstRoot);
    c.SetParent(&secondRoot);
    first.SetSize({100, 50});
    second.SetPosition({0, 50});
    second.SetSize({100, 50});
    c.Move({0, 0});
    content.AddChild(&first, false);
    content.AddChild(&second, false);
    for (CWidget* widget : {&content, static_cast<CWidget*>(&first), static_cast<CWidget*>(&second)})
    {
        widget->Show(true);
    }
    rig.window->SetContent(&content, false);
    for (const CLightWidget* expected : {&b, &c, &b})
    {
        Tab();
        EXPECT_EQ(GetFocused(), expected);
    }
    TabBack();
    EXPECT_EQ(GetFocused(), &c);
    EXPECT_EQ(rig.window->GetFocusWidget(), &second);
    second.Enable(false);
    Tab();
    EXPECT_EQ(GetFocused(), &b);
}

TEST_F(TabKey, StandsWidgetsThatGoOnTheWay)
{
    Tab();
    a.keys.onCall = [this](const std::string& call)
    {
        if (call == "lost")
        {
            b.SetParent(nullptr);
        }
    };
    Tab();
    EXPECT_EQ(GetFocused(), nullptr);
    Tab();
    EXPECT_EQ(GetFocused(), &a);
}

} // namespace
