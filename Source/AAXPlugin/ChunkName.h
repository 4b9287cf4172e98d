#pragma once

#include "AAXPlugin/Interface/AAX_Chunk.h"

#include <algorithm>
#include <string_view>

namespace MirelExt::AAXPlugin
{

/// Names a chunk, with zeros behind the name to the end of the field.
inline void SetChunkName(SAAXChunk& chunk, std::string_view name)
{
    std::fill(std::begin(chunk.name), std::end(chunk.name), '\0');
    name.copy(chunk.name, sizeof(chunk.name) - 1);
}

} // namespace MirelExt::AAXPlugin
