#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/SkinEngine/Model/CSkinModelState.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/IThreadInvoker.h"

#include <optional>
#include <thread>

namespace Mirel::Audio::Plugin
{

/// The state of a model for all threads, while the model belongs to one of them. No thread ever waits for the
/// model's own: others save what that published last, and what they load they leave for it; from then on they
/// save that. While the model belongs to nobody, they use it directly, one at a time.
class CThreadBoundState : public Serialization::ISerializable
{
public:
    /// Not owned; must outlive this object.
    explicit CThreadBoundState(SkinEngine::ISkinModel& model_) : model(model_) {}
    CThreadBoundState(const CThreadBoundState&) = delete;
    CThreadBoundState& operator=(const CThreadBoundState&) = delete;

    /// The model belongs to the calling thread from now on. The invoker brings calls to it; not owned, must
    /// outlive the binding.
    void Bind(System::IThreadInvoker& invoker_);

    /// On the model's thread, as the last one.
    void Unbind();

    /// Lets the others see the present state. On the model's thread, as often as it may have changed.
    void Publish();

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// False if there is no state in the stream.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    bool IsBoundElsewhere() const;
    bool Leave(const Serialization::IReadDataStream& stream);
    void TakeOver();

    SkinEngine::ISkinModel& model;
    mutable System::CCriticalSection
        lock; ///< Over all that follows, and over a model that belongs to nobody.
    System::IThreadInvoker* invoker = nullptr;
    std::thread::id owner;
    SkinEngine::CSkinModelState published;
    std::optional<SkinEngine::CSkinModelState> left; ///< Loaded by another thread, not taken over yet.
    Core::TCommand<CThreadBoundState> takeOver{this, &CThreadBoundState::TakeOver};
};

} // namespace Mirel::Audio::Plugin
