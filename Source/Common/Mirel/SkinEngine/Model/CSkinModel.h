#pragma once

#include "Mirel/Core/CEnable.h"
#include "Mirel/Core/TArgCommand.h"
#include "Mirel/SkinEngine/Model/CDynamicObjectsDictionary.h"
#include "Mirel/SkinEngine/Model/CModelPlaceholders.h"
#include "Mirel/SkinEngine/Model/CSkinModelExposure.h"
#include "Mirel/SkinEngine/Model/CSkinModelState.h"
#include "Mirel/SkinEngine/Model/CStateTracker.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// The object store of a model: of a whole model file, or of one item of a collection. GUI thread only.
class CSkinModel : public virtual ISkinModel
{
public:
    using CState = CSkinModelState;

    /// The log gets the failures of adding; it is not owned and may be null.
    explicit CSkinModel(CoreUtilities::IMessageLog* log = nullptr);
    CSkinModel(const CSkinModel&) = delete;
    CSkinModel& operator=(const CSkinModel&) = delete;

    /// As Clear does.
    ~CSkinModel() override;

    bool AddConstParam(const char* id, DataModel::Objects::IConstCaptureParam* param, int flags,
                       bool owned) override;
    bool AddParam(const char* id, DataModel::Objects::ICaptureParam* param, int flags, bool owned) override;
    bool AddConstCurve(const char* id, DataModel::Objects::IConstCaptureCurve* curve, int flags,
                       bool owned) override;
    bool AddCurve(const char* id, DataModel::Objects::ICaptureCurve* curve, int flags, bool owned) override;
    bool AddConstSurface(const char* id, DataModel::Objects::IConstCaptureSurface* surface, int flags,
                         bool owned) override;
    bool AddSurface(const char* id, DataModel::Objects::ICaptureSurface* surface, int flags,
                    bool owned) override;
    bool AddConstString(const char* id, DataModel::Objects::IConstCaptureString* string, int flags,
                        bool owned) override;
    bool AddString(const char* id, DataModel::Objects::ICaptureString* string, int flags,
                   bool owned) override;
    bool AddAction(const char* id, DataModel::Objects::IConstAction* action, int flags, bool owned) override;
    bool AddObject(const char* id, Runtime::IDynamicObject* object, bool owned) override;
    void AddLink(Core::IEnable* link) override;
    void AddConnection(IModelConnection* connection) override;
    void AddOwned(Core::IDestroy* object) override;

    DataModel::Objects::ICaptureParam& GetParamNotFound() override { return placeholders.param; }
    DataModel::Objects::ICaptureCurve& GetCurveNotFound() override { return placeholders.curve; }
    DataModel::Objects::ICaptureSurface& GetSurfaceNotFound() override { return placeholders.surface; }
    DataModel::Objects::ICaptureString& GetStringNotFound() override { return placeholders.string; }
    DataModel::Objects::IConstAction& GetActionNotFound() override { return placeholders.action; }

    ISkinDynamicObjectsDictionary& GetObjects() override { return objects; }
    const ISkinDynamicObjectsDictionary& GetObjects() const override { return objects; }
    ISkinDynamicObjectsDictionary& GetPersistentObjects() override { return persistent; }
    const ISkinDynamicObjectsDictionary& GetPersistentObjects() const override { return persistent; }
    ISkinDynamicObjectsDictionary& GetExposedObjects() override { return exposed; }
    const ISkinDynamicObjectsDictionary& GetExposedObjects() const override { return exposed; }
    ISkinModelExposure& GetExposure() override { return exposure; }
    const ISkinModelExposure& GetExposure() const override { return exposure; }

    bool MakePersistent(const char* id, bool linked) override;
    bool Expose(const char* id) override;
    bool RemoveObject(const char* id) override;

    void TakeState(CState& state) const override;
    void RestoreState(const CState& state) override;
    bool IsStateModified() const override { return tracker.IsModified(); }
    void SetStateModified(bool modified) override { tracker.SetModified(modified); }
    Core::IEventProvider& GetStateModifiedEventProvider() const override
    {
        return tracker.GetModifiedEventProvider();
    }

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// False, with all values kept, if there is no state in the stream.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

    Core::IEnable& GetEnable() override { return alive; }
    const Core::IConstEnable& GetEnable() const override { return alive; }
    const char* GetId() const override { return id.c_str(); }
    void SetId(const char* newId) override;
    void Clear() override;

private:
    class CRemains;

    template <class... Interfaces, class T>
    bool Add(const char* objectId, T* object, int flags, bool owned);
    bool AddInfo(const std::string& infoId, const DataModel::Objects::IConstParamInfo& info);
    bool AddLimit(const std::string& limitId, const DataModel::Objects::IConstParamInfo& info,
                  const char* nameSuffix, float value);
    bool AddParamSubObjects(const char* objectId, const DataModel::Objects::IConstParamInfo& info, int flags);
    template <class I>
    bool AddCurveSubObjects(const char* objectId, const I& info, int flags);
    template <class I>
    bool AddSurfaceSubObjects(const char* objectId, const I& info, int flags);
    void OnRemoved(const CDictionaryEntry& entry);
    void OnNoLongerPersistent(const CDictionaryEntry& entry);

    std::string id;
    CSkinModelExposure exposure;
    CModelPlaceholders placeholders;
    Core::CEnable alive{false};
    std::vector<std::unique_ptr<Core::IDestroy>> ownedObjects;
    CDynamicObjectsDictionary objects;
    CDynamicObjectsDictionary persistent;
    CDynamicObjectsDictionary exposed;
    CStateTracker tracker;
    std::vector<std::unique_ptr<Core::IEnable>> links;
    std::vector<std::unique_ptr<IModelConnection>> connections;
    Core::TArgCommand<CSkinModel, const CDictionaryEntry&> removed{this, &CSkinModel::OnRemoved};
    Core::TArgCommand<CSkinModel, const CDictionaryEntry&> untracked{this, &CSkinModel::OnNoLongerPersistent};
};

} // namespace Mirel::SkinEngine
