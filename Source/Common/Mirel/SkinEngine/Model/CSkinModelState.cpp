#include "Mirel/SkinEngine/Model/CSkinModelState.h"

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/ItemStreams.h"
#include "Mirel/Serialization/ReadText.h"

#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

using namespace Serialization;

constexpr int FormatVersion = 2;
constexpr int FirstVersionWithCollections = 2;

bool WriteValue(IWriteDataStream& stream, const std::string& value)
{
    return stream.Write("value", value.c_str());
}

template <class F>
bool WriteValue(IWriteDataStream& stream, const std::unique_ptr<F>& value)
{
    return WriteItem(stream, "value", static_cast<const ITypeSerializable*>(value.get()));
}

template <class T>
bool WriteValue(IWriteDataStream& stream, const T& value)
{
    return stream.Write("value", value);
}

bool ReadValue(const IReadDataStream& stream, std::string& value)
{
    return ReadText(stream, "value", value);
}

template <class F>
bool ReadValue(const IReadDataStream& stream, std::unique_ptr<const F>& value)
{
    TRuntimeDeSerializer<F> reader;
    if (!stream.Read("value", static_cast<IDeSerialize&>(reader)))
    {
        return false;
    }
    value.reset(reader.Detach());
    return true;
}

template <class T>
bool ReadValue(const IReadDataStream& stream, T& value)
{
    return stream.Read("value", value);
}

/// An item of a list, which stands in a nested object of its own.
template <class Item>
class TItemWriter : public ISerialize
{
public:
    explicit TItemWriter(const Item& item_) : item(item_) {}

    bool Serialize(IWriteDataStream& stream) const override
    {
        const bool written = stream.Write("name", item.name.c_str());
        return WriteValue(stream, item.value) && written;
    }

private:
    const Item& item;
};

template <class Item>
class TItemReader : public IDeSerialize
{
public:
    bool Deserialize(const IReadDataStream& stream) override
    {
        return ReadText(stream, "name", item.name) && ReadValue(stream, item.value);
    }

    Item item{};
};

template <class Item>
class TListWriter : public ISerialize
{
public:
    TListWriter(const std::vector<Item>& list_, const char* itemKey_) : list(list_), itemKey(itemKey_) {}

    bool Serialize(IWriteDataStream& stream) const override
    {
        bool written = list.size() <= CLimits::maxItems;
        written = stream.Write((itemKey + "Count").c_str(), static_cast<int>(list.size())) && written;
        int index = 0;
        for (const Item& item : list)
        {
            const TItemWriter<Item> writer(item);
            written =
                stream.Write(IndexedKey(itemKey, index).c_str(), static_cast<const ISerialize&>(writer)) &&
                written;
            ++index;
        }
        return written;
    }

private:
    const std::vector<Item>& list;
    std::string itemKey;
};

/// Reads what items there are; the list grows with those and not with the count that the stream gives.
template <class Item>
class TListReader : public IDeSerialize
{
public:
    TListReader(std::vector<Item>& list_, const char* itemKey_) : list(list_), itemKey(itemKey_) {}

    bool Deserialize(const IReadDataStream& stream) override
    {
        int count = 0;
        if (!stream.Read((itemKey + "Count").c_str(), count) || count > CLimits::maxItems)
        {
            return false;
        }
        CItemsBudget budget;
        for (int i = 0; i < count; ++i)
        {
            TItemReader<Item> reader;
            const bool found =
                stream.Read(IndexedKey(itemKey, i).c_str(), static_cast<IDeSerialize&>(reader));
            if (found)
            {
                list.push_back(std::move(reader.item));
            }
            if (!budget.Note(found))
            {
                return false;
            }
        }
        return true;
    }

private:
    std::vector<Item>& list;
    std::string itemKey;
};

template <class Item>
bool WriteList(IWriteDataStream& stream, const char* key, const std::vector<Item>& list, const char* itemKey)
{
    const TListWriter<Item> writer(list, itemKey);
    return stream.Write(key, static_cast<const ISerialize&>(writer));
}

template <class Item>
bool ReadList(const IReadDataStream& stream, const char* key, std::vector<Item>& list, const char* itemKey)
{
    TListReader<Item> reader(list, itemKey);
    return stream.Read(key, static_cast<IDeSerialize&>(reader));
}

} // namespace

void CSkinModelState::Clear()
{
    params.clear();
    curves.clear();
    surfaces.clear();
    strings.clear();
    collections.clear();
}

bool CSkinModelState::Serialize(IWriteDataStream& stream) const
{
    bool written = stream.Write("version", FormatVersion);
    written = WriteList(stream, "paramStates", params, "param") && written;
    written = WriteList(stream, "curveStates", curves, "curve") && written;
    written = WriteList(stream, "surfaceStates", surfaces, "surface") && written;
    written = WriteList(stream, "stringStates", strings, "string") && written;
    written = WriteList(stream, "collectionCountStates", collections, "collection") && written;
    return written;
}

bool CSkinModelState::Deserialize(const IReadDataStream& stream)
{
    Clear();
    int version = 0;
    stream.Read("version", version);
    bool read = ReadList(stream, "paramStates", params, "param");
    read = ReadList(stream, "curveStates", curves, "curve") && read;
    read = ReadList(stream, "surfaceStates", surfaces, "surface") && read;
    read = ReadList(stream, "stringStates", strings, "string") && read;
    if (version >= FirstVersionWithCollections)
    {
        read = ReadList(stream, "collectionCountStates", collections, "collection") && read;
    }
    return read;
}

} // namespace Mirel::SkinEngine
