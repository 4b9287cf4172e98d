#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/Plugin/CPluginPaths.h"
#include "Mirel/Audio/Plugin/PreferencesFolder.h"
#include "Mirel/Audio/Plugin/SettingsLists.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/CMTEventProvider.h"

#include <atomic>
#include <string>

namespace Mirel::Audio::Plugin
{

/// What applies to all instances of a plug-in on a machine: paths, the global skin, the default bindings and
/// the refresh rate. Each instance has an object of its own, which reads the file of all at its construction
/// and replaces it on Save: of two instances that save, the later wins.
///
/// Any thread. The audio thread reads the lists and the rate, which take no lock for that; the locks keep the
/// editors of several windows from loading, saving and copying a list at the same time.
class CAudioPluginDefaultSettings : public Serialization::ISerializable
{
public:
    /// The descriptions are those of the filter's parameters; they are copied, with Bypass in front of the
    /// inputs. Loads the file. A product that overrides factory values calls Load again at the end of its own
    /// constructor, since until then the values of this class apply.
    CAudioPluginDefaultSettings(const std::string& modulePath, const DSP::IParamsInfo& filterInputs,
                                const DSP::IParamsInfo& filterOutputs,
                                const std::string& preferencesFolder = FindPreferencesFolder());
    CAudioPluginDefaultSettings(const CAudioPluginDefaultSettings&) = delete;
    CAudioPluginDefaultSettings& operator=(const CAudioPluginDefaultSettings&) = delete;
    ~CAudioPluginDefaultSettings() override = default;

    /// Factory values, and over them what the file holds. A file that is missing or damaged leaves the
    /// factory values.
    void Load();

    /// Replaces the file whole. A failure is silent and keeps the old file.
    void Save() const;

    /// The keys of the settings file. A skin is written relative to the folder of the default skin.
    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// True if all keys were there; what is missing keeps its value.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

    // Paths, valid as long as this object; empty where there is none.
    const char* GetModelFile() const { return paths.model.c_str(); }
    const char* GetSharedModelFile() const { return paths.sharedModel.c_str(); }
    const char* GetManualFile() const { return paths.manual.c_str(); }
    const char* GetLegalFolder() const { return paths.legal.c_str(); }
    const char* GetFactoryPresetsFile() const { return paths.factoryPresets.c_str(); }
    const char* GetPreferencesFile() const { return paths.preferences.c_str(); }

    // Factory values.
    virtual const char* GetDefaultSkinFile() const { return paths.defaultSkin.c_str(); }
    virtual double GetDefaultOutputRefreshRate() const;
    virtual void SetDefaultInputMIDISettings(CMIDICCSettings& list) const;
    virtual void SetDefaultOutputMIDISettings(CMIDICCSettings& list) const;
    virtual void SetDefaultOutputAutomationSettings(CAutomationSettings& list) const;

    /// The absolute path of the global skin; empty if none is set.
    std::string GetSkinFile() const;
    void SetSkinFile(const std::string& path);

    const CMIDICCSettings& GetInputMIDISettings() const { return inputMIDISettings; }
    CMIDICCSettings& GetInputMIDISettings() { return inputMIDISettings; }
    const CMIDICCSettings& GetOutputMIDISettings() const { return outputMIDISettings; }
    CMIDICCSettings& GetOutputMIDISettings() { return outputMIDISettings; }
    const CAutomationSettings& GetOutputAutomationSettings() const { return outputAutomationSettings; }
    CAutomationSettings& GetOutputAutomationSettings() { return outputAutomationSettings; }

    // Each copies a list over another as one, while no load changes it.
    void CopyInputMIDISettings(CMIDICCSettings& target) const;
    void CopyOutputMIDISettings(CMIDICCSettings& target) const;
    void CopyOutputAutomationSettings(CAutomationSettings& target) const;

    /// Outputs per second of audio, in hertz. 0 makes output due after every block; below 0 and what is not
    /// finite is ignored.
    double GetOutputRefreshRate() const { return outputRefreshRate.load(std::memory_order_relaxed); }
    void SetOutputRefreshRate(double hertz);

    /// The same as the period of a timer that follows the outputs: milliseconds, from 10 to 1000.
    int GetOutputRefreshTime() const;

    // Fire after a change, on the thread that made it.
    Core::IEventProvider& GetSkinFileChangedEventProvider() const { return skinFileChanged; }
    Core::IEventProvider& GetOutputRefreshRateChangedEventProvider() const { return refreshRateChanged; }

private:
    std::string SkinFolder() const;
    void SetFactoryValues();
    bool DeserializeSkin(const Serialization::IReadDataStream& stream);
    bool DeserializeRefreshRate(const Serialization::IReadDataStream& stream);

    CPluginPaths paths;
    DSP::CParamsInfo inputs;
    DSP::CParamsInfo outputs;

    mutable System::CCriticalSection skinLock;
    std::string skinFile;
    mutable System::CCriticalSection inputMIDILock;
    CMIDICCSettings inputMIDISettings;
    mutable System::CCriticalSection outputMIDILock;
    CMIDICCSettings outputMIDISettings;
    mutable System::CCriticalSection outputAutomationLock;
    CAutomationSettings outputAutomationSettings;
    std::atomic<double> outputRefreshRate{0.0};

    mutable System::CMTEventProvider skinFileChanged; ///< Listening changes nothing of the settings.
    mutable System::CMTEventProvider refreshRateChanged;
};

} // namespace Mirel::Audio::Plugin
