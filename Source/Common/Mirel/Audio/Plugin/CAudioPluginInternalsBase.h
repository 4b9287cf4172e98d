#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/DSP/COutputDataSync.h"
#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Audio/Plugin/CAttachedState.h"
#include "Mirel/Audio/Plugin/CAudioPluginBindings.h"
#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"
#include "Mirel/Audio/Plugin/CAudioPluginModel.h"
#include "Mirel/Audio/Plugin/CBypassProcessor.h"
#include "Mirel/Audio/Plugin/CEditorHolder.h"
#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Audio/Plugin/CMIDIInputMapping.h"
#include "Mirel/Audio/Plugin/CMIDIOutputMapping.h"
#include "Mirel/Audio/Plugin/COutputCaptures.h"
#include "Mirel/Audio/Plugin/CPresetName.h"
#include "Mirel/Audio/Plugin/CSharedFlag.h"
#include "Mirel/Audio/Plugin/IPresets.h"
#include "Mirel/Audio/Plugin/PluginParams.h"
#include "Mirel/Audio/Plugin/SettingsLists.h"
#include "Mirel/Containers/TVectorMux.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/Serialization/CXmlDataObject.h"

#include <memory>
#include <string>

namespace Mirel::Audio::Plugin
{

/// One instance of a plug-in, as any host shell sees it: the filter, its parameters' values, the bindings of
/// these, presets, the model and the state of all. Knows no host: whoever feeds it blocks is one.
///
/// Life: construction; InitFilter, which may be repeated while no audio runs; Init, once the shell has its
/// own parameter objects; then blocks. Threads: operations marked "audio thread" neither wait nor allocate
/// here; the others belong to any other thread, and those that change the filter to a time without audio.
class CAudioPluginInternalsBase : public Serialization::ISerializable
{
public:
    /// The filter and the settings made for its parameters. hostData is the shell's own and is handed back.
    CAudioPluginInternalsBase(std::unique_ptr<DSP::IFilter> filter_,
                              std::unique_ptr<CAudioPluginDefaultSettings> defaultSettings_, int hostData_);
    CAudioPluginInternalsBase(const CAudioPluginInternalsBase&) = delete;
    CAudioPluginInternalsBase& operator=(const CAudioPluginInternalsBase&) = delete;

    /// The state of the instance: the content of a preset.
    bool Serialize(Serialization::IWriteDataStream& stream) const override;
    ~CAudioPluginInternalsBase() override;

    /// Takes a state over; what is missing or malformed is reset or left as each key has it. Always true.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

    /// Sets the sizes for a sample rate in hertz. False if the filter cannot run at that rate. While no audio
    /// runs.
    bool InitFilter(double sampleRate);

    /// From now on values are set through the shell's parameters, one for each of the descriptions below, and
    /// the model is bound to them and loaded. The lists are not owned and must outlive this object. Until
    /// then, and in a program that never calls it, the values below are set directly.
    void Init(IInputParams& inputs_, IOutputParams& outputs_);

    DSP::IFilter& GetFilter() { return *filter; }
    const DSP::IFilter& GetFilter() const { return *filter; }

    /// Runs the filter, or goes past it. Audio thread.
    CBypassProcessor& GetBypass() { return bypass; }
    int GetHostData() const { return hostData; }
    CAudioPluginDefaultSettings& GetDefaultSettings() { return *defaultSettings; }
    const CAudioPluginDefaultSettings& GetDefaultSettings() const { return *defaultSettings; }

    /// Descriptions: "Bypass", then the filter's. Immutable.
    const DSP::IParamsInfo& GetInputParamsInfo() const { return inputParams; }
    const DSP::IParamsInfo& GetOutputParamsInfo() const { return filter->GetOutputParamsInfo(); }

    /// The values themselves, in the same order. Any thread, the audio thread included: the shell's
    /// parameters store what the host decided here, and the audio thread reads it.
    CInputParamValues& GetInputValues() { return inputValues; }
    COutputParamValues& GetOutputValues() { return outputValues; }

    /// Sets an input parameter through the shell's parameter, if there is one. Out of range is ignored.
    void SetInputValue(int index, float value);

    /// The filter's refresh clock, or this object's for a filter without one. Audio thread.
    DSP::IOutputDataSync& GetOutputDataSync();

    /// Advances the clock of a filter without one. Audio thread.
    void AddProcessedSamples(int count);

    /// Remembers a controller message and moves the input parameters bound to it. Audio thread.
    void ProcessMIDI(const CMIDIEvent& event);

    /// Hands the filter's output parameters out: to the host's automation where that is enabled, else to the
    /// parameter alone, and to the controllers bound to them. Without a MIDI output none is sent. Audio
    /// thread, after the filter's UpdateOutputs.
    void PublishOutputParams(IMIDIOutput* midi);

    /// Hands the filter's other outputs over to the captures. False if a reader holds them: then the refresh
    /// clock must not be reset, and the next block publishes. Audio thread, after the filter's UpdateOutputs.
    [[nodiscard]] bool PublishOutputs() { return captures.Publish(*filter); }

    /// What was published last. Any thread but the audio thread.
    const COutputCaptures& GetOutputCaptures() const { return captures; }

    /// The last controller message received.
    const CMIDICCMessage& GetLastMIDIMessage() const { return lastMIDIMessage; }

    // Whether the global settings apply in the place of the preset's own.
    CSharedFlag& GetUseDefaultInputMIDI() { return useDefaultInputMIDI; }
    CSharedFlag& GetUseDefaultOutputMIDI() { return useDefaultOutputMIDI; }
    CSharedFlag& GetUseDefaultOutputAutomation() { return useDefaultOutputAutomation; }

    // The preset's own settings.
    CMIDICCSettings& GetInputMIDISettings() { return inputMIDISettings; }
    CMIDICCSettings& GetOutputMIDISettings() { return outputMIDISettings; }
    CAutomationSettings& GetOutputAutomationSettings() { return outputAutomationSettings; }

    // The settings that apply. Any thread, the audio thread included.
    const CMIDICCSettings& GetActiveInputMIDISettings() const;
    const CMIDICCSettings& GetActiveOutputMIDISettings() const;
    const CAutomationSettings& GetActiveOutputAutomationSettings() const;

    /// Copies the global MIDI settings over the preset's own.
    void ResetPresetMIDISettings();

    std::string GetCurrentPresetName() const { return currentPresetName.GetText(); }
    void SetCurrentPresetName(const std::string& name) { currentPresetName.SetText(name); }

    IPresets& GetPresets() { return *presets; }

    /// The factory preset file; without an element if there is none.
    const Serialization::IReadDataStream& GetPresetsData() const { return presetsData; }

    /// Takes over the state that the factory preset file has under the key; false if it has none.
    bool LoadFromPresetsData(const char* key);

    CAudioPluginModel& GetModel() { return model; }

    /// What a model of the instance is bound to: until Init, the values themselves.
    CAudioPluginBindings GetBindings();

    /// The key "GUI" of the state: an editor attaches itself while it is open.
    CAttachedState& GetEditorState() { return editorState; }

    /// The editor, while the host has it open. GUI thread.
    CEditorHolder& GetEditor() { return editor; }

private:
    void ApplyRefreshRate();
    void MakePresets();
    bool SerializeInputs(Serialization::IWriteDataStream& stream) const;
    void DeserializeInputs(const Serialization::IReadDataStream& stream);
    void DropWhatCannotBeSaved();

    std::unique_ptr<DSP::IFilter> filter;
    int hostData;
    DSP::CParamsInfo bypassInfo;
    Containers::TVectorMux<DataModel::Objects::IParamInfo> inputParams;
    std::unique_ptr<CAudioPluginDefaultSettings> defaultSettings;
    CInputParamValues inputValues;
    COutputParamValues outputValues;
    IInputParams* inputs;   ///< The shell's parameters, or the values themselves.
    IOutputParams* outputs; ///< Likewise.

    CMIDICCSettings inputMIDISettings;
    CMIDICCSettings outputMIDISettings;
    CAutomationSettings outputAutomationSettings;
    CSharedFlag useDefaultInputMIDI{true};
    CSharedFlag useDefaultOutputMIDI{true};
    CSharedFlag useDefaultOutputAutomation{true};
    CMIDICCMessage lastMIDIMessage;
    CMIDIInputMapping midiInput{lastMIDIMessage};
    CMIDIOutputMapping midiOutput;

    Serialization::CXmlDataObject presetsData{"Presets"};
    CPresetName currentPresetName{"User"};
    CBypassProcessor bypass;
    COutputCaptures captures;
    DSP::COutputDataSync fallbackSync;
    std::unique_ptr<IPresets> presets;
    CAttachedState editorState;
    CAudioPluginModel model;

    Core::TCommand<CAudioPluginInternalsBase> applyRefreshRate;
    CoreUtilities::CCallbackHelper refreshRateConnection;
    CEditorHolder editor; ///< Last, so that an editor left open goes before what it shows.
};

} // namespace Mirel::Audio::Plugin
