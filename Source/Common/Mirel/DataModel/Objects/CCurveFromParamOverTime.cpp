#include "Mirel/DataModel/Objects/CCurveFromParamOverTime.h"

namespace Mirel::DataModel::Objects
{

CCurveFromParamOverTime::CCurveFromParamOverTime(System::ITimerProvider* timerProvider,
                                                 const System::ITickSource& tickSource)
    : TCaptureObjectOverTime(timerProvider, tickSource, Math::TSweptRing<float>::maxCapacity)
{
}

void CCurveFromParamOverTime::SetDefault(const IConstParamInfo* paramInfo)
{
    GetHistory().SetDefaultValue(paramInfo == nullptr ? 0.0f : paramInfo->GetDefault());
}

void CCurveFromParamOverTime::CopyInfo(const IConstParamInfo& paramInfo)
{
    GetInfo().GetYInfo().CopyFrom(paramInfo);
}

} // namespace Mirel::DataModel::Objects
