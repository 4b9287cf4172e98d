#pragma once

#include "Mirel/Runtime/TClassRegistration.h"
#include "Mirel/Serialization/IDataHolder.h"
#include "Mirel/Serialization/ITypeSerializable.h"

#include <cstdint>

namespace Mirel::Serialization
{

class CMemDataObject;

/// The kinds of a stored value, as they are saved.
struct CValueKind
{
    enum : std::int32_t
    {
        None = -1,
        Object = 0,
        Bool = 1,
        Int = 2,
        Float = 3,
        Double = 4,
        String = 5,
        Binary = 6
    };
};

/// One typed value in memory, in its machine form: no text is made or compared.
class CDataBuffer : public IDataHolder, public ITypeSerializable
{
public:
    static constexpr const char* className = "CDataBuffer";
    static constexpr const char* classKey = "{E39EF26D-BED5-40a7-8E3F-F563B4FC5CCE}";

    /// Holds no value of any kind, though size bytes, all zero, are reserved for it.
    explicit CDataBuffer(std::uint32_t size_ = 0);
    CDataBuffer(const CDataBuffer&) = delete;
    CDataBuffer& operator=(const CDataBuffer&) = delete;

    bool Get(bool& value) const override;
    bool Get(int& value) const override;
    bool Get(float& value) const override;
    bool Get(double& value) const override;
    bool Get(char*& value) const override;
    bool Get(void*& copy, unsigned& copySize) const override;
    bool Get(IDeSerialize& object) const override;

    ~CDataBuffer() override;

    bool Set(bool value) override;
    bool Set(int value) override;
    bool Set(float value) override;
    bool Set(double value) override;
    bool Set(const char* value) override;
    bool Set(const void* newData, unsigned newSize) override;
    bool Set(const ISerialize& object) override;

    bool IsEqual(bool value) const override;
    bool IsEqual(int value) const override;
    bool IsEqual(float value) const override;
    bool IsEqual(double value) const override;
    bool IsEqual(const char* value) const override;
    bool IsEqual(const void* other, unsigned otherSize) const override;

    /// Writes the kind under "type" and the value under "value", as an object or as machine bytes.
    bool Serialize(IWriteDataStream& stream) const override;

    /// Reads both. Without "type" the kind is kept and the result is false; without a fitting "value" nothing
    /// is held. A text whose bytes do not end in a zero does not fit.
    bool Deserialize(const IReadDataStream& stream) override;

    /// Writes the value alone, as what it is, under the key. False for a buffer that holds none.
    bool WriteTo(IWriteDataStream& stream, const char* key) const;

    const char* GetTypeKey() const override { return classKey; }

    /// One of CValueKind, or what a stream named.
    std::int32_t GetKind() const { return type; }
    std::uint32_t GetSize() const { return size; }

private:
    template <class T>
    bool WriteNumber(IWriteDataStream& stream, const char* key) const;
    template <class T>
    bool GetNumber(std::int32_t kind, T& value) const;
    template <class T>
    bool SetNumber(std::int32_t kind, T value);

    const CMemDataObject* Object() const;
    void Free();
    void Replace(std::int32_t newKind, void* newData, std::uint32_t newSize);
    bool DeserializeBytes(const IReadDataStream& stream);
    bool DeserializeObject(const IReadDataStream& stream);

    std::uint32_t size;
    std::int32_t type = CValueKind::None;
    void* data; ///< Array-new bytes; for an object a CMemDataObject.
};

inline const Runtime::TClassRegistration<CDataBuffer, IDataHolder> dataBufferRegistration;

} // namespace Mirel::Serialization
