#pragma once

#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureObjectOverTime.h"
#include "Mirel/Math/CSweptValues.h"

namespace Mirel::DataModel::Objects
{

/// The history of a parameter as a curve over time that is read only. Where there is no history it has the
/// default value of the parameter. GUI thread only.
class CCurveFromParamOverTime
    : public TCaptureObjectOverTime<IConstCaptureParam, IConstCaptureCurve, CCurveInfo, Math::CSweptValues>
{
public:
    /// Provider and clock are not owned and must outlive the curve; the provider may be null.
    explicit CCurveFromParamOverTime(
        System::ITimerProvider* timerProvider = nullptr,
        const System::ITickSource& tickSource = System::CMonotonicTickSource::GetInstance());

protected:
    void SetDefault(const IConstParamInfo* paramInfo) override;
    void CopyInfo(const IConstParamInfo& paramInfo) override;
};

} // namespace Mirel::DataModel::Objects
