#pragma once

namespace Mirel::Audio::Plugin
{

// The parts of a MIDI message that controllers need.
inline constexpr int MIDIKindMask = 0xF0;
inline constexpr int MIDIChannelMask = 0x0F;
inline constexpr int MIDIDataMask = 0x7F;
inline constexpr int MIDIController = 0xB0;

} // namespace Mirel::Audio::Plugin
