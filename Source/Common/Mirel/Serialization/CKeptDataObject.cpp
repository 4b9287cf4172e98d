#include "Mirel/Serialization/CKeptDataObject.h"

namespace Mirel::Serialization
{

bool CKeptDataObject::Deserialize(const IReadDataStream& stream)
{
    const auto* source = dynamic_cast<const IContentSource*>(&stream);
    Clear();
    return source != nullptr && source->CopyContentTo(content);
}

} // namespace Mirel::Serialization
