#pragma once

#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Audio/Plugin/MIDIEvents.h"
#include "Mirel/Audio/Plugin/PluginParams.h"
#include "Mirel/Audio/Plugin/SettingsLists.h"

namespace Mirel::Audio::Plugin
{

/// Moves the input parameters that are bound to MIDI controllers. Audio thread; nothing is allocated or
/// waited for, as far as the parameters do neither.
class CMIDIInputMapping
{
public:
    /// The message is not owned; it takes each controller message received.
    explicit CMIDIInputMapping(CMIDICCMessage& lastMessage_);

    /// Has every parameter follow whose setting is enabled and names the event's channel and controller.
    /// Events other than controller messages are ignored. Setting and parameter of an index belong together.
    void Process(const CMIDIEvent& event, const CMIDICCSettings& settings, IInputParams& params) const;

private:
    CMIDICCMessage* lastMessage;
};

} // namespace Mirel::Audio::Plugin
