#pragma once

class IACFUnknown;

/// What the host calls to make the objects of an instance. The caller owns the reference that it gets.
///
/// Null tells the host that no instance can be made: this module describes itself and processes audio, and
/// has neither parameters nor an editor to hand out.
namespace MirelExt::AAXPlugin
{

IACFUnknown* CreateEffectParameters();
IACFUnknown* CreateGui();

} // namespace MirelExt::AAXPlugin
