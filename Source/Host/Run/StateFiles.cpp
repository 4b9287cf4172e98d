#include "Host/Run/StateFiles.h"

#include "AAXPlugin/Interface/AAX_Chunk.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/WholeFile.h"

#include <cstddef>
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

bool Fail(std::string& error, const std::string& what, const std::string& path)
{
    error = what + " \"" + path + '"';
    return false;
}

bool WriteBytes(const std::string& path, std::string_view bytes, std::string& error)
{
    return Mirel::Serialization::WriteFileWhole(path.c_str(), bytes) || Fail(error, "cannot write", path);
}

/// A plug-in ignores what it cannot read, without a word; so the host looks first.
bool IsDocument(std::string_view text)
{
    return Mirel::Serialization::CXmlDataObject("Preset").LoadFromMemory(text.data(), text.size());
}

bool IsStateChunk(const std::vector<char>& bytes)
{
    SAAXChunk head = {};
    if (bytes.size() < sizeof(head) + BesideText)
    {
        return false;
    }
    std::memcpy(&head, bytes.data(), sizeof(head));
    return head.chunkId == StateChunk && head.size == bytes.size() - sizeof(head) &&
           IsDocument({bytes.data() + sizeof(head), head.size - BesideText});
}

/// The chunk with that text as a plug-in's own would be.
std::vector<char> MakeStateChunk(std::string_view text)
{
    SAAXChunk head = {};
    head.size = static_cast<std::uint32_t>(text.size() + BesideText);
    head.chunkId = StateChunk;
    std::vector<char> bytes(sizeof(head) + head.size);
    std::memcpy(bytes.data(), &head, sizeof(head));
    std::memcpy(bytes.data() + sizeof(head), text.data(), text.size());
    return bytes;
}

} // namespace

bool SaveState(CHostInstance& instance, const std::string& path, std::string& error)
{
    std::vector<char> bytes;
    return instance.SaveChunk(StateChunk, bytes, error) &&
           WriteBytes(path, {bytes.data(), bytes.size()}, error);
}

bool LoadState(CHostInstance& instance, const std::string& path, std::string& error)
{
    std::string content;
    if (!Mirel::Serialization::ReadFileWhole(path.c_str(), LargestFile, content))
    {
        return Fail(error, "cannot read", path);
    }
    const std::vector<char> bytes(content.begin(), content.end());
    if (!IsStateChunk(bytes))
    {
        return Fail(error, "damaged state in", path);
    }
    // The result says nothing: a plug-in gives that of the chunks that hosts interpret, of which this is
    // none.
    instance.LoadChunk(bytes);
    return true;
}

bool SavePreset(CHostInstance& instance, const std::string& path, std::string& error)
{
    std::vector<char> bytes;
    if (!instance.SaveChunk(StateChunk, bytes, error))
    {
        return false;
    }
    if (!IsStateChunk(bytes))
    {
        return Fail(error, "the plug-in gave no state for", path);
    }
    const std::size_t head = sizeof(SAAXChunk);
    return WriteBytes(path, {bytes.data() + head, bytes.size() - head - BesideText}, error);
}

bool LoadPreset(CHostInstance& instance, const std::string& path, std::string& error)
{
    std::string text;
    if (!Mirel::Serialization::ReadFileWhole(path.c_str(), LargestFile, text))
    {
        return Fail(error, "cannot read", path);
    }
    if (!IsDocument(text))
    {
        return Fail(error, "damaged preset in", path);
    }
    instance.LoadChunk(MakeStateChunk(text));
    return true;
}

} // namespace Host
