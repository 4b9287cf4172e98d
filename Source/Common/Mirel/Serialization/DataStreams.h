#pragma once

namespace Mirel::Serialization
{

class IReadDataStream;
class IWriteDataStream;

/// Something that can write itself under keys of its own choice.
class ISerialize
{
public:
    /// False if any write failed.
    virtual bool Serialize(IWriteDataStream& stream) const = 0;
    virtual ~ISerialize() = default;
};

/// Something that can read itself back. What it does not find keeps its present value.
class IDeSerialize
{
public:
    /// False if what was needed could not be read.
    virtual bool Deserialize(const IReadDataStream& stream) = 0;
    virtual ~IDeSerialize() = default;
};

class ISerializable : public virtual ISerialize, public virtual IDeSerialize
{
};

/// Typed reads by key. Each gives true when the value was delivered; otherwise the target keeps its value.
class IReadDataStream
{
public:
    virtual bool Read(const char* key, bool& value) const = 0;
    virtual bool Read(const char* key, int& value) const = 0;
    virtual bool Read(const char* key, float& value) const = 0;
    virtual bool Read(const char* key, double& value) const = 0;

    /// Delivers a copy allocated with array-new, which the caller frees; null for a stored null text.
    virtual bool Read(const char* key, char*& value) const = 0;

    /// Delivers size bytes in a block allocated with array-new, which the caller frees; null when there are
    /// none.
    virtual bool Read(const char* key, void*& data, unsigned& size) const = 0;

    /// Has the object read itself from the nested data object of that key.
    virtual bool Read(const char* key, IDeSerialize& object) const = 0;

    virtual ~IReadDataStream() = default;

    /// Whether there is a value or a nested data object of that key.
    virtual bool Exists(const char* key) const = 0;
};

/// Typed writes by key. A write replaces what stood under the key. Each gives false when nothing was stored.
class IWriteDataStream
{
public:
    virtual bool Write(const char* key, bool value) = 0;
    virtual bool Write(const char* key, int value) = 0;
    virtual bool Write(const char* key, float value) = 0;
    virtual bool Write(const char* key, double value) = 0;
    virtual bool Write(const char* key, const char* value) = 0;
    virtual bool Write(const char* key, const void* data, unsigned size) = 0;

    /// Has the object write itself into a nested data object under the key.
    virtual bool Write(const char* key, const ISerialize& object) = 0;

    /// Removes the value or nested data object of that key, if there is one.
    virtual void Remove(const char* key) = 0;

    virtual void Clear() = 0;

    virtual ~IWriteDataStream() = default;
};

class IReadWriteDataStream : public virtual IReadDataStream, public virtual IWriteDataStream
{
};

} // namespace Mirel::Serialization
