#include "Mirel/DataModel/Objects/CCaptureSurfaceFromCurveOverTime.h"

#include "Mirel/DataModel/Objects/Limits.h"

namespace Mirel::DataModel::Objects
{

CCaptureSurfaceFromCurveOverTime::CCaptureSurfaceFromCurveOverTime(System::ITimerProvider* timerProvider,
                                                                   const System::ITickSource& tickSource)
    : TCaptureObjectOverTime(timerProvider, tickSource, maxCurvesOverTime)
{
}

void CCaptureSurfaceFromCurveOverTime::SetDefault(const IConstCurveInfo* curveInfo)
{
    // A clone: the description may drop its default function at any change.
    GetHistory().SetDefaultFunction(curveInfo == nullptr ? nullptr : curveInfo->GetDefaultFunction().Clone(),
                                    true);
}

void CCaptureSurfaceFromCurveOverTime::CopyInfo(const IConstCurveInfo& curveInfo)
{
    GetInfo().GetYInfo().CopyFrom(curveInfo.GetXInfo());
    GetInfo().GetZInfo().CopyFrom(curveInfo.GetYInfo());
}

} // namespace Mirel::DataModel::Objects
