#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Audio/Plugin/CTimedModelObjects.h"
#include "Mirel/Audio/Plugin/IConstMIDICCMessage.h"
#include "Mirel/Audio/Plugin/SettingsLists.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

namespace Mirel::SkinEngine
{

template <>
struct TObjectInterface<Audio::Plugin::IConstMIDICCMessage>
{
    static constexpr const char* name = "IConstMIDICCMessage";
    static constexpr const char* kind = "message";
};

} // namespace Mirel::SkinEngine

namespace Mirel::Audio::Plugin
{

/// "midi.last_message" and its parameters ".channel" and ".cc".
bool AddLastMIDIMessage(CTimedModelObjects& objects, SkinEngine::ISkinModel& model,
                        const CMIDICCMessage& message);

/// How each parameter is bound to a controller: "PREFIX%d.channel", ".cc", ".min", ".max" and ".enabled".
bool AddMIDISettings(CTimedModelObjects& objects, const char* prefix, CMIDICCSettings& settings,
                     const DSP::IParamsInfo& infos);

} // namespace Mirel::Audio::Plugin
