#pragma once

#include "Mirel/DataModel/Objects/CSurfaceInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureObjectOverTime.h"
#include "Mirel/Math/CSweptCurvesFunction.h"

namespace Mirel::DataModel::Objects
{

/// The history of a curve as a surface that is read only: over time and the curve's x stands the curve's y.
/// Where there is no history it has the default function of the curve. GUI thread only.
class CCaptureSurfaceFromCurveOverTime
    : public TCaptureObjectOverTime<IConstCaptureCurve, IConstCaptureSurface, CSurfaceInfo,
                                    Math::CSweptCurvesFunction>
{
public:
    /// Provider and clock are not owned and must outlive the surface; the provider may be null.
    explicit CCaptureSurfaceFromCurveOverTime(
        System::ITimerProvider* timerProvider = nullptr,
        const System::ITickSource& tickSource = System::CMonotonicTickSource::GetInstance());

protected:
    void SetDefault(const IConstCurveInfo* curveInfo) override;
    void CopyInfo(const IConstCurveInfo& curveInfo) override;
};

} // namespace Mirel::DataModel::Objects
