#include "Mirel/Serialization/CMemDataObject.h"

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace Mirel::Serialization
{

const CDataBuffer* CMemDataObject::Find(const char* key) const
{
    if (key == nullptr)
    {
        return nullptr;
    }
    const auto item = items.find(key);
    return item == items.end() ? nullptr : item->second.get();
}

template <class... Arguments>
bool CMemDataObject::ReadItem(const char* key, Arguments&... arguments) const
{
    const CDataBuffer* item = Find(key);
    return item != nullptr && item->Get(arguments...);
}

template <class... Arguments>
bool CMemDataObject::WriteItem(const char* key, const Arguments&... arguments)
{
    if (key == nullptr)
    {
        return false;
    }
    // The old entry goes last: the new value may point into it, and so may the key of a nested write.
    auto item = std::make_unique<CDataBuffer>();
    const bool set = item->Set(arguments...);
    Remove(key);
    if (set)
    {
        items.insert_or_assign(key, std::move(item));
    }
    return set;
}

bool CMemDataObject::Read(const char* key, bool& value) const
{
    return ReadItem(key, value);
}

bool CMemDataObject::Read(const char* key, int& value) const
{
    return ReadItem(key, value);
}

bool CMemDataObject::Read(const char* key, float& value) const
{
    return ReadItem(key, value);
}

bool CMemDataObject::Read(const char* key, double& value) const
{
    return ReadItem(key, value);
}

bool CMemDataObject::Read(const char* key, char*& value) const
{
    return ReadItem(key, value);
}

bool CMemDataObject::Read(const char* key, void*& data, unsigned& size) const
{
    return ReadItem(key, data, size);
}

bool CMemDataObject::Read(const char* key, IDeSerialize& object) const
{
    return ReadItem(key, object);
}

bool CMemDataObject::Exists(const char* key) const
{
    return Find(key) != nullptr;
}

bool CMemDataObject::Write(const char* key, bool value)
{
    return WriteItem(key, value);
}

bool CMemDataObject::Write(const char* key, int value)
{
    return WriteItem(key, value);
}

bool CMemDataObject::Write(const char* key, float value)
{
    return WriteItem(key, value);
}

bool CMemDataObject::Write(const char* key, double value)
{
    return WriteItem(key, value);
}

bool CMemDataObject::Write(const char* key, const char* value)
{
    return WriteItem(key, value);
}

bool CMemDataObject::Write(const char* key, const void* data, unsigned size)
{
    return WriteItem(key, data, size);
}

bool CMemDataObject::Write(const char* key, const ISerialize& object)
{
    return WriteItem(key, object);
}

void CMemDataObject::Remove(const char* key)
{
    if (key == nullptr)
    {
        return;
    }
    const auto item = items.find(key);
    if (item != items.end())
    {
        items.erase(item);
    }
}

void CMemDataObject::Clear()
{
    items.clear();
}

bool CMemDataObject::Serialize(IWriteDataStream& stream) const
{
    bool written = items.size() <= CLimits::maxItems;
    written = stream.Write("ItemsCount", GetCount()) && written;
    int index = 0;
    for (const auto& [key, item] : items)
    {
        written = stream.Write(IndexedKey("ItemName", index).c_str(), key.c_str()) && written;
        const ISerialize& value = *item;
        written = stream.Write(IndexedKey("Item", index).c_str(), value) && written;
        ++index;
    }
    return written;
}

bool CMemDataObject::Deserialize(const IReadDataStream& stream)
{
    Clear();
    int count = 0;
    if (!stream.Read("ItemsCount", count))
    {
        return false;
    }
    if (count > CLimits::maxItems)
    {
        return false;
    }
    CItemsBudget budget;
    for (int index = 0; index < count; ++index)
    {
        if (!budget.Note(ReadNumbered(stream, index)))
        {
            Clear();
            return false;
        }
    }
    return true;
}

bool CMemDataObject::CopyContentTo(IWriteDataStream& target) const
{
    std::vector<std::pair<std::string_view, const CDataBuffer*>> sorted;
    sorted.reserve(items.size());
    for (const auto& [key, item] : items)
    {
        sorted.emplace_back(key, item.get());
    }
    std::sort(sorted.begin(), sorted.end());
    bool copied = true;
    for (const auto& [key, item] : sorted)
    {
        copied = item->WriteTo(target, key.data()) && copied; // the views are of whole strings
    }
    return copied;
}

bool CMemDataObject::ReadNumbered(const IReadDataStream& stream, int index)
{
    auto item = std::make_unique<CDataBuffer>();
    IDeSerialize& value = *item;
    char* text = nullptr;
    if (!stream.Read(IndexedKey("Item", index).c_str(), value) ||
        !stream.Read(IndexedKey("ItemName", index).c_str(), text))
    {
        return false;
    }
    const std::unique_ptr<char[]> name(text);
    if (name == nullptr)
    {
        return false;
    }
    items.insert_or_assign(name.get(), std::move(item));
    return true;
}

} // namespace Mirel::Serialization
