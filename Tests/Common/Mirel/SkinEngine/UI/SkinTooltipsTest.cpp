// Tooltips of a skin in its window.

#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "SkinWindowRig.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;

class CNotedTips : public GUI::ITooltipPresenter
{
public:
    void Show(const std::string& text, const GUI::INativeWindow& /*owner*/, GUI::CPoint /*place*/) override
    {
        shown = text;
    }
    void Hide() override { shown.clear(); }
    void SetTipText(const std::string& text) override
    {
        if (!shown.empty())
        {
            shown = text;
        }
    }

    std::string shown; ///< Empty for none.
};

class SkinTooltips : public SkinWindowRig
{
public:
    SkinTooltips()
    {
        tooltips = &tips;
        frame.Show(true);
        MakeWindow([this](ISkinModel& model)
                   { model.AddParam("p", &param, model.GetExposure().GetParamFlags("p"), false); });
    }
    ~SkinTooltips() override { window.reset(); }

    /// To a place of the window.
    void Move(int x, int y)
    {
        const GUI::CPoint origin = frame.GetNativeWindow()->GetScreenPosition();
        platform.MovePointer({origin.x + x, origin.y + y});
    }

    /// What is told in the middle of a skin of 300 by 200, which has one element of 60 by 40.
    std::string TipOf(const std::string& element, const std::string& attributes)
    {
        Move(5, 5);
        EXPECT_TRUE(Open("width=\"300\" height=\"200\"", "<" + element + " width=\"60\" height=\"40\" " +
                                                             attributes + ">" + "<TOOLTIP text=\"" + element +
                                                             "\"/></" + element + ">"))
            << AllMessages();
        Move(150, 100);
        return tips.shown;
    }

    CCaptureParam param{CParamInfo(ValueKindReal, 0.0F, 1.0F, 0.0F, "p", "", "")};
    CNotedTips tips;
};

TEST_F(SkinTooltips, ExplainEveryKindOfWidget)
{
    for (const std::string element : {"IMAGE_PARAM_BUTTON",
                                      "INVISIBLE_PARAM_BUTTON",
                                      "IMAGE_PARAM_TOGGLE_SWITCH",
                                      "INVISIBLE_PARAM_TOGGLE_SWITCH",
                                      "IMAGE_PARAM_MENU_BUTTON",
                                      "INVISIBLE_PARAM_MENU_BUTTON",
                                      "IMAGE_PARAM_KNOB",
                                      "IMAGE_PARAM_SLIDER",
                                      "IMAGE_PARAM_METER",
                                      "IMAGE_PARAM_LINEAR_METER",
                                      "PARAM_TEXT",
                                      "PARAM_TEXT_CONTROL",
                                      "IMAGE_ACTION_BUTTON",
                                      "INVISIBLE_ACTION_BUTTON",
                                      "TEXT",
                                      "TEXT_FIELD",
                                      "IMAGE",
                                      "IMAGE_GROUP_BOX",
                                      "CURVE_GRAPH",
                                      "XY_CURVES_GRAPH",
                                      "CURVE_GRID",
                                      "GRID",
                                      "RULER",
                                      "CURVE_XSCALE",
                                      "CURVE_YSCALE"})
    {
        EXPECT_EQ(TipOf(element, "param_id=\"p\""), element);
    }
    for (const std::string element : {"INVISIBLE_PARAM_BUTTON", "PARAM_TEXT", "TEXT", "RULER"})
    {
        EXPECT_EQ(TipOf(element, "param_id=\"p\" system_widget=\"true\""), element) << "in a native host";
    }
}

TEST_F(SkinTooltips, TellTheValueWhileTheWidgetIsDragged)
{
    ASSERT_TRUE(Open("width=\"300\" height=\"200\"",
                     "<PARAM_TEXT_CONTROL param_id=\"p\" width=\"60\" height=\"40\" pixel_range=\"100\">"
                     "<PARAM_TOOLTIP param_id=\"p\" show_on_click=\"true\"/></PARAM_TEXT_CONTROL>"))
        << AllMessages();
    Move(150, 100);
    EXPECT_EQ(tips.shown, "0.00");
    platform.PressButton(GUI::EMouseButton::Left);
    EXPECT_EQ(tips.shown, "0.00");
    Move(150, 75);
    EXPECT_EQ(tips.shown, "0.25");
    Move(150, 50);
    EXPECT_EQ(tips.shown, "0.50") << "outside of the widget too";
    EXPECT_FLOAT_EQ(param.GetValue(), 0.5F);
    platform.ReleaseButton(GUI::EMouseButton::Left);
    EXPECT_EQ(tips.shown, "");
}

TEST_F(SkinTooltips, GoWhenThePointerIsOnTheBackgroundAndComeBack)
{
    ASSERT_EQ(TipOf("PARAM_TEXT_CONTROL", "param_id=\"p\""), "PARAM_TEXT_CONTROL");
    Move(250, 20);
    EXPECT_EQ(tips.shown, "");
    Move(150, 100);
    EXPECT_EQ(tips.shown, "PARAM_TEXT_CONTROL");
}

TEST_F(SkinTooltips, OneThatIsLaidOverSeveralWidgetsLeavesThemTheMouse)
{
    ASSERT_TRUE(Open("width=\"300\" height=\"200\"",
                     "<LAYER_STACK width=\"100%\" height=\"100%\">"
                     "<PARAM_TEXT_CONTROL param_id=\"p\" width=\"60\" height=\"40\" pixel_range=\"100\"/>"
                     "<TOOLTIP text=\"both\" width=\"100%\" height=\"100%\"/></LAYER_STACK>"))
        << AllMessages();
    Move(10, 10);
    EXPECT_EQ(tips.shown, "both");
    Move(150, 100);
    EXPECT_EQ(tips.shown, "both");
    platform.PressButton(GUI::EMouseButton::Left);
    Move(150, 90);
    platform.ReleaseButton(GUI::EMouseButton::Left);
    EXPECT_FLOAT_EQ(param.GetValue(), 0.1F);
}

} // namespace
} // namespace Mirel::SkinEngine
