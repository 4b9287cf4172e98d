#pragma once

#include <cstdint>

namespace MirelExt::AAXPlugin
{

/// The host's number for a channel layout with so many channels: 1 to 8, else the number for "none".
std::uint32_t StemFormatOf(int channels);

} // namespace MirelExt::AAXPlugin
