#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"

#include "Mirel/Audio/Plugin/BypassInfo.h"
#include "Mirel/Audio/Plugin/CAudioPluginLegacyPresets.h"
#include "Mirel/Audio/Plugin/CAudioPluginXMLPresets.h"
#include "Mirel/Core/Numeric.h"

#include <algorithm>
#include <utility>

namespace Mirel::Audio::Plugin
{

namespace
{

/// Hosts send no larger ones; a filter with outputs would have to allocate for them.
constexpr int largestBlock = 8192;

/// Short enough to feel immediate, long enough not to click.
constexpr double bypassFadeSeconds = 0.02;

} // namespace

CAudioPluginInternalsBase::CAudioPluginInternalsBase(
    std::unique_ptr<DSP::IFilter> filter_, std::unique_ptr<CAudioPluginDefaultSettings> defaultSettings_,
    int hostData_)
    : filter(std::move(filter_)),
      hostData(hostData_),
      bypassInfo(MakeBypassInfo()),
      inputParams(bypassInfo, filter->GetInputParamsInfo()),
      defaultSettings(std::move(defaultSettings_)),
      inputs(&inputValues),
      outputs(&outputValues),
      captures(*filter),
      model(defaultSettings->GetModelFile()),
      applyRefreshRate(this, &CAudioPluginInternalsBase::ApplyRefreshRate),
      refreshRateConnection(&defaultSettings->GetOutputRefreshRateChangedEventProvider(), &applyRefreshRate)
{
    for (int i = 0; i < inputParams.GetCount(); ++i)
    {
        inputValues.Add(inputParams[i]);
        inputMIDISettings.Add(inputParams[i]);
    }
    const DSP::IParamsInfo& outputsInfo = GetOutputParamsInfo();
    for (int i = 0; i < outputsInfo.GetCount(); ++i)
    {
        outputValues.Add(outputsInfo[i]);
        outputMIDISettings.Add(outputsInfo[i]);
        outputAutomationSettings.Add();
    }
    defaultSettings->CopyInputMIDISettings(inputMIDISettings);
    defaultSettings->CopyOutputMIDISettings(outputMIDISettings);
    defaultSettings->CopyOutputAutomationSettings(outputAutomationSettings);
    ApplyRefreshRate();
    MakePresets();
}

CAudioPluginInternalsBase::~CAudioPluginInternalsBase() = default;

void CAudioPluginInternalsBase::MakePresets()
{
    if (presetsData.LoadFromFile(defaultSettings->GetFactoryPresetsFile()))
    {
        presets = std::make_unique<CAudioPluginXMLPresets>(this);
    }
    else
    {
        presets = std::make_unique<CAudioPluginLegacyPresets>(this);
    }
}

void CAudioPluginInternalsBase::ApplyRefreshRate()
{
    const double hertz = defaultSettings->GetOutputRefreshRate();
    fallbackSync.SetRefreshRate(hertz);
    if (DSP::IOutputDataSync* sync = filter->GetOutputDataSync())
    {
        sync->SetRefreshRate(hertz);
    }
}

bool CAudioPluginInternalsBase::InitFilter(double sampleRate)
{
    bool ok = false;
    filter->Init(sampleRate, ok);
    fallbackSync.SetSampleRate(sampleRate);
    bypass.Init(filter->GetProcessInfo().GetOutputs().GetCount(), largestBlock);
    bypass.SetFadeLength(Core::TruncateToInt32(sampleRate * bypassFadeSeconds));
    captures.Prepare(*filter);
    return ok;
}

void CAudioPluginInternalsBase::Init(IInputParams& inputs_, IOutputParams& outputs_)
{
    inputs = &inputs_;
    outputs = &outputs_;
    model.Init(GetBindings());
}

CAudioPluginBindings CAudioPluginInternalsBase::GetBindings()
{
    CAudioPluginBindings bindings;
    bindings.inputsInfo = &inputParams;
    bindings.inputs = inputs;
    bindings.outputsInfo = &filter->GetOutputParamsInfo();
    bindings.outputs = outputs;
    bindings.inputMIDISettings = &inputMIDISettings;
    bindings.outputMIDISettings = &outputMIDISettings;
    bindings.outputAutomationSettings = &outputAutomationSettings;
    bindings.lastMIDIMessage = &lastMIDIMessage;
    bindings.outputCaptures = &captures;
    bindings.presets = presets.get();
    bindings.presetName = &currentPresetName;
    bindings.defaultSettings = defaultSettings.get();
    bindings.filter = filter.get();
    return bindings;
}

void CAudioPluginInternalsBase::SetInputValue(int index, float value)
{
    if (index >= 0 && index < std::min(inputParams.GetCount(), inputs->GetCount()))
    {
        SetWithinRange((*inputs)[index], inputParams[index], value);
    }
}

DSP::IOutputDataSync& CAudioPluginInternalsBase::GetOutputDataSync()
{
    DSP::IOutputDataSync* sync = filter->GetOutputDataSync();
    return sync == nullptr ? fallbackSync : *sync;
}

void CAudioPluginInternalsBase::AddProcessedSamples(int count)
{
    if (filter->GetOutputDataSync() == nullptr)
    {
        fallbackSync.AddSamples(count);
    }
}

void CAudioPluginInternalsBase::ProcessMIDI(const CMIDIEvent& event)
{
    midiInput.Process(event, GetActiveInputMIDISettings(), *inputs);
}

void CAudioPluginInternalsBase::PublishOutputParams(IMIDIOutput* midi)
{
    const DSP::IConstParamsValues& values = filter->GetOutputParams();
    const CMIDICCSettings& midiSettings = GetActiveOutputMIDISettings();
    const CAutomationSettings& automationSettings = GetActiveOutputAutomationSettings();
    const int count = std::min(
        {values.GetCount(), outputs->GetCount(), midiSettings.GetCount(), automationSettings.GetCount()});
    for (int i = 0; i < count; ++i)
    {
        const float value = values.GetValue(i);
        if (automationSettings[i].IsEnabled())
        {
            (*outputs)[i].Automate(value);
        }
        else
        {
            (*outputs)[i].SetValue(value);
        }
        if (midi != nullptr)
        {
            midiOutput.Process(value, midiSettings[i], *midi);
        }
    }
}

const CMIDICCSettings& CAudioPluginInternalsBase::GetActiveInputMIDISettings() const
{
    return useDefaultInputMIDI.GetValue() ? defaultSettings->GetInputMIDISettings() : inputMIDISettings;
}

const CMIDICCSettings& CAudioPluginInternalsBase::GetActiveOutputMIDISettings() const
{
    return useDefaultOutputMIDI.GetValue() ? defaultSettings->GetOutputMIDISettings() : outputMIDISettings;
}

const CAutomationSettings& CAudioPluginInternalsBase::GetActiveOutputAutomationSettings() const
{
    return useDefaultOutputAutomation.GetValue() ? defaultSettings->GetOutputAutomationSettings()
                                                 : outputAutomationSettings;
}

void CAudioPluginInternalsBase::ResetPresetMIDISettings()
{
    defaultSettings->CopyInputMIDISettings(inputMIDISettings);
    defaultSettings->CopyOutputMIDISettings(outputMIDISettings);
}

bool CAudioPluginInternalsBase::LoadFromPresetsData(const char* key)
{
    // No lock: whatever the file's object builds to find its keys was built when the list read the names.
    return presetsData.Read(key, static_cast<Serialization::IDeSerialize&>(*this));
}

} // namespace Mirel::Audio::Plugin
