#pragma once

#include "Mirel/Serialization/DataStreams.h"
#include "Require.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Fuzz
{

using Mirel::Serialization::IDeSerialize;
using Mirel::Serialization::IReadDataStream;

inline constexpr const char* keys[] = {"a", "b", "k", "name", "Item0", "ItemsCount", "value", "type", ""};

/// The string under the key; empty-handed if there is none.
inline std::optional<std::string> ReadString(const IReadDataStream& stream, const char* key)
{
    char* text = nullptr;
    if (!stream.Read(key, text))
    {
        return std::nullopt;
    }
    const std::unique_ptr<char[]> holder(text);
    return text == nullptr ? std::string() : std::string(text);
}

/// Reads every kind of value under every key, and so on in the nested objects, and gathers what texts it
/// finds.
class CReadAll : public IDeSerialize
{
public:
    explicit CReadAll(int depth_ = 0) : depth(depth_) {}

    bool Deserialize(const IReadDataStream& stream) override
    {
        for (const char* key : keys)
        {
            ReadNumbers(stream, key);
            found += ReadString(stream, key).value_or("none") + "\n";
            constexpr int maxDepth = 3;
            CReadAll nested(depth + 1);
            if (depth < maxDepth && stream.Read(key, static_cast<IDeSerialize&>(nested)))
            {
                Require(stream.Exists(key));
                found += "{" + nested.found + "}";
            }
        }
        return true;
    }

    const std::string& GetFound() const { return found; }

private:
    static void ReadNumbers(const IReadDataStream& stream, const char* key)
    {
        bool flag = false;
        int number = 0;
        float single = 0.0F;
        double wide = 0.0;
        void* bytes = nullptr;
        unsigned size = 0;
        stream.Read(key, flag);
        stream.Read(key, number);
        stream.Read(key, single);
        stream.Read(key, wide);
        if (stream.Read(key, bytes, size))
        {
            Require(bytes != nullptr || size == 0);
            delete[] static_cast<char*>(bytes);
        }
    }

    int depth;
    std::string found;
};

inline std::string ContentOf(const IReadDataStream& stream)
{
    CReadAll reader;
    reader.Deserialize(stream);
    return reader.GetFound();
}

/// What was loaded is the same after it was saved and loaded again; what was written is read back the same.
/// Object is CXmlDataObject or CIniDataObject, made by make.
template <class Make>
void CheckTextForm(const std::string& document, const std::string& value, Make make)
{
    auto object = make();
    const bool loaded = object->LoadFromMemory(document.data(), document.size());
    const std::string content = ContentOf(*object);
    std::string first;
    if (loaded && object->SaveToText(first))
    {
        auto again = make();
        Require(again->LoadFromMemory(first.data(), first.size()));
        Require(ContentOf(*again) == content);
    }
    const std::string stored = value.substr(0, value.find('\0'));
    std::vector<const char*> written;
    for (const char* key : keys)
    {
        if (object->Write(key, stored.c_str()))
        {
            written.push_back(key);
        }
    }
    std::string text;
    if (object->SaveToText(text))
    {
        auto again = make();
        Require(again->LoadFromMemory(text.data(), text.size()));
        for (const char* key : written)
        {
            Require(ReadString(*again, key) == stored);
        }
    }
    object->Remove("k");
    Require(!object->Exists("k") || loaded);
    object->Clear();
    Require(!object->Exists("a"));
}

} // namespace Fuzz
