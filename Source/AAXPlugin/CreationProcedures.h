#pragma once

class IACFUnknown;

/// What the host calls to make the objects of an instance. The caller owns the reference that it gets; null
/// tells it that there is no such object.
namespace MirelExt::AAXPlugin
{

/// A CAAXPluginParameters; null if it cannot be made.
IACFUnknown* CreateEffectParameters();

/// A CAAXPluginGUI; null if it cannot be made.
IACFUnknown* CreateGui();

} // namespace MirelExt::AAXPlugin
