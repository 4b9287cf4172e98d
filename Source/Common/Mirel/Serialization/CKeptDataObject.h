#pragma once

#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Serialization
{

/// Keeps the content of a data object for a reader that is not there yet, and writes it back as it came.
/// Content is kept as texts, which read as any kind of value; so what comes from a text form and goes to one
/// stays the same, except that empty values and empty objects are not told apart there. Belongs to one
/// thread.
class CKeptDataObject : public ISerializable
{
public:
    CKeptDataObject() : content("Kept") {}

    /// For the reader; valid until the next change.
    const IReadDataStream& GetContent() const { return content; }

    /// For a writer that hands its state over.
    IWriteDataStream& GetTarget() { return content; }

    void Clear() { content.Clear(); }

    bool Serialize(IWriteDataStream& stream) const override { return content.CopyContentTo(stream); }

    /// Replaces the content; false, with what could be taken, if something could not, and for a stream that
    /// is no IContentSource.
    bool Deserialize(const IReadDataStream& stream) override;

private:
    CXmlDataObject content;
};

} // namespace Mirel::Serialization
