#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamLinearMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "Mirel/SkinEngine/UI/AxisSettings.h"
#include "Mirel/SkinEngine/UI/ParamSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using Containers::CNamedAttributes;

namespace
{

CLinearTrack ReadTrack(const CNamedAttributes& attributes)
{
    CLinearTrack track;
    track.horizontal = !ReadVertical(attributes, true);
    ReadNumber(attributes, "margin_before", track.marginBefore);
    ReadNumber(attributes, "margin_after", track.marginAfter);
    return track;
}

SLinearImages ReadLinearImages(CUIBuild& build, const CNamedAttributes& attributes)
{
    auto track = ReadSliderStates(build, attributes, "image");
    auto thumb = ReadSliderStates(build, attributes, "thumb_image");
    return {track.release(), thumb.release(), true};
}

} // namespace

bool BuildImageParamKnob(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    auto& widget = element.Make<CGUIImageParamKnob>(
        build.GetParam(param.id), ReadStates(build, attributes, "image").release(), true,
        ReadImagesCount(attributes, usualImagesCount), ReadImageOrientation(attributes),
        build.GetServices().fineEdit);
    widget.GetMouseControl().SetHorizontal(!ReadVertical(attributes, true));
    widget.SetPixelRange(ReadPixelRange(attributes));
    ReadControl(element, param, widget.GetControl());
    element.ReadSize(widget);
    const bool exposed = ReadAxis(element, {param.prefix}, widget.GetControl());
    return element.Place(widget, CUIElement::EInput::Natural) && exposed;
}

bool BuildImageParamMeter(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    auto& widget = element.Make<CGUIImageParamMeter>(
        build.GetConstParam(param.id), ReadStates(build, attributes, "image").release(), true,
        ReadImagesCount(attributes, usualImagesCount), ReadImageOrientation(attributes));
    element.ReadSize(widget);
    const bool exposed = ReadAxis(element, {param.prefix}, widget.GetViewer());
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

bool BuildImageParamSlider(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    auto& widget = element.Make<CSkinLinearParamSlider>(
        build.GetParam(param.id), ReadLinearImages(build, attributes), build.GetServices().fineEdit);
    widget.SetTrack(ReadTrack(attributes));
    widget.GetSliderGraphics().SetTrackAlignment(
        {IsNotFalse(attributes, "h_center"), IsNotFalse(attributes, "v_center")});
    widget.GetSliderGraphics().SetThumbAlignment(
        {IsNotFalse(attributes, "thumb_h_center"), IsNotFalse(attributes, "thumb_v_center")});
    widget.SetPixelRange(ReadPixelRange(attributes));
    ReadControl(element, param, widget.GetControl());
    element.ReadSize(widget);
    const bool exposed = ReadAxis(element, {param.prefix}, widget.GetControl());
    return element.Place(widget, CUIElement::EInput::Natural) && exposed;
}

bool BuildImageParamLinearMeter(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    auto& widget = element.Make<CGUIImageParamLinearMeter>(build.GetConstParam(param.id),
                                                           ReadLinearImages(build, attributes));
    widget.SetTrack(ReadTrack(attributes));
    element.ReadSize(widget);
    const bool exposed = ReadAxis(element, {param.prefix}, widget.GetViewer());
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

} // namespace Mirel::SkinEngine
