#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Core/IEventProvider.h"
#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/Layout/CGroupLayoutCell.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CSkinVisibility.h"

#include <functional>
#include <string>

namespace Mirel::SkinEngine
{

/// A property of an element, as it is shown in the model.
struct SExposedProperty
{
    const char* title; ///< Null for the identifier itself.
    float min;
    float max;
    int kind;           ///< EValueKind.
    const char* names;  ///< Of the values, as "Hide;Show"; null for a number.
    const char* format; ///< Of a number; null for that of the kind.
};

/// The properties of one element as parameters of the model, under the element's identifier and a suffix;
/// none without an identifier. Whatever is exposed must live as long as the data, or be owned by it. Each
/// operation is false if an identifier is taken. GUI thread only.
class CExposedProperties
{
public:
    CExposedProperties(CGUISkinData& data_, const char* id_);

    /// Enters a parameter, if anybody wants it. The event is that of the property, null if it has none;
    /// without a setter the parameter is read only.
    bool Expose(const char* suffix, const SExposedProperty& property, std::function<float()> get,
                std::function<void(float)> set, Core::IEventProvider* changed);

    /// 0 or 1.
    bool ExposeSwitch(const char* suffix, const SExposedProperty& property, std::function<bool()> get,
                      std::function<void(bool)> set, Core::IEventProvider* changed);

    // What the kinds of elements have.
    bool ExposeWidget(GUI::CLightWidget& widget);
    bool ExposeVisibility(CSkinVisibility& visibility);
    bool ExposeCell(Layout::CBaseGroupLayoutCell& cell);
    bool ExposeOptions(Layout::CLayoutOptions& options);

    /// Those of a window around a skin.
    bool ExposeWindow(std::function<float()> getOpacity, std::function<void(float)> setOpacity,
                      Core::IEventProvider* opacityChanged, std::function<bool()> isLoaded,
                      Core::IEventProvider* loadedChanged);

    // The attributes may give the ranges.
    bool ExposeMargins(Layout::CBaseGroupLayoutCell& cell, const Containers::CNamedAttributes& attributes);
    bool ExposeFlow(Layout::CGroupLayoutCell& cell, const Containers::CNamedAttributes& attributes);

private:
    CGUISkinData& data;
    std::string id;
};

} // namespace Mirel::SkinEngine
