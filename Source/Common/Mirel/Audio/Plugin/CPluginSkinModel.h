#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginBindings.h"
#include "Mirel/Core/TArgCommand.h"
#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/SSkinModelServices.h"
#include "Mirel/System/CAttachableTimerProvider.h"

#include <memory>

namespace Mirel::Audio::Plugin
{

/// The skin model of one instance, with what its objects stand on. It is built on a background thread and
/// then belongs to the thread of the GUI, whose timers drive it while they are attached: before, and while
/// there is no editor, nothing in it moves by itself.
class CPluginSkinModel : public Serialization::ISerializable
{
public:
    /// What is bound, and the services, must outlive this object. Of the services the timers are not used.
    CPluginSkinModel(const CAudioPluginBindings& bindings_, const SkinEngine::SSkinModelServices& services_);
    CPluginSkinModel(const CPluginSkinModel&) = delete;
    CPluginSkinModel& operator=(const CPluginSkinModel&) = delete;
    ~CPluginSkinModel() override;

    /// Reads the model file, and before it the shared model of the settings, if there is one. False, without
    /// a model, if the file cannot be read as one; objects of a readable file that fail are left out. Once.
    bool Load(const char* path);

    SkinEngine::CSkinModel& GetModel() { return model; }
    const SkinEngine::CSkinModel& GetModel() const { return model; }

    /// What was met while loading.
    const CoreUtilities::CMemMessageLog& GetLog() const { return log; }

    /// Adds the objects of the plug-in that a skin wants and that are not in the model yet.
    bool AddPluginObjects(const SkinEngine::ISkinModelExposure& wanted);

    /// Not owned, and to be detached, with null, before it goes away.
    void AttachTimers(System::ITimerProvider* provider) { timers.Attach(provider); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override { return model.Serialize(stream); }
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        return model.Deserialize(stream);
    }

private:
    void LoadShared();
    void BringInShared();
    void OnSharedAdded(const SkinEngine::CDictionaryEntry& entry);
    void OnSharedRemoved(const SkinEngine::CDictionaryEntry& entry);

    using Command = Core::TArgCommand<CPluginSkinModel, const SkinEngine::CDictionaryEntry&>;

    CAudioPluginBindings bindings;
    SkinEngine::SSkinModelServices services;
    CoreUtilities::CMemMessageLog log;
    System::CAttachableTimerProvider timers;
    SkinEngine::CSkinModel shared; ///< Its objects are in the model by reference.
    SkinEngine::CSkinModel model;
    Command sharedAdded{this, &CPluginSkinModel::OnSharedAdded};
    Command sharedRemoved{this, &CPluginSkinModel::OnSharedRemoved};
};

} // namespace Mirel::Audio::Plugin
