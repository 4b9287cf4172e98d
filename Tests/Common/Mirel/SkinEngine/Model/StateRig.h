#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CCaptureSurface.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

#include <limits>
#include <memory>
#include <string>

namespace Tests
{

/// A count as a collection has it.
class CTestCount : public virtual Mirel::SkinEngine::ICount
{
public:
    int GetCount() const override { return count; }
    Mirel::Core::IEventProvider& GetCountChangedEventProvider() const override { return changed; }
    void SetCount(int newCount) override
    {
        ++sets;
        if (newCount != count)
        {
            count = newCount;
            changed.Notify();
        }
    }

    int sets = 0;

private:
    int count = 0;
    mutable Mirel::Core::CEventProvider changed;
};

/// A parameter of the widest range, added under the id. Owned by the model.
inline Mirel::DataModel::Objects::CCaptureParam&
AddParam(Mirel::SkinEngine::ISkinModel& model, const char* id, int flags = Mirel::SkinEngine::objectItself)
{
    auto* param = new Mirel::DataModel::Objects::CCaptureParam;
    param->GetInfo().SetMin(std::numeric_limits<float>::lowest());
    param->GetInfo().SetMax(std::numeric_limits<float>::max());
    model.AddParam(id, param, flags, true);
    return *param;
}

inline Mirel::DataModel::Objects::CCaptureCurve& AddCurve(Mirel::SkinEngine::ISkinModel& model,
                                                          const char* id)
{
    auto* curve = new Mirel::DataModel::Objects::CCaptureCurve;
    model.AddCurve(id, curve, Mirel::SkinEngine::objectItself, true);
    return *curve;
}

inline Mirel::DataModel::Objects::CCaptureSurface& AddSurface(Mirel::SkinEngine::ISkinModel& model,
                                                              const char* id)
{
    auto* surface = new Mirel::DataModel::Objects::CCaptureSurface;
    model.AddSurface(id, surface, Mirel::SkinEngine::objectItself, true);
    return *surface;
}

inline Mirel::DataModel::Objects::CCaptureString& AddString(Mirel::SkinEngine::ISkinModel& model,
                                                            const char* id)
{
    auto* string = new Mirel::DataModel::Objects::CCaptureString;
    model.AddString(id, string, Mirel::SkinEngine::objectItself, true);
    return *string;
}

/// Adds the count, which the model then owns.
template <class C>
C& AddCount(Mirel::SkinEngine::ISkinModel& model, const char* id, std::unique_ptr<C> count)
{
    using namespace Mirel::SkinEngine;
    C& added = *count;
    auto wrapper = std::make_unique<Mirel::Runtime::CDynamicObject>();
    wrapper->AddInterface<IConstCount>(TObjectInterface<IConstCount>::name, count.get(), false);
    wrapper->AddInterface<ICount>(TObjectInterface<ICount>::name, count.release(), true);
    model.AddObject(id, wrapper.release(), true);
    return added;
}

inline CTestCount& AddCount(Mirel::SkinEngine::ISkinModel& model, const char* id)
{
    return AddCount(model, id, std::make_unique<CTestCount>());
}

} // namespace Tests
