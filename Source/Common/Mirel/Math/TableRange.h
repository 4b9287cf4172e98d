#pragma once

#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Math
{

/// Writes the range of a table function under "xMin" and "xMax".
bool WriteTableRange(Serialization::IWriteDataStream& stream, float xMin, float xMax);

/// Reads it back. False, with the numbers as they were, if either is missing or if a table of that range
/// could not be read: its ends are not finite and in order, or too close to tell positions apart.
bool ReadTableRange(const Serialization::IReadDataStream& stream, float& xMin, float& xMax);

} // namespace Mirel::Math
