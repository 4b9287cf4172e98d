#pragma once

#include "Mirel/Audio/Plugin/MIDIEvents.h"
#include "Mirel/Audio/Plugin/SettingsLists.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"

#include <vector>

namespace Tests
{

/// A controller message on a channel from 1 to 16.
inline Mirel::Audio::Plugin::CMIDIEvent Controller(int channel, int number, int value)
{
    return {static_cast<std::uint8_t>(0xB0 + channel - 1), static_cast<std::uint8_t>(number),
            static_cast<std::uint8_t>(value)};
}

inline void Bind(Mirel::Audio::Plugin::CMIDICCSetting& setting, int channel, int number)
{
    setting.SetEnabled(true);
    setting.SetChannel(channel);
    setting.SetNumber(number);
}

/// Writes down what is sent.
class CRecordingMIDIOutput : public Mirel::Audio::Plugin::IMIDIOutput
{
public:
    CRecordingMIDIOutput() { events.reserve(1000); }
    void Post(const Mirel::Audio::Plugin::CMIDIEvent& event) override { events.push_back(event); }

    std::vector<Mirel::Audio::Plugin::CMIDIEvent> events;
};

} // namespace Tests
