#include "Mirel/DataModel/GUIWidgets/CGUICurveGridViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageActionButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamDropDownList.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamLinearMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamToggleSwitch.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysParamTooltip.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysStringTooltip.h"
#include "Mirel/DataModel/GUIWidgets/CGUIXCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CGUIYCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "Mirel/DataModel/GUIWidgets/CXYCurvesViewer.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/SkinEngine/Model/ICollection.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"
#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CUIRig;

TEST(UIWidgets, ACurveGraphIsReadFromItsAttributes)
{
    CUIRig rig;
    rig.AddCurve("c");
    EXPECT_TRUE(
        rig.Build("<CURVE_GRAPH curve_id='c' color='red' pen_style='dot' graph_style='bargraph' "
                  "anti_alias='false' sample_rate='0.5' orientation='vertical' width='100' height='50' "
                  "x_zoom='2' x_offset='0.5' y_scale='log' y_zoom_positions='false' x_positions_count='7'/>"
                  "<CURVE_GRAPH text_color='blue'/>"));
    auto* widget = rig.Widget<CGUICurveViewer>(0);
    ASSERT_NE(widget, nullptr);
    const CCurveGraphics& graph = widget->GetCurveGraphics();
    EXPECT_EQ(graph.GetColor(), (Graphics::CColor{255, 0, 0}));
    EXPECT_EQ(graph.GetPenStyle(), 2U);
    EXPECT_EQ(graph.GetGraphStyle(), CCurveGraphics::GraphStyleBargraph);
    EXPECT_FALSE(graph.GetAntiAlias());
    EXPECT_FLOAT_EQ(graph.GetSampleRate(), 0.5f);
    EXPECT_TRUE(widget->GetViewer().IsVertical());
    EXPECT_EQ(widget->GetSize(), (GUI::CSize{100, 50}));
    EXPECT_FLOAT_EQ(widget->GetViewer().GetXViewer().GetZoom(), 2.0f);
    EXPECT_FLOAT_EQ(widget->GetViewer().GetXViewer().GetOffset(), 0.5f);
    EXPECT_EQ(widget->GetViewer().GetXViewer().GetPositionsCount(), 7);
    EXPECT_FLOAT_EQ(widget->GetViewer().GetXViewer().GetInfo().GetMax(), 10.0f);
    EXPECT_TRUE(widget->GetViewer().GetYViewer().IsLogScale());
    EXPECT_FALSE(widget->GetViewer().GetYViewer().GetZoomPositions());
    auto* plain = rig.Widget<CGUICurveViewer>(1);
    EXPECT_EQ(plain->GetCurveGraphics().GetColor(), (Graphics::CColor{0, 0, 255}));
    EXPECT_TRUE(plain->GetCurveGraphics().GetAntiAlias());
    EXPECT_FLOAT_EQ(plain->GetCurveGraphics().GetSampleRate(), 1.0f);
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("1: : Unknown identifier (object does not exist)."));
}

TEST(UIWidgets, ACurveGraphExposesItsProperties)
{
    CUIRig rig;
    rig.AddCurve("c");
    EXPECT_TRUE(rig.Build("<CURVE_GRAPH id='g' curve_id='c' width='100' height='50' x_max_zoom='20'/>"));
    EXPECT_FLOAT_EQ(rig.Value("g.x_extra_pixels"), 0);
    EXPECT_FLOAT_EQ(rig.Value("g.anti_alias"), 1);
    EXPECT_EQ(rig.Find<ICaptureParam>("g.x_extra_pixels"), nullptr);
    EXPECT_FLOAT_EQ(rig.Param("g.x_zoom").GetInfo().GetMax(), 20);
    EXPECT_FLOAT_EQ(rig.Param("g.y_zoom").GetInfo().GetMax(), 10);
    rig.Param("g.x_zoom").SetValue(3);
    rig.Param("g.y_zoom").SetValue(2);
    rig.Param("g.y_offset").SetValue(0.25f);
    EXPECT_FLOAT_EQ(rig.Value("g.x_extra_pixels"), 200);
    EXPECT_FLOAT_EQ(rig.Value("g.y_extra_pixels"), 50);
    EXPECT_FLOAT_EQ(rig.Widget<CGUICurveViewer>()->GetViewer().GetYViewer().GetOffset(), 0.25f);
    rig.Param("g.anti_alias").SetValue(0);
    EXPECT_FALSE(rig.Widget<CGUICurveViewer>()->GetCurveGraphics().GetAntiAlias());
}

TEST(UIWidgets, AGraphOfTwoCurvesReadsEachWithItsPrefix)
{
    CUIRig rig;
    rig.AddCurve("a");
    rig.AddCurve("b");
    EXPECT_TRUE(
        rig.Build("<XY_CURVES_GRAPH id='g' x_curve.curve_id='a' y_curve.curve_id='b' graph_style='curve' "
                  "positions_count='99' x_curve.y_zoom='2' y_curve.y_offset='0.5' width='10' height='10'/>"
                  "<XY_CURVES_GRAPH x_curve_id='a' y_curve_id='b'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* widget = rig.Widget<CXYCurvesViewer>(0);
    ASSERT_NE(widget, nullptr);
    EXPECT_FLOAT_EQ(widget->GetCurvesGraphics().GetPositionsCount(), 99);
    EXPECT_FLOAT_EQ(widget->GetXViewer().GetYViewer().GetZoom(), 2);
    EXPECT_FLOAT_EQ(widget->GetYViewer().GetYViewer().GetOffset(), 0.5f);
    EXPECT_FLOAT_EQ(rig.Value("g.graph_style"), 1);
    rig.Param("g.graph_style").SetValue(0);
    EXPECT_EQ(widget->GetCurvesGraphics().GetGraphStyle(), CXYCurvesGraphics::GraphStyleDots);
    rig.Param("g.positions_count").SetValue(12);
    EXPECT_FLOAT_EQ(widget->GetCurvesGraphics().GetPositionsCount(), 12);
    EXPECT_TRUE(rig.Has("g.x_curve.y_zoom"));
    EXPECT_TRUE(rig.Has("g.x_extra_pixels"));
    EXPECT_TRUE(rig.Has("g.anti_alias"));
    EXPECT_FLOAT_EQ(rig.Widget<CXYCurvesViewer>(1)->GetCurvesGraphics().GetPositionsCount(), 1024);
}

TEST(UIWidgets, GridsStandOnDescriptionsOrACurve)
{
    CUIRig rig;
    rig.AddParam("p", 0, 5);
    rig.AddCurve("c");
    EXPECT_TRUE(rig.Build(
        "<GRID x_param_info_id='p.info' y_param_info_id='p.info' color='red' pen_style='dash' "
        "subdiv_color='lime' subdiv_pen_style='dot' origin_color='blue' origin_pen_style='dash_dot' "
        "x_subdiv_count='3' y_subdiv_count='4' x_positions_count='6'/>"
        "<CURVE_GRID id='g' curve_id='c' y_positions_count='3'/><GRID x_param_info_id='p.info'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* grid = rig.Widget<CGUIGrid>(0);
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->GetGridGraphics().GetPen(), (CPen{{255, 0, 0}, 1}));
    EXPECT_EQ(grid->GetGridGraphics().GetSubdivisionPen(), (CPen{{0, 255, 0}, 2}));
    EXPECT_EQ(grid->GetGridGraphics().GetOriginPen(), (CPen{{0, 0, 255}, 3}));
    EXPECT_EQ(grid->GetGridGraphics().GetXSubdivisionsCount(), 3);
    EXPECT_EQ(grid->GetGridGraphics().GetYSubdivisionsCount(), 4);
    EXPECT_EQ(grid->GetXViewer().GetPositionsCount(), 6);
    EXPECT_FLOAT_EQ(grid->GetYViewer().GetInfo().GetMax(), 5);
    auto* curveGrid = rig.Widget<CGUICurveGridViewer>(1);
    ASSERT_NE(curveGrid, nullptr);
    EXPECT_EQ(curveGrid->GetYViewer().GetPositionsCount(), 3);
    EXPECT_FLOAT_EQ(curveGrid->GetXViewer().GetInfo().GetMax(), 10);
    EXPECT_TRUE(rig.Has("g.x_extra_pixels"));
    EXPECT_FALSE(rig.Widget<CGUIGrid>(2)->GetGridGraphics().HasYLines());
}

TEST(UIWidgets, RulersStandOnADescriptionOrAnAxisOfACurve)
{
    CUIRig rig;
    rig.AddParam("p", 0, 5);
    rig.AddCurve("c");
    EXPECT_TRUE(
        rig.Build("<RULER param_info_id='p.info' orientation='vertical' color='red' margin='3' h_margin='4' "
                  "text_h_align='left' text_v_align='bottom' font_size='9'/>"
                  "<CURVE_XSCALE curve_id='c' zoom='2'/><CURVE_YSCALE curve_id='c' y_zoom='3'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    const CGUIRulerGraphics& ruler = rig.Widget<CGUIRuler>(0)->GetRulerGraphics();
    EXPECT_TRUE(ruler.IsVertical());
    EXPECT_EQ(ruler.GetColor(), (Graphics::CColor{255, 0, 0}));
    EXPECT_EQ(ruler.GetHMargin(), 4);
    EXPECT_EQ(ruler.GetVMargin(), 3);
    EXPECT_EQ(ruler.GetHAlign(), Graphics::ETextHAlign::Left);
    EXPECT_EQ(ruler.GetVAlign(), Graphics::ETextVAlign::Bottom);
    EXPECT_EQ(ruler.GetFont()->GetDescription().height, 9);
    EXPECT_FLOAT_EQ(rig.Widget<CGUIRuler>(0)->GetViewer().GetInfo().GetMax(), 5);
    ASSERT_NE(rig.Widget<CGUIXCurveRuler>(1), nullptr);
    EXPECT_FLOAT_EQ(rig.Widget<CGUIXCurveRuler>(1)->GetViewer().GetZoom(), 2);
    EXPECT_FALSE(rig.Widget<CGUIXCurveRuler>(1)->GetRulerGraphics().IsVertical());
    ASSERT_NE(rig.Widget<CGUIYCurveRuler>(2), nullptr);
    EXPECT_FLOAT_EQ(rig.Widget<CGUIYCurveRuler>(2)->GetViewer().GetZoom(), 3);
    EXPECT_TRUE(rig.Widget<CGUIYCurveRuler>(2)->GetRulerGraphics().IsVertical());
}

TEST(UIWidgets, WhatNamesNoObjectIsReported)
{
    struct SRow
    {
        std::string skin;
        std::vector<std::string> messages;
    };
    const SRow rows[] = {
        {"<GRID/>", {"1: GRID, not connected to any parameter information (x or y)"}},
        {"<RULER/>", {"1: RULER, not connected to any parameter information (x or y)"}},
        {"<IMAGE_PARAM_KNOB/>", {"1: IMAGE_PARAM_KNOB, not connected to any parameter (x, y or z)"}},
        {"<IMAGE_PARAM_KNOB param_id='q'/>", {"1: q: Unknown identifier (object does not exist)."}},
        {"<IMAGE_PARAM_KNOB param_id='c'/>", {"1: c: Unknown param identifier (wrong object type)."}},
        {"<CURVE_GRAPH curve_id='p'/>", {"1: p: Unknown curve identifier (wrong object type)."}},
        {"<TEXT string_id='p'/>", {"1: p: Unknown string identifier (wrong object type)."}},
        {"<RULER param_info_id='p'/>", {"1: p: Unknown parameter info identifier (wrong object type)."}},
        {"<IMAGE_ACTION_BUTTON action_id='p'/>", {"1: p: Unknown action identifier (wrong object type)."}},
        {"<IMAGE_ACTION_BUTTON action='Fly'/>", {"1: IMAGE_ACTION_BUTTON: unknown action 'Fly'."}},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        rig.AddParam("p");
        rig.AddCurve("c");
        EXPECT_TRUE(rig.Build(row.skin)) << row.skin;
        EXPECT_EQ(rig.TakeMessages(), row.messages) << row.skin;
        EXPECT_NE(rig.Widget(0), nullptr) << row.skin;
    }
}

TEST(UIWidgets, AKnobIsReadFromItsAttributes)
{
    CUIRig rig;
    ICaptureParam& param = rig.AddParam("p", 0, 10);
    rig.WriteImage("k.png", 20, 60);
    rig.WriteImage("k_hover.png", 20, 60);
    EXPECT_TRUE(
        rig.Build("<IMAGE_PARAM_KNOB id='k' param_id='p' image='k.png' images_count='3' pixel_range='50' "
                  "orientation='horizontal' fine_ratio='8' positions_count='11'/>"
                  "<IMAGE_PARAM_KNOB x_param_id='p' image='k.png' x_zoom='2'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* knob = rig.Widget<CGUIImageParamKnob>(0);
    ASSERT_NE(knob, nullptr);
    EXPECT_EQ(knob->GetSize(), (GUI::CSize{20, 20}));
    EXPECT_EQ(knob->GetKnobGraphics().GetFramesCount(), 3);
    EXPECT_TRUE(knob->GetMouseControl().IsHorizontal());
    EXPECT_FLOAT_EQ(knob->GetMouseControl().GetPixelRange(), 50);
    EXPECT_EQ(knob->GetControl().GetFineRatio(), 8);
    EXPECT_EQ(knob->GetControl().GetPositionsCount(), 11);
    knob->GetControl().SetPosition(0.5f);
    EXPECT_FLOAT_EQ(param.GetValue(), 5);
    param.SetValue(10);
    EXPECT_EQ(knob->GetKnobGraphics().GetFrame(), 2);
    EXPECT_TRUE(rig.Has("k.zoom"));
    EXPECT_TRUE(rig.Has("k.offset"));
    auto* second = rig.Widget<CGUIImageParamKnob>(1);
    EXPECT_EQ(second->GetKnobGraphics().GetFramesCount(), 2);
    EXPECT_FALSE(second->GetMouseControl().IsHorizontal());
    EXPECT_FLOAT_EQ(second->GetMouseControl().GetPixelRange(), -1);
    EXPECT_FLOAT_EQ(second->GetControl().GetZoom(), 2);
    // The pictures of both knobs are shared.
    EXPECT_EQ(rig.images.GetCount(), 2U);
}

TEST(UIWidgets, AxesBendByANamedCurveAFormulaOrACurveOfTheModel)
{
    CUIRig rig;
    rig.AddParam("p");
    auto& curve = rig.AddCurve("bend");
    curve.SetValue(Math::SharedFunction<&Math::FunctionsLibrary::Square>());
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB param_id='p' response_curve='exp2'/>"
                          "<IMAGE_PARAM_KNOB param_id='p' response_curve='x*x'/>"
                          "<IMAGE_PARAM_KNOB param_id='p' response_curve='bend'/>"
                          "<IMAGE_PARAM_KNOB param_id='p' response_curve='later'/>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("1: later: Unknown identifier (object does not exist)."));
    for (int i = 1; i <= 2; ++i)
    {
        const auto& axis = rig.Widget<CGUIImageParamKnob>(i)->GetControl();
        EXPECT_NEAR(axis.PositionToValue(0.5f), 0.25f, 1e-5f);
        EXPECT_NEAR(axis.ValueToPosition(0.25f, true), 0.5f, 1e-5f);
    }
    const auto& bent = rig.Widget<CGUIImageParamKnob>(2)->GetControl();
    curve.SetValue(Math::SharedFunction<&Math::FunctionsLibrary::Identity>());
    EXPECT_NEAR(bent.PositionToValue(0.5f), 0.5f, 1e-5f);
}

TEST(UIWidgets, AMeterShowsAReadOnlyParameter)
{
    CUIRig rig;
    rig.WriteImage("m.png", 60, 20);
    auto* param = new CCaptureParam(CParamInfo(ValueKindReal, 0, 1, 0, "", "", ""));
    rig.model.AddConstParam("p", param, allObjectFlags, true);
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_METER param_id='p' image='m.png' images_count='3' "
                          "image_orientation='horizontal'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* meter = rig.Widget<CGUIImageParamMeter>();
    ASSERT_NE(meter, nullptr);
    EXPECT_EQ(meter->GetSize(), (GUI::CSize{20, 20}));
    param->SetValue(0.5f);
    EXPECT_EQ(meter->GetMeterGraphics().GetFrame(), 1);
}

TEST(UIWidgets, ASliderIsReadFromItsAttributes)
{
    CUIRig rig;
    ICaptureParam& param = rig.AddParam("p", 0, 10);
    rig.WriteImage("s.png", 100, 20);
    rig.WriteImage("t.png", 10, 10);
    rig.WriteImage("t_selected.png", 10, 10);
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_SLIDER id='s' param_id='p' image='s.png' thumb_image='t.png' "
                          "orientation='horizontal' margin_before='10' margin_after='20' positions_count='6' "
                          "pixel_range='77' fine_ratio='4'/>"
                          "<IMAGE_PARAM_SLIDER param_id='p' thumb_image='t.png' width='30' height='90'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* slider = rig.Widget<CSkinLinearParamSlider>(0);
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->GetSize(), (GUI::CSize{100, 20}));
    EXPECT_EQ(slider->GetSliderGraphics().GetTrack(), (CLinearTrack{true, 10, 20}));
    EXPECT_EQ(slider->GetControl().GetPositionsCount(), 6);
    EXPECT_EQ(slider->GetControl().GetFineRatio(), 4);
    param.SetValue(10);
    // The thumb of 10 pixels ends where the margin begins.
    EXPECT_EQ(slider->GetSliderGraphics().GetThumbArea().x, 100 - 20 - 10);
    EXPECT_TRUE(rig.Has("s.zoom"));
    EXPECT_EQ(rig.images.GetCount(), 3U);
    auto* plain = rig.Widget<CSkinLinearParamSlider>(1);
    EXPECT_EQ(plain->GetSize(), (GUI::CSize{30, 90}));
    EXPECT_FALSE(plain->GetSliderGraphics().GetTrack().horizontal);
}

TEST(UIWidgets, ALinearMeterIsReadFromItsAttributes)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("m.png", 20, 100);
    EXPECT_TRUE(rig.Build(
        "<IMAGE_PARAM_LINEAR_METER param_id='p' image='m.png' margin_before='5' margin_after='6'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* meter = rig.Widget<CGUIImageParamLinearMeter>();
    ASSERT_NE(meter, nullptr);
    EXPECT_EQ(meter->GetMeterGraphics().GetTrack(), (CLinearTrack{false, 5, 6}));
    EXPECT_EQ(meter->GetSize(), (GUI::CSize{20, 100}));
}

TEST(UIWidgets, ListsOfValuesStandOnParameters)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("b.png", 20, 10);
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_MENU_BUTTON id='m' param_id='p' image='b.png'/>"
                          "<INVISIBLE_PARAM_MENU_BUTTON param_id='p' width='30' height='9'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_NE(rig.Widget<CGUIImageParamDropDownList>(0), nullptr);
    EXPECT_NE(rig.Widget<CGUIInvisibleParamDropDownList>(1), nullptr);
    EXPECT_EQ(rig.Widget(1)->GetSize(), (GUI::CSize{30, 9}));
    EXPECT_TRUE(rig.Has("m.pushed"));
}

TEST(UIWidgets, TextsOfParametersShowTheirValues)
{
    CUIRig rig;
    ICaptureParam& param = rig.AddParam("p", 0, 100);
    EXPECT_TRUE(rig.Build("<PARAM_TEXT param_id='p' text_color='red'/>"
                          "<PARAM_TEXT_CONTROL id='c' param_id='p' text_color_hover='blue' pixel_range='40' "
                          "orientation='horizontal' width='60' height='12'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* text = rig.Widget<CGUIParamTextWidget>(0);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text->GetText(), "0.00");
    EXPECT_EQ(text->GetTextDrawer().GetColor(), (Graphics::CColor{255, 0, 0}));
    const int width = text->GetSize().width;
    param.SetValue(100);
    EXPECT_STREQ(text->GetText(), "100.00");
    // There is room for it from the beginning.
    EXPECT_LE(text->GetTextDrawer().GetNaturalSize().width, width);
    auto* control = rig.Widget<CGUIParamTextControl>(1);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->GetSize(), (GUI::CSize{60, 12}));
    EXPECT_TRUE(control->GetMouseControl().IsHorizontal());
    EXPECT_FLOAT_EQ(control->GetMouseControl().GetPixelRange(), 40);
    EXPECT_FLOAT_EQ(rig.Value("c.value"), 1);
    EXPECT_STREQ(rig.Param("c.value").GetInfo().GetName(), "c.value");
    EXPECT_EQ(rig.Param("c.value").GetInfo().GetType(), ValueKindInteger);
    rig.Param("c.value").SetValue(0);
    EXPECT_FLOAT_EQ(param.GetValue(), 0);
}

TEST(UIWidgets, TooltipsExplainTheWidgetThatTheyStandIn)
{
    class CTips : public GUI::ITooltipPresenter
    {
    public:
        void Show(const std::string&, const GUI::INativeWindow&, GUI::CPoint) override {}
        void Hide() override {}
    } tips;
    CUIRig rig;
    rig.services.tooltips = &tips;
    rig.AddParam("p");
    rig.AddString("s", "hint");
    EXPECT_TRUE(
        rig.Build("<IMAGE_PARAM_KNOB param_id='p'><PARAM_TOOLTIP param_id='p' delay_ms='7' show_time_ms='8' "
                  "tip_style='balloon' background_color='red' text_color='blue'/></IMAGE_PARAM_KNOB>"
                  "<TOOLTIP string_id='s' width='50' height='40' show_on_click='true'/>"
                  "<TEXT value='a'><TOOLTIP text='plain'/></TEXT>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    const auto* inKnob = rig.Widget<CGUISysParamTooltip>(0, 0);
    ASSERT_NE(inKnob, nullptr);
    EXPECT_EQ(inKnob->GetTipText(), "0.00");
    EXPECT_EQ(inKnob->GetStyle().delayMs, 7);
    EXPECT_EQ(inKnob->GetStyle().showTimeMs, 8);
    EXPECT_TRUE(inKnob->GetStyle().isBalloon);
    EXPECT_EQ(inKnob->GetStyle().background, (Graphics::CColor{255, 0, 0}));
    EXPECT_EQ(inKnob->GetStyle().textColor, (Graphics::CColor{0, 0, 255}));
    const auto* laidOver = rig.Widget<CGUISysStringTooltip>(1);
    ASSERT_NE(laidOver, nullptr);
    EXPECT_EQ(laidOver->GetTipText(), "hint");
    EXPECT_EQ(laidOver->GetSize(), (GUI::CSize{50, 40}));
    EXPECT_FALSE(laidOver->GetStyle().background.has_value());
    EXPECT_FALSE(laidOver->GetStyle().textColor.has_value());
    EXPECT_EQ(rig.Widget<CGUISysStringTooltip>(2, 0)->GetTipText(), "plain");
    rig.Close();
}

TEST(UIWidgets, ButtonsAndSwitchesStandOnParameters)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("b.png", 20, 10);
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_BUTTON id='b' param_id='p' image='b.png' loop='true'/>"
                          "<INVISIBLE_PARAM_BUTTON param_id='p' width='30' height='9'/>"
                          "<IMAGE_PARAM_TOGGLE_SWITCH id='s' param_id='p' image='b.png'/>"
                          "<INVISIBLE_PARAM_TOGGLE_SWITCH param_id='p' width='31' height='9'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* button = rig.Widget<CGUIImageParamButton>(0);
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->GetPushGraphics().IsLoop());
    EXPECT_EQ(button->GetSize(), (GUI::CSize{20, 10}));
    EXPECT_EQ(rig.Param("b.pushed").GetInfo().GetName(), std::string("Pushed"));
    Tests::CEventCounter pushed(rig.Param("b.pushed").GetValueChangedEventProvider());
    button->GetPushGraphics().SetPushed(true);
    EXPECT_EQ(pushed.Take(), 1);
    EXPECT_FLOAT_EQ(rig.Value("b.pushed"), 1);
    ASSERT_NE(rig.Widget<CGUIInvisibleParamButton>(1), nullptr);
    EXPECT_EQ(rig.Widget(1)->GetSize(), (GUI::CSize{30, 9}));
    EXPECT_NE(rig.Widget<CGUIImageParamToggleSwitch>(2), nullptr);
    EXPECT_NE(rig.Widget<CGUIInvisibleParamToggleSwitch>(3), nullptr);
    EXPECT_TRUE(rig.Has("s.pushed"));
}

TEST(UIWidgets, ActionButtonsRunActionsOfTheModelOrTheProgram)
{
    int modelRuns = 0;
    int programRuns = 0;
    CUIRig rig;
    rig.model.AddAction("a", new CAction("", "", new Tests::CFunctionCommand([&] { ++modelRuns; })),
                        objectItself, true);
    const CAction named("", "", new Tests::CFunctionCommand([&] { ++programRuns; }));
    rig.services.findAction = [&named](const std::string& name)
    { return name == "OpenMenu" ? static_cast<const IConstAction*>(&named) : nullptr; };
    EXPECT_TRUE(rig.Build("<IMAGE_ACTION_BUTTON id='i' action_id='a'/>"
                          "<INVISIBLE_ACTION_BUTTON action='OpenMenu' width='30' height='9'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    const GUI::COSXMouseEvent press = [] { return GUI::COSXMouseEvent(); }();
    for (int i = 0; i < 2; ++i)
    {
        GUI::CMouseTarget* target = rig.Widget(i)->GetMouseTarget();
        ASSERT_NE(target, nullptr);
        rig.Widget(i)->GetInnerMouseTarget().OnMouseEnter(press);
        target->OnLeftDown(press);
        target->OnLeftUp(press);
    }
    EXPECT_EQ(modelRuns, 1);
    EXPECT_EQ(programRuns, 1);
    EXPECT_TRUE(rig.Has("i.pushed"));
}

TEST(UIWidgets, AnObjectThatComesLaterInTheSkinIsConnected)
{
    CUIRig rig;
    rig.WriteImage("m.png", 10, 100);
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_METER param_id='t.opacity' image='m.png' images_count='11'/>"
                          "<TEXT id='t' opacity='0.3'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    auto* meter = rig.Widget<CGUIImageParamMeter>();
    EXPECT_EQ(meter->GetMeterGraphics().GetFrame(), 3);
    rig.Param("t.opacity").SetValue(0.8f);
    EXPECT_EQ(meter->GetMeterGraphics().GetFrame(), 8);
}

TEST(UIWidgets, AWidgetWithoutItsObjectStandsOnThePlaceholderUntilItComes)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB param_id='p'/>"));
    auto& control = rig.Widget<CGUIImageParamKnob>()->GetControl();
    EXPECT_STREQ(control.GetInfo().GetName(), "Parameter not found");
    ICaptureParam& param = rig.AddParam("p", 0, 40);
    EXPECT_STREQ(control.GetInfo().GetName(), "p");
    control.BeginEdit();
    control.SetPosition(0.25f);
    EXPECT_FLOAT_EQ(param.GetValue(), 10);
    EXPECT_TRUE(param.IsCaptured());
    // A gesture does not outlive its object.
    rig.model.RemoveObject("p");
    EXPECT_FALSE(param.IsCaptured());
    EXPECT_STREQ(control.GetInfo().GetName(), "Parameter not found");
    control.EndEdit();
}

TEST(UIWidgets, ElementsOfModelsMayStandInASkin)
{
    CUIRig rig;
    ICaptureParam& outside = rig.AddParam("p");
    const int before = rig.model.GetObjects().GetCount();
    EXPECT_TRUE(
        rig.Build("<PARAM_LINK from='p' to='t.opacity' trigger_condition='always'/>"
                  "<PARAM id='own' min='0' max='1' default='0.5'/>"
                  "<ROW><TEXT id='t'/><IMAGE_PARAM_KNOB param_id='own'/></ROW>"
                  "<COLLECTION id='c' count='2'><TEXT id='$item_id$.t'/>"
                  "<PARAM_LINK from='p' to='$item_id$.t.opacity' trigger_condition='always'/></COLLECTION>",
                  false));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Widget<CGUIImageParamKnob>(1)->GetControl().GetPosition(), 0.5f);
    EXPECT_FLOAT_EQ(rig.Widget(0)->GetOpacity(), 0.0f);
    outside.SetValue(0.75f);
    EXPECT_FLOAT_EQ(rig.Widget(0)->GetOpacity(), 0.75f);
    EXPECT_FLOAT_EQ(rig.Widget(3)->GetOpacity(), 0.75f);
    rig.Close();
    EXPECT_EQ(rig.model.GetObjects().GetCount(), before);
    outside.SetValue(0.25f);
    EXPECT_FALSE(rig.Build("<PARAM_LINK from='p' to='nowhere'/>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: nowhere: Unknown identifier (object does not exist).",
                                                "0: Fatal error: skin parsing failed"));
}

TEST(UICollections, HaveAsManyItemsAsTheirCount)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<ROW width='400' height='300' internal_h_align='left'><TEXT width='10' height='9'/>"
                  "<COLLECTION id='c' count='3' max_count='2'><TEXT id='$item_id$.t' width='20' "
                  "height='9'/></COLLECTION>"
                  "<COLLECTION id='d' item_name='me'><TEXT id='$me$.t' width='30' height='9'/></COLLECTION>"
                  "<TEXT width='40' height='9'/></ROW>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2);
    EXPECT_TRUE(rig.Has("c[1].t.visible"));
    EXPECT_FALSE(rig.Has("c[2].t.visible"));
    const auto lastOfRow = [&rig] { return rig.Widget(1); };
    EXPECT_EQ(lastOfRow()->GetPosition().x, 50);
    rig.Param("d.count").SetValue(2);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 110);
    EXPECT_TRUE(rig.Has("d[1].t.visible"));
    // The items of c stand before those of d, which came first.
    rig.Param("c.count").SetValue(1);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 90);
    rig.Param("c.count").SetValue(2);
    EXPECT_EQ(rig.Place(5), (std::vector<int>{30, 145, 20, 9}));
    EXPECT_EQ(rig.Place(3), (std::vector<int>{50, 145, 30, 9}));
    rig.Param("c.count").SetValue(0);
    rig.Param("d.count").SetValue(0);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 10);
    EXPECT_EQ(rig.light.GetChildCount(), 2);
    EXPECT_FALSE(rig.Has("d[0].t.visible"));
}

TEST(UICollections, FollowOthersOfModelAndSkin)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='a' count='3'><TEXT id='$item_id$.t' opacity='0.3'/></COLLECTION>"
                          "<COLLECTION id='b' count='5'/>"
                          "<FOREACH id='f' collection_id='a;b'>"
                          "<IMAGE_PARAM_METER id='$item_id$' param_id='$a_item_id$.t.opacity'/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 3);
    EXPECT_EQ(rig.Find<ICaptureParam>("f.count"), nullptr);
    EXPECT_EQ(rig.light.GetChildCount(), 6);
    EXPECT_FLOAT_EQ(rig.Widget<CGUIImageParamMeter>(4)->GetViewer().GetPosition(), 0.3f);
    rig.Param("b.count").SetValue(1);
    EXPECT_EQ(rig.light.GetChildCount(), 4);
    rig.Param("a.count").SetValue(0);
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, RowsOfTablesMayBeItems)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<TABLE><COLLECTION id='c' count='2'><TABLE_ROW><TEXT width='20' "
                          "height='10'/></TABLE_ROW></COLLECTION></TABLE>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_EQ(rig.Place(1)[1] - rig.Place(0)[1], 10);
    rig.Param("c.count").SetValue(4);
    EXPECT_EQ(rig.Place(0)[1], 130);
    rig.Param("c.count").SetValue(0);
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, MayBeEmptyNamelessOrNested)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(
        "<COLLECTION id='e' count='2'/><COLLECTION id='' count='2'><TEXT id='t$item_id$'/></COLLECTION>"
        "<COLLECTION id='n' count='2'><COLLECTION id='$item_id$.in' count='3' item_name='inner'>"
        "<TEXT id='$inner$'/></COLLECTION></COLLECTION>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("e.count"), 2);
    EXPECT_FALSE(rig.Has(".count"));
    EXPECT_TRUE(rig.Has("t[1].visible"));
    EXPECT_EQ(rig.light.GetChildCount(), 8);
    rig.Param("n[0].in.count").SetValue(1);
    EXPECT_EQ(rig.light.GetChildCount(), 6);
    rig.Param("n.count").SetValue(0);
    EXPECT_EQ(rig.light.GetChildCount(), 2);
    EXPECT_FALSE(rig.Has("n[0].in.count"));
    Tests::CEventCounter changed(rig.Param("e.count").GetValueChangedEventProvider());
    rig.Param("e.count").SetValue(2);
    EXPECT_EQ(changed.Take(), 0);
}

TEST(UICollections, FailuresAreReported)
{
    CUIRig rig;
    EXPECT_FALSE(rig.Build("<COLLECTION><TEXT/></COLLECTION><FOREACH><TEXT/></FOREACH><FOREACH id='f' "
                           "collection_id='x'><TEXT/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(),
                ElementsAre("0: Cannot create collection, id field is empty.",
                            "0: Cannot create \"foreach\" collection, collection_id field is empty.",
                            "0: x: Unknown identifier (object does not exist).",
                            "0: Fatal error: skin parsing failed"));
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, MessagesOfItemsAreShownOnlyWithErrors)
{
    std::vector<std::string> shown;
    CUIRig rig;
    rig.services.showItemMessages = [&shown](CoreUtilities::CMemMessageLog& log)
    { shown.push_back(log.GetMessages().front().text); };
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='1'><IMAGE_PARAM_KNOB/></COLLECTION>"
                          "<COLLECTION id='d' count='1'><TABLE_ROW/></COLLECTION>"));
    EXPECT_THAT(shown, ElementsAre("Cannot TABLE_ROW element outside a TABLE element."));
}

TEST(UICollections, WhatItemsReferToIsMarkedAsAPattern)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='c'><IMAGE_PARAM_KNOB param_id='$item_id$.p'/></COLLECTION>"
                  "<FOREACH id='f' collection_id='c'><CURVE_GRAPH curve_id='$c_item_id$.q'/></FOREACH>",
                  false));
    EXPECT_TRUE(rig.model.GetExposure().IsWanted("c[7].p"));
    EXPECT_TRUE(rig.model.GetExposure().IsWanted("c[8].q"));
    EXPECT_FALSE(rig.model.GetExposure().IsWanted("c[8].r"));
    EXPECT_FALSE(rig.Has("c.count"));
}

TEST(UICollections, GoWithTheSkin)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(
        "<COLLECTION id='c' count='2'><IMAGE_GROUP_BOX id='$item_id$'><TEXT/></IMAGE_GROUP_BOX></COLLECTION>"
        "<FOREACH id='f' collection_id='c'><TEXT/></FOREACH>"));
    EXPECT_EQ(rig.light.GetChildCount(), 4);
    rig.Close();
    EXPECT_EQ(rig.light.GetChildCount(), 0);
    EXPECT_EQ(rig.model.GetObjects().GetCount(), 0);
}

} // namespace
} // namespace Mirel::SkinEngine
