#pragma once

#include <cstddef>
#include <cstdint>

/// The head of a state chunk in the host's memory; `size` bytes of data follow it at once. All integers are
/// in native byte order.
struct SAAXChunk
{
    std::uint32_t size;           ///< Bytes of data behind the head.
    std::int32_t version;         ///< The host's; a plug-in hands it through.
    std::uint32_t manufacturerId; ///< This and the next two are set by the host.
    std::uint32_t productId;
    std::uint32_t pluginId;
    std::uint32_t chunkId;
    char name[32]; ///< Padded with zeros.
};

static_assert(sizeof(SAAXChunk) == 56);
static_assert(offsetof(SAAXChunk, chunkId) == 20 && offsetof(SAAXChunk, name) == 24);

inline char* ChunkData(SAAXChunk* chunk)
{
    return reinterpret_cast<char*>(chunk) + sizeof(SAAXChunk);
}

inline const char* ChunkData(const SAAXChunk* chunk)
{
    return reinterpret_cast<const char*>(chunk) + sizeof(SAAXChunk);
}
