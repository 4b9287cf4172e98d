#pragma once

#include "Mirel/Serialization/CTypeSerializer.h"
#include "Mirel/Serialization/TRuntimeDeSerializer.h"

#include <concepts>
#include <type_traits>
#include <utility>

namespace Mirel::Serialization
{

/// A Core::TOwnership, or what stands on one, of an object that is saved with its class.
template <class T>
concept HoldsTypeSerializable =
    std::convertible_to<decltype(std::declval<const T&>().Get()), const ITypeSerializable*>;

/// Writes one item of a list under the key: a number, bool or text as a value, an object as a nested object,
/// an object with a class key, by pointer or in a TOwnership, as what CTypeSerializer writes, any other
/// pointer to an object as that object. A null pointer of the last kind gives false.
template <class T>
bool WriteItem(IWriteDataStream& stream, const char* key, const T& item)
{
    if constexpr (std::is_convertible_v<T, const ITypeSerializable*>)
    {
        return stream.Write(key, CTypeSerializer(item));
    }
    else if constexpr (HoldsTypeSerializable<T>)
    {
        return stream.Write(key, CTypeSerializer(item.Get()));
    }
    else if constexpr (std::is_convertible_v<T, const ISerialize*>)
    {
        const ISerialize* object = item;
        return object != nullptr && stream.Write(key, *object);
    }
    else if constexpr (std::is_base_of_v<ISerialize, T>)
    {
        const ISerialize& object = item;
        return stream.Write(key, object);
    }
    else
    {
        return stream.Write(key, item);
    }
}

/// Reads one item of a list from the key into a number, a bool or an object, given itself or by a pointer,
/// which may be null. A TOwnership of an object with a class key takes a new object, or null for a saved
/// null, and owns it. False, with the item as it was, if it is not there.
template <class T>
bool ReadItem(const IReadDataStream& stream, const char* key, T& item)
{
    if constexpr (HoldsTypeSerializable<T>)
    {
        TRuntimeDeSerializer<std::remove_cvref_t<decltype(*item.Get())>> reader;
        if (!stream.Read(key, static_cast<IDeSerialize&>(reader)))
        {
            return false;
        }
        item.Set(reader.Detach(), true);
        return true;
    }
    else if constexpr (std::is_convertible_v<T, IDeSerialize*>)
    {
        IDeSerialize* object = item;
        return object != nullptr && stream.Read(key, *object);
    }
    else if constexpr (std::is_base_of_v<IDeSerialize, T>)
    {
        IDeSerialize& object = item;
        return stream.Read(key, object);
    }
    else
    {
        return stream.Read(key, item);
    }
}

/// Reads what CTypeSerializer wrote under the key into a pointer that owns its object: the old object is
/// destroyed and the new one, or null for a saved null, put in its place. False, with the old one kept, if
/// there is none to be read.
template <class I>
bool ReadOwnedItem(const IReadDataStream& stream, const char* key, I*& item)
{
    TRuntimeDeSerializer<I> reader;
    if (!stream.Read(key, static_cast<IDeSerialize&>(reader)))
    {
        return false;
    }
    delete item;
    item = reader.Detach();
    return true;
}

} // namespace Mirel::Serialization
