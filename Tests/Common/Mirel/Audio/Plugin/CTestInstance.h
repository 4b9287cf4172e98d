#pragma once

#include "CTestFilter.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/PresetFiles.h"
#include "Support/CTemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>

namespace Tests
{

/// The folders that a plug-in finds: its module's and the user's. Empty at first.
class CTestPlaces
{
public:
    CTestPlaces() { std::filesystem::create_directories(folder.GetPath("plugins")); }

    std::string ModulePath() const { return folder.GetPath("plugins/Scope.module"); }
    std::string PreferencesFolder() const { return folder.GetPath("config"); }
    std::string DataPath(const std::string& name) const
    {
        return folder.GetPath("plugins/Scope data/" + name);
    }
    std::string SettingsPath() const { return folder.GetPath("config/Tarnwell/Scope.module/global.pref"); }

    void WriteData(const std::string& name, const std::string& content) const
    {
        std::filesystem::create_directories(std::filesystem::path(DataPath(name)).parent_path());
        folder.Write("plugins/Scope data/" + name, content);
    }

    void WriteSettings(const std::string& content) const
    {
        std::filesystem::create_directories(std::filesystem::path(SettingsPath()).parent_path());
        folder.Write("config/Tarnwell/Scope.module/global.pref", content);
    }

    std::string ReadSettings() const { return folder.Read("config/Tarnwell/Scope.module/global.pref"); }

    CTemporaryFolder folder;
};

inline std::unique_ptr<Mirel::Audio::Plugin::CAudioPluginDefaultSettings>
MakeSettings(const CTestPlaces& places, const Mirel::Audio::DSP::IFilter& filter)
{
    return std::make_unique<Mirel::Audio::Plugin::CAudioPluginDefaultSettings>(
        places.ModulePath(), filter.GetInputParamsInfo(), filter.GetOutputParamsInfo(),
        places.PreferencesFolder());
}

/// One instance with a test filter.
class CTestInstance
{
public:
    explicit CTestInstance(const CTestPlaces& places, std::unique_ptr<CTestFilter> filter_ = MakeFilter())
        : filter(filter_.get()),
          internals(std::move(filter_), MakeSettings(places, *filter), 7)
    {
    }

    static std::unique_ptr<CTestFilter> MakeFilter() { return std::make_unique<CTestFilter>(3, 2); }

    float GetInput(int index) { return internals.GetInputValues()[index].GetValue(); }
    void SetInput(int index, float value) { internals.SetInputValue(index, value); }

    std::string SaveText() const
    {
        std::string text;
        EXPECT_TRUE(Mirel::Audio::Plugin::StateToText(internals, text));
        return text;
    }

    bool LoadText(const std::string& text)
    {
        return Mirel::Audio::Plugin::StateFromText(text.data(), text.size(), internals);
    }

    /// The keys given, in a document as presets have it.
    bool LoadKeys(const std::string& keys) { return LoadText("<Preset>" + keys + "</Preset>"); }

    CTestFilter* filter; ///< Owned by the instance.
    Mirel::Audio::Plugin::CAudioPluginInternalsBase internals;
};

} // namespace Tests
