#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <vector>

namespace Mirel::Math
{

/// The largest table that is read back: a minute of signal at the highest rates. A saved size beyond it is
/// damage, not a reason to allocate.
inline constexpr int maxTableSize = 1 << 24;

/// The entries of a table as a nested data object under the key "values": "valueCount", "value0", "value1",
/// ...
bool WriteTableValues(Serialization::IWriteDataStream& stream, const std::vector<float>& values);

/// Reads as many entries as the vector has; an entry that is missing keeps its value. False if the nested
/// object is missing or holds another count.
bool ReadTableValues(const Serialization::IReadDataStream& stream, std::vector<float>& values);

} // namespace Mirel::Math
