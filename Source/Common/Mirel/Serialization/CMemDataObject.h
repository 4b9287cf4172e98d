#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Serialization/CDataBuffer.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/Serialization/IContentSource.h"

#include <memory>

namespace Mirel::Serialization
{

/// A data object in memory: typed values and nested data objects by key. Values keep their kind and machine
/// form; nothing is converted on a read. The form in which state is held and compared and in which it moves
/// between threads. Belongs to one thread for the time of one save or load.
///
/// Serialize writes "ItemsCount" and, for each entry in no particular order, the key under "ItemName" and the
/// value under "Item", each followed by the entry's number.
class CMemDataObject : public IReadWriteDataStream, public ISerializable, public IContentSource
{
public:
    CMemDataObject() = default;
    CMemDataObject(const CMemDataObject&) = delete;
    CMemDataObject& operator=(const CMemDataObject&) = delete;

    bool Read(const char* key, bool& value) const override;
    bool Read(const char* key, int& value) const override;
    bool Read(const char* key, float& value) const override;
    bool Read(const char* key, double& value) const override;
    bool Read(const char* key, char*& value) const override;
    bool Read(const char* key, void*& data, unsigned& size) const override;
    bool Read(const char* key, IDeSerialize& object) const override;
    ~CMemDataObject() override = default;
    bool Exists(const char* key) const override;

    bool Write(const char* key, bool value) override;
    bool Write(const char* key, int value) override;
    bool Write(const char* key, float value) override;
    bool Write(const char* key, double value) override;
    bool Write(const char* key, const char* value) override;
    bool Write(const char* key, const void* data, unsigned size) override;
    bool Write(const char* key, const ISerialize& object) override;
    void Remove(const char* key) override;
    void Clear() override;

    bool Serialize(IWriteDataStream& stream) const override;

    /// Replaces all entries by those found; true if there was a count. False, with no entries, for a count
    /// above CLimits::maxItems, or if far more items are missing than there (CLimits::maxMissingItems).
    bool Deserialize(const IReadDataStream& stream) override;

    /// In the order of the keys' bytes, with the kinds of the values.
    bool CopyContentTo(IWriteDataStream& target) const override;

    int GetCount() const { return static_cast<int>(items.size()); }

    /// The entry of the key, owned by this object; null if there is none.
    const CDataBuffer* Find(const char* key) const;

private:
    template <class... Arguments>
    bool ReadItem(const char* key, Arguments&... arguments) const;
    template <class... Arguments>
    bool WriteItem(const char* key, const Arguments&... arguments);
    bool ReadNumbered(const IReadDataStream& stream, int index);

    Containers::TStringMap<std::unique_ptr<CDataBuffer>> items;
};

} // namespace Mirel::Serialization
