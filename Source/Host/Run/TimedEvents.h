#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Host
{

/// A new value of a parameter, before the first block that begins at or after a time.
struct CParamChange
{
    double seconds = 0.0; ///< From the start of what is played.
    std::string name;
    std::string value;
};

/// A MIDI message of three bytes, in the first block that begins at or after a time.
struct CMidiMessage
{
    double seconds = 0.0;
    std::uint8_t status = 0;
    std::uint8_t data1 = 0;
    std::uint8_t data2 = 0;
};

/// The whole text as a number, whatever the locale. False, with the number left alone, for anything else and
/// for what is not finite.
bool ParseNumber(std::string_view text, double& number);

/// NAME=VALUE. False with one line in `error`.
bool ParseParamChange(std::string_view text, CParamChange& change, std::string& error);

/// SECONDS:NAME=VALUE.
bool ParseTimedParamChange(std::string_view text, CParamChange& change, std::string& error);

/// SECONDS:STATUS,D1,D2, bytes in decimal or, after 0x, in hexadecimal.
bool ParseMidiMessage(std::string_view text, CMidiMessage& message, std::string& error);

/// Sizes of blocks in frames, with commas between them.
bool ParseBlockSizes(std::string_view text, std::vector<int>& sizes, std::string& error);

} // namespace Host
