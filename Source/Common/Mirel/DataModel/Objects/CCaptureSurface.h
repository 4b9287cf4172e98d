#pragma once

#include "Mirel/DataModel/Objects/CSurfaceInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/TCaptureFunction.h"

namespace Mirel::DataModel::Objects
{

/// An observable function of two variables. GUI thread only.
class CCaptureSurface : public TCaptureFunction<Math::IBinaryFunction, IConstSurfaceInfo, CSurfaceInfo>
{
public:
    using TCaptureFunction::TCaptureFunction;
};

} // namespace Mirel::DataModel::Objects
