#include "Mirel/SkinEngine/UI/CExposedProperties.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

#include <utility>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;
using Layout::CBaseGroupLayoutCell;
using Layout::CGroupLayoutCell;

namespace
{

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

IParamValueToText* MakeValueToText(const SExposedProperty& property)
{
    if (property.names != nullptr)
    {
        return new CEnumToText(SplitText(property.names), property.min);
    }
    return property.format == nullptr ? nullptr : new CParamValueToText(property.format, false, "{value}");
}

/// What the skin says of the range of a margin, as of the spacing.
SExposedProperty GetRange(const CNamedAttributes& attributes, const char* name, const char* title)
{
    float min = -largestMargin;
    float max = largestMargin;
    ReadNumber(attributes, std::string("min_") + name, min);
    ReadNumber(attributes, std::string("max_") + name, max);
    return {title, min, max, ValueKindInteger, nullptr, "%.0f"};
}

} // namespace

CExposedProperties::CExposedProperties(CGUISkinData& data_, const char* id_) : data(data_), id(id_) {}

bool CExposedProperties::Expose(const char* suffix, const SExposedProperty& property,
                                std::function<float()> get, std::function<void(float)> set,
                                Core::IEventProvider* changed)
{
    if (id.empty())
    {
        return true;
    }
    const std::string whole = id + suffix;
    const int flags = data.GetWholeModel().GetExposure().GetParamFlags(whole.c_str());
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(property.kind, property.min, property.max, get(),
                          property.title == nullptr ? whole.c_str() : property.title, "", "",
                          MakeValueToText(property), true);
    const bool added =
        set == nullptr
            ? data.GetModel().AddConstParam(
                  whole.c_str(), new CConstCaptureParamWrapper(info, std::move(get), changed), flags, true)
            : data.GetModel().AddParam(
                  whole.c_str(), new CCaptureParamWrapper(info, std::move(get), std::move(set), changed),
                  flags, true);
    return data.TakeAllAdded() && added;
}

bool CExposedProperties::ExposeSwitch(const char* suffix, const SExposedProperty& property,
                                      std::function<bool()> get, std::function<void(bool)> set,
                                      Core::IEventProvider* changed)
{
    std::function<void(float)> setFlag;
    if (set != nullptr)
    {
        setFlag = [set = std::move(set)](float value) { set(value >= 0.5F); };
    }
    return Expose(
        suffix, property, [get = std::move(get)] { return get() ? 1.0F : 0.0F; }, std::move(setFlag),
        changed);
}

bool CExposedProperties::ExposeWidget(GUI::CLightWidget& widget)
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

bool CExposedProperties::ExposeVisibility(CSkinVisibility& visibility)
{
    return ExposeSwitch(
        ".visible", hideShow, [&visibility] { return visibility.IsVisible(); },
        [&visibility](bool on) { visibility.SetVisible(on); }, &visibility.GetChangedEventProvider());
}

bool CExposedProperties::ExposeCell(CBaseGroupLayoutCell& cell)
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

bool CExposedProperties::ExposeMargins(CBaseGroupLayoutCell& cell, const CNamedAttributes& attributes)
{
    const bool exposed = Expose(
        ".h_margin", GetRange(attributes, "h_margin", "H Margin"),
        [&cell] { return static_cast<float>(cell.GetHMargin()); },
        [&cell](float value) { cell.SetHMargin(ToPixels(value)); }, nullptr);
    return Expose(
               ".v_margin", GetRange(attributes, "v_margin", "V Margin"),
               [&cell] { return static_cast<float>(cell.GetVMargin()); },
               [&cell](float value) { cell.SetVMargin(ToPixels(value)); }, nullptr) &&
           exposed;
}

bool CExposedProperties::ExposeFlow(CGroupLayoutCell& cell, const CNamedAttributes& attributes)
{
    bool exposed = ExposeMargins(cell, attributes);
    exposed =
        Expose(
            ".layout_type", Choice("Layout", "horizontal;vertical;stack"),
            [&cell] { return static_cast<float>(cell.GetLayoutType()); },
            [&cell](float value) { cell.SetLayoutType(ToChoice<Layout::ELayoutType>(value)); }, nullptr) &&
        exposed;
    return Expose(
               ".spacing", GetRange(attributes, "spacing", "Spacing"),
               [&cell] { return static_cast<float>(cell.GetSpacing()); },
               [&cell](float value) { cell.SetSpacing(ToPixels(value)); }, nullptr) &&
           exposed;
}

bool CExposedProperties::ExposeOptions(Layout::CLayoutOptions& options)
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

bool CExposedProperties::ExposeWindow(std::function<float()> getOpacity,
                                      std::function<void(float)> setOpacity,
                                      Core::IEventProvider* opacityChanged, std::function<bool()> isLoaded,
                                      Core::IEventProvider* loadedChanged)
{
    const bool exposed = Expose(".opacity", {"Window Opacity", 0.0F, 1.0F, ValueKindReal, nullptr, "%.2f"},
                                std::move(getOpacity), std::move(setOpacity), opacityChanged);
    return ExposeSwitch(".loaded",
                        {"Window Loaded", 0.0F, 1.0F, ValueKindInteger, "Not loaded;Loaded", nullptr},
                        std::move(isLoaded), nullptr, loadedChanged) &&
           exposed;
}

} // namespace Mirel::SkinEngine
