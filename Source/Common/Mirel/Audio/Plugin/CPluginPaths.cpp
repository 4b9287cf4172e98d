#include "Mirel/Audio/Plugin/CPluginPaths.h"

#include "Mirel/Audio/Plugin/PreferencesFolder.h"

#include <filesystem>
#include <system_error>

namespace Mirel::Audio::Plugin
{

namespace fs = std::filesystem;

namespace
{

constexpr const char* MakerFolder = "Tarnwell";

/// The host's current folder may change later, so that a relative path is made absolute at once.
fs::path Absolute(const std::string& path)
{
    std::error_code error;
    fs::path absolute = fs::absolute(path, error);
    return error ? fs::path(path) : absolute;
}

} // namespace

CPluginPaths::CPluginPaths(const std::string& modulePath, const std::string& preferencesFolder)
{
    const fs::path module = modulePath.empty() ? fs::path() : Absolute(modulePath);
    if (!module.has_filename())
    {
        return;
    }
    const fs::path data = module.parent_path() / (module.stem().string() + " data");
    model = data / "Model" / "model.model";
    sharedModel = data / "Model" / "shared.model";
    manual = data / "manual.pdf";
    legal = data / "Legal";
    defaultSkin = data / "Skins" / "default.xml";
    factoryPresets = data / "Presets" / "factory.presets";

    const fs::path user = fs::path(preferencesFolder) / MakerFolder / module.filename();
    if (!preferencesFolder.empty() && MakeFolders(user.string()))
    {
        preferences = user / "global.pref";
    }
}

} // namespace Mirel::Audio::Plugin
