#pragma once

#include "Mirel/Serialization/CKeptDataObject.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/System/CCriticalSection.h"

namespace Mirel::Audio::Plugin
{

/// The part of an instance's state that belongs to an object which is not always there, such as the editor.
/// While there is none, what was loaded is kept and written back, so that nothing of a state is lost.
/// Any thread but the audio thread. The object is called with the lock of this one held and so must not wait
/// for another thread.
class CAttachedState : public Serialization::ISerializable
{
public:
    CAttachedState() = default;
    CAttachedState(const CAttachedState&) = delete;
    CAttachedState& operator=(const CAttachedState&) = delete;

    /// Hands what was kept, or the state of the object attached before, to the object, which answers for the
    /// state from then on. It is not owned and must be detached before it dies.
    void Attach(Serialization::ISerializable& object_);

    /// Keeps the state of the object and lets go of it.
    void Detach();

    /// Forgets what is kept, as if it had never been loaded.
    void DropKept();

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// What is not in the stream is reset.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    mutable System::CCriticalSection lock;
    Serialization::ISerializable* object = nullptr;
    Serialization::CKeptDataObject kept;
};

/// Has the object read itself from the key; without the key, from nothing, so that it resets. False in the
/// latter case and if the object could not read.
bool ReadOrReset(const Serialization::IReadDataStream& stream, const char* key,
                 Serialization::IDeSerialize& object);

} // namespace Mirel::Audio::Plugin
