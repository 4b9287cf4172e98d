#include "Host/Run/StateFiles.h"

#include "AAXPlugin/Interface/AAX_Chunk.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/WholeFile.h"

#include <cstring>
#include <string_view>
#include <vector>

namespace Host
{

namespace
{

constexpr std::uint32_t StateChunk = 0x746E776C; ///< 'tnwl'.

/// The size of a state chunk counts its text, and this: the terminating zero, and the 57 that readers take
/// off again.
constexpr std::size_t BesideText = 58;

constexpr std::size_t LargestFile = 64U << 20U;

/// A chunk in memory that is aligned for its head.
class CChunk
{
public:
    explicit CChunk(std::size_t dataSize) : words((sizeof(SAAXChunk) + dataSize + 7) / 8) {}

    SAAXChunk* Get() { return reinterpret_cast<SAAXChunk*>(words.data()); }
    char* GetBytes() { return reinterpret_cast<char*>(words.data()); }

private:
    std::vector<std::uint64_t> words;
};

bool Fail(std::string& error, const std::string& what, const std::string& path)
{
    error = what + " \"" + path + '"';
    return false;
}

/// The state chunk of the instance; the data size in `size`.
bool GetChunk(AAX_IEffectParameters& parameters, CChunk& chunk, std::uint32_t& size)
{
    if (parameters.GetChunkSize(StateChunk, &size) != AAXResult::Ok)
    {
        return false;
    }
    chunk = CChunk(size);
    return parameters.GetChunk(StateChunk, chunk.Get()) == AAXResult::Ok;
}

/// A plug-in ignores what it cannot read, without a word; so the host looks first.
bool IsDocument(const char* text, std::size_t length)
{
    return Mirel::Serialization::CXmlDataObject("Preset").LoadFromMemory(text, length);
}

void Put(AAX_IEffectParameters& parameters, CChunk& chunk)
{
    // The result is that of the plug-in's own list of chunks, which the state chunk is never in.
    static_cast<void>(parameters.SetChunk(StateChunk, chunk.Get()));
}

} // namespace

bool SaveState(AAX_IEffectParameters& parameters, const std::string& path, std::string& error)
{
    CChunk chunk(0);
    std::uint32_t size = 0;
    if (!GetChunk(parameters, chunk, size))
    {
        return Fail(error, "the plug-in gave no state for", path);
    }
    const std::string_view bytes(chunk.GetBytes(), sizeof(SAAXChunk) + size);
    return Mirel::Serialization::WriteFileWhole(path.c_str(), bytes) || Fail(error, "cannot write", path);
}

bool LoadState(AAX_IEffectParameters& parameters, const std::string& path, std::string& error)
{
    std::string bytes;
    if (!Mirel::Serialization::ReadFileWhole(path.c_str(), LargestFile, bytes))
    {
        return Fail(error, "cannot read", path);
    }
    CChunk chunk(bytes.size());
    std::memcpy(chunk.GetBytes(), bytes.data(), bytes.size());
    const bool whole = bytes.size() >= sizeof(SAAXChunk) + BesideText &&
                       chunk.Get()->size == bytes.size() - sizeof(SAAXChunk) &&
                       chunk.Get()->chunkId == StateChunk;
    if (!whole || !IsDocument(ChunkData(chunk.Get()), chunk.Get()->size - BesideText))
    {
        return Fail(error, "damaged state in", path);
    }
    Put(parameters, chunk);
    return true;
}

bool SavePreset(AAX_IEffectParameters& parameters, const std::string& path, std::string& error)
{
    CChunk chunk(0);
    std::uint32_t size = 0;
    if (!GetChunk(parameters, chunk, size) || size < BesideText)
    {
        return Fail(error, "the plug-in gave no state for", path);
    }
    const std::string_view text(ChunkData(chunk.Get()), size - BesideText);
    return Mirel::Serialization::WriteFileWhole(path.c_str(), text) || Fail(error, "cannot write", path);
}

bool LoadPreset(AAX_IEffectParameters& parameters, const std::string& path, std::string& error)
{
    std::string text;
    if (!Mirel::Serialization::ReadFileWhole(path.c_str(), LargestFile, text))
    {
        return Fail(error, "cannot read", path);
    }
    if (!IsDocument(text.data(), text.size()))
    {
        return Fail(error, "damaged preset in", path);
    }
    CChunk chunk(text.size() + BesideText);
    chunk.Get()->size = static_cast<std::uint32_t>(text.size() + BesideText);
    chunk.Get()->chunkId = StateChunk;
    std::memcpy(ChunkData(chunk.Get()), text.c_str(), text.size() + 1);
    Put(parameters, chunk);
    return true;
}

} // namespace Host
