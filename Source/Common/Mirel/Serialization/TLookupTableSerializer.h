#pragma once

#include "Mirel/Containers/TDynamicVector.h"
#include "Mirel/Serialization/TVectorSerializer.h"

#include <string>
#include <type_traits>
#include <utility>

namespace Mirel::Serialization
{

/// Shows a table as a vector of its positions 0 to size - 1, without the guard entries around them. T has
/// GetSize and GetPositions.
template <class T>
class TLookupTableView
{
public:
    explicit TLookupTableView(T& table_) : table(&table_) {}

    int GetCount() const { return table->GetSize(); }
    auto& operator[](int index) const { return table->GetPositions()[index]; }

private:
    T* table;
};

/// Writes the values of a lookup table in the form of TVectorSerializer.
template <class T>
class TLookupTableSerializer : public ISerialize
{
public:
    /// The table is not owned.
    TLookupTableSerializer(const T& table, std::string itemName)
        : view(table),
          serializer(view, std::move(itemName))
    {
    }
    TLookupTableSerializer(const TLookupTableSerializer&) = delete;
    TLookupTableSerializer& operator=(const TLookupTableSerializer&) = delete;

    bool Serialize(IWriteDataStream& stream) const override { return serializer.Serialize(stream); }

private:
    TLookupTableView<const T> view;
    TVectorSerializer<TLookupTableView<const T>> serializer;
};

/// Reads them back.
template <class T>
class TLookupTableDeSerializer : public IDeSerialize
{
public:
    /// The table is not owned.
    TLookupTableDeSerializer(T& table_, std::string itemName_)
        : table(&table_),
          itemName(std::move(itemName_))
    {
    }

    /// Sizes the table to the count; a value that is missing keeps what the table had at that place, or is 0
    /// where it had none. True if there was a count; otherwise the table is left alone. Guard entries are the
    /// owner's to refresh.
    bool Deserialize(const IReadDataStream& stream) override
    {
        // A table loses its values with its size, so they are gathered first.
        Containers::TDynamicVector<std::decay_t<decltype(table->GetPositions()[0])>> values;
        for (int i = 0; i < table->GetSize(); ++i)
        {
            values.Add(table->GetPositions()[i]);
        }
        if (!TVectorDeSerializer(values, itemName).Deserialize(stream))
        {
            return false;
        }
        if (values.GetCount() != table->GetSize())
        {
            table->SetSize(values.GetCount());
        }
        for (int i = 0; i < values.GetCount(); ++i)
        {
            table->GetPositions()[i] = values[i];
        }
        return true;
    }

private:
    T* table;
    std::string itemName;
};

} // namespace Mirel::Serialization
