#pragma once

#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Audio/Plugin/IPresets.h"
#include "Mirel/Audio/Plugin/PluginParams.h"
#include "Mirel/Audio/Plugin/SettingsLists.h"

namespace Mirel::Audio::Plugin
{

class CAudioPluginDefaultSettings;
class COutputCaptures;
class CPresetName;

/// All that a model of the plug-in can be bound to. The objects belong to the instance, which outlives its
/// model.
struct CAudioPluginBindings
{
    const DSP::IParamsInfo* inputsInfo = nullptr; ///< Bypass first.
    IInputParams* inputs = nullptr;
    const DSP::IParamsInfo* outputsInfo = nullptr;
    IOutputParams* outputs = nullptr;
    CMIDICCSettings* inputMIDISettings = nullptr;
    CMIDICCSettings* outputMIDISettings = nullptr;
    CAutomationSettings* outputAutomationSettings = nullptr;
    const CMIDICCMessage* lastMIDIMessage = nullptr;
    const COutputCaptures* outputCaptures = nullptr;
    IPresets* presets = nullptr;
    const CPresetName* presetName = nullptr;
    CAudioPluginDefaultSettings* defaultSettings = nullptr;
    const DSP::IFilter* filter = nullptr; ///< For its product and its channels.
};

} // namespace Mirel::Audio::Plugin
