#include "Mirel/Audio/Plugin/CPluginPaths.h"
#include "Mirel/Audio/Plugin/PreferencesFolder.h"
#include "Support/CTemporaryFolder.h"
#include "Support/Environment.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

using namespace Mirel::Audio::Plugin;
using Tests::CEnvironmentVariable;
namespace fs = std::filesystem;

namespace
{

mode_t PermissionsOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 0777U;
}

TEST(CPluginPaths, TheDataFolderStandsBesideTheModuleAndIsNamedAfterIt)
{
    const Tests::CTemporaryFolder folder;
    const CPluginPaths paths("/opt/audio/Scope Bank.aaxplugin", folder.GetPath("config"));
    EXPECT_EQ(paths.model, "/opt/audio/Scope Bank data/Model/model.model");
    EXPECT_EQ(paths.sharedModel, "/opt/audio/Scope Bank data/Model/shared.model");
    EXPECT_EQ(paths.manual, "/opt/audio/Scope Bank data/manual.pdf");
    EXPECT_EQ(paths.legal, "/opt/audio/Scope Bank data/Legal");
    EXPECT_EQ(paths.defaultSkin, "/opt/audio/Scope Bank data/Skins/default.xml");
    EXPECT_EQ(paths.factoryPresets, "/opt/audio/Scope Bank data/Presets/factory.presets");
    EXPECT_EQ(paths.preferences, folder.GetPath("config/Tarnwell/Scope Bank.aaxplugin/global.pref"));
}

TEST(CPluginPaths, OnlyTheLastExtensionGoes)
{
    const CPluginPaths paths("/a/Scope.2.module", "");
    EXPECT_EQ(paths.manual, "/a/Scope.2 data/manual.pdf");
    EXPECT_EQ(CPluginPaths("/a/Scope", "").manual, "/a/Scope data/manual.pdf");
}

TEST(CPluginPaths, ARelativeModuleIsTakenFromTheCurrentFolderAtOnce)
{
    const CPluginPaths paths("bin/Scope.module", "");
    EXPECT_EQ(paths.manual, (fs::current_path() / "bin/Scope data/manual.pdf").string());
}

TEST(CPluginPaths, WithoutAModuleAllAreEmpty)
{
    const Tests::CTemporaryFolder folder;
    for (const char* module : {"", "/"})
    {
        const CPluginPaths paths(module, folder.GetPath("config"));
        EXPECT_EQ(paths.model, "");
        EXPECT_EQ(paths.defaultSkin, "");
        EXPECT_EQ(paths.preferences, "");
    }
    EXPECT_TRUE(folder.List().empty());
}

TEST(CPluginPaths, MakesEachMissingLevelOfTheUserFolder)
{
    const Tests::CTemporaryFolder folder;
    const CPluginPaths paths("/a/Scope.module", folder.GetPath("home/config"));
    EXPECT_TRUE(fs::is_directory(folder.GetPath("home/config/Tarnwell/Scope.module")));
    EXPECT_EQ(PermissionsOf(folder.GetPath("home/config/Tarnwell")), 0700U);
    EXPECT_FALSE(fs::exists(paths.preferences));
}

TEST(CPluginPaths, TakesAUserFolderThatIsThere)
{
    const Tests::CTemporaryFolder folder;
    fs::create_directories(folder.GetPath("config/Tarnwell/Scope.module"));
    const CPluginPaths paths("/a/Scope.module", folder.GetPath("config"));
    EXPECT_EQ(paths.preferences, folder.GetPath("config/Tarnwell/Scope.module/global.pref"));
}

TEST(CPluginPaths, WithoutAUserFolderThereAreNoPreferences)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("file", "");
    const CPluginPaths paths("/a/Scope.module", folder.GetPath("file"));
    EXPECT_EQ(paths.preferences, "");
    EXPECT_EQ(paths.manual, "/a/Scope data/manual.pdf");
    EXPECT_EQ(CPluginPaths("/a/Scope.module", "").preferences, "");
}

TEST(FindPreferencesFolder, TakesTheVariableElseTheHomeFolder)
{
    const CEnvironmentVariable home("HOME", "/home/someone");
    {
        const CEnvironmentVariable config("XDG_CONFIG_HOME", "/elsewhere/config");
        EXPECT_EQ(FindPreferencesFolder(), "/elsewhere/config");
    }
    for (const char* useless : {"", "relative/config"})
    {
        const CEnvironmentVariable config("XDG_CONFIG_HOME", useless);
        EXPECT_EQ(FindPreferencesFolder(), "/home/someone/.config");
    }
    const CEnvironmentVariable config("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(FindPreferencesFolder(), "/home/someone/.config");
}

TEST(FindPreferencesFolder, AsksTheSystemForAHomeThatTheEnvironmentDoesNotName)
{
    const CEnvironmentVariable config("XDG_CONFIG_HOME", nullptr);
    const CEnvironmentVariable home("HOME", nullptr);
    const std::string folder = FindPreferencesFolder();
    EXPECT_TRUE(folder.empty() || folder.ends_with("/.config")) << folder;
}

TEST(MakeFolders, FailsWhereAFileStands)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("file", "");
    EXPECT_FALSE(MakeFolders(folder.GetPath("file/below")));
    EXPECT_FALSE(MakeFolders(folder.GetPath("file")));
    EXPECT_FALSE(MakeFolders(""));
    EXPECT_TRUE(MakeFolders(folder.GetPath("a/b/c/")));
    EXPECT_TRUE(MakeFolders("/"));
}

} // namespace
