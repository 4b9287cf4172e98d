#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <string>

namespace Mirel::Serialization
{

/// Reads a text; a stored null becomes the empty one. False, with the text left alone, if there is none.
bool ReadText(const IReadDataStream& stream, const char* key, std::string& text);

} // namespace Mirel::Serialization
