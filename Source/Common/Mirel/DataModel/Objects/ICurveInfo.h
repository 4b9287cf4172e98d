#pragma once

#include "Mirel/DataModel/Objects/IConstCurveInfo.h"
#include "Mirel/DataModel/Objects/IParamInfo.h"

namespace Mirel::DataModel::Objects
{

/// A curve's description that can be changed. A change of an axis fires the description too; every setter
/// fires. Texts are copied, null stays null.
class ICurveInfo : public virtual IConstCurveInfo
{
public:
    using IConstCurveInfo::GetXInfo;
    using IConstCurveInfo::GetYInfo;
    virtual IParamInfo& GetXInfo() = 0;
    virtual IParamInfo& GetYInfo() = 0;

    virtual void SetName(const char* name) = 0;
    virtual void SetComment(const char* comment) = 0;

    /// Not owned: the function must outlive its use here. Null brings back the constant.
    virtual void SetDefaultFunction(const Math::IFunction* function) = 0;

    /// Takes over everything and fires once. The explicit default function is shared, not cloned.
    virtual void CopyFrom(const IConstCurveInfo& other) = 0;
};

} // namespace Mirel::DataModel::Objects
