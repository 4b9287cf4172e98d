#pragma once

#include "AAXPlugin/Identity.h"

namespace MirelExt::AAXPlugin
{

inline constexpr std::uint32_t ControlsChunkId = FourCharacters("elck");
inline constexpr const char* ControlsChunkName = "Complete Controls State";

inline constexpr std::uint32_t StateChunkId = ManufacturerId;
inline constexpr const char* StateChunkName = "Tarnwell Plugin State";

/// The custom data under which the editor finds the instance's internals.
inline constexpr std::uint32_t InternalsDataId = FourCharacters("igui");

} // namespace MirelExt::AAXPlugin
