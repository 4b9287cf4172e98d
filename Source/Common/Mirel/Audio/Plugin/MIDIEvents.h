#pragma once

#include <cstdint>

namespace Mirel::Audio::Plugin
{

/// A short MIDI message, whatever host it comes from or goes to.
struct CMIDIEvent
{
    std::uint8_t status = 0; ///< Kind in the high four bits, channel less one in the low four.
    std::uint8_t data1 = 0;
    std::uint8_t data2 = 0;
};

/// Where messages go out. Called on the audio thread: must neither wait nor allocate.
class IMIDIOutput
{
public:
    virtual void Post(const CMIDIEvent& event) = 0;
    virtual ~IMIDIOutput() = default;
};

} // namespace Mirel::Audio::Plugin
