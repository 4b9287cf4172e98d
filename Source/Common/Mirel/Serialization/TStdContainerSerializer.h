#pragma once

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/ItemStreams.h"

#include <string>
#include <utility>

namespace Mirel::Serialization
{

/// Saves a standard container, as a rule a std::list of named values (TSerializableNamedValue), in the form
/// of TVectorSerializer: each item is a nested object under the item name and its index.
template <class C>
class TStdContainerSerializer : public ISerializable
{
public:
    /// The container is not owned.
    TStdContainerSerializer(C& container_, std::string itemName_)
        : container(&container_),
          itemName(std::move(itemName_))
    {
    }

    /// False if any write failed, or for more items than can be read back.
    bool Serialize(IWriteDataStream& stream) const override
    {
        bool written = container->size() <= CLimits::maxItems;
        written = stream.Write((itemName + "Count").c_str(), static_cast<int>(container->size())) && written;
        int index = 0;
        for (const auto& item : *container)
        {
            written = WriteItem(stream, IndexedKey(itemName, index).c_str(), item) && written;
            ++index;
        }
        return written;
    }

    /// Has the items of the container read themselves, as many as were saved; the container keeps its size,
    /// since only its owner knows what further items would be. True if there was a count.
    bool Deserialize(const IReadDataStream& stream) override
    {
        int count = 0;
        if (!stream.Read((itemName + "Count").c_str(), count))
        {
            return false;
        }
        int index = 0;
        for (auto item = container->begin(); item != container->end() && index < count; ++item, ++index)
        {
            ReadItem(stream, IndexedKey(itemName, index).c_str(), *item);
        }
        return true;
    }

private:
    C* container;
    std::string itemName;
};

} // namespace Mirel::Serialization
