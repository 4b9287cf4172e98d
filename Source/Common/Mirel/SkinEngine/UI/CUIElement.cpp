#include "Mirel/SkinEngine/UI/CUIElement.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/Graphics/CSharedBitmap.h"
#include "Mirel/SkinEngine/Language/Quoted.h"
#include "Mirel/SkinEngine/UI/CSkinWidgetAdapter.h"

#include <array>
#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;
using Graphics::CColor;
using Layout::CBaseGroupLayoutCell;
using Layout::CGroupLayoutCell;

namespace
{

constexpr std::string_view systemCursorPrefix = "system::";
constexpr float largestMargin = 100.0F;
constexpr float largestFlex = 100.0F;

constexpr SExposedProperty hideShow = {nullptr, 0.0F, 1.0F, ValueKindInteger, "Hide;Show", nullptr};
constexpr SExposedProperty plainFlag = {nullptr, 0.0F, 1.0F, ValueKindBoolean, nullptr, nullptr};
constexpr SExposedProperty plainShare = {nullptr, 0.0F, 1.0F, ValueKindReal, nullptr, nullptr};

int ToPixels(float value)
{
    return Core::TruncateToInt32(static_cast<double>(value) + (value < 0.0F ? -0.5 : 0.5));
}

SExposedProperty Choice(const char* title, const char* names)
{
    return {title, 0.0F, 2.0F, ValueKindInteger, names, nullptr};
}

/// A setter and getter pair of an enumeration of three, as 0 to 2.
template <class E>
E ToChoice(float value)
{
    return static_cast<E>(ToPixels(value));
}

} // namespace

CUIElement::CUIElement(CUIBuild& build_, const CNamedAttributes& attributes_)
    : build(build_),
      attributes(attributes_),
      id(GetText(attributes_, "id")),
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
    const bool exposed = ExposeWidget(widget) && (holds == EHolds::Overlays || ExposeFlow(cell));
    build.Push(std::move(inside));
    return placed && exposed;
}

bool CUIElement::Place(CGroupLayoutCell& cell)
{
    ReadGroup(cell);
    const bool placed = PlaceCell(cell, nullptr);
    const bool exposed = ExposeFlow(cell);
    build.Push(std::move(inside));
    return placed && exposed;
}

bool CUIElement::Place(Layout::CTableLayoutCell& cell)
{
    ReadGroup(cell);
    const bool placed = PlaceCell(cell, nullptr);
    const bool exposed = ExposeMargins(cell);
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
    int margin = 0;
    ReadNumber(attributes, "margin", margin);
    int hMargin = margin;
    int vMargin = margin;
    ReadNumber(attributes, "h_margin", hMargin);
    ReadNumber(attributes, "v_margin", vMargin);
    cell.SetHMargin(hMargin);
    cell.SetVMargin(vMargin);
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
    exposed = ExposeCell(cell) && exposed;
    return (options == nullptr || ExposeOptions(*options)) && exposed;
}

bool CUIElement::PlaceVisibility(std::function<void(bool)> show)
{
    CSkinVisibility& visibility =
        build.GetData().Own(std::make_unique<CSkinVisibility>(build.GetScope().visibility, std::move(show)));
    visibility.SetVisible(IsNotFalse(attributes, "visible"));
    inside.visibility = &visibility;
    return ExposeSwitch(
        ".visible", hideShow, [&visibility] { return visibility.IsVisible(); },
        [&visibility](bool on) { visibility.SetVisible(on); }, &visibility.GetChangedEventProvider());
}

bool CUIElement::Expose(const char* suffix, const SExposedProperty& property, std::function<float()> get,
                        std::function<void(float)> set, Core::IEventProvider* changed)
{
    return id.empty() ||
           ExposeProperty(build.GetData(), id + suffix, property, std::move(get), std::move(set), changed);
}

bool CUIElement::ExposeSwitch(const char* suffix, const SExposedProperty& property, std::function<bool()> get,
                              std::function<void(bool)> set, Core::IEventProvider* changed)
{
    return id.empty() ||
           ExposeFlag(build.GetData(), id + suffix, property, std::move(get), std::move(set), changed);
}

bool CUIElement::ExposeWidget(GUI::CLightWidget& widget)
{
    bool exposed = ExposeSwitch(
        ".mouse_over", plainFlag, [&widget] { return widget.IsMouseOver(); }, nullptr,
        &widget.GetMouseOverChangedEvent());
    exposed = ExposeSwitch(
                  ".focus", plainFlag, [&widget] { return widget.HasFocus(); },
                  [&widget](bool on)
                  {
                      if (on)
                      {
                          widget.SetFocus();
                      }
                  },
                  &widget.GetFocusChangedEvent()) &&
              exposed;
    return Expose(
               ".opacity", plainShare, [&widget] { return widget.GetOpacity(); },
               [&widget](float value) { widget.SetOpacity(value); }, &widget.GetOpacityChangedEvent()) &&
           exposed;
}

bool CUIElement::ExposeCell(CBaseGroupLayoutCell& cell)
{
    // The titles of the two are crossed over: models and states know them as they are.
    bool exposed = Expose(
        ".internal_h_align", Choice("Internal V-Align", "left;center;right"),
        [&cell] { return static_cast<float>(cell.GetInternalHAlign()); },
        [&cell](float value) { cell.SetInternalHAlign(ToChoice<Layout::EAlign>(value)); }, nullptr);
    exposed =
        Expose(
            ".internal_v_align", Choice("Internal H-Align", "top;center;bottom"),
            [&cell] { return static_cast<float>(cell.GetInternalVAlign()); },
            [&cell](float value) { cell.SetInternalVAlign(ToChoice<Layout::EAlign>(value)); }, nullptr) &&
        exposed;
    return ExposeSwitch(
               ".display", {"Display", 0.0F, 1.0F, ValueKindBoolean, "false;true", nullptr},
               [&cell] { return cell.IsDisplayed(); }, [&cell](bool on) { cell.SetDisplayed(on); },
               nullptr) &&
           exposed;
}

/// What the skin says of the range of a margin, as of the spacing.
SExposedProperty CUIElement::GetRange(const char* name, const char* title) const
{
    float min = -largestMargin;
    float max = largestMargin;
    ReadNumber(attributes, std::string("min_") + name, min);
    ReadNumber(attributes, std::string("max_") + name, max);
    return {title, min, max, ValueKindInteger, nullptr, "%.0f"};
}

bool CUIElement::ExposeMargins(CBaseGroupLayoutCell& cell)
{
    const bool exposed = Expose(
        ".h_margin", GetRange("h_margin", "H Margin"),
        [&cell] { return static_cast<float>(cell.GetHMargin()); },
        [&cell](float value) { cell.SetHMargin(ToPixels(value)); }, nullptr);
    return Expose(
               ".v_margin", GetRange("v_margin", "V Margin"),
               [&cell] { return static_cast<float>(cell.GetVMargin()); },
               [&cell](float value) { cell.SetVMargin(ToPixels(value)); }, nullptr) &&
           exposed;
}

bool CUIElement::ExposeFlow(CGroupLayoutCell& cell)
{
    bool exposed = ExposeMargins(cell);
    exposed =
        Expose(
            ".layout_type", Choice("Layout", "horizontal;vertical;stack"),
            [&cell] { return static_cast<float>(cell.GetLayoutType()); },
            [&cell](float value) { cell.SetLayoutType(ToChoice<Layout::ELayoutType>(value)); }, nullptr) &&
        exposed;
    return Expose(
               ".spacing", GetRange("spacing", "Spacing"),
               [&cell] { return static_cast<float>(cell.GetSpacing()); },
               [&cell](float value) { cell.SetSpacing(ToPixels(value)); }, nullptr) &&
           exposed;
}

bool CUIElement::ExposeOptions(Layout::CLayoutOptions& options)
{
    Core::IEventProvider* const changed = &options.GetChangedEvent();
    bool exposed = Expose(
        ".h_align", Choice("H Align", "left;center;right"),
        [&options] { return static_cast<float>(options.GetHAlign()); },
        [&options](float value) { options.SetHAlign(ToChoice<Layout::EAlign>(value)); }, changed);
    exposed = Expose(
                  ".v_align", Choice("V Align", "top;center;bottom"),
                  [&options] { return static_cast<float>(options.GetVAlign()); },
                  [&options](float value) { options.SetVAlign(ToChoice<Layout::EAlign>(value)); }, changed) &&
              exposed;
    return Expose(
               ".flex", {"Flex", 0.0F, largestFlex, ValueKindReal, nullptr, "%.0f"},
               [&options] { return options.GetFlex(); }, [&options](float value) { options.SetFlex(value); },
               changed) &&
           exposed;
}

} // namespace Mirel::SkinEngine
