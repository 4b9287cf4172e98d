#pragma once

#include "Mirel/Serialization/ItemStreams.h"

#include <string>
#include <utility>

namespace Mirel::Serialization
{

/// A value with its key: an item of a list of items that save themselves. T is a number, bool or object that
/// can save itself.
template <class T>
class TSerializableNamedValue : public ISerializable
{
public:
    explicit TSerializableNamedValue(std::string name_, T value_ = T())
        : name(std::move(name_)),
          value(std::move(value_))
    {
    }

    bool Serialize(IWriteDataStream& stream) const override { return WriteItem(stream, name.c_str(), value); }

    /// False, with the value kept, if it is not there.
    bool Deserialize(const IReadDataStream& stream) override { return ReadItem(stream, name.c_str(), value); }

    const std::string& GetName() const { return name; }
    const T& GetValue() const { return value; }
    T& GetValue() { return value; }

private:
    std::string name;
    T value;
};

/// A value that somebody else holds, with its key. T is as above.
template <class T>
class TSerializableNamedPointer : public ISerializable
{
public:
    /// The value is not owned and may be null: then nothing is written or read, with a true result.
    TSerializableNamedPointer(std::string name_, T* pointer_) : name(std::move(name_)), pointer(pointer_) {}

    bool Serialize(IWriteDataStream& stream) const override
    {
        return pointer == nullptr || WriteItem(stream, name.c_str(), *pointer);
    }

    /// False, with the value kept, if it is not there.
    bool Deserialize(const IReadDataStream& stream) override
    {
        return pointer == nullptr || ReadItem(stream, name.c_str(), *pointer);
    }

    const std::string& GetName() const { return name; }
    T* GetPointer() const { return pointer; }

private:
    std::string name;
    T* pointer;
};

/// An owned object of a class that is known only at run time, with its key. I is the interface under which it
/// is created by its class key.
template <class I>
class TSerializableNamedTypedPointer : public ISerializable
{
public:
    /// Takes the object over; it may be null.
    explicit TSerializableNamedTypedPointer(std::string name_, I* object_ = nullptr)
        : name(std::move(name_)),
          object(object_)
    {
    }
    TSerializableNamedTypedPointer(const TSerializableNamedTypedPointer&) = delete;
    TSerializableNamedTypedPointer& operator=(const TSerializableNamedTypedPointer&) = delete;
    ~TSerializableNamedTypedPointer() override { delete object; }

    bool Serialize(IWriteDataStream& stream) const override
    {
        return stream.Write(name.c_str(), CTypeSerializer(object));
    }

    /// False, with the old object kept, if there is none to be read.
    bool Deserialize(const IReadDataStream& stream) override
    {
        return ReadOwnedItem(stream, name.c_str(), object);
    }

    const std::string& GetName() const { return name; }
    I* GetPointer() const { return object; }

private:
    std::string name;
    I* object;
};

} // namespace Mirel::Serialization
