#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Serialization/DataStreams.h"

#include <string>

namespace Mirel::SkinEngine
{

/// Writes the attributes as a nested object under the key: "itemsCount" and for each an object "item" with
/// its index, which holds "name" and "value".
bool WriteAttributes(Serialization::IWriteDataStream& stream, const char* key,
                     const Containers::CNamedAttributes& attributes);

/// Reads them back in the place of what is held. False if some could not be read.
bool ReadAttributes(const Serialization::IReadDataStream& stream, const char* key,
                    Containers::CNamedAttributes& attributes);

/// Reads a text; false, with the target as it was, if there is none.
bool ReadText(const Serialization::IReadDataStream& stream, const char* key, std::string& text);

} // namespace Mirel::SkinEngine
