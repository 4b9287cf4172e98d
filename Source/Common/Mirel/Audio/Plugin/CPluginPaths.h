#pragma once

#include <string>

namespace Mirel::Audio::Plugin
{

/// Where the files of a plug-in stand. Immutable. All paths are absolute.
struct CPluginPaths
{
    /// For a module "folder/Name.extension" the data folder is "folder/Name data", and the user folder
    /// "Tarnwell/Name.extension" below the folder of the user's preferences; that is created if it is
    /// missing. Without a module path all are empty; without a user folder the preferences are.
    CPluginPaths(const std::string& modulePath, const std::string& preferencesFolder);

    std::string model;
    std::string sharedModel;
    std::string manual;
    std::string legal; ///< A folder.
    std::string defaultSkin;
    std::string factoryPresets;
    std::string preferences;
};

} // namespace Mirel::Audio::Plugin
