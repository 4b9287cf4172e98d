#pragma once

#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/TCaptureObjectTimerProxy.h"

namespace Mirel::DataModel::Objects
{

/// A copy of a parameter that follows it by timer; see TConstCaptureObjectTimerProxy. GUI thread only.
class CConstCaptureParamTimerProxy : public TConstCaptureObjectTimerProxy<float, IConstParamInfo, CParamInfo>
{
public:
    using TConstCaptureObjectTimerProxy::TConstCaptureObjectTimerProxy;
};

/// The same for a parameter that can be written through the copy. GUI thread only.
class CCaptureParamTimerProxy : public TCaptureObjectTimerProxy<float, IConstParamInfo, CParamInfo>
{
public:
    using TCaptureObjectTimerProxy::TCaptureObjectTimerProxy;
};

} // namespace Mirel::DataModel::Objects
