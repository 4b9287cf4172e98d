#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/PresetFiles.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"
#include "Require.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace Fuzz
{

using Mirel::Audio::Plugin::CAudioPluginDefaultSettings;
using Mirel::Audio::Plugin::CAudioPluginInternalsBase;
using Mirel::Audio::Plugin::CMIDICCSettings;

/// An empty folder for the time of the process.
inline const std::string& Folder()
{
    struct CFolder
    {
        CFolder()
        {
            std::string pattern = (std::filesystem::temp_directory_path() / "mirel-fuzz-XXXXXX").string();
            path = mkdtemp(pattern.data());
        }
        CFolder(const CFolder&) = delete;
        CFolder& operator=(const CFolder&) = delete;
        ~CFolder() { std::filesystem::remove_all(path); }

        std::string path;
    };
    static const CFolder folder;
    return folder.path;
}

/// The settings of an instance of a module in that folder, without a user's.
inline std::unique_ptr<CAudioPluginDefaultSettings> MakeSettings(const Mirel::Audio::DSP::IFilter& filter)
{
    return std::make_unique<CAudioPluginDefaultSettings>(
        Folder() + "/Scope.module", filter.GetInputParamsInfo(), filter.GetOutputParamsInfo(), "");
}

inline std::unique_ptr<CAudioPluginInternalsBase> MakeInstance()
{
    auto filter = PluginsFilters::CreateTopLevelFilter();
    auto settings = MakeSettings(*filter);
    return std::make_unique<CAudioPluginInternalsBase>(std::move(filter), std::move(settings), 0);
}

inline void CheckSettings(const CMIDICCSettings& settings)
{
    for (int i = 0; i < settings.GetCount(); ++i)
    {
        Require(settings[i].GetChannel() >= 0 && settings[i].GetChannel() <= 16);
        Require(settings[i].GetNumber() >= 0 && settings[i].GetNumber() <= 127);
        Require(settings[i].GetCurve() >= 0 && settings[i].GetCurve() <= 12);
        Require(std::isfinite(settings[i].GetMin()) && std::isfinite(settings[i].GetMax()));
    }
}

/// What holds of an instance whatever it was given to load.
inline void CheckInstance(CAudioPluginInternalsBase& internals)
{
    const auto& infos = internals.GetInputParamsInfo();
    for (int i = 0; i < infos.GetCount(); ++i)
    {
        const float value = internals.GetInputValues()[i].GetValue();
        Require(value >= infos[i].GetMin() && value <= infos[i].GetMax());
    }
    CheckSettings(internals.GetInputMIDISettings());
    CheckSettings(internals.GetOutputMIDISettings());
}

/// The state as text; there always is one, and loaded and saved again it stays the same.
inline std::string SavedState(CAudioPluginInternalsBase& internals)
{
    std::string text;
    Require(Mirel::Audio::Plugin::StateToText(internals, text));
    static const auto other = MakeInstance(); // a state leaves nothing of the one before it
    Require(Mirel::Audio::Plugin::StateFromText(text.data(), text.size(), *other));
    std::string again;
    Require(Mirel::Audio::Plugin::StateToText(*other, again));
    Require(again == text);
    return text;
}

} // namespace Fuzz
