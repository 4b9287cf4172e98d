#pragma once

#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/IConstAction.h"
#include "Mirel/Runtime/IDynamicObject.h"
#include "Mirel/SkinEngine/Model/ICount.h"

namespace Mirel::SkinEngine
{

/// How an interface is known to the dynamic objects of a model: the name under which a pointer to it is
/// entered, and the kind of identifier that a message calls one who names such an object. Each interface that
/// a dictionary is asked for has a specialization.
template <class I>
struct TObjectInterface;

template <>
struct TObjectInterface<DataModel::Objects::IConstCaptureParam>
{
    static constexpr const char* name = "IConstCaptureParam";
    static constexpr const char* kind = "param";
};

template <>
struct TObjectInterface<DataModel::Objects::ICaptureParam>
{
    static constexpr const char* name = "ICaptureParam";
    static constexpr const char* kind = "param";
};

template <>
struct TObjectInterface<DataModel::Objects::IConstCaptureCurve>
{
    static constexpr const char* name = "IConstCaptureCurve";
    static constexpr const char* kind = "curve";
};

template <>
struct TObjectInterface<DataModel::Objects::ICaptureCurve>
{
    static constexpr const char* name = "ICaptureCurve";
    static constexpr const char* kind = "curve";
};

template <>
struct TObjectInterface<DataModel::Objects::IConstCaptureSurface>
{
    static constexpr const char* name = "IConstCaptureSurface";
    static constexpr const char* kind = "surface";
};

template <>
struct TObjectInterface<DataModel::Objects::ICaptureSurface>
{
    static constexpr const char* name = "ICaptureSurface";
    static constexpr const char* kind = "surface";
};

template <>
struct TObjectInterface<DataModel::Objects::IConstCaptureString>
{
    static constexpr const char* name = "IConstCaptureString";
    static constexpr const char* kind = "string";
};

template <>
struct TObjectInterface<DataModel::Objects::ICaptureString>
{
    static constexpr const char* name = "ICaptureString";
    static constexpr const char* kind = "string";
};

template <>
struct TObjectInterface<DataModel::Objects::IConstAction>
{
    static constexpr const char* name = "IConstAction";
    static constexpr const char* kind = "action";
};

template <>
struct TObjectInterface<DataModel::Objects::IConstParamInfo>
{
    static constexpr const char* name = "IConstParamInfo";
    static constexpr const char* kind = "info";
};

template <>
struct TObjectInterface<IConstCount>
{
    static constexpr const char* name = "IConstCount";
    static constexpr const char* kind = "collection";
};

template <>
struct TObjectInterface<ICount>
{
    static constexpr const char* name = "ICount";
    static constexpr const char* kind = "collection";
};

template <>
struct TObjectInterface<Core::IRefreshTime>
{
    static constexpr const char* name = "IRefreshTime";
    static constexpr const char* kind = "timed";
};

template <>
struct TObjectInterface<Core::IEnable>
{
    static constexpr const char* name = "IEnable";
    static constexpr const char* kind = "switched";
};

/// The object as an I; null if it is not one.
template <class I>
I* FindInterface(Runtime::IDynamicObject& object)
{
    return static_cast<I*>(object.GetInterface(TObjectInterface<I>::name));
}

template <class I>
const I* FindInterface(const Runtime::IDynamicObject& object)
{
    return static_cast<const I*>(object.GetInterface(TObjectInterface<I>::name));
}

} // namespace Mirel::SkinEngine
