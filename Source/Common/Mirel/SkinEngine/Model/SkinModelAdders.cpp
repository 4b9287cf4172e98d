#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

#include <limits>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;

namespace
{

/// Enters the object's further abilities, as far as its class has them.
template <class I, class T>
void EnterIfPresent(Runtime::CDynamicObject& wrapper, T* object)
{
    if (I* ability = dynamic_cast<I*>(object))
    {
        wrapper.AddInterface(TObjectInterface<I>::name, ability, false);
    }
}

/// A dynamic object that hands out the given interfaces of an object that it does not own.
template <class... Interfaces, class T>
std::unique_ptr<Runtime::CDynamicObject> Wrap(T* object)
{
    auto wrapper = std::make_unique<Runtime::CDynamicObject>();
    (wrapper->AddInterface<Interfaces>(TObjectInterface<Interfaces>::name, object, false), ...);
    EnterIfPresent<Core::IRefreshTime>(*wrapper, object);
    EnterIfPresent<Core::IEnable>(*wrapper, object);
    return wrapper;
}

std::string SubObjectId(const char* objectId, const char* suffix)
{
    return std::string(objectId == nullptr ? "" : objectId) + suffix;
}

} // namespace

template <class... Interfaces, class T>
bool CSkinModel::Add(const char* objectId, T* object, int flags, bool owned)
{
    if (object == nullptr)
    {
        return false;
    }
    if (owned)
    {
        std::unique_ptr<T> holder(object);
        if (flags == 0)
        {
            return true;
        }
        AddOwned(new Core::TDestroyAdapter<std::unique_ptr<T>>(std::move(holder)));
    }
    return (flags & objectItself) == 0 || AddObject(objectId, Wrap<Interfaces...>(object).release(), true);
}

bool CSkinModel::AddInfo(const std::string& infoId, const IConstParamInfo& info)
{
    auto wrapper = std::make_unique<Runtime::CDynamicObject>();
    // The interface itself only reads.
    wrapper->AddInterface(TObjectInterface<IConstParamInfo>::name, const_cast<IConstParamInfo*>(&info),
                          false);
    return AddObject(infoId.c_str(), wrapper.release(), true);
}

bool CSkinModel::AddLimit(const std::string& limitId, const IConstParamInfo& info, const char* nameSuffix,
                          float value)
{
    auto limit = std::make_unique<CCaptureParam>(info);
    const std::string name = info.GetName() == nullptr ? "" : info.GetName();
    limit->GetInfo().SetName((name + nameSuffix).c_str());
    limit->GetInfo().SetMin(std::numeric_limits<float>::lowest());
    limit->GetInfo().SetMax(std::numeric_limits<float>::max());
    limit->GetInfo().SetDefault(value);
    limit->SetValue(value);
    return AddConstParam(limitId.c_str(), limit.release(), objectItself, true);
}

bool CSkinModel::AddParamSubObjects(const char* objectId, const IConstParamInfo& info, int flags)
{
    bool added = (flags & objectInfo) == 0 || AddInfo(SubObjectId(objectId, ".info"), info);
    added = ((flags & paramDefault) == 0 ||
             AddLimit(SubObjectId(objectId, ".default"), info, " Default", info.GetDefault())) &&
            added;
    added =
        ((flags & paramMin) == 0 || AddLimit(SubObjectId(objectId, ".min"), info, " Min", info.GetMin())) &&
        added;
    added =
        ((flags & paramMax) == 0 || AddLimit(SubObjectId(objectId, ".max"), info, " Max", info.GetMax())) &&
        added;
    return added;
}

template <class I>
bool CSkinModel::AddCurveSubObjects(const char* objectId, const I& info, int flags)
{
    if ((flags & objectInfo) == 0)
    {
        return true;
    }
    const bool xAdded = AddInfo(SubObjectId(objectId, ".x_info"), info.GetXInfo());
    return AddInfo(SubObjectId(objectId, ".y_info"), info.GetYInfo()) && xAdded;
}

template <class I>
bool CSkinModel::AddSurfaceSubObjects(const char* objectId, const I& info, int flags)
{
    const bool axesAdded = AddCurveSubObjects(objectId, info, flags);
    return ((flags & objectInfo) == 0 || AddInfo(SubObjectId(objectId, ".z_info"), info.GetZInfo())) &&
           axesAdded;
}

bool CSkinModel::AddConstParam(const char* objectId, IConstCaptureParam* param, int flags, bool owned)
{
    return Add<IConstCaptureParam>(objectId, param, flags, owned) &&
           (flags == 0 || AddParamSubObjects(objectId, param->GetInfo(), flags));
}

bool CSkinModel::AddParam(const char* objectId, ICaptureParam* param, int flags, bool owned)
{
    return Add<IConstCaptureParam, ICaptureParam>(objectId, param, flags, owned) &&
           (flags == 0 || AddParamSubObjects(objectId, param->GetInfo(), flags));
}

bool CSkinModel::AddConstCurve(const char* objectId, IConstCaptureCurve* curve, int flags, bool owned)
{
    return Add<IConstCaptureCurve>(objectId, curve, flags, owned) &&
           (flags == 0 || AddCurveSubObjects(objectId, curve->GetInfo(), flags));
}

bool CSkinModel::AddCurve(const char* objectId, ICaptureCurve* curve, int flags, bool owned)
{
    return Add<IConstCaptureCurve, ICaptureCurve>(objectId, curve, flags, owned) &&
           (flags == 0 || AddCurveSubObjects(objectId, curve->GetInfo(), flags));
}

bool CSkinModel::AddConstSurface(const char* objectId, IConstCaptureSurface* surface, int flags, bool owned)
{
    return Add<IConstCaptureSurface>(objectId, surface, flags, owned) &&
           (flags == 0 || AddSurfaceSubObjects(objectId, surface->GetInfo(), flags));
}

bool CSkinModel::AddSurface(const char* objectId, ICaptureSurface* surface, int flags, bool owned)
{
    return Add<IConstCaptureSurface, ICaptureSurface>(objectId, surface, flags, owned) &&
           (flags == 0 || AddSurfaceSubObjects(objectId, surface->GetInfo(), flags));
}

bool CSkinModel::AddConstString(const char* objectId, IConstCaptureString* string, int flags, bool owned)
{
    return Add<IConstCaptureString>(objectId, string, flags, owned);
}

bool CSkinModel::AddString(const char* objectId, ICaptureString* string, int flags, bool owned)
{
    return Add<IConstCaptureString, ICaptureString>(objectId, string, flags, owned);
}

bool CSkinModel::AddAction(const char* objectId, IConstAction* action, int flags, bool owned)
{
    return Add<IConstAction>(objectId, action, flags, owned);
}

} // namespace Mirel::SkinEngine
