#pragma once

#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureValueWrapper.h"

namespace Mirel::DataModel::Objects
{

using CConstCaptureParamWrapper = TConstCaptureValueWrapper<float, IConstParamInfo, CParamInfo>;
using CCaptureParamWrapper = TCaptureValueWrapper<float, IConstParamInfo, CParamInfo>;

} // namespace Mirel::DataModel::Objects
