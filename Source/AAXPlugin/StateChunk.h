#pragma once

#include "AAXPlugin/Interface/AAX_Chunk.h"

#include <cstddef>
#include <string_view>

namespace MirelExt::AAXPlugin
{

/// The chunk that carries the text of a state. Its `size` is 58 more than the text is long: one for the zero
/// behind it, and 57 that readers take off again. So it counts more than the text needs; sessions depend on
/// it.

/// Bytes of data in the chunk of a text.
std::size_t StateChunkSize(std::string_view text);

/// Fills in a chunk with room for StateChunkSize bytes of data.
void WriteStateChunk(std::string_view text, SAAXChunk& chunk);

/// The text in a chunk; empty if there is none.
std::string_view StateTextOf(const SAAXChunk& chunk);

} // namespace MirelExt::AAXPlugin
