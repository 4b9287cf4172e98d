#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/UI/AxisSettings.h"
#include "Mirel/SkinEngine/UI/ParamSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

constexpr SExposedProperty valueProperty = {nullptr, 0.0F, 1.0F, ValueKindInteger, nullptr, nullptr};

/// The size of the longest of the texts that a value is known to have.
Core::CSize MeasureValues(const IConstParamInfo& info, GUI::CTextLightWidget& widget)
{
    const std::string shown = widget.GetText();
    Core::CSize largest = widget.GetTextDrawer().GetNaturalSize();
    for (const float value : {info.GetMin(), info.GetMax(), info.GetDefault()})
    {
        char* text = nullptr;
        info.GetValueToText().ToText(value, text);
        const std::unique_ptr<char[]> owned(text);
        widget.SetText(text);
        const Core::CSize size = widget.GetTextDrawer().GetNaturalSize();
        largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    }
    widget.SetText(shown.c_str());
    return largest;
}

void ReadText(const CUIElement& element, const IConstParamInfo& info, GUI::CTextLightWidget& widget)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    Graphics::CTextDrawer& drawer = widget.GetTextDrawer();
    drawer.SetColor(element.GetTextColor());
    drawer.SetFont(element.GetFont());
    drawer.SetFormat(ReadTextFormat(attributes));
    const Core::CSize needed = MeasureValues(info, widget);
    widget.SetSize({ReadRatio(attributes, "width") ? 0 : needed.width,
                    ReadRatio(attributes, "height") ? 0 : needed.height});
    element.ReadSize(widget);
}

std::optional<Graphics::CColor> ReadStateColor(const CUIElement& element, const char* name)
{
    if (FindText(element.GetAttributes(), name) == nullptr)
    {
        return std::nullopt;
    }
    return element.ReadColor(name, element.GetTextColor());
}

} // namespace

bool BuildParamText(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const IConstCaptureParam& param = build.GetConstParam(FindParam(element).id);
    auto& widget = element.Make<CGUIParamTextWidget>(param);
    ReadText(element, param.GetInfo(), widget);
    return element.Place(widget, CUIElement::EInput::None);
}

bool BuildParamTextControl(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName name = FindParam(element);
    ICaptureParam& param = build.GetParam(name.id);
    auto& widget = element.Make<CGUIParamTextControl>(param, build.GetServices().fineEdit);
    ReadText(element, param.GetInfo(), widget);
    widget.SetColors({element.GetTextColor(), ReadStateColor(element, "text_color_disabled"),
                      ReadStateColor(element, "text_color_hover"),
                      ReadStateColor(element, "text_color_focus"),
                      ReadStateColor(element, "text_color_pushed")});
    widget.GetMouseControl().SetHorizontal(!ReadVertical(attributes, true));
    float pixelRange = -1.0F;
    ReadNumber(attributes, "pixel_range", pixelRange);
    widget.SetPixelRange(pixelRange);
    auto& control = widget.GetControl();
    ReadControl(attributes, control);
    bool exposed = ReadAxis(element, {name.prefix}, control);
    exposed = element.GetProperties().Expose(
                  ".value", valueProperty, [&control] { return control.GetPosition(); },
                  [&control](float value) { control.SetPosition(value); },
                  &control.GetPositionChangedEventProvider()) &&
              exposed;
    return element.Place(widget, CUIElement::EInput::Natural) && exposed;
}

} // namespace Mirel::SkinEngine
