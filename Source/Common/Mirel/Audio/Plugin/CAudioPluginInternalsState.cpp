// The state of an instance: the keys of presets and of the host's chunks, in their order.

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CInputParamsSerializer.h"
#include "Mirel/Audio/Plugin/Limits.h"
#include "Mirel/Audio/Plugin/PresetFiles.h"
#include "Mirel/Serialization/ReadText.h"

namespace Mirel::Audio::Plugin
{

namespace
{

using Serialization::IReadDataStream;
using Serialization::IWriteDataStream;

constexpr int StateVersion = 2;
constexpr const char* ItemName = "setting";

/// Whether the global settings apply, and the preset's own where they do not.
template <class List>
bool WriteBinding(IWriteDataStream& stream, const char* flagKey, const CSharedFlag& useDefault,
                  const char* listKey, const List& list)
{
    const bool usesDefault = useDefault.GetValue();
    const bool written = stream.Write(flagKey, usesDefault);
    return (usesDefault || list.Write(stream, listKey, ItemName)) && written;
}

/// The list is complete before the switch makes anybody follow it.
template <class List>
void ReadBinding(const IReadDataStream& stream, const char* flagKey, CSharedFlag& useDefault,
                 const char* listKey, List& list, const CAudioPluginDefaultSettings& defaults,
                 void (CAudioPluginDefaultSettings::*copyDefaults)(List&) const)
{
    bool usesDefault = true;
    stream.Read(flagKey, usesDefault);
    if (!usesDefault)
    {
        (defaults.*copyDefaults)(list);
        list.Read(stream, listKey, ItemName);
    }
    useDefault.SetValue(usesDefault);
}

} // namespace

bool CAudioPluginInternalsBase::Serialize(IWriteDataStream& stream) const
{
    bool written = stream.Write("version", StateVersion);
    written = stream.Write("progName", GetCurrentPresetName().c_str()) && written;
    written = SerializeInputs(stream) && written;
    written = WriteBinding(stream, "MIDIInputDefault", useDefaultInputMIDI, "MIDIInputSettings",
                           inputMIDISettings) &&
              written;
    written = WriteBinding(stream, "MIDIOutputDefault", useDefaultOutputMIDI, "MIDIOutputSettings",
                           outputMIDISettings) &&
              written;
    written = stream.Write("GUI", static_cast<const Serialization::ISerialize&>(editorState)) && written;
    written = stream.Write("model", static_cast<const Serialization::ISerialize&>(model)) && written;
    written = WriteBinding(stream, "AutomationOutputDefault", useDefaultOutputAutomation,
                           "AutomationOutputSettings", outputAutomationSettings) &&
              written;
    return written;
}

/// The bypass alone is a parameter of the plug-in, not of the filter: one without parameters has no inputs in
/// its state.
bool CAudioPluginInternalsBase::SerializeInputs(IWriteDataStream& stream) const
{
    if (filter->GetInputParamsInfo().GetCount() == 0)
    {
        return true;
    }
    const bool written = stream.Write("bypass", (*inputs)[0].GetValue());
    const CInputParamsSerializer params(inputParams, *inputs);
    return stream.Write("inputParams", static_cast<const Serialization::ISerialize&>(params)) && written;
}

bool CAudioPluginInternalsBase::Deserialize(const IReadDataStream& stream)
{
    // "version" is not looked at: all so far read the same way, and a later one may as far as it can.
    std::string name;
    const bool named = ReadText(stream, "progName", name) && name.size() <= CLimits::maxNameBytes;
    SetCurrentPresetName(named ? name : "Default");
    DeserializeInputs(stream);
    ReadBinding(stream, "MIDIInputDefault", useDefaultInputMIDI, "MIDIInputSettings", inputMIDISettings,
                *defaultSettings, &CAudioPluginDefaultSettings::CopyInputMIDISettings);
    ReadBinding(stream, "MIDIOutputDefault", useDefaultOutputMIDI, "MIDIOutputSettings", outputMIDISettings,
                *defaultSettings, &CAudioPluginDefaultSettings::CopyOutputMIDISettings);
    ReadOrReset(stream, "GUI", editorState);
    ReadOrReset(stream, "model", model);
    ReadBinding(stream, "AutomationOutputDefault", useDefaultOutputAutomation, "AutomationOutputSettings",
                outputAutomationSettings, *defaultSettings,
                &CAudioPluginDefaultSettings::CopyOutputAutomationSettings);
    DropWhatCannotBeSaved();
    return true;
}

void CAudioPluginInternalsBase::DeserializeInputs(const IReadDataStream& stream)
{
    float bypassed = 0.0f;
    if (inputs->GetCount() != 0)
    {
        bypassed = (*inputs)[0].GetValue();
    }
    if (stream.Read("bypass", bypassed))
    {
        SetInputValue(0, bypassed);
    }
    CInputParamsSerializer params(inputParams, *inputs);
    ReadOrReset(stream, "inputParams", params);
}

/// A kept part can be too much to be written again, although it could be read: escaped, it may take more
/// bytes than it came with. It must not cost the host the rest of the state from then on.
void CAudioPluginInternalsBase::DropWhatCannotBeSaved()
{
    std::string text;
    if (!StateToText(*this, text))
    {
        editorState.DropKept();
        model.DropKeptState();
    }
}

} // namespace Mirel::Audio::Plugin
