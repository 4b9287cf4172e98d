#pragma once

#include "Mirel/Serialization/ITypeSerializable.h"

namespace Mirel::Serialization
{

/// Writes an object together with its class, for TRuntimeDeSerializer to read: bool "isNull"; for an object
/// with a class key also "type" and, as a nested object, "content".
class CTypeSerializer : public ISerialize
{
public:
    /// The object is not owned and may be null.
    explicit CTypeSerializer(const ITypeSerializable* object_) : object(object_) {}

    /// True also for an object without a class key, of which nothing can be read back.
    bool Serialize(IWriteDataStream& stream) const override;

private:
    const ITypeSerializable* object;
};

} // namespace Mirel::Serialization
