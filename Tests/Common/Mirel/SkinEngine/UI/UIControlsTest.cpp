// What controls and meters of a skin are made of: images, masks, axes, input.

#include "Mirel/DataModel/GUIWidgets/CGUIImageActionButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamLinearMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysParamTooltip.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
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

/// Bright in the left half, dark in the right.
void WriteHalf(const CUIRig& rig, const std::string& name)
{
    Tests::WritePng(rig.folder.GetPath(name), 20, 20, false,
                    [](int x, int) { return x < 10 ? 0xFFFFFFFFU : 0xFF000000U; });
}

TEST(UIControls, StatesHaveImagesOfTheirOwnOrThePlainOne)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("k.png", 20, 20);
    rig.WriteImage("hover.png", 22, 22);
    rig.WriteImage("k_focus.png", 23, 23);
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB param_id='p' image='k.png' images_count='1' "
                          "image_hover='hover.png' image_pushed='missing.png'/>"
                          "<IMAGE_PARAM_METER param_id='p' image='k.png' images_count='1'/>"
                          "<IMAGE_PARAM_BUTTON param_id='p' image='k.png' image_disabled='hover.png'/>"));
    EXPECT_EQ(rig.TakeMessages().size(), 1U) << "of the file that is missing";
    const auto sizes = [](Graphics::CMultiFilmStripDrawer& graphics)
    {
        std::vector<int> widths;
        for (int state = 0; state < 6; ++state)
        {
            graphics.SetState(state);
            widths.push_back(graphics.GetFrameSize().width);
        }
        return widths;
    };
    EXPECT_THAT(sizes(rig.Widget<CGUIImageParamKnob>(0)->GetKnobGraphics()),
                ElementsAre(20, 20, 22, 23, 20, 0));
    EXPECT_THAT(sizes(rig.Widget<CGUIImageParamMeter>(1)->GetMeterGraphics()),
                ElementsAre(20, 20, 20, 23, 20, 0));
    EXPECT_THAT(sizes(rig.Widget<CGUIImageParamButton>(2)->GetPushGraphics()),
                ElementsAre(20, 22, 20, 23, 20, 0));
}

TEST(UIControls, HeldSlidersHaveImagesOfTheirOwn)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("s.png", 20, 100);
    rig.WriteImage("t.png", 10, 10);
    rig.WriteImage("pushed.png", 12, 12);
    rig.WriteImage("held.png", 14, 14);
    const std::string slider = "<IMAGE_PARAM_SLIDER param_id='p' image='s.png' thumb_image='t.png' ";
    EXPECT_TRUE(rig.Build(slider + "thumb_image_pushed='pushed.png' thumb_image_selected='held.png'/>" +
                          slider + "thumb_image_pushed='pushed.png'/>" + slider + "/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    const int widths[] = {14, 12, 10};
    for (int i = 0; i < 3; ++i)
    {
        CLinearParamGraphics& graphics = rig.Widget<CSkinLinearParamSlider>(i)->GetSliderGraphics();
        EXPECT_EQ(graphics.GetThumbArea().width, 10);
        graphics.SetState(StateSelected);
        EXPECT_EQ(graphics.GetThumbArea().width, widths[i]) << i;
    }
}

TEST(UIControls, MouseMasksTellWhereAnImageIsHit)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("k.png", 20, 20);
    rig.WriteImage("other.png", 20, 20);
    WriteHalf(rig, "where.png");
    WriteHalf(rig, "b_mouse.png");
    rig.WriteImage("b.png", 20, 20);
    EXPECT_TRUE(
        rig.Build("<IMAGE_PARAM_KNOB param_id='p' image='k.png' images_count='1' image_mouse='where.png' "
                  "image_hover='other.png' image_hover_mouse='k.png'/>"
                  "<IMAGE_PARAM_BUTTON param_id='p' image='b.png'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    CParamKnobGraphics& knob = rig.Widget<CGUIImageParamKnob>(0)->GetKnobGraphics();
    EXPECT_TRUE(knob.HitTest({5, 5}));
    EXPECT_FALSE(knob.HitTest({15, 5}));
    knob.SetState(StateFocus); // shown as the plain one, and hit as that
    EXPECT_FALSE(knob.HitTest({15, 5}));
    knob.SetState(StateHover);
    EXPECT_TRUE(knob.HitTest({15, 5}));
    const Graphics::IGraphics& button = *rig.Widget(1)->GetGraphics();
    EXPECT_TRUE(button.HitTest({5, 5}));
    EXPECT_FALSE(button.HitTest({15, 5})) << "by a file beside the image";
}

TEST(UIControls, MasksGiveImagesTheirTransparency)
{
    CUIRig rig;
    rig.WriteImage("i.png", 20, 20);
    WriteHalf(rig, "mask.png");
    EXPECT_TRUE(rig.Build("<IMAGE image='i.png'/><IMAGE image='i.png' image_mask='mask.png'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FALSE(rig.Widget(0)->IsTransparent());
    EXPECT_TRUE(rig.Widget(1)->IsTransparent());
    EXPECT_EQ(rig.images.GetCount(), 2U) << "one with the mask and one without";
}

TEST(UIControls, CountsOfImagesBelowOneShowNothing)
{
    struct SRow
    {
        std::string count;
        GUI::CSize knob; ///< Of a strip of 20 by 60.
        GUI::CSize button;
    };
    const SRow rows[] = {
        {"", {20, 30}, {20, 60}},
        {"1", {20, 60}, {20, 60}},
        {"3", {20, 20}, {20, 20}},
        {"7", {20, 8}, {20, 8}},
        {"0", {}, {}},
        {"-2", {}, {}},
        {"three", {20, 30}, {20, 60}},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        rig.AddParam("p");
        rig.WriteImage("k.png", 20, 60);
        const std::string count = row.count.empty() ? "" : " images_count='" + row.count + "'";
        EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB param_id='p' image='k.png'" + count + "/>" +
                              "<IMAGE_PARAM_METER param_id='p' image='k.png'" + count + "/>" +
                              "<IMAGE_PARAM_BUTTON param_id='p' image='k.png'" + count + "/>"));
        EXPECT_EQ(rig.Widget(0)->GetSize(), row.knob) << row.count;
        EXPECT_EQ(rig.Widget(1)->GetSize(), row.knob) << row.count;
        EXPECT_EQ(rig.Widget(2)->GetSize(), row.button) << row.count;
    }
}

TEST(UIControls, ParametersAreNamedWithAnyPrefix)
{
    const char* const elements[] = {"IMAGE_PARAM_KNOB",
                                    "IMAGE_PARAM_SLIDER",
                                    "IMAGE_PARAM_METER",
                                    "IMAGE_PARAM_LINEAR_METER",
                                    "IMAGE_PARAM_BUTTON",
                                    "INVISIBLE_PARAM_BUTTON",
                                    "IMAGE_PARAM_TOGGLE_SWITCH",
                                    "INVISIBLE_PARAM_TOGGLE_SWITCH",
                                    "IMAGE_PARAM_MENU_BUTTON",
                                    "INVISIBLE_PARAM_MENU_BUTTON",
                                    "PARAM_TEXT",
                                    "PARAM_TEXT_CONTROL",
                                    "PARAM_TOOLTIP"};
    for (const std::string element : elements)
    {
        for (const std::string prefix : {"", "x_", "y_", "z_"})
        {
            CUIRig rig;
            rig.AddParam("p");
            EXPECT_TRUE(rig.Build("<" + element + " " + prefix + "param_id='p' width='9' height='9'/>"));
            EXPECT_THAT(rig.TakeMessages(), IsEmpty()) << element << " " << prefix;
        }
        CUIRig rig;
        EXPECT_TRUE(rig.Build("<" + element + " w_param_id='p' width='9' height='9'/>"));
        EXPECT_THAT(rig.TakeMessages(),
                    ElementsAre("1: " + element + ", not connected to any parameter (x, y or z)"));
        EXPECT_NE(rig.Widget(), nullptr) << element;
    }
}

TEST(UIControls, TooltipsTellTheParameterOfAnAxis)
{
    CUIRig rig;
    rig.AddParam("p", 0, 100).SetValue(42);
    EXPECT_TRUE(rig.Build("<PARAM_TOOLTIP y_param_id='p' width='9' height='9'/>"));
    const auto* tip = rig.Widget<CGUISysParamTooltip>();
    ASSERT_NE(tip, nullptr);
    EXPECT_EQ(tip->GetTipText(), "42.00");
}

TEST(UIControls, TooltipsThatCannotShowAreReported)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(
        "<TOOLTIP text='a'/><TOOLTIP text='b' width='20'/><TOOLTIP text='c' width='20' height='10'/>"
        "<TOOLTIP text='d' width='100%' height='100%'/><TEXT value='e'><TOOLTIP text='f'/></TEXT>"));
    const std::string message = "1: TOOLTIP: in no widget and without a size it is never shown.";
    EXPECT_THAT(rig.TakeMessages(), ElementsAre(message, message));
}

TEST(UIControls, AxisSettingsHaveTheirUsualValues)
{
    CUIRig rig;
    rig.AddParam("p", 1, 100);
    EXPECT_TRUE(
        rig.Build("<IMAGE_PARAM_KNOB param_id='p'/>"
                  "<IMAGE_PARAM_KNOB param_id='p' positions_count='-1' scale='other' zoom_positions='yes' "
                  "zoom='nothing' offset=''/>"
                  "<IMAGE_PARAM_KNOB param_id='p' positions_count='0' scale='log' zoom_positions='false' "
                  "zoom='0.5' offset='0.5'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    for (int i = 0; i < 2; ++i)
    {
        const auto& axis = rig.Widget<CGUIImageParamKnob>(i)->GetControl();
        EXPECT_EQ(axis.GetPositionsCount(), -1) << i;
        EXPECT_FLOAT_EQ(axis.GetZoom(), 1.0f) << i;
        EXPECT_FLOAT_EQ(axis.GetOffset(), 0.0f) << i;
        EXPECT_FALSE(axis.IsLogScale()) << i;
        EXPECT_TRUE(axis.GetZoomPositions()) << i;
        EXPECT_EQ(axis.GetFineRatio(), 1) << i;
        EXPECT_FLOAT_EQ(axis.PositionToValue(0.5f), 50.5f) << i;
    }
    const auto& other = rig.Widget<CGUIImageParamKnob>(2)->GetControl();
    EXPECT_EQ(other.GetPositionsCount(), 1);
    EXPECT_FLOAT_EQ(other.GetZoom(), 1.0f);
    EXPECT_FLOAT_EQ(other.GetOffset(), 0.5f);
    EXPECT_TRUE(other.IsLogScale());
    EXPECT_FALSE(other.GetZoomPositions());
}

TEST(UIControls, OrientationsAreVerticalUnlessTheSkinSaysOtherwise)
{
    struct SRow
    {
        std::string attributes;
        bool horizontal;
    };
    const SRow rows[] = {
        {"", false},
        {"orientation='vertical'", false},
        {"orientation='horizontal'", true},
        {"orientation='sideways'", false},
        {"vertical='false'", true},
        {"vertical='true'", false},
        {"orientation='horizontal' vertical='true'", true},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        rig.AddParam("p");
        EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB param_id='p' " + row.attributes + "/>" +
                              "<IMAGE_PARAM_SLIDER param_id='p' " + row.attributes + "/>" +
                              "<IMAGE_PARAM_LINEAR_METER param_id='p' " + row.attributes + "/>" +
                              "<PARAM_TEXT_CONTROL param_id='p' " + row.attributes + "/>"));
        EXPECT_EQ(rig.Widget<CGUIImageParamKnob>(0)->GetMouseControl().IsHorizontal(), row.horizontal)
            << row.attributes;
        auto& slider = *rig.Widget<CSkinLinearParamSlider>(1);
        EXPECT_EQ(slider.GetSliderGraphics().GetTrack().horizontal, row.horizontal) << row.attributes;
        EXPECT_EQ(slider.GetSliderMouseTarget().IsHorizontal(), row.horizontal) << row.attributes;
        EXPECT_EQ(rig.Widget<CGUIImageParamLinearMeter>(2)->GetMeterGraphics().GetTrack().horizontal,
                  row.horizontal)
            << row.attributes;
        EXPECT_EQ(rig.Widget<CGUIParamTextControl>(3)->GetMouseControl().IsHorizontal(), row.horizontal)
            << row.attributes;
    }
}

TEST(UIControls, PixelRangesAreThoseOfTheSkin)
{
    struct SRow
    {
        std::string attribute;
        float knob;
        float slider; ///< Of a track of 100 pixels without a thumb.
    };
    const SRow rows[] = {
        {"", -1.0f, 100.0f},
        {"pixel_range='-1'", -1.0f, 100.0f},
        {"pixel_range='wide'", -1.0f, 100.0f},
        {"pixel_range='0'", 0.0f, 0.0f},
        {"pixel_range='-40'", -40.0f, -40.0f},
        {"pixel_range='250.5'", 250.5f, 250.5f},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        rig.AddParam("p");
        EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB param_id='p' " + row.attribute + "/>" +
                              "<PARAM_TEXT_CONTROL param_id='p' " + row.attribute + "/>" +
                              "<IMAGE_PARAM_SLIDER param_id='p' width='20' height='100' " + row.attribute +
                              "/>"));
        auto& knob = *rig.Widget<CGUIImageParamKnob>(0);
        EXPECT_FLOAT_EQ(knob.GetMouseControl().GetPixelRange(), row.knob) << row.attribute;
        EXPECT_FLOAT_EQ(knob.GetKeyboardControl().GetPixelRange(), row.knob) << row.attribute;
        auto& text = *rig.Widget<CGUIParamTextControl>(1);
        EXPECT_FLOAT_EQ(text.GetMouseControl().GetPixelRange(), row.knob) << row.attribute;
        auto& slider = *rig.Widget<CSkinLinearParamSlider>(2);
        EXPECT_FLOAT_EQ(slider.GetSliderMouseTarget().GetPixelRange(), row.slider) << row.attribute;
        EXPECT_FLOAT_EQ(slider.GetKeyboardControl().GetPixelRange(), row.slider) << row.attribute;
    }
}

TEST(UIControls, SlidersAlignTheirTrackAndThumb)
{
    CUIRig rig;
    rig.AddParam("p");
    rig.WriteImage("t.png", 10, 10);
    const std::string slider =
        "<IMAGE_PARAM_SLIDER param_id='p' thumb_image='t.png' orientation='horizontal' "
        "width='80' height='40' ";
    EXPECT_TRUE(
        rig.Build(slider + "/>" + slider + "thumb_v_center='false'/>" + slider + "v_center='false'/>"));
    const int tops[] = {15, 0, 15};
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(rig.Widget<CSkinLinearParamSlider>(i)->GetSliderGraphics().GetThumbArea(),
                  Graphics::CRect(0, tops[i], 10, 10))
            << i;
    }
}

TEST(UIControls, ControlsTakeTheMouseUnlessTheSkinSaysFalse)
{
    for (const std::string element :
         {"IMAGE_PARAM_KNOB", "IMAGE_PARAM_SLIDER", "IMAGE_PARAM_BUTTON", "INVISIBLE_PARAM_TOGGLE_SWITCH",
          "IMAGE_PARAM_MENU_BUTTON", "PARAM_TEXT_CONTROL", "INVISIBLE_ACTION_BUTTON"})
    {
        CUIRig rig;
        rig.AddParam("p");
        const std::string start = "<" + element + " param_id='p' ";
        EXPECT_TRUE(
            rig.Build(start + "/>" + start + "mouse_sensitive='no'/>" + start + "mouse_sensitive='false'/>"));
        EXPECT_TRUE(rig.Widget(0)->IsMouseSensitive()) << element;
        EXPECT_TRUE(rig.Widget(1)->IsMouseSensitive()) << element;
        EXPECT_FALSE(rig.Widget(2)->IsMouseSensitive()) << element;
    }
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<IMAGE/><IMAGE mouse_sensitive='no'/><IMAGE mouse_sensitive='true'/>"));
    EXPECT_TRUE(rig.Widget(0)->IsMouseSensitive());
    EXPECT_FALSE(rig.Widget(1)->IsMouseSensitive());
    EXPECT_TRUE(rig.Widget(2)->IsMouseSensitive());
}

TEST(UIControls, ValueTextsHaveRoomForAParameterThatComesLater)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<PARAM_TEXT param_id='c'/><PARAM_TEXT param_id='b.pushed'/>"
                  "<PARAM_TEXT param_id='c' width='11' height='12'/><PARAM_TEXT param_id='c' width='50%'/>"
                  "<INVISIBLE_PARAM_BUTTON id='b' param_id='c' width='9' height='9'/>"
                  "<PARAM id='c' type='enumeration' enum_values='a;the longest name of all;b'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    for (int i = 0; i < 2; ++i)
    {
        auto* text = rig.Widget<CGUIParamTextWidget>(i);
        const int room = text->GetSize().width;
        text->SetText(i == 0 ? "the longest name of all" : "down");
        EXPECT_EQ(text->GetTextDrawer().GetNaturalSize().width, room) << i;
    }
    EXPECT_EQ(rig.Widget(2)->GetSize(), (GUI::CSize{11, 12}));
    EXPECT_EQ(rig.Widget(3)->GetSize().width, 200);
}

} // namespace
} // namespace Mirel::SkinEngine
