#include "AAXPlugin/StateChunk.h"

#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/ChunkName.h"

#include <cstring>

namespace MirelExt::AAXPlugin
{

namespace
{

constexpr std::size_t ReaderOffset = 57;
constexpr std::size_t TerminatingZero = 1;

} // namespace

std::size_t StateChunkSize(std::string_view text)
{
    return text.size() + TerminatingZero + ReaderOffset;
}

void WriteStateChunk(std::string_view text, SAAXChunk& chunk)
{
    const std::size_t size = StateChunkSize(text);
    chunk.size = static_cast<std::uint32_t>(size);
    chunk.chunkId = StateChunkId;
    SetChunkName(chunk, StateChunkName);
    std::memset(ChunkData(&chunk), 0, size);
    text.copy(ChunkData(&chunk), text.size());
}

std::string_view StateTextOf(const SAAXChunk& chunk)
{
    if (chunk.size <= ReaderOffset)
    {
        return {};
    }
    const char* text = ChunkData(&chunk);
    return {text, strnlen(text, chunk.size - ReaderOffset)};
}

} // namespace MirelExt::AAXPlugin
