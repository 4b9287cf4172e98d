#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/UI/AxisSettings.h"
#include "Mirel/SkinEngine/UI/ParamSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <optional>

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

constexpr SExposedProperty valueProperty = {nullptr, 0.0F, 1.0F, ValueKindInteger, nullptr, nullptr};

void ReadText(const CUIElement& element, CGUIParamTextWidget& widget)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    Graphics::CTextDrawer& drawer = widget.GetTextDrawer();
    drawer.SetColor(element.GetTextColor());
    drawer.SetFont(element.GetFont());
    drawer.SetFormat(ReadTextFormat(attributes));
    element.ReadSize(widget);
    widget.FitToValues(NeedsSize(attributes, "width"), NeedsSize(attributes, "height"));
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
    auto& widget = element.Make<CGUIParamTextWidget>(build.GetConstParam(FindParam(element).id));
    ReadText(element, widget);
    return element.Place(widget, CUIElement::EInput::None);
}

bool BuildParamTextControl(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SParamName name = FindParam(element);
    auto& widget = element.Make<CGUIParamTextControl>(build.GetParam(name.id), build.GetServices().fineEdit);
    ReadText(element, widget);
    widget.SetColors({element.GetTextColor(), ReadStateColor(element, "text_color_disabled"),
                      ReadStateColor(element, "text_color_hover"),
                      ReadStateColor(element, "text_color_focus"),
                      ReadStateColor(element, "text_color_pushed")});
    widget.GetMouseControl().SetHorizontal(!ReadVertical(attributes, true));
    widget.SetPixelRange(ReadPixelRange(attributes));
    auto& control = widget.GetControl();
    ReadControl(element, name, control);
    bool exposed = ReadAxis(element, {name.prefix}, control);
    exposed = element.GetProperties().Expose(
                  ".value", valueProperty, [&control] { return control.GetPosition(); },
                  [&control](float value) { control.SetPosition(value); },
                  &control.GetPositionChangedEventProvider()) &&
              exposed;
    return element.Place(widget, CUIElement::EInput::Natural) && exposed;
}

} // namespace Mirel::SkinEngine
