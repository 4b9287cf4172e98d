#include "Mirel/SkinEngine/UI/CUIElement.h"

#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/Graphics/CSharedBitmap.h"
#include "Mirel/SkinEngine/Language/Quoted.h"
#include "Mirel/SkinEngine/UI/CSkinWidgetAdapter.h"

#include <string_view>
#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using Graphics::CColor;
using Layout::CBaseGroupLayoutCell;
using Layout::CGroupLayoutCell;

namespace
{

constexpr std::string_view systemCursorPrefix = "system::";

} // namespace

CUIElement::CUIElement(CUIBuild& build_, const CNamedAttributes& attributes_)
    : build(build_),
      attributes(attributes_),
      properties(build_.GetData(), GetText(attributes_, "id")),
      inside(build_.GetScope())
{
    inside.element = build.GetElement();
    inside.table = nullptr;
    inside.row = nullptr;
    inside.widget = nullptr;
    inside.textColor = ReadColor("text_color", inside.textColor);
    if (FindText(attributes, "background_color") != nullptr)
    {
        inside.backgroundColor = ReadColor("background_color", inside.backgroundColor.value_or(CColor()));
    }
    ReadFont(attributes, inside.font);
}

Graphics::CSharedFont CUIElement::GetFont() const
{
    return build.GetServices().fonts.GetFont(inside.font);
}

CColor CUIElement::ReadColor(const std::string& name, CColor missing) const
{
    const char* text = FindText(attributes, name);
    if (text == nullptr)
    {
        return missing;
    }
    const auto color = ParseColor(text);
    if (!color)
    {
        build.Warn(build.GetElement() + ": " + Quoted(text) + " is no colour.");
    }
    return color.value_or(missing);
}

void CUIElement::ReadSize(GUI::CLightWidget& widget) const
{
    Core::CSize size = widget.GetSize();
    size.width = ReadPixels(attributes, "width").value_or(size.width);
    size.height = ReadPixels(attributes, "height").value_or(size.height);
    widget.SetSize(size);
}

bool CUIElement::Place(GUI::CLightWidget& widget, EInput input)
{
    return PlaceWidget(widget, input, EHolds::Overlays);
}

bool CUIElement::PlaceBox(GUI::CLightWidget& widget)
{
    return PlaceWidget(widget, EInput::None, EHolds::Cells);
}

bool CUIElement::PlaceWidget(GUI::CLightWidget& widget, EInput input, EHolds holds)
{
    ReadWidget(widget, input);
    CGroupLayoutCell& cell = Attach(widget);
    cell.SetLayoutType(holds == EHolds::Cells ? Layout::ELayoutType::Column
                                              : Layout::ELayoutType::LayerStack);
    if (holds == EHolds::Cells)
    {
        ReadGroup(cell);
        int spacing = 0;
        ReadNumber(attributes, "spacing", spacing);
        cell.SetSpacing(spacing);
    }
    inside.light = &widget;
    inside.widget = &widget;
    auto& content = static_cast<Layout::CContentLayoutCell&>(cell);
    const bool placed = PlaceCell(cell, [&content](bool shown) { content.SetShown(shown); });
    const bool exposed = properties.ExposeWidget(widget) &&
                         (holds == EHolds::Overlays || properties.ExposeFlow(cell, attributes));
    build.Push(std::move(inside));
    return placed && exposed;
}

bool CUIElement::Place(CGroupLayoutCell& cell)
{
    ReadGroup(cell);
    const bool placed = PlaceCell(cell, nullptr);
    const bool exposed = properties.ExposeFlow(cell, attributes);
    build.Push(std::move(inside));
    return placed && exposed;
}

bool CUIElement::Place(Layout::CTableLayoutCell& cell)
{
    ReadGroup(cell);
    const bool placed = PlaceCell(cell, nullptr);
    const bool exposed = properties.ExposeMargins(cell, attributes);
    inside.table = &cell;
    build.Push(std::move(inside));
    return placed && exposed;
}

void CUIElement::PlaceRoot(const SSkinPlace& place, bool lightMode)
{
    inside.lightMode = lightMode;
    inside.light = place.light;
    inside.native = place.native;
    inside.group = place.group;
    inside.tips = place.light == nullptr ? nullptr : MakeTips(*place.light, place.native);
    if (place.group != nullptr)
    {
        place.group->SetInternalAlign(ReadAlign(attributes, "internal_h_align"),
                                      ReadAlign(attributes, "internal_v_align"));
    }
    build.Push(std::move(inside));
}

void CUIElement::PlaceNothing()
{
    inside.table = build.GetScope().table;
    inside.row = build.GetScope().row;
    build.Push(std::move(inside));
}

void CUIElement::PlaceInRow(Layout::CTableLayoutCell& table, Layout::CTableLayoutCell::CRow* row)
{
    inside.group = &table;
    inside.row = row;
    build.Push(std::move(inside));
}

bool CUIElement::PlaceInWidget(GUI::CLightWidget& widget)
{
    if (inside.light != nullptr)
    {
        inside.light->AddChild(&widget);
    }
    build.GetData().GetPieces().Add(&widget);
    const bool exposed = PlaceVisibility([&widget](bool shown) { widget.Show(shown); });
    build.Push(std::move(inside));
    return exposed;
}

GUI::CHostTooltips* CUIElement::MakeTips(GUI::CLightWidget& light, GUI::CWidget* behind) const
{
    auto* const host = dynamic_cast<GUI::CLightWidgetAdapter*>(light.GetRootWidget());
    GUI::ITooltipPresenter* const presenter = build.GetServices().tooltips;
    return host == nullptr || presenter == nullptr
               ? nullptr
               : &build.GetData().Own(std::make_unique<GUI::CHostTooltips>(*host, *presenter, behind));
}

/// Into the light tree, or into a native host of its own.
CGroupLayoutCell& CUIElement::Attach(GUI::CLightWidget& widget)
{
    const SUIScope& around = build.GetScope();
    CGUISkinData& data = build.GetData();
    const bool light = around.lightMode && around.light != nullptr && !IsTrue(attributes, "system_widget");
    if (light || around.native == nullptr)
    {
        if (around.light != nullptr)
        {
            around.light->AddChild(&widget);
        }
        data.GetPieces().Add(&widget);
        widget.SetBuffered(ReadBuffered(attributes));
        return widget.GetCell();
    }
    auto& adapter = data.Own(std::make_unique<CSkinWidgetAdapter>(widget, around.light));
    adapter.SetOffscreenType(ReadOffscreenType(attributes));
    adapter.SetFocusOnClick(IsNotFalse(attributes, "auto_focus"));
    around.native->AddChild(&adapter, false);
    data.GetPieces().Add(static_cast<GUI::CWidget*>(&adapter));
    inside.native = &adapter;
    inside.tips = MakeTips(widget, nullptr);
    return adapter.GetCell();
}

void CUIElement::ReadWidget(GUI::CLightWidget& widget, EInput input) const
{
    widget.SetFocusOnClick(IsNotFalse(attributes, "auto_focus"));
    widget.SetOpacity(ReadOpacity(attributes));
    widget.SetMouseSensitive(input == EInput::Natural
                                 ? IsNotFalse(attributes, "mouse_sensitive")
                                 : std::string_view(GetText(attributes, "mouse_sensitive", "true")) ==
                                       "true");
    ReadCursor(widget);
}

void CUIElement::ReadCursor(GUI::CLightWidget& widget) const
{
    const char* text = FindText(attributes, "cursor");
    if (text == nullptr)
    {
        return;
    }
    const std::string_view name = text;
    if (name.starts_with(systemCursorPrefix))
    {
        const std::string_view shape = name.substr(systemCursorPrefix.size());
        const GUI::CSharedCursor cursor = GUI::CCursor::FindSystem(shape);
        if (cursor == nullptr)
        {
            build.Warn(Quoted(shape) + ": unknown system cursor. Using default cursor instead.");
        }
        widget.SetCursor(cursor);
        return;
    }
    bool hasAlpha = false;
    const std::string path = build.FindFile(attributes, "cursor");
    const Graphics::CSharedImage image =
        path.empty() ? nullptr : build.GetServices().images.GetImage(path.c_str(), hasAlpha);
    if (image == nullptr || image->IsEmpty())
    {
        build.Warn(Quoted(name) + ": could not load cursor. Using default cursor instead.");
        return;
    }
    auto picture = std::make_shared<Graphics::CSharedBitmap>();
    picture->Attach(std::shared_ptr<Graphics::CBitmapContext>(image, image->GetContext()));
    widget.SetCursor(std::make_shared<const GUI::CCursor>(std::move(picture), Core::CPoint()));
}

/// The size and the margins of what holds cells.
void CUIElement::ReadGroup(CBaseGroupLayoutCell& cell) const
{
    const SAxisPair margins = ReadAxisPair(attributes, "margin");
    cell.SetHMargin(margins.horizontal);
    cell.SetVMargin(margins.vertical);
    const auto width = ReadPixels(attributes, "width");
    const auto height = ReadPixels(attributes, "height");
    cell.SetAutoWidth(!width.has_value());
    cell.SetAutoHeight(!height.has_value());
    if (width || height)
    {
        cell.SetFixedSize({width.value_or(0), height.value_or(0)});
    }
}

bool CUIElement::PlaceCell(CBaseGroupLayoutCell& cell, std::function<void(bool)> show)
{
    const SUIScope& around = build.GetScope();
    cell.SetInternalAlign(ReadAlign(attributes, "internal_h_align"),
                          ReadAlign(attributes, "internal_v_align"));
    cell.SetDisplayed(IsNotFalse(attributes, "display"));
    Layout::CLayoutOptions asked;
    ReadLayoutOptions(attributes, asked);
    Layout::CLayoutOptions* options = around.group == nullptr || around.table != nullptr
                                          ? nullptr
                                          : around.group->AddCell(&cell, asked, false);
    build.GetData().GetPieces().Add(&cell);
    if (options == nullptr)
    {
        build.Warn(build.GetElement() + ": element of a TABLE outside a TABLE_ROW.");
    }
    inside.group = &cell;
    bool exposed = PlaceVisibility(std::move(show));
    exposed = properties.ExposeCell(cell) && exposed;
    return (options == nullptr || properties.ExposeOptions(*options)) && exposed;
}

bool CUIElement::PlaceVisibility(std::function<void(bool)> show)
{
    CSkinVisibility& visibility =
        build.GetData().Own(std::make_unique<CSkinVisibility>(build.GetScope().visibility, std::move(show)));
    visibility.SetVisible(IsNotFalse(attributes, "visible"));
    inside.visibility = &visibility;
    return properties.ExposeVisibility(visibility);
}

} // namespace Mirel::SkinEngine
