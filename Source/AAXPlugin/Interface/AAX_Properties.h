#pragma once

#include <cstdint>

/// Numbers of the properties that a process procedure is declared with.
namespace AAXProperty
{

inline constexpr std::uint32_t ManufacturerId = 11;
inline constexpr std::uint32_t ProductId = 12;
inline constexpr std::uint32_t PluginId = 13;
inline constexpr std::uint32_t InputStemFormat = 51;
inline constexpr std::uint32_t OutputStemFormat = 52;
inline constexpr std::uint32_t Flag = 60;

} // namespace AAXProperty
