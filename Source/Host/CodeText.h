#pragma once

#include <cstdint>
#include <string>

namespace Host
{

/// The line that tells of a call which the plug-in answered with a failure.
inline std::string CodeText(const char* call, std::int32_t code)
{
    return std::string(call) + " failed with code " + std::to_string(code);
}

} // namespace Host
