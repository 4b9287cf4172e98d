#include "Mirel/GUI/Popups/CDrawnTooltips.h"

#include "Mirel/GUI/Popups/CHostTooltips.h"
#include "PopupRig.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

using namespace Mirel::GUI;
using Tests::CPopupRig;

namespace
{

class CDrawnTooltipsTest : public testing::Test
{
public:
    COffscreenWindow* Shown()
    {
        rig.platform.Pump();
        return rig.platform.GetWindow(1);
    }

    CPopupRig rig;
    CDrawnTooltips tips{rig.platform, Tests::TestLook()};
    const INativeWindow& owner = *rig.window->GetNativeWindow();
};

TEST_F(CDrawnTooltipsTest, ShowsTextNearThePlaceUntilItIsHidden)
{
    tips.Show("Time per division", owner, {1010, 1010});
    ASSERT_NE(Shown(), nullptr);
    EXPECT_EQ(Shown()->GetKind(), ENativeWindowKind::Tooltip);
    EXPECT_GT(Shown()->GetPosition().y, 1010);
    EXPECT_LT(Shown()->GetPosition().y, 1040);
    EXPECT_TRUE(Tests::Shows(*Shown(), Tests::TestLook().background));
    tips.Show("Other", owner, {1010, 1010});
    EXPECT_EQ(rig.platform.GetWindowCount(), 2);
    tips.Show("", owner, {1010, 1010});
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
}

TEST_F(CDrawnTooltipsTest, LinesMakeItHigherAndLongOnesAreBroken)
{
    tips.Show("one", owner, {1010, 1010});
    const int one = Shown()->GetSize().height;
    tips.Show("one\ntwo", owner, {1010, 1010});
    const int two = Shown()->GetSize().height;
    EXPECT_GE(two, one + Tests::TestLook().font->GetDescription().height);
    std::string words;
    for (int i = 0; i < 60; ++i)
    {
        words += "word ";
    }
    tips.Show(words, owner, {1010, 1010});
    EXPECT_LE(Shown()->GetSize().width, 400);
    EXPECT_GT(Shown()->GetSize().height, two);
}

TEST_F(CDrawnTooltipsTest, StaysInsideOfTheScreenAndOffThePointer)
{
    tips.Show("In the corner", owner, {4090, 4090});
    const COffscreenWindow& window = *Shown();
    EXPECT_LE(window.GetPosition().x + window.GetSize().width, 4096);
    EXPECT_LE(window.GetPosition().y + window.GetSize().height, 4090);
}

TEST_F(CDrawnTooltipsTest, WaitsForItsDelayAndGoesAfterItsTime)
{
    STooltip tip;
    tip.text = "Late";
    tip.delayMs = 30;
    tip.showTimeMs = 30;
    tips.ShowTip(tip, owner, {1010, 1010});
    EXPECT_EQ(Shown(), nullptr);
    ASSERT_TRUE(Tests::PumpUntil(rig.loop, [&] { return Shown() != nullptr; }));
    EXPECT_TRUE(Tests::PumpUntil(rig.loop, [&] { return Shown() == nullptr; }));
}

TEST_F(CDrawnTooltipsTest, HideBeforeTheDelayShowsNothing)
{
    STooltip tip;
    tip.text = "Never";
    tip.delayMs = 5;
    tips.ShowTip(tip, owner, {1010, 1010});
    tips.Hide();
    rig.loop.Pump(20);
    rig.loop.Pump(20);
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(CDrawnTooltipsTest, BalloonHasItsColours)
{
    STooltip tip;
    tip.text = "Balloon";
    tip.delayMs = 0;
    tip.isBalloon = true;
    tip.background = Mirel::Graphics::CColor{10, 20, 30};
    tip.textColor = Mirel::Graphics::CColor{200, 100, 50};
    tips.ShowTip(tip, owner, {1010, 1010});
    EXPECT_TRUE(Tests::Shows(*Shown(), *tip.background));
    EXPECT_TRUE(Tests::Shows(*Shown(), *tip.textColor));
}

TEST_F(CDrawnTooltipsTest, GoesWhenThePointerHasLeftTheWindow)
{
    tips.Show("Here", owner, {1010, 1010});
    rig.platform.MovePointer({10, 10});
    EXPECT_TRUE(Tests::PumpUntil(rig.loop, [&] { return Shown() == nullptr; }));
}

TEST_F(CDrawnTooltipsTest, StaysOutsideOfTheWindowWhileAPressHoldsThePointer)
{
    STooltip tip;
    tip.text = "0.50";
    tip.delayMs = 0;
    tip.isForPress = true;
    tips.ShowTip(tip, owner, {1010, 1010});
    rig.platform.MovePointer({10, 10});
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(400);
    while (std::chrono::steady_clock::now() < end)
    {
        rig.loop.Pump(10);
    }
    EXPECT_NE(Shown(), nullptr);
    tips.Hide();
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(CDrawnTooltipsTest, HundredTooltipsLeaveNoWindow)
{
    for (int i = 0; i < 100; ++i)
    {
        tips.Show("Again", owner, {1010, 1010});
        rig.platform.Pump();
    }
    tips.Hide();
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
}

class CNotingTips : public ITooltipPresenter
{
public:
    void Show(const std::string& text, const INativeWindow& /*owner*/,
              Mirel::GUI::CPoint /*screenPosition*/) override
    {
        script += text + " ";
    }
    void Hide() override { script += "- "; }
    void ShowTip(const STooltip& tip, const INativeWindow& owner, Mirel::GUI::CPoint place) override
    {
        delay = tip.delayMs;
        isForPress = tip.isForPress;
        Show(tip.text, owner, place);
    }

    /// Without the hiding of what does not show.
    std::string Take()
    {
        std::string taken = std::exchange(script, std::string());
        for (auto at = taken.find("- - "); at != std::string::npos; at = taken.find("- - "))
        {
            taken.erase(at, 2);
        }
        return taken;
    }

    std::string script;
    int delay = -1;
    bool isForPress = false;
};

class CHostTooltipsTest : public testing::Test
{
public:
    CHostTooltipsTest()
    {
        const auto text = [](const char* shown)
        {
            return [shown]
            {
                STooltip tip;
                tip.text = shown;
                return tip;
            };
        };
        tooltips.Set(outer, text("outer"));
        tooltips.Set(inner, text("inner"), true);
        tooltips.Set(silent, text(""));
        rig.Move(90, 90);
        presenter.Take();
    }

    ~CHostTooltipsTest() override { tooltips.Remove(inner); }

    Tests::CLightRig rig;
    Tests::CNotingLight outer{rig.root, {10, 10, 40, 40}, "o", rig.script};
    Tests::CNotingLight inner{&outer, {5, 5, 10, 10}, "i", rig.script};
    Tests::CNotingLight silent{rig.root, {60, 10, 10, 10}, "s", rig.script};
    CNotingTips presenter;
    CHostTooltips tooltips{*rig.adapter, presenter};
};

TEST_F(CHostTooltipsTest, InnermostWidgetShowsItsOwn)
{
    rig.Move(40, 40);
    EXPECT_EQ(presenter.Take(), "- outer ");
    rig.Move(41, 41);
    EXPECT_EQ(presenter.Take(), "");
    rig.Move(20, 20);
    EXPECT_EQ(presenter.Take(), "- inner ");
    EXPECT_EQ(presenter.delay, 500);
    EXPECT_FALSE(presenter.isForPress);
    rig.Move(65, 15);
    EXPECT_EQ(presenter.Take(), "- ");
    rig.Move(90, 90);
    EXPECT_EQ(presenter.Take(), "- ");
}

TEST_F(CHostTooltipsTest, FrontmostOfOverlappingSiblingsShowsItsOwn)
{
    const auto say = [](const char* text)
    {
        return [text]
        {
            STooltip tip;
            tip.text = text;
            return tip;
        };
    };
    std::vector<std::unique_ptr<Tests::CNotingLight>> pile;
    for (const char* name : {"a", "b", "c", "d", "e"})
    {
        pile.push_back(
            std::make_unique<Tests::CNotingLight>(rig.root, CRect{60, 60, 20, 20}, name, rig.script));
        tooltips.Set(*pile.back(), say(name));
    }
    while (!pile.empty())
    {
        const std::string front(1, static_cast<char>('a' + pile.size() - 1));
        rig.Move(90, 90);
        presenter.Take();
        rig.Move(70, 70);
        EXPECT_EQ(presenter.Take(), "- " + front + " ");
        tooltips.Remove(*pile.back());
        pile.pop_back();
    }
}

TEST_F(CHostTooltipsTest, PartOfAChildOutsideOfItsParentShowsNone)
{
    inner.SetSize({100, 10});
    rig.Move(55, 20);
    EXPECT_EQ(presenter.Take(), "");
    rig.Move(45, 20);
    EXPECT_EQ(presenter.Take(), "- inner ");
}

TEST_F(CHostTooltipsTest, TooltipOfTheHostShowsWhereNoWidgetHasOne)
{
    rig.adapter->SetTooltip("host");
    rig.Move(80, 80);
    EXPECT_EQ(presenter.Take(), "- host ");
    rig.Move(40, 40);
    EXPECT_EQ(presenter.Take(), "- outer ");
    rig.Move(80, 80);
    EXPECT_EQ(presenter.Take(), "- host ");
    rig.Press();
    EXPECT_EQ(presenter.Take(), "- ");
    rig.Release();
    rig.adapter->SetTooltip("");
    rig.Move(40, 40);
    presenter.Take();
    rig.Move(80, 80);
    EXPECT_EQ(presenter.Take(), "- ");
}

TEST_F(CHostTooltipsTest, PressWheelAndKeysHideIt)
{
    rig.Move(40, 40);
    presenter.Take();
    rig.Press();
    EXPECT_EQ(presenter.Take(), "- ");
    rig.Release();
    presenter.Take();
    rig.Move(41, 41);
    EXPECT_EQ(presenter.Take(), "") << "not again over the same widget";
    rig.platform.TurnWheel(1.0);
    EXPECT_EQ(presenter.Take(), "- ");
    outer.TakeKeys();
    outer.SetFocus();
    rig.platform.PressKey({});
    EXPECT_EQ(presenter.Take(), "- ");
}

TEST_F(CHostTooltipsTest, ShowOnClickShowsAtOnce)
{
    rig.Move(20, 20);
    presenter.Take();
    rig.Press();
    EXPECT_EQ(presenter.Take(), "- inner ");
    EXPECT_EQ(presenter.delay, 0);
    EXPECT_TRUE(presenter.isForPress);
}

TEST_F(CHostTooltipsTest, HiddenWidgetsAndRemovedOnesShowNone)
{
    inner.Show(false);
    rig.Move(20, 20);
    EXPECT_EQ(presenter.Take(), "- outer ");
    tooltips.Remove(outer);
    EXPECT_EQ(presenter.Take(), "- ");
    rig.Move(21, 21);
    EXPECT_EQ(presenter.Take(), "");
}

} // namespace
