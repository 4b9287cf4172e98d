#include "Mirel/DataModel/GUIWidgets/CGUISysParamTooltip.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysStringTooltip.h"
#include "Mirel/SkinEngine/UI/ParamSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using Containers::CNamedAttributes;

namespace
{

/// Without colours of the skin those of the program: a text in a colour of the skin might not be seen on
/// them.
GUI::STooltip ReadStyle(const CUIElement& element)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    GUI::STooltip style;
    ReadNumber(attributes, "delay_ms", style.delayMs);
    ReadNumber(attributes, "show_time_ms", style.showTimeMs);
    style.isBalloon = std::string_view(GetText(attributes, "tip_style")) == "balloon";
    style.background = element.GetBackgroundColor();
    if (style.background || FindText(attributes, "text_color") != nullptr)
    {
        style.textColor = element.GetTextColor();
    }
    return style;
}

CGUISysTooltip& MakeTooltip(CUIElement& element, GUI::CHostTooltips* tips)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    CUIBuild& build = element.GetBuild();
    if (const char* id = FindGivenParam(attributes).id)
    {
        return element.Make<CGUISysParamTooltip>(build.GetConstParam(id), tips);
    }
    if (const char* id = FindText(attributes, "string_id"))
    {
        return element.Make<CGUISysStringTooltip>(build.GetString(id), tips);
    }
    const char* const text = FindText(attributes, "text");
    if (text == nullptr && build.GetElement() == "PARAM_TOOLTIP")
    {
        FindParam(element); // for its report
    }
    return element.Make<CGUISysStringTooltip>(text, tips);
}

} // namespace

/// Inside of a widget it explains that, elsewhere what it is laid over.
bool BuildTooltip(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SUIScope around = build.GetScope();
    CGUISysTooltip& tooltip = MakeTooltip(element, around.tips);
    tooltip.SetStyle(ReadStyle(element));
    tooltip.SetShowOnClick(IsTrue(attributes, "show_on_click"));
    if (around.widget != nullptr)
    {
        tooltip.Explain(around.widget);
        return element.PlaceInWidget(tooltip);
    }
    if (FindText(attributes, "flex") == nullptr &&
        (NeedsSize(attributes, "width") || NeedsSize(attributes, "height")))
    {
        build.Warn(build.GetElement() + ": in no widget and without a size it is never shown.");
    }
    element.ReadSize(tooltip);
    return element.Place(tooltip, CUIElement::EInput::None);
}

} // namespace Mirel::SkinEngine
