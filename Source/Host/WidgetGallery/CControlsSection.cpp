#include "Host/WidgetGallery/CControlsSection.h"

#include "Host/WidgetGallery/GalleryImages.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamDropDownList.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamLinearMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamToggleSwitch.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysParamTooltip.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"

namespace WidgetGallery
{

namespace
{

using namespace DataModel::GUIWidgets;
using DataModel::Objects::CCaptureParam;
using DataModel::Objects::CParamInfo;
using EOrientation = Graphics::CMultiFilmStripDrawer::EOrientation;

constexpr int knobSide = 56;
constexpr int knobFrames = 64;
constexpr Core::CSize buttonSize = {84, 28};

SPushImage MakeButtonImage(int framesCount)
{
    SPushImage image;
    image.catalog = MakeButtonStrips(buttonSize, framesCount).release();
    image.owned = true;
    image.framesCount = framesCount;
    return image;
}

SLinearImages MakeLinearImages(Core::CSize track, Core::CSize thumb, bool isLit)
{
    SLinearImages images;
    images.track = MakeTrack(track, isLit).release();
    images.thumb = MakeThumb(thumb).release();
    images.owned = true;
    return images;
}

CLinearTrack MakeTrackOf(bool isHorizontal, int margin)
{
    CLinearTrack track;
    track.horizontal = isHorizontal;
    track.marginBefore = margin;
    track.marginAfter = margin;
    return track;
}

} // namespace

CControlsSection::CControlsSection(IFineEditOpener& opener_, GUI::IMenuPresenter& menus_,
                                   GUI::CHostTooltips& tips_)
    : opener(opener_),
      menus(menus_),
      tips(tips_)
{
}

CCaptureParam& CControlsSection::MakeParam(float value)
{
    const CParamInfo info(2, 0.0F, 100.0F, 50.0F, "", "%", "",
                          new DataModel::Objects::CParamValueToText("%.1f", false, "{value} %"));
    params.push_back(std::make_unique<CCaptureParam>(info));
    params.back()->SetValue(value);
    return *params.back();
}

CCaptureParam& CControlsSection::MakeChoice(const std::vector<std::string>& names, float value)
{
    auto toText = std::make_unique<DataModel::Objects::CEnumToText>();
    toText->SetNames(names);
    const CParamInfo info(1, 0.0F, static_cast<float>(names.size() - 1), 0.0F, "", "", "", toText.release());
    params.push_back(std::make_unique<CCaptureParam>(info));
    params.back()->SetValue(value);
    return *params.back();
}

void CControlsSection::Fill(CGalleryPage& page)
{
    page.BeginSection("Knobs, sliders and meters");
    AddKnobs(page);
    AddMeters(page);
    AddSliders(page);
    page.BeginSection("Buttons, lists and texts");
    AddButtons(page);
    AddTexts(page);
}

void CControlsSection::AddKnobs(CGalleryPage& page)
{
    const auto make = [this](float value)
    {
        return std::make_unique<CGUIImageParamKnob>(MakeParam(value),
                                                    MakeKnobStrips(knobSide, knobFrames).release(), true,
                                                    knobFrames, EOrientation::Vertical, &opener);
    };
    for (const float value : {75.0F, 0.0F, 50.0F, 100.0F})
    {
        auto& knob =
            page.Add(make(value), {knobSide, knobSide}, "Knob " + std::to_string(static_cast<int>(value)));
        knob.SetPixelRange(150.0F);
        auto tip = std::make_unique<CGUISysParamTooltip>(*params.back(), &tips, &page);
        tip->Explain(&knob);
        page.Keep(std::move(tip));
    }
    page.Add(make(60.0F), {knobSide, knobSide}, "Disabled").Enable(false);
}

void CControlsSection::AddMeters(CGalleryPage& page)
{
    constexpr Core::CSize meterSize = {20, 100};
    constexpr int lamps = 12;
    const CCaptureParam& param = *params.front();
    page.Add(std::make_unique<CGUIImageParamMeter>(param, MakeMeterStrips(meterSize, lamps + 1).release(),
                                                   true, lamps + 1, EOrientation::Vertical),
             meterSize, "Meter");
    auto& linear = page.Add(
        std::make_unique<CGUIImageParamLinearMeter>(param, MakeLinearImages({10, 100}, {20, 6}, true)),
        meterSize, "Linear meter");
    linear.SetTrack(MakeTrackOf(false, 4));
}

void CControlsSection::AddSliders(CGalleryPage& page)
{
    auto& across = page.Add(std::make_unique<CSkinLinearParamSlider>(
                                MakeParam(30.0F), MakeLinearImages({180, 6}, {24, 16}, false), &opener),
                            {180, 24}, "Slider");
    across.SetTrack(MakeTrackOf(true, 12));
    auto& up = page.Add(std::make_unique<CSkinLinearParamSlider>(
                            MakeParam(70.0F), MakeLinearImages({6, 100}, {16, 24}, false), &opener),
                        {24, 100}, "Vertical slider");
    up.SetTrack(MakeTrackOf(false, 12));
    auto& disabled = page.Add(std::make_unique<CSkinLinearParamSlider>(
                                  MakeParam(50.0F), MakeLinearImages({120, 6}, {24, 16}, false), &opener),
                              {120, 24}, "Disabled");
    disabled.SetTrack(MakeTrackOf(true, 12));
    disabled.Enable(false);
}

void CControlsSection::AddButtons(CGalleryPage& page)
{
    page.Add(std::make_unique<CGUIImageParamButton>(MakeChoice({"Off", "On"}, 0.0F), MakeButtonImage(2)),
             buttonSize, "Button, off");
    page.Add(std::make_unique<CGUIImageParamButton>(MakeChoice({"Off", "On"}, 1.0F), MakeButtonImage(2)),
             buttonSize, "Button, on");
    page.Add(std::make_unique<CGUIImageParamButton>(MakeChoice({"Off", "On"}, 1.0F), MakeButtonImage(2)),
             buttonSize, "Disabled")
        .Enable(false);
    page.Add(
        std::make_unique<CGUIImageParamToggleSwitch>(MakeChoice({"Off", "On"}, 0.0F), MakeButtonImage(2)),
        buttonSize, "While pressed");
    CCaptureParam& mode = MakeChoice({"Scrolling", "Trigger", "Freeze"}, 1.0F);
    page.Add(std::make_unique<CGUIImageParamDropDownList>(mode, MakeButtonImage(1), &menus), buttonSize,
             "Drop-down list");
    auto& text = page.Add(std::make_unique<CGUIParamTextWidget>(mode), {90, 28}, "Its value");
    text.GetTextDrawer().SetFont(page.GetLook().font);
    text.GetTextDrawer().SetColor(page.GetLook().accent);
}

void CControlsSection::AddTexts(CGalleryPage& page)
{
    auto& dragged = page.Add(std::make_unique<CGUIParamTextControl>(MakeParam(42.0F), &opener), {90, 28},
                             "Value text to drag");
    CGUIParamTextControl::SColors colors;
    colors.normal = page.GetLook().text;
    colors.hover = page.GetLook().accent;
    dragged.SetColors(colors);
    dragged.SetPixelRange(150.0F);
    dragged.GetTextDrawer().SetFont(page.GetLook().font);
}

} // namespace WidgetGallery
