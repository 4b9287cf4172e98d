#pragma once

#include "Mirel/DataModel/Objects/IConstSurfaceInfo.h"
#include "Mirel/DataModel/Objects/IParamInfo.h"

namespace Mirel::DataModel::Objects
{

/// A surface's description that can be changed. A change of an axis fires the description too; every setter
/// fires. Texts are copied, null stays null.
class ISurfaceInfo : public virtual IConstSurfaceInfo
{
public:
    using IConstSurfaceInfo::GetXInfo;
    using IConstSurfaceInfo::GetYInfo;
    using IConstSurfaceInfo::GetZInfo;
    virtual IParamInfo& GetXInfo() = 0;
    virtual IParamInfo& GetYInfo() = 0;
    virtual IParamInfo& GetZInfo() = 0;

    virtual void SetName(const char* name) = 0;
    virtual void SetComment(const char* comment) = 0;

    /// Not owned: the function must outlive its use here. Null brings back the constant.
    virtual void SetDefaultFunction(const Math::IBinaryFunction* function) = 0;

    /// Takes over everything and fires once. The explicit default function is shared, not cloned.
    virtual void CopyFrom(const IConstSurfaceInfo& other) = 0;
};

} // namespace Mirel::DataModel::Objects
