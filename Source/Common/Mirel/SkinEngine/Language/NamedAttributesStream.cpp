#include "Mirel/SkinEngine/Language/NamedAttributesStream.h"

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

using namespace Serialization;

class CSavedAttribute : public ISerializable
{
public:
    CSavedAttribute() = default;
    CSavedAttribute(std::string name_, std::string value_) : name(std::move(name_)), value(std::move(value_))
    {
    }

    bool Serialize(IWriteDataStream& stream) const override
    {
        const bool named = stream.Write("name", name.c_str());
        return stream.Write("value", value.c_str()) && named;
    }

    bool Deserialize(const IReadDataStream& stream) override
    {
        return ReadText(stream, "name", name) && ReadText(stream, "value", value);
    }

    std::string name;
    std::string value;
};

class CAttributesWriter : public ISerialize
{
public:
    explicit CAttributesWriter(const Containers::CNamedAttributes& attributes_) : attributes(&attributes_) {}

    bool Serialize(IWriteDataStream& stream) const override
    {
        bool complete = stream.Write("itemsCount", attributes->GetCount());
        int index = 0;
        attributes->Visit(
            [&](const std::string& name, const std::string& value)
            {
                const CSavedAttribute item(name, value);
                complete = stream.Write(IndexedKey("item", index++).c_str(), item) && complete;
            });
        return complete;
    }

private:
    const Containers::CNamedAttributes* attributes;
};

class CAttributesReader : public IDeSerialize
{
public:
    explicit CAttributesReader(Containers::CNamedAttributes& attributes_) : attributes(&attributes_) {}

    bool Deserialize(const IReadDataStream& stream) override
    {
        attributes->Clear();
        int count = 0;
        if (!stream.Read("itemsCount", count))
        {
            return false;
        }
        bool complete = true;
        CItemsBudget budget;
        for (int i = 0; i < count; ++i)
        {
            CSavedAttribute item;
            const bool found = stream.Read(IndexedKey("item", i).c_str(), static_cast<IDeSerialize&>(item));
            if (found)
            {
                attributes->Assign(item.name, std::move(item.value));
            }
            complete = complete && found;
            if (!budget.Note(found))
            {
                return false;
            }
        }
        return complete;
    }

private:
    Containers::CNamedAttributes* attributes;
};

} // namespace

bool WriteAttributes(IWriteDataStream& stream, const char* key,
                     const Containers::CNamedAttributes& attributes)
{
    return stream.Write(key, CAttributesWriter(attributes));
}

bool ReadAttributes(const IReadDataStream& stream, const char* key, Containers::CNamedAttributes& attributes)
{
    CAttributesReader reader(attributes);
    return stream.Read(key, static_cast<IDeSerialize&>(reader));
}

bool ReadText(const IReadDataStream& stream, const char* key, std::string& text)
{
    char* copy = nullptr;
    if (!stream.Read(key, copy))
    {
        return false;
    }
    const std::unique_ptr<char[]> owned(copy);
    text = copy == nullptr ? "" : copy;
    return true;
}

} // namespace Mirel::SkinEngine
