#pragma once

#include "Mirel/DataModel/Objects/CSurfaceInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/TConstCaptureFunction.h"

namespace Mirel::DataModel::Objects
{

/// An observable function of two variables that its owner sets and everyone else, who sees the
/// IConstCaptureSurface, reads. A function that has come to evaluate differently is told by NotifyChanged.
/// GUI thread only.
class CConstCaptureSurface
    : public TConstCaptureFunction<Math::IBinaryFunction, IConstSurfaceInfo, CSurfaceInfo>
{
public:
    using TConstCaptureFunction::SetFunction;
    using TConstCaptureFunction::TConstCaptureFunction;
};

} // namespace Mirel::DataModel::Objects
