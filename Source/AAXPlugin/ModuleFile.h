#pragma once

#include <string>
#include <string_view>

namespace MirelExt::AAXPlugin
{

/// What follows the last slash of a path; the whole path if it has none.
std::string_view FileNameOf(std::string_view path);

/// The path of the module (or, in a test, of the program) that holds this code, as it was loaded; empty if
/// the system does not know it.
std::string GetModulePath();

/// The identifier under which the effect of a module with this path is registered.
std::string MakeEffectIdentifier(std::string_view modulePath);

} // namespace MirelExt::AAXPlugin
