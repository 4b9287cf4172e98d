#pragma once

#include "Mirel/Audio/Plugin/CAttachedState.h"
#include "Mirel/Audio/Plugin/ISkinModelFactory.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/CMTEventProvider.h"
#include "Mirel/System/CMessageLoopThread.h"
#include "Mirel/System/TSingletonInstance.h"

#include <memory>
#include <optional>
#include <string>

namespace Mirel::Audio::Plugin
{

/// Holds the skin model of an instance, which is built on the background loop that all instances share. Until
/// then, and where there is none, it keeps the state that was loaded for it. Any thread but the audio thread;
/// destroyed when no other thread uses it.
class CAudioPluginModel : public Serialization::ISerializable
{
public:
    /// The path of the model file; there need not be such a file.
    explicit CAudioPluginModel(std::string modelPath_);
    CAudioPluginModel(const CAudioPluginModel&) = delete;
    CAudioPluginModel& operator=(const CAudioPluginModel&) = delete;

    /// Drops a load that has not begun and waits for one that has.
    ~CAudioPluginModel() override;

    /// Before Init; not owned, and must outlive this object. Without a factory there is no model.
    void SetFactory(ISkinModelFactory* newFactory) { factory = newFactory; }

    /// Takes the bindings and has the model loaded.
    void Init(const CAudioPluginBindings& newBindings);

    /// Has the model loaded and does not wait. Ignored while a load is under way, without a factory, and
    /// before Init. A file that is not there leaves what was loaded before.
    void Load();

    virtual const char* GetModelPath() const { return modelPath.c_str(); }

    /// The file of the model that is there; empty if there is none.
    std::string GetLoadedPath() const;

    /// The model; null until it is loaded. Replaced, if ever, on the background loop, just before the event.
    Serialization::ISerializable* GetSkinModel() const;

    /// The same, for one who uses it for longer: it lives on when it is replaced.
    std::shared_ptr<Serialization::ISerializable> ShareSkinModel() const;

    /// Returns when no load is under way. Not for the background loop.
    void WaitForLoad() const;

    /// Fires after a model was loaded, on the background loop.
    Core::IEventProvider& GetLoadedEventProvider() const { return loaded; }

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// What is not in the stream is reset.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

    /// Forgets a state that was loaded for a model that is not there.
    void DropKeptState() { state.DropKept(); }

private:
    using CLoop = System::TSingletonInstance<System::CMessageLoopThread, System::CCriticalSection>;
    class CLoadCommand;
    struct CLoadTarget;

    void LoadNow(const std::string& path, const CAudioPluginBindings& loadBindings);

    std::string modelPath;
    ISkinModelFactory* factory = nullptr;

    mutable System::CCriticalSection lock;
    std::optional<CAudioPluginBindings> bindings;
    std::shared_ptr<Serialization::ISerializable> skinModel;
    std::string loadedPath;
    CAttachedState state;
    bool loading = false;
    mutable System::CMTEventProvider loaded; ///< Listening changes nothing of the model.

    std::shared_ptr<CLoadTarget> loadTarget;
    mutable std::optional<CLoop> loop; ///< From the first load on.
};

} // namespace Mirel::Audio::Plugin
