// A memory object read from an XML document or from a stream that makes up its answers from the input's
// bytes.

#include "DataObjectChecks.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/IndexedKey.h"

#include <cstddef>
#include <cstring>
#include <string_view>

namespace
{

using namespace Mirel::Serialization;

/// Answers every read with the next bytes of the input, until they are used up.
class CByteStream : public IReadDataStream
{
public:
    explicit CByteStream(std::string_view bytes_) : bytes(bytes_) {}

    bool Read(const char*, bool& value) const override
    {
        value = Next() % 2 != 0;
        return !bytes.empty();
    }
    bool Read(const char* key, int& value) const override
    {
        const int byte = Next();
        // Counts near the limits as well as small ones; kinds with some that there are not.
        value = std::strcmp(key, "ItemsCount") == 0 && byte > 200 ? (byte - 200) * 10000 : byte % 16 - 1;
        return !bytes.empty();
    }
    bool Read(const char*, float& value) const override
    {
        value = static_cast<float>(Next());
        return !bytes.empty();
    }
    bool Read(const char*, double& value) const override
    {
        value = Next();
        return !bytes.empty();
    }
    bool Read(const char*, char*& value) const override
    {
        const std::string_view taken = Take();
        value = new char[taken.size() + 1]();
        std::copy(taken.begin(), taken.end(), value);
        return true;
    }
    bool Read(const char*, void*& data, unsigned& size) const override
    {
        const std::string_view taken = Take();
        size = static_cast<unsigned>(taken.size());
        data = taken.empty() ? nullptr : new char[taken.size()];
        std::copy(taken.begin(), taken.end(), static_cast<char*>(data));
        return true;
    }
    bool Read(const char*, IDeSerialize& object) const override
    {
        constexpr int maxDepth = 64;
        if (bytes.empty() || depth == maxDepth)
        {
            return false;
        }
        ++depth;
        const bool read = object.Deserialize(*this);
        --depth;
        return read;
    }
    bool Exists(const char*) const override { return !bytes.empty(); }

private:
    int Next() const
    {
        if (bytes.empty())
        {
            return 0;
        }
        const auto byte = static_cast<unsigned char>(bytes.front());
        bytes.remove_prefix(1);
        return byte;
    }

    std::string_view Take() const
    {
        constexpr int longest = 12;
        const std::string_view taken = bytes.substr(0, static_cast<std::size_t>(Next() % longest));
        bytes.remove_prefix(std::min(taken.size(), bytes.size()));
        return taken;
    }

    mutable std::string_view bytes;
    mutable int depth = 0;
};

/// Every typed read and comparison of one value.
void UseBuffer(const CDataBuffer& buffer)
{
    bool flag = false;
    int number = 0;
    float single = 0.0F;
    double wide = 0.0;
    char* text = nullptr;
    void* bytes = nullptr;
    unsigned size = 0;
    Fuzz::CReadAll nested;
    Fuzz::Require(!buffer.Get(flag) || buffer.IsEqual(flag));
    Fuzz::Require(!buffer.Get(number) || buffer.IsEqual(number));
    Fuzz::Require(!buffer.Get(single) || buffer.IsEqual(single));
    Fuzz::Require(!buffer.Get(wide) || buffer.IsEqual(wide));
    if (buffer.Get(text))
    {
        Fuzz::Require(buffer.IsEqual(static_cast<const char*>(text)));
        delete[] text;
    }
    if (buffer.Get(bytes, size))
    {
        Fuzz::Require(buffer.IsEqual(static_cast<const void*>(bytes), size));
        delete[] static_cast<char*>(bytes);
    }
    buffer.Get(static_cast<IDeSerialize&>(nested));
}

void UseObject(const CMemDataObject& object)
{
    CMemDataObject flat;
    object.Serialize(flat);
    for (int i = 0; i < object.GetCount(); ++i)
    {
        const auto name = Fuzz::ReadString(flat, IndexedKey("ItemName", i).c_str());
        Fuzz::Require(name.has_value());
        UseBuffer(*object.Find(name->c_str()));
    }
    CMemDataObject copy;
    Fuzz::Require(!copy.Deserialize(flat) || copy.GetCount() == object.GetCount());
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::string input(data + 1, data + size);
    CMemDataObject object;
    constexpr int modes = 3;
    const int choice = data[0] % (modes + 1);
    if (choice == modes)
    {
        object.Deserialize(CByteStream(input));
    }
    else
    {
        CXmlDataObject xml("Root", choice);
        xml.LoadFromMemory(input.data(), input.size());
        object.Deserialize(xml);
    }
    UseObject(object);
    return 0;
}
