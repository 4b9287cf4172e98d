#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"

#include "Mirel/Audio/Plugin/BypassInfo.h"
#include "Mirel/Audio/Plugin/Limits.h"
#include "Mirel/Core/CAutoLock.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/ReadText.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace Mirel::Audio::Plugin
{

using Core::CAutoLock;

namespace
{

constexpr int FileVersion = 3;
constexpr double FactoryRefreshRate = 50.0;
constexpr double MsPerSecond = 1000.0;
constexpr double ShortestRefreshMs = 10.0;
constexpr double LongestRefreshMs = 1000.0;
constexpr const char* ItemName = "item";

void AddCopies(DSP::CParamsInfo& list, const DSP::IParamsInfo& source)
{
    for (int i = 0; i < source.GetCount(); ++i)
    {
        const DataModel::Objects::IConstParamInfo& info = source[i];
        list.Add(info);
    }
}

template <class List>
void FillMIDISettings(List& list, const DSP::CParamsInfo& infos, int channel)
{
    for (int i = 0; i < list.GetCount() && i < infos.GetCount(); ++i)
    {
        CMIDICCSetting setting(infos[i]);
        setting.SetChannel(channel);
        list[i] = setting;
    }
}

std::string RelativeTo(const std::string& folder, const std::string& path)
{
    const std::string relative = std::filesystem::path(path).lexically_relative(folder).string();
    return relative.empty() ? path : relative;
}

/// A path that is absolute already stays as it is, apart from steps such as "..".
std::string AbsoluteFrom(const std::string& folder, const std::string& path)
{
    return (std::filesystem::path(folder) / path).lexically_normal().string();
}

} // namespace

CAudioPluginDefaultSettings::CAudioPluginDefaultSettings(const std::string& modulePath,
                                                         const DSP::IParamsInfo& filterInputs,
                                                         const DSP::IParamsInfo& filterOutputs,
                                                         const std::string& preferencesFolder)
    : paths(modulePath, preferencesFolder),
      inputs(MakeBypassInfo())
{
    AddCopies(inputs, filterInputs);
    AddCopies(outputs, filterOutputs);
    for (int i = 0; i < inputs.GetCount(); ++i)
    {
        inputMIDISettings.Add();
    }
    for (int i = 0; i < outputs.GetCount(); ++i)
    {
        outputMIDISettings.Add();
        outputAutomationSettings.Add();
    }
    SetFactoryValues();
    Load();
}

double CAudioPluginDefaultSettings::GetDefaultOutputRefreshRate() const
{
    return FactoryRefreshRate;
}

void CAudioPluginDefaultSettings::SetDefaultInputMIDISettings(CMIDICCSettings& list) const
{
    FillMIDISettings(list, inputs, 0);
}

void CAudioPluginDefaultSettings::SetDefaultOutputMIDISettings(CMIDICCSettings& list) const
{
    FillMIDISettings(list, outputs, 1);
}

void CAudioPluginDefaultSettings::SetDefaultOutputAutomationSettings(CAutomationSettings& list) const
{
    for (int i = 0; i < list.GetCount(); ++i)
    {
        list[i] = CAutomationSetting();
    }
}

// In the constructor these reach the factory values of this class only, which the header announces.
// NOLINTBEGIN(clang-analyzer-optin.cplusplus.VirtualCall)

std::string CAudioPluginDefaultSettings::SkinFolder() const
{
    return std::filesystem::path(GetDefaultSkinFile()).parent_path().string();
}

void CAudioPluginDefaultSettings::SetFactoryValues()
{
    SetSkinFile(GetDefaultSkinFile());
    {
        const CAutoLock guard(inputMIDILock);
        SetDefaultInputMIDISettings(inputMIDISettings);
    }
    {
        const CAutoLock guard(outputMIDILock);
        SetDefaultOutputMIDISettings(outputMIDISettings);
    }
    {
        const CAutoLock guard(outputAutomationLock);
        SetDefaultOutputAutomationSettings(outputAutomationSettings);
    }
    SetOutputRefreshRate(GetDefaultOutputRefreshRate());
}

void CAudioPluginDefaultSettings::Load()
{
    if (paths.preferences.empty())
    {
        return;
    }
    SetFactoryValues();
    Serialization::CXmlDataObject file("Root");
    if (file.LoadFromFile(paths.preferences.c_str()))
    {
        Deserialize(file);
    }
}

// NOLINTEND(clang-analyzer-optin.cplusplus.VirtualCall)

void CAudioPluginDefaultSettings::Save() const
{
    if (paths.preferences.empty())
    {
        return;
    }
    // A value that the form cannot hold, such as a path in another encoding, must not cost the others.
    Serialization::CXmlDataObject file("GlobalSettings");
    static_cast<void>(Serialize(file));
    static_cast<void>(file.SaveToFile(paths.preferences.c_str()));
}

bool CAudioPluginDefaultSettings::Serialize(Serialization::IWriteDataStream& stream) const
{
    bool written = stream.Write("version", FileVersion);
    const std::string skin = GetSkinFile();
    const std::string relative = skin.empty() ? skin : RelativeTo(SkinFolder(), skin);
    written = stream.Write("skinFile", relative.c_str()) && written;
    {
        const CAutoLock guard(inputMIDILock);
        written = inputMIDISettings.Write(stream, "inputCCSettings", ItemName) && written;
    }
    {
        const CAutoLock guard(outputMIDILock);
        written = outputMIDISettings.Write(stream, "outputCCSettings", ItemName) && written;
    }
    {
        const CAutoLock guard(outputAutomationLock);
        written = outputAutomationSettings.Write(stream, "outputAutomationSettings", ItemName) && written;
    }
    written = stream.Write("outputRefreshRate", GetOutputRefreshRate()) && written;
    return written;
}

bool CAudioPluginDefaultSettings::Deserialize(const Serialization::IReadDataStream& stream)
{
    // All versions so far read the same way.
    int version = 0;
    bool read = stream.Read("version", version);
    read = DeserializeSkin(stream) && read;
    {
        const CAutoLock guard(inputMIDILock);
        read = inputMIDISettings.Read(stream, "inputCCSettings", ItemName) && read;
    }
    {
        const CAutoLock guard(outputMIDILock);
        read = outputMIDISettings.Read(stream, "outputCCSettings", ItemName) && read;
    }
    {
        const CAutoLock guard(outputAutomationLock);
        read = outputAutomationSettings.Read(stream, "outputAutomationSettings", ItemName) && read;
    }
    read = DeserializeRefreshRate(stream) && read;
    return read;
}

bool CAudioPluginDefaultSettings::DeserializeSkin(const Serialization::IReadDataStream& stream)
{
    std::string path;
    if (!ReadText(stream, "skinFile", path) || path.size() > CLimits::maxPathBytes)
    {
        return false;
    }
    SetSkinFile(path.empty() ? path : AbsoluteFrom(SkinFolder(), path));
    return true;
}

bool CAudioPluginDefaultSettings::DeserializeRefreshRate(const Serialization::IReadDataStream& stream)
{
    double rate = GetOutputRefreshRate();
    if (!stream.Read("outputRefreshRate", rate))
    {
        return false;
    }
    SetOutputRefreshRate(rate);
    return true;
}

std::string CAudioPluginDefaultSettings::GetSkinFile() const
{
    const CAutoLock guard(skinLock);
    return skinFile;
}

void CAudioPluginDefaultSettings::SetSkinFile(const std::string& path)
{
    {
        const CAutoLock guard(skinLock);
        if (skinFile == path)
        {
            return;
        }
        skinFile = path;
    }
    skinFileChanged.Notify();
}

void CAudioPluginDefaultSettings::CopyInputMIDISettings(CMIDICCSettings& target) const
{
    const CAutoLock guard(inputMIDILock);
    target.CopyFrom(inputMIDISettings);
}

void CAudioPluginDefaultSettings::CopyOutputMIDISettings(CMIDICCSettings& target) const
{
    const CAutoLock guard(outputMIDILock);
    target.CopyFrom(outputMIDISettings);
}

void CAudioPluginDefaultSettings::CopyOutputAutomationSettings(CAutomationSettings& target) const
{
    const CAutoLock guard(outputAutomationLock);
    target.CopyFrom(outputAutomationSettings);
}

void CAudioPluginDefaultSettings::SetOutputRefreshRate(double hertz)
{
    const double old = GetOutputRefreshRate();
    if (!std::isfinite(hertz) || hertz < 0.0 || !(hertz < old || hertz > old))
    {
        return;
    }
    outputRefreshRate.store(hertz, std::memory_order_relaxed);
    refreshRateChanged.Notify();
}

int CAudioPluginDefaultSettings::GetOutputRefreshTime() const
{
    const double hertz = GetOutputRefreshRate();
    const double period = hertz > 0.0 ? MsPerSecond / hertz : ShortestRefreshMs;
    return static_cast<int>(std::lround(std::clamp(period, ShortestRefreshMs, LongestRefreshMs)));
}

} // namespace Mirel::Audio::Plugin
