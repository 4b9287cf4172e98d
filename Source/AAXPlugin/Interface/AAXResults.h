#pragma once

#include <cstdint>

/// Results of all calls between host and module. 0 is success; every other value is a failure unless a call
/// says otherwise.
namespace AAXResult
{

inline constexpr std::int32_t Ok = 0;

/// A null argument, or a thing that could not be made or registered.
inline constexpr std::int32_t Failed = -20004;

/// A chunk identifier that the plug-in does not know.
inline constexpr std::int32_t UnknownChunk = -20007;

/// A chunk whose size is not the one that was announced.
inline constexpr std::int32_t WrongChunkSize = -20008;

/// An interface or operation that is not offered.
inline constexpr std::int32_t Unsupported = -20009;

/// An exception was caught at the boundary.
inline constexpr std::int32_t Unexpected = static_cast<std::int32_t>(0x8000FFFFU);

} // namespace AAXResult
