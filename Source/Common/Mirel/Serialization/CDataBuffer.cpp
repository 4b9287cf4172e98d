#include "Mirel/Serialization/CDataBuffer.h"

#include "Mirel/Serialization/CMemDataObject.h"

#include <cstring>
#include <memory>
#include <utility>

namespace Mirel::Serialization
{

namespace
{

// The size of a nested data object says only that there is one.
constexpr std::uint32_t objectSize = sizeof(void*);

char* NewCopy(const void* source, std::uint32_t size)
{
    if (source == nullptr || size == 0)
    {
        return nullptr;
    }
    char* copy = new char[size];
    std::memcpy(copy, source, size);
    return copy;
}

/// A bool from a file can be any byte, and only 0 and 1 may be copied into one.
void Load(const void* source, bool& value)
{
    value = *static_cast<const unsigned char*>(source) != 0;
}

template <class T>
void Load(const void* source, T& value)
{
    std::memcpy(&value, source, sizeof(T));
}

template <class T>
bool IsSame(T a, T b)
{
    return !(a < b || a > b);
}

} // namespace

CDataBuffer::CDataBuffer(std::uint32_t size_) : size(size_), data(size_ == 0 ? nullptr : new char[size_]()) {}

CDataBuffer::~CDataBuffer()
{
    Free();
}

bool CDataBuffer::Get(bool& value) const
{
    return GetNumber(CValueKind::Bool, value);
}

bool CDataBuffer::Get(int& value) const
{
    return GetNumber(CValueKind::Int, value);
}

bool CDataBuffer::Get(float& value) const
{
    return GetNumber(CValueKind::Float, value);
}

bool CDataBuffer::Get(double& value) const
{
    return GetNumber(CValueKind::Double, value);
}

bool CDataBuffer::Get(char*& value) const
{
    if (type != CValueKind::String)
    {
        return false;
    }
    value = NewCopy(data, size);
    return true;
}

bool CDataBuffer::Get(void*& copy, unsigned& copySize) const
{
    if (type != CValueKind::Binary)
    {
        return false;
    }
    copy = NewCopy(data, size);
    copySize = copy == nullptr ? 0 : size;
    return true;
}

bool CDataBuffer::Get(IDeSerialize& object) const
{
    const CMemDataObject* stored = Object();
    return stored != nullptr && object.Deserialize(*stored);
}

bool CDataBuffer::Set(bool value)
{
    return SetNumber(CValueKind::Bool, value);
}

bool CDataBuffer::Set(int value)
{
    return SetNumber(CValueKind::Int, value);
}

bool CDataBuffer::Set(float value)
{
    return SetNumber(CValueKind::Float, value);
}

bool CDataBuffer::Set(double value)
{
    return SetNumber(CValueKind::Double, value);
}

bool CDataBuffer::Set(const char* value)
{
    const std::size_t length = value == nullptr ? 0 : std::strlen(value) + 1;
    if (length > UINT32_MAX)
    {
        return false;
    }
    const auto newSize = static_cast<std::uint32_t>(length);
    Replace(CValueKind::String, NewCopy(value, newSize), newSize);
    return true;
}

bool CDataBuffer::Set(const void* newData, unsigned newSize)
{
    char* copy = NewCopy(newData, newSize);
    Replace(CValueKind::Binary, copy, copy == nullptr ? 0 : newSize);
    return true;
}

bool CDataBuffer::Set(const ISerialize& object)
{
    auto stored = std::make_unique<CMemDataObject>();
    if (!object.Serialize(*stored))
    {
        Replace(CValueKind::Object, nullptr, 0);
        return false;
    }
    Replace(CValueKind::Object, stored.release(), objectSize);
    return true;
}

bool CDataBuffer::IsEqual(bool value) const
{
    bool own = false;
    return Get(own) && own == value;
}

bool CDataBuffer::IsEqual(int value) const
{
    int own = 0;
    return Get(own) && own == value;
}

bool CDataBuffer::IsEqual(float value) const
{
    float own = 0.0F;
    return Get(own) && IsSame(own, value);
}

bool CDataBuffer::IsEqual(double value) const
{
    double own = 0.0;
    return Get(own) && IsSame(own, value);
}

bool CDataBuffer::IsEqual(const char* value) const
{
    if (type != CValueKind::String)
    {
        return false;
    }
    if (value == nullptr || data == nullptr)
    {
        return value == nullptr && data == nullptr;
    }
    return size != 0 && std::strcmp(static_cast<const char*>(data), value) == 0;
}

bool CDataBuffer::IsEqual(const void* other, unsigned otherSize) const
{
    if (type != CValueKind::Binary)
    {
        return false;
    }
    if (other == nullptr || data == nullptr)
    {
        return other == nullptr && data == nullptr;
    }
    return size == otherSize && std::memcmp(data, other, size) == 0;
}

bool CDataBuffer::Serialize(IWriteDataStream& stream) const
{
    const bool typeWritten = stream.Write("type", static_cast<int>(type));
    if (type == CValueKind::Object)
    {
        const CMemDataObject* stored = Object();
        return stored != nullptr && stream.Write("value", *stored) && typeWritten;
    }
    return stream.Write("value", static_cast<const void*>(data), size) && typeWritten;
}

bool CDataBuffer::WriteTo(IWriteDataStream& stream, const char* key) const
{
    switch (type)
    {
    case CValueKind::Object:
        return Object() != nullptr &&
               stream.Write(key, static_cast<const ISerialize&>(CContentSerializer(*Object())));
    case CValueKind::Bool:
        return WriteNumber<bool>(stream, key);
    case CValueKind::Int:
        return WriteNumber<int>(stream, key);
    case CValueKind::Float:
        return WriteNumber<float>(stream, key);
    case CValueKind::Double:
        return WriteNumber<double>(stream, key);
    case CValueKind::String:
        return stream.Write(key, static_cast<const char*>(data));
    case CValueKind::Binary:
        return stream.Write(key, static_cast<const void*>(data), size);
    default:
        return false;
    }
}

bool CDataBuffer::Deserialize(const IReadDataStream& stream)
{
    Free();
    int newType = type;
    const bool typeFound = stream.Read("type", newType);
    type = newType;
    const bool valueFound = type == CValueKind::Object ? DeserializeObject(stream) : DeserializeBytes(stream);
    return valueFound && typeFound;
}

bool CDataBuffer::DeserializeBytes(const IReadDataStream& stream)
{
    void* bytes = nullptr;
    unsigned count = 0;
    if (!stream.Read("value", bytes, count))
    {
        return false;
    }
    std::unique_ptr<char[]> holder(static_cast<char*>(bytes));
    if (holder == nullptr || count == 0)
    {
        return true;
    }
    if (type == CValueKind::String && holder[count - 1] != '\0')
    {
        return false;
    }
    data = holder.release();
    size = count;
    return true;
}

bool CDataBuffer::DeserializeObject(const IReadDataStream& stream)
{
    auto stored = std::make_unique<CMemDataObject>();
    if (!stream.Read("value", *stored))
    {
        return false;
    }
    data = stored.release();
    size = objectSize;
    return true;
}

template <class T>
bool CDataBuffer::WriteNumber(IWriteDataStream& stream, const char* key) const
{
    T value{};
    return Get(value) && stream.Write(key, value);
}

template <class T>
bool CDataBuffer::GetNumber(std::int32_t kind, T& value) const
{
    if (type != kind || size != sizeof(T) || data == nullptr)
    {
        return false;
    }
    Load(data, value);
    return true;
}

template <class T>
bool CDataBuffer::SetNumber(std::int32_t kind, T value)
{
    Replace(kind, NewCopy(&value, sizeof(T)), sizeof(T));
    return true;
}

const CMemDataObject* CDataBuffer::Object() const
{
    return type == CValueKind::Object && size != 0 ? static_cast<const CMemDataObject*>(data) : nullptr;
}

void CDataBuffer::Free()
{
    if (type == CValueKind::Object)
    {
        delete static_cast<CMemDataObject*>(data);
    }
    else
    {
        delete[] static_cast<char*>(data);
    }
    data = nullptr;
    size = 0;
}

/// The new content is made before this call, since it may be a copy of the old.
void CDataBuffer::Replace(std::int32_t newKind, void* newData, std::uint32_t newSize)
{
    Free();
    type = newKind;
    data = newData;
    size = newSize;
}

} // namespace Mirel::Serialization
