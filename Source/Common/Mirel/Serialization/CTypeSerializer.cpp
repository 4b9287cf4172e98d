#include "Mirel/Serialization/CTypeSerializer.h"

namespace Mirel::Serialization
{

bool CTypeSerializer::Serialize(IWriteDataStream& stream) const
{
    if (!stream.Write("isNull", object == nullptr))
    {
        return false;
    }
    const char* key = object == nullptr ? nullptr : object->GetTypeKey();
    if (key == nullptr)
    {
        return true;
    }
    const ISerialize& content = *object;
    return stream.Write("type", key) && stream.Write("content", content);
}

} // namespace Mirel::Serialization
