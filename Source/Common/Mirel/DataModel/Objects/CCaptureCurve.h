#pragma once

#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/TCaptureFunction.h"

namespace Mirel::DataModel::Objects
{

/// An observable function of one variable. GUI thread only.
class CCaptureCurve : public TCaptureFunction<Math::IFunction, IConstCurveInfo, CCurveInfo>
{
public:
    using TCaptureFunction::TCaptureFunction;
};

} // namespace Mirel::DataModel::Objects
