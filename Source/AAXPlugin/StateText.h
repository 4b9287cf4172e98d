#pragma once

#include "AAXPlugin/Interface/AAX_Chunk.h"
#include "Mirel/Serialization/DataStreams.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace MirelExt::AAXPlugin
{

/// The state of an instance as text, and the chunk that carries it. In such a chunk `size` is 58 more than
/// the text is long: one for the zero behind it, and 57 that readers take off again. So it counts more than
/// the text needs; sessions depend on it.

/// The text of an XML document; empty if the state could not be written.
std::string MakeStateText(const Mirel::Serialization::ISerialize& state);

/// Takes over the state of a text. False, with the state left alone, if the text cannot be read.
bool ReadStateText(std::string_view text, Mirel::Serialization::IDeSerialize& state);

/// Bytes of data in the chunk of a text.
std::size_t StateChunkSize(std::string_view text);

/// Fills in a chunk with room for StateChunkSize bytes of data.
void WriteStateChunk(std::string_view text, SAAXChunk& chunk);

/// The text in a chunk; empty if there is none.
std::string_view StateTextOf(const SAAXChunk& chunk);

} // namespace MirelExt::AAXPlugin
