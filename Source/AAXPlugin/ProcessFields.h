#pragma once

#include <cstdint>

namespace MirelExt::AAXPlugin
{

/// Indices of the fields of an instance record. The process procedure finds its fields by them, so their
/// order is fixed.
enum EProcessField : std::uint32_t
{
    FieldReserved = 0,       ///< Data-in port that nothing reads.
    FieldProcessContext = 1, ///< Data-in port whose packet holds the pointer to the process context.
    FieldAudioInputs = 2,
    FieldAudioOutputs = 3,
    FieldBufferLength = 4,
    FieldMidiInput = 5,
    FieldMidiOutput = 6
};

inline constexpr std::int32_t DataInPortType = 1;

/// Sizes of a port's packet in bytes.
inline constexpr std::uint32_t ReservedPacketSize = 4;
inline constexpr std::uint32_t PointerPacketSize = sizeof(void*);

inline constexpr std::uint32_t AllMidiChannels = 65535;

} // namespace MirelExt::AAXPlugin
