#include "Common/Mirel/GUI/Popups/PopupRig.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysParamTooltip.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysStringTooltip.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/GUI/Popups/CDrawnTooltips.h"
#include "PushRig.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using Tests::CControlRig;
using Tests::CNotedParam;

namespace
{

class CScriptedTooltips : public GUI::ITooltipPresenter
{
public:
    void Show(const std::string& /*text*/, const GUI::INativeWindow& /*owner*/,
              Core::CPoint /*screenPosition*/) override
    {
    }
    void Hide() override { shown.reset(); }
    void ShowTip(const GUI::STooltip& tip, const GUI::INativeWindow& /*owner*/,
                 Core::CPoint /*screenPosition*/) override
    {
        shown = tip;
    }
    void SetTipText(const std::string& text) override
    {
        if (shown.has_value())
        {
            shown->text = text;
        }
    }

    std::optional<GUI::STooltip> shown;
};

struct CTipRig : public CControlRig
{
    CTipRig() : tips(*adapter, presenter) {}

    std::string Shown() const { return presenter.shown.has_value() ? presenter.shown->text : "-"; }

    CScriptedTooltips presenter;
    GUI::CHostTooltips tips;
};

} // namespace

TEST(CGUISysParamTooltip, TellsTheValueOfTheTimeWhenItShows)
{
    CTipRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUISysParamTooltip tip(noted.param, &rig.tips, rig.root);
    tip.Move({10, 10});
    tip.SetSize({20, 20});
    noted.param.SetValue(0.5F);
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "0.50");
    rig.MoveAway();
    EXPECT_EQ(rig.Shown(), "-");
    noted.param.SetValue(0.75F);
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "0.75");
}

TEST(CGUISysParamTooltip, FollowsTheValueWhileItShows)
{
    CTipRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUISysParamTooltip tip(noted.param, &rig.tips, rig.root);
    tip.SetSize({20, 20});
    tip.SetShowOnClick(true);
    noted.param.SetValue(0.5F);
    EXPECT_EQ(rig.Shown(), "-");
    rig.Move(10, 10);
    rig.Press();
    noted.param.SetValue(0.6F);
    EXPECT_EQ(rig.Shown(), "0.60");
    rig.Release();
    noted.param.SetValue(0.7F);
    EXPECT_EQ(rig.Shown(), "-");
}

TEST(CGUISysTooltip, DrawnTooltipChangesItsTextInItsWindow)
{
    CControlRig rig({300, 200});
    GUI::CDrawnTooltips presenter(rig.platform, Tests::TestLook());
    GUI::CHostTooltips tips(*rig.adapter, presenter);
    DataModel::Objects::CCaptureString string;
    string.SetValue("short");
    CGUISysStringTooltip tip(string, &tips, rig.root);
    tip.SetSize({100, 100});
    tip.SetShowOnClick(true);
    string.SetValue("not yet");
    EXPECT_EQ(presenter.GetWindow(), nullptr);
    rig.Move(50, 50);
    rig.Press();
    ASSERT_NE(presenter.GetWindow(), nullptr);
    const GUI::CPopupWindow* const window = presenter.GetWindow();
    const Graphics::CRect before = window->GetFrame();
    string.SetValue("a text that is much longer than before");
    EXPECT_EQ(presenter.GetWindow(), window);
    EXPECT_GT(window->GetFrame().width, before.width);
    EXPECT_EQ(window->GetNativeWindow()->GetSize(), window->GetFrame().GetSize());
    string.SetValue("");
    EXPECT_EQ(presenter.GetWindow(), nullptr);
    rig.Release();
}

TEST(CGUISysTooltip, IsNotSeenAndLetsTheMouseThrough)
{
    CTipRig rig;
    Tests::CNotingLight beneath(rig.root, {10, 10, 20, 20}, "beneath", rig.script);
    CGUISysStringTooltip tip("text", &rig.tips, rig.root);
    tip.Move({10, 10});
    tip.SetSize({20, 20});
    rig.Move(20, 20);
    rig.TakeScript();
    rig.Press();
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "beneath.down beneath.up beneath.click ");
    EXPECT_EQ(rig.Seen(20, 20), 0xFFFFFFU);
    EXPECT_TRUE(tip.IsTransparent());
}

TEST(CGUISysStringTooltip, TellsItsTextOrItsString)
{
    CTipRig rig;
    DataModel::Objects::CCaptureString string;
    string.SetValue("string");
    CGUISysStringTooltip text("text", &rig.tips, rig.root);
    text.Move({10, 10});
    text.SetSize({20, 20});
    CGUISysStringTooltip ofString(string, &rig.tips, rig.root);
    ofString.Move({40, 10});
    ofString.SetSize({20, 20});
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "text");
    rig.Move(50, 20);
    EXPECT_EQ(rig.Shown(), "string");
    string.SetValue("");
    rig.MoveAway();
    rig.Move(50, 20);
    EXPECT_EQ(rig.Shown(), "-");
    EXPECT_EQ(CGUISysStringTooltip(static_cast<const char*>(nullptr), nullptr).GetTipText(), "");
}

TEST(CGUISysTooltip, HandsItsStyleOn)
{
    CTipRig rig;
    CGUISysStringTooltip tip("text", &rig.tips, rig.root);
    tip.SetSize({20, 20});
    GUI::STooltip style;
    style.text = "does not count";
    style.delayMs = 100;
    style.showTimeMs = 200;
    style.isBalloon = true;
    style.background = Graphics::CColor{1, 2, 3};
    style.textColor = Graphics::CColor{4, 5, 6};
    tip.SetStyle(style);
    rig.Move(10, 10);
    ASSERT_TRUE(rig.presenter.shown.has_value());
    EXPECT_EQ(rig.presenter.shown->text, "text");
    EXPECT_EQ(rig.presenter.shown->delayMs, 100);
    EXPECT_EQ(rig.presenter.shown->showTimeMs, 200);
    EXPECT_TRUE(rig.presenter.shown->isBalloon);
    EXPECT_EQ(rig.presenter.shown->background, (Graphics::CColor{1, 2, 3}));
    EXPECT_EQ(rig.presenter.shown->textColor, (Graphics::CColor{4, 5, 6}));
}

TEST(CGUISysTooltip, ShowsOnAClickWhereItIsToldTo)
{
    CTipRig rig;
    CGUISysStringTooltip tip("text", &rig.tips, rig.root);
    tip.SetSize({20, 20});
    rig.Move(10, 10);
    rig.Press();
    EXPECT_EQ(rig.Shown(), "-");
    rig.Release();
    tip.SetShowOnClick(true);
    rig.Rest();
    rig.Press();
    EXPECT_EQ(rig.Shown(), "text");
    EXPECT_EQ(rig.presenter.shown->delayMs, 0);
    rig.Release();
    EXPECT_EQ(rig.Shown(), "-");
}

TEST(CGUISysTooltip, ExplainsAnotherWidgetAndLeavesIt)
{
    CTipRig rig;
    Tests::CNotingLight subject(rig.root, {10, 10, 20, 20}, "subject", rig.script);
    auto tip = std::make_unique<CGUISysStringTooltip>("text", &rig.tips, rig.root);
    tip->SetSize({100, 100});
    tip->Explain(&subject);
    rig.Move(50, 50);
    EXPECT_EQ(rig.Shown(), "-");
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "text");
    tip.reset();
    EXPECT_EQ(rig.Shown(), "-");
    rig.MoveAway();
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "-");
}

TEST(CGUISysTooltip, HiddenOneDoesNotShow)
{
    CTipRig rig;
    CGUISysStringTooltip tip("text", &rig.tips, rig.root);
    tip.SetSize({20, 20});
    tip.Show(false);
    rig.Move(10, 10);
    EXPECT_EQ(rig.Shown(), "-");
}

TEST(CGUISysTooltip, HiddenOneExplainsNothing)
{
    CTipRig rig;
    Tests::CNotingLight subject(rig.root, {10, 10, 20, 20}, "subject", rig.script);
    CGUISysStringTooltip tip("text", &rig.tips, rig.root);
    tip.Explain(&subject);
    tip.Show(false);
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "-");
    tip.Show(true);
    rig.MoveAway();
    rig.Move(20, 20);
    EXPECT_EQ(rig.Shown(), "text");
}
