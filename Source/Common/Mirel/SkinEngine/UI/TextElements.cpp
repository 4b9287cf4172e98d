#include "Mirel/DataModel/GUIWidgets/CGUIStringViewer.h"
#include "Mirel/SkinEngine/UI/CUIElement.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using DataModel::GUIWidgets::CGUIStringViewer;
using GUI::CTextLightWidget;

namespace
{

void ReadText(const CUIElement& element, CTextLightWidget& widget)
{
    Graphics::CTextDrawer& drawer = widget.GetTextDrawer();
    drawer.SetColor(element.GetTextColor());
    drawer.SetFont(element.GetFont());
    drawer.SetFormat(ReadTextFormat(element.GetAttributes()));
    element.ReadSize(widget);
}

bool BuildStringViewer(CUIElement& element)
{
    auto& widget = element.Make<CGUIStringViewer>(
        element.GetBuild().GetString(GetText(element.GetAttributes(), "string_id")));
    ReadText(element, widget);
    widget.FitToText(NeedsSize(element.GetAttributes(), "width"),
                     NeedsSize(element.GetAttributes(), "height"));
    return element.Place(widget, CUIElement::EInput::None);
}

} // namespace

bool BuildLoadFont(CUIBuild& build, const CNamedAttributes& attributes)
{
    const char* file = FindText(attributes, "file");
    const std::string path = file == nullptr ? std::string() : build.FindFile(attributes, "file");
    if (file == nullptr)
    {
        build.Warn("Cannot load font.");
    }
    else if (path.empty() || !build.GetServices().fonts.LoadFont(path.c_str()))
    {
        build.Warn(std::string("Could not load font ") + file);
    }
    CUIElement(build, attributes).PlaceNothing();
    return true;
}

bool BuildText(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    if (FindText(attributes, "string_id") != nullptr)
    {
        return BuildStringViewer(element);
    }
    auto& widget = element.Make<CTextLightWidget>();
    widget.SetText(GetText(attributes, "value"));
    ReadText(element, widget);
    const bool needsWidth = NeedsSize(attributes, "width");
    Core::CSize size = widget.GetSize();
    const Core::CSize natural = widget.GetTextDrawer().GetNaturalSize(needsWidth ? 0 : size.width);
    size.width = needsWidth ? natural.width : size.width;
    size.height = NeedsSize(attributes, "height") ? natural.height : size.height;
    widget.SetSize(size);
    return element.Place(widget, CUIElement::EInput::None);
}

bool BuildTextField(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    return BuildStringViewer(element);
}

} // namespace Mirel::SkinEngine
