#include "Mirel/SkinEngine/Language/CDefineParser.h"

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/SkinEngine/Language/NamedAttributesStream.h"

#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

constexpr const char* baseTypeName = "base_type";

/// An entry as it is saved.
class CSavedDefinition : public Serialization::ISerializable
{
public:
    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        const bool named = stream.Write("name", name.c_str());
        return WriteAttributes(stream, "attributes", attributes) && named;
    }

    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        return ReadText(stream, "name", name) && ReadAttributes(stream, "attributes", attributes);
    }

    std::string name;
    CNamedAttributes attributes;
};

} // namespace

bool CDefineParser::Define(const char* name, const CNamedAttributes& attributes)
{
    const char* baseType = attributes.Get(baseTypeName);
    const std::string element = name;
    if (baseType == nullptr)
    {
        log->Post(
            CMessageKind::Error,
            (element + ": invalid definition, the mandatory 'base_type' attribute is not defined").c_str(),
            0);
        return false;
    }
    if (element == baseType)
    {
        log->Post(CMessageKind::Error,
                  (element + ": base_type cannot be the same as the defined element name.").c_str(), 0);
        return false;
    }
    const auto [entry, isNew] = definitions.try_emplace(element, attributes);
    if (!isNew)
    {
        CNamedAttributes& stored = entry->second;
        attributes.Visit([&stored](const std::string& key, const std::string& value)
                         { stored.Assign(key, value); });
        log->Post(CMessageKind::Warning,
                  (element + ": this element has already been defined. "
                             "The new definition overrides the previous one.")
                      .c_str(),
                  0);
    }
    return true;
}

const char* CDefineParser::TranslateStart(const char* name, CNamedAttributes& attributes) const
{
    const auto entry = definitions.find(name);
    if (entry == definitions.end())
    {
        return nullptr;
    }
    entry->second.Visit(
        [&attributes](const std::string& key, const std::string& value)
        {
            if (attributes.Get(key.c_str()) == nullptr)
            {
                attributes.Assign(key, value);
            }
        });
    return entry->second.Get(baseTypeName);
}

const char* CDefineParser::TranslateEnd(const char* name) const
{
    const auto entry = definitions.find(name);
    return entry == definitions.end() ? nullptr : entry->second.Get(baseTypeName);
}

void CDefineParser::Undefine(const char* name)
{
    const auto entry = definitions.find(name);
    if (entry != definitions.end())
    {
        definitions.erase(entry);
    }
}

bool CDefineParser::Serialize(Serialization::IWriteDataStream& stream) const
{
    bool complete = stream.Write("itemsCount", static_cast<int>(definitions.size()));
    int index = 0;
    for (const auto& [name, attributes] : definitions)
    {
        CSavedDefinition item;
        item.name = name;
        item.attributes = attributes;
        complete = stream.Write(Serialization::IndexedKey("item", index++).c_str(), item) && complete;
    }
    return complete;
}

bool CDefineParser::Deserialize(const Serialization::IReadDataStream& stream)
{
    definitions.clear();
    int count = 0;
    if (!stream.Read("itemsCount", count))
    {
        return false;
    }
    bool complete = true;
    Serialization::CItemsBudget budget;
    for (int i = 0; i < count; ++i)
    {
        CSavedDefinition item;
        const std::string key = Serialization::IndexedKey("item", i);
        // A definition without its base type would lead nowhere.
        const bool found = stream.Read(key.c_str(), static_cast<Serialization::IDeSerialize&>(item)) &&
                           item.attributes.Get(baseTypeName) != nullptr;
        if (found)
        {
            definitions.insert_or_assign(std::move(item.name), std::move(item.attributes));
        }
        complete = complete && found;
        if (!budget.Note(found))
        {
            return false;
        }
    }
    return complete;
}

} // namespace Mirel::SkinEngine
