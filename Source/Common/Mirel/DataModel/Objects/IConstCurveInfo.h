#pragma once

#include "Mirel/DataModel/IConstObjectInfo.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::DataModel::Objects
{

/// The description of a function of one variable, with a parameter's description for each axis.
class IConstCurveInfo : public virtual IConstObjectInfo
{
public:
    virtual const IConstParamInfo& GetXInfo() const = 0;
    virtual const IConstParamInfo& GetYInfo() const = 0;

    /// The function that stands in until there is a value: the explicit one, else the constant at the default
    /// of y. Valid until the description changes.
    virtual const Math::IFunction& GetDefaultFunction() const = 0;

    /// The default function that was set from outside, not owned, or null.
    virtual const Math::IFunction* GetExplicitDefaultFunction() const = 0;
};

} // namespace Mirel::DataModel::Objects
