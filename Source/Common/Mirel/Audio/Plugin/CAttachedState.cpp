#include "Mirel/Audio/Plugin/CAttachedState.h"

#include "Mirel/Core/CAutoLock.h"
#include "Mirel/Serialization/CMemDataObject.h"

namespace Mirel::Audio::Plugin
{

using Core::CAutoLock;

void CAttachedState::Attach(Serialization::ISerializable& object_)
{
    const CAutoLock guard(lock);
    Detach();
    object = &object_;
    object->Deserialize(kept.GetContent());
    kept.Clear();
}

void CAttachedState::Detach()
{
    const CAutoLock guard(lock);
    if (object != nullptr)
    {
        kept.Clear();
        object->Serialize(kept.GetTarget());
        object = nullptr;
    }
}

void CAttachedState::DropKept()
{
    const CAutoLock guard(lock);
    kept.Clear();
}

bool CAttachedState::Serialize(Serialization::IWriteDataStream& stream) const
{
    const CAutoLock guard(lock);
    return object == nullptr ? kept.Serialize(stream) : object->Serialize(stream);
}

bool CAttachedState::Deserialize(const Serialization::IReadDataStream& stream)
{
    const CAutoLock guard(lock);
    return object == nullptr ? kept.Deserialize(stream) : object->Deserialize(stream);
}

bool ReadOrReset(const Serialization::IReadDataStream& stream, const char* key,
                 Serialization::IDeSerialize& object)
{
    if (stream.Exists(key))
    {
        return stream.Read(key, object);
    }
    object.Deserialize(Serialization::CMemDataObject());
    return false;
}

} // namespace Mirel::Audio::Plugin
