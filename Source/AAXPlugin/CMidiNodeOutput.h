#pragma once

#include "AAXPlugin/Interface/IAAXMidiNode.h"
#include "Mirel/Audio/Plugin/MIDIEvents.h"

namespace MirelExt::AAXPlugin
{

/// Sends messages to a MIDI node of the host, at the start of the block. Audio thread.
class CMidiNodeOutput : public Mirel::Audio::Plugin::IMIDIOutput
{
public:
    explicit CMidiNodeOutput(IAAXMidiNode& node_) : node(node_) {}

    void Post(const Mirel::Audio::Plugin::CMIDIEvent& event) override
    {
        const SMidiEvent packet = MakeMidiEvent(0, event.status, event.data1, event.data2);
        node.PostEvent(&packet);
    }

private:
    IAAXMidiNode& node;
};

} // namespace MirelExt::AAXPlugin
