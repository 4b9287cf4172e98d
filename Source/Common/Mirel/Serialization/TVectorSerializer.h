#pragma once

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/ItemStreams.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Mirel::Serialization
{

/// Writes a vector into the stream: the element count under the item name followed by "Count", and each
/// element under the item name followed by its index ("valueCount", "value0", "value1"). V has GetCount and
/// an index operator.
template <class V>
class TVectorSerializer : public ISerialize
{
public:
    /// The vector is not owned.
    TVectorSerializer(const V& vector_, std::string itemName_)
        : vector(&vector_),
          itemName(std::move(itemName_))
    {
    }

    /// False if any write failed, or for more elements than can be read back.
    bool Serialize(IWriteDataStream& stream) const override
    {
        const int count = vector->GetCount();
        bool written = count <= CLimits::maxItems;
        written = stream.Write((itemName + "Count").c_str(), count) && written;
        for (int i = 0; i < count; ++i)
        {
            written = WriteItem(stream, IndexedKey(itemName, i).c_str(), (*vector)[i]) && written;
        }
        return written;
    }

private:
    const V* vector;
    std::string itemName;
};

/// Reads a vector's elements with the given reader, for the two classes below. The vector grows with what is
/// found, so that a count that nothing stands for costs no memory.
template <class V, class ReadElement>
bool ReadVector(const IReadDataStream& stream, const std::string& itemName, V& vector,
                ReadElement readElement)
{
    int count = 0;
    if (!stream.Read((itemName + "Count").c_str(), count) || count > CLimits::maxItems)
    {
        return false;
    }
    count = std::max(count, 0);
    constexpr int chunk = 256;
    if (vector.GetCount() > count)
    {
        vector.Resize(count);
    }
    CItemsBudget budget;
    for (int i = 0; i < count; ++i)
    {
        if (i >= vector.GetCount())
        {
            vector.Resize(std::min(count, 2 * i + chunk));
        }
        if (!budget.Note(readElement(stream, IndexedKey(itemName, i).c_str(), vector[i])))
        {
            return false;
        }
    }
    return true;
}

/// Reads what TVectorSerializer wrote into a vector of values or objects. V has GetCount, Resize and an index
/// operator.
template <class V>
class TVectorDeSerializer : public IDeSerialize
{
public:
    /// The vector is not owned.
    TVectorDeSerializer(V& vector_, std::string itemName_) : vector(&vector_), itemName(std::move(itemName_))
    {
    }

    /// Sizes the vector to the count; an element that is missing keeps the vector's value at its place. True
    /// if there was a count. Without one the vector is left alone; so it is for one above CLimits::maxItems.
    /// False too if far more elements are missing than there (CLimits::maxMissingItems); the size is then
    /// open.
    bool Deserialize(const IReadDataStream& stream) override
    {
        return ReadVector(stream, itemName, *vector,
                          [](const IReadDataStream& source, const char* key, auto& element)
                          { return ReadItem(source, key, element); });
    }

private:
    V* vector;
    std::string itemName;
};

/// The same for a vector of pointers that owns its objects and whose objects are created by their class keys.
/// A new place holds null until an object is read; objects that fall away with a smaller count are destroyed.
template <class V>
class TDynamicVectorDeSerializer : public IDeSerialize
{
public:
    /// The vector is not owned.
    TDynamicVectorDeSerializer(V& vector_, std::string itemName_)
        : vector(&vector_),
          itemName(std::move(itemName_))
    {
    }

    bool Deserialize(const IReadDataStream& stream) override
    {
        int count = 0;
        if (stream.Read((itemName + "Count").c_str(), count))
        {
            for (int i = std::max(count, 0); i < vector->GetCount(); ++i)
            {
                delete (*vector)[i];
                (*vector)[i] = nullptr;
            }
        }
        return ReadVector(stream, itemName, *vector,
                          [](const IReadDataStream& source, const char* key, auto& element)
                          { return ReadOwnedItem(source, key, element); });
    }

private:
    V* vector;
    std::string itemName;
};

} // namespace Mirel::Serialization
