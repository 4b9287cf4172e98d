#pragma once

#include <string>

namespace Mirel::Audio::Plugin
{

/// The folder in which the user's programs keep their settings: $XDG_CONFIG_HOME, else ".config" in the home
/// folder. Empty if there is neither, as for a user without a home.
std::string FindPreferencesFolder();

/// Creates the folder and, one by one, the levels above it that are missing, for the user alone. True if it
/// is there in the end.
bool MakeFolders(const std::string& path);

} // namespace Mirel::Audio::Plugin
