#pragma once

#include "Mirel/DataModel/IConstObjectInfo.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::DataModel::Objects
{

/// The description of a function of two variables, with a parameter's description for each axis.
class IConstSurfaceInfo : public virtual IConstObjectInfo
{
public:
    virtual const IConstParamInfo& GetXInfo() const = 0;
    virtual const IConstParamInfo& GetYInfo() const = 0;
    virtual const IConstParamInfo& GetZInfo() const = 0;

    /// The function that stands in until there is a value: the explicit one, else the constant at the default
    /// of z. Valid until the description changes.
    virtual const Math::IBinaryFunction& GetDefaultFunction() const = 0;

    /// The default function that was set from outside, not owned, or null.
    virtual const Math::IBinaryFunction* GetExplicitDefaultFunction() const = 0;
};

} // namespace Mirel::DataModel::Objects
