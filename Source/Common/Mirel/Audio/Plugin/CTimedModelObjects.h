#pragma once

#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/DataModel/Objects/CCaptureParamTimerProxy.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"
#include "Mirel/System/ITimerProvider.h"

#include <memory>
#include <string>
#include <utility>

namespace Mirel::Audio::Plugin
{

/// Adds objects that follow something else by timer to a model: those that are wanted and not there yet. Each
/// gets, if wanted, a parameter of its id and ".paused" that stops it. The model's thread.
class CTimedModelObjects
{
public:
    /// All must outlive this object; the timers must outlive the model.
    CTimedModelObjects(SkinEngine::ISkinModel& model_, const SkinEngine::ISkinModelExposure& wanted_,
                       System::ITimerProvider& timers_, int refreshTimeMs_)
        : model(model_),
          wanted(wanted_),
          timers(timers_),
          refreshTimeMs(refreshTimeMs_)
    {
    }

    System::ITimerProvider& GetTimers() const { return timers; }

    /// Of new objects, until the model or a skin sets another.
    int GetRefreshTime() const { return refreshTimeMs; }

    /// Has the model own the object.
    template <class T>
    T& Keep(std::unique_ptr<T> object)
    {
        T& kept = *object;
        model.AddOwned(new Core::TDestroyAdapter<std::unique_ptr<T>>(std::move(object)));
        return kept;
    }

    // The flags that are wanted of an object and that the model does not have.
    int GetParamFlags(const std::string& id) const;
    int GetStringFlags(const std::string& id) const;
    int GetCurveFlags(const std::string& id) const;
    int GetObjectFlags(const std::string& id) const { return GetStringFlags(id); }

    // Each adds a parameter that follows the one that make() gives, if it is wanted. False for an id that is
    // taken.
    template <class Make>
    bool AddParam(const std::string& id, Make make)
    {
        const int flags = WithPaused(id, GetParamFlags(id));
        return flags == 0 ? AddPaused(id)
                          : Follow<DataModel::Objects::CCaptureParamTimerProxy>(
                                id, flags, make(), &SkinEngine::ISkinModel::AddParam);
    }
    template <class Make>
    bool AddConstParam(const std::string& id, Make make)
    {
        const int flags = WithPaused(id, GetParamFlags(id));
        return flags == 0 ? AddPaused(id)
                          : Follow<DataModel::Objects::CConstCaptureParamTimerProxy>(
                                id, flags, make(), &SkinEngine::ISkinModel::AddConstParam);
    }

    /// The flags, with the object itself if it is wanted for its switch alone.
    int WithPaused(const std::string& id, int flags) const;

    /// Adds the switch of an object that is in the model, if it is wanted and not there yet.
    bool AddPaused(const std::string& id);

private:
    template <class Proxy, class Source, class Add>
    bool Follow(const std::string& id, int flags, std::unique_ptr<Source> source, Add add)
    {
        Proxy& proxy = Keep(std::make_unique<Proxy>(Keep(std::move(source)), &timers));
        proxy.SetRefreshTime(refreshTimeMs);
        const bool added = (model.*add)(id.c_str(), &proxy, flags, false);
        return AddPaused(id) && added;
    }

    bool IsThere(const std::string& id) const { return model.GetObjects().Find(id.c_str()) != nullptr; }

    SkinEngine::ISkinModel& model;
    const SkinEngine::ISkinModelExposure& wanted;
    System::ITimerProvider& timers;
    int refreshTimeMs;
};

} // namespace Mirel::Audio::Plugin
