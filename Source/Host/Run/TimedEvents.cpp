#include "Host/Run/TimedEvents.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace Host
{

namespace
{

/// The largest block that a host may hand over.
constexpr int LargestBlock = 65536;

std::string Quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

template <class TNumber, class... TFormat>
bool ParseWhole(std::string_view text, TNumber& number, TFormat... format)
{
    TNumber read = {};
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), read, format...);
    if (failure != std::errc() || end != text.data() + text.size())
    {
        return false;
    }
    number = read;
    return true;
}

bool ParseByte(std::string_view text, std::uint8_t& byte)
{
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    return hexadecimal ? ParseWhole(text.substr(2), byte, 16) : ParseWhole(text, byte, 10);
}

/// What stands before the separator, which goes with it; all of the text if there is none.
std::string_view TakeUpTo(std::string_view& text, char separator)
{
    const std::size_t length = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

bool TakeTime(std::string_view& text, double& seconds)
{
    return text.find(':') != std::string_view::npos && ParseNumber(TakeUpTo(text, ':'), seconds) &&
           seconds >= 0.0;
}

} // namespace

bool ParseNumber(std::string_view text, double& number)
{
    double read = 0.0;
    if (!ParseWhole(text, read, std::chars_format::general) || !std::isfinite(read))
    {
        return false;
    }
    number = read;
    return true;
}

bool ParseParamChange(std::string_view text, CParamChange& change, std::string& error)
{
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0 || equals + 1 == text.size())
    {
        error = Quoted(text) + " is not NAME=VALUE";
        return false;
    }
    change.name = text.substr(0, equals);
    change.value = text.substr(equals + 1);
    return true;
}

bool ParseTimedParamChange(std::string_view text, CParamChange& change, std::string& error)
{
    std::string_view rest = text;
    if (!TakeTime(rest, change.seconds) || !ParseParamChange(rest, change, error))
    {
        error = Quoted(text) + " is not SECONDS:NAME=VALUE";
        return false;
    }
    return true;
}

bool ParseMidiMessage(std::string_view text, CMidiMessage& message, std::string& error)
{
    constexpr std::uint8_t firstStatus = 0x80;
    std::string_view rest = text;
    if (std::count(text.begin(), text.end(), ',') != 2 || !TakeTime(rest, message.seconds) ||
        !ParseByte(TakeUpTo(rest, ','), message.status) || !ParseByte(TakeUpTo(rest, ','), message.data1) ||
        !ParseByte(rest, message.data2))
    {
        error = Quoted(text) + " is not SECONDS:STATUS,D1,D2";
        return false;
    }
    if (message.status < firstStatus || message.data1 >= firstStatus || message.data2 >= firstStatus)
    {
        error = Quoted(text) + " is no MIDI message: a status is 128 to 255, its data are 0 to 127";
        return false;
    }
    return true;
}

bool ParseBlockSizes(std::string_view text, std::vector<int>& sizes, std::string& error)
{
    std::vector<int> read;
    std::string_view rest = text;
    for (auto count = std::count(text.begin(), text.end(), ',') + 1; count > 0; --count)
    {
        int size = 0;
        if (!ParseWhole(TakeUpTo(rest, ','), size, 10) || size < 0 || size > LargestBlock)
        {
            error = Quoted(text) + " is no list of block sizes: numbers from 0 to " +
                    std::to_string(LargestBlock);
            return false;
        }
        read.push_back(size);
    }
    if (std::all_of(read.begin(), read.end(), [](int size) { return size == 0; }))
    {
        error = Quoted(text) + " would never come to an end: one block at least must not be empty";
        return false;
    }
    sizes = std::move(read);
    return true;
}

} // namespace Host
