#pragma once

#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/TConstCaptureFunction.h"

namespace Mirel::DataModel::Objects
{

/// An observable function of one variable that its owner sets and everyone else, who sees the
/// IConstCaptureCurve, reads. A function that has come to evaluate differently is told by NotifyChanged. GUI
/// thread only.
class CConstCaptureCurve : public TConstCaptureFunction<Math::IFunction, IConstCurveInfo, CCurveInfo>
{
public:
    using TConstCaptureFunction::SetFunction;
    using TConstCaptureFunction::TConstCaptureFunction;
};

} // namespace Mirel::DataModel::Objects
