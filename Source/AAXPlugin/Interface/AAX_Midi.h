#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// One MIDI event as it lies in a node's list: 14 bytes without gaps, so that the numbers in it stand on no
/// boundary and are kept as their bytes, in native order.
struct SMidiEvent
{
    std::uint8_t timestamp[4]; ///< In samples from the start of the block.
    std::uint8_t length[4];    ///< Bytes of `data` that count, 1 to 4.
    std::uint8_t data[4];      ///< The status byte, then the data bytes.
    std::uint8_t immediate;    ///< Not 0: to be sent at once, whatever the timestamp.
    std::uint8_t reserved;
};

static_assert(sizeof(SMidiEvent) == 14 && alignof(SMidiEvent) == 1);
static_assert(offsetof(SMidiEvent, data) == 8);

/// A message of three bytes at a place in the block.
inline SMidiEvent MakeMidiEvent(std::uint32_t timestamp, std::uint8_t status, std::uint8_t data1,
                                std::uint8_t data2)
{
    constexpr std::uint32_t length = 3;
    SMidiEvent event = {{}, {}, {status, data1, data2, 0}, 0, 0};
    std::memcpy(event.timestamp, &timestamp, sizeof(timestamp));
    std::memcpy(event.length, &length, sizeof(length));
    return event;
}
