#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/SkinEngine/UI/AxisSettings.h"
#include "Mirel/SkinEngine/UI/ParamSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using Containers::CNamedAttributes;

bool BuildImageParamKnob(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    auto& widget = element.Make<CGUIImageParamKnob>(
        build.GetParam(param.id), ReadStates(build, attributes, "image").release(), true,
        ReadImagesCount(attributes, usualImagesCount),
        ReadImageOrientation(attributes), build.GetServices().fineEdit);
    widget.GetMouseControl().SetHorizontal(!ReadVertical(attributes, true));
    float pixelRange = -1.0F;
    ReadNumber(attributes, "pixel_range", pixelRange);
    widget.SetPixelRange(pixelRange);
    ReadControl(attributes, widget.GetControl());
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
        ReadImagesCount(attributes, usualImagesCount),
        ReadImageOrientation(attributes));
    element.ReadSize(widget);
    const bool exposed = ReadAxis(element, {param.prefix}, widget.GetViewer());
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

} // namespace Mirel::SkinEngine
