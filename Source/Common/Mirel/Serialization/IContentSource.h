#pragma once

#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Serialization
{

/// A data object whose content can be handed on whole by someone who does not know its keys.
class IContentSource
{
public:
    /// Writes all values and nested objects to the target, which is another object. A form that does not know
    /// the kinds of its values hands them on as texts. False if any write failed; the others are done.
    virtual bool CopyContentTo(IWriteDataStream& target) const = 0;
    virtual ~IContentSource() = default;
};

/// What a nested object is written as when content is copied.
class CContentSerializer : public ISerialize
{
public:
    /// The source is not owned.
    explicit CContentSerializer(const IContentSource& source_) : source(&source_) {}
    bool Serialize(IWriteDataStream& stream) const override { return source->CopyContentTo(stream); }

private:
    const IContentSource* source;
};

} // namespace Mirel::Serialization
