#pragma once

#include "Mirel/Core/IDestroy.h"
#include "Mirel/Core/IEnable.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/IConstAction.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/SkinEngine/Model/EObjectFlags.h"
#include "Mirel/SkinEngine/Model/IModelConnection.h"
#include "Mirel/SkinEngine/Model/ISkinDynamicObjectsDictionary.h"
#include "Mirel/SkinEngine/Model/ISkinModelExposure.h"

namespace Mirel::SkinEngine
{

class CSkinModelState;

/// The objects of a loaded model, under their identifiers. Saving writes its state under the key "state".
///
/// Life: it is filled; switched on (GetEnable) when it is complete; used; cleared, and destroyed. GUI thread
/// only.
class ISkinModel : public Serialization::ISerializable
{
public:
    // Adders, one for each kind and access. `flags` are those of the exposure (EObjectFlags): with
    // objectItself the object gets its id, with the others its sub-objects get theirs; with none an owned
    // object is destroyed at once. With `owned` the object is taken over whatever the result, and lives until
    // Clear, if only nameless; otherwise it must outlive its stay here. False if the id is taken.
    virtual bool AddConstParam(const char* id, DataModel::Objects::IConstCaptureParam* param, int flags,
                               bool owned) = 0;
    virtual bool AddParam(const char* id, DataModel::Objects::ICaptureParam* param, int flags,
                          bool owned) = 0;
    virtual bool AddConstCurve(const char* id, DataModel::Objects::IConstCaptureCurve* curve, int flags,
                               bool owned) = 0;
    virtual bool AddCurve(const char* id, DataModel::Objects::ICaptureCurve* curve, int flags,
                          bool owned) = 0;
    virtual bool AddConstSurface(const char* id, DataModel::Objects::IConstCaptureSurface* surface, int flags,
                                 bool owned) = 0;
    virtual bool AddSurface(const char* id, DataModel::Objects::ICaptureSurface* surface, int flags,
                            bool owned) = 0;
    virtual bool AddConstString(const char* id, DataModel::Objects::IConstCaptureString* string, int flags,
                                bool owned) = 0;
    virtual bool AddString(const char* id, DataModel::Objects::ICaptureString* string, int flags,
                           bool owned) = 0;
    virtual bool AddAction(const char* id, DataModel::Objects::IConstAction* action, int flags,
                           bool owned) = 0;

    /// An object of any other kind, under its id. With `owned` it is taken over, whatever the result.
    virtual bool AddObject(const char* id, Runtime::IDynamicObject* object, bool owned) = 0;

    // What has no identifier. Taken over.
    virtual void AddLink(Core::IEnable* link) = 0;
    virtual void AddConnection(IModelConnection* connection) = 0;
    virtual void AddOwned(Core::IDestroy* object) = 0;

    // What stands in for an object that is not there. Valid as long as the model.
    virtual DataModel::Objects::ICaptureParam& GetParamNotFound() = 0;
    virtual DataModel::Objects::ICaptureCurve& GetCurveNotFound() = 0;
    virtual DataModel::Objects::ICaptureSurface& GetSurfaceNotFound() = 0;
    virtual DataModel::Objects::ICaptureString& GetStringNotFound() = 0;
    virtual DataModel::Objects::IConstAction& GetActionNotFound() = 0;

    /// All objects. What is removed here is removed from the other two.
    virtual ISkinDynamicObjectsDictionary& GetObjects() = 0;
    virtual const ISkinDynamicObjectsDictionary& GetObjects() const = 0;

    /// Those whose values are the model's state.
    virtual ISkinDynamicObjectsDictionary& GetPersistentObjects() = 0;
    virtual const ISkinDynamicObjectsDictionary& GetPersistentObjects() const = 0;

    /// Those that the model shows to its host.
    virtual ISkinDynamicObjectsDictionary& GetExposedObjects() = 0;
    virtual const ISkinDynamicObjectsDictionary& GetExposedObjects() const = 0;

    virtual ISkinModelExposure& GetExposure() = 0;
    virtual const ISkinModelExposure& GetExposure() const = 0;

    /// False for an unknown id and one that is persistent already. With `linked` a change of the object marks
    /// the state as modified.
    virtual bool MakePersistent(const char* id, bool linked) = 0;

    /// False for an unknown id and one that is exposed already.
    virtual bool Expose(const char* id) = 0;

    /// Takes the object out of all dictionaries. False for an unknown id.
    virtual bool RemoveObject(const char* id) = 0;

    /// Replaces what is in the state by the present values of the persistent objects.
    virtual void TakeState(CSkinModelState& state) const = 0;

    /// Sets the persistent objects that the state names; what the model does not have, or has as another
    /// kind, is skipped. Afterwards the state counts as not modified.
    virtual void RestoreState(const CSkinModelState& state) = 0;

    /// Whether a linked persistent object has changed since the state was last restored or this was reset.
    virtual bool IsStateModified() const = 0;
    virtual void SetStateModified(bool modified) = 0;

    /// Fires when the mark changes.
    virtual Core::IEventProvider& GetStateModifiedEventProvider() const = 0;

    /// The liveness of the model: off until it is complete, and again from Clear on.
    virtual Core::IEnable& GetEnable() = 0;
    virtual const Core::IConstEnable& GetEnable() const = 0;

    /// Never null.
    virtual const char* GetId() const = 0;
    virtual void SetId(const char* id) = 0;

    /// Has links and connections let go, empties the dictionaries, destroys what is owned. The exposure
    /// stays.
    virtual void Clear() = 0;
};

} // namespace Mirel::SkinEngine
