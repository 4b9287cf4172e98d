#pragma once

#include "Mirel/Core/IEventProvider.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"

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

/// Enters a parameter for a property, if anybody wants it. The event is that of the property, null if it has
/// none; without a setter the parameter is read only. What the functions reach must live as long as the data,
/// or be owned by it. False if the identifier is taken.
bool ExposeProperty(CGUISkinData& data, const std::string& id, const SExposedProperty& property,
                    std::function<float()> get, std::function<void(float)> set,
                    Core::IEventProvider* changed);

/// 0 or 1.
bool ExposeFlag(CGUISkinData& data, const std::string& id, const SExposedProperty& property,
                std::function<bool()> get, std::function<void(bool)> set, Core::IEventProvider* changed);

/// "window.opacity" and "window.loaded", as ExposeProperty does.
bool ExposeWindowProperties(CGUISkinData& data, std::function<float()> getOpacity,
                            std::function<void(float)> setOpacity, Core::IEventProvider* opacityChanged,
                            std::function<bool()> isLoaded, Core::IEventProvider* loadedChanged);

} // namespace Mirel::SkinEngine
