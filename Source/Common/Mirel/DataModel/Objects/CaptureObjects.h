#pragma once

#include "Mirel/DataModel/Objects/IConstCurveInfo.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"
#include "Mirel/DataModel/Objects/IConstStringInfo.h"
#include "Mirel/DataModel/Objects/IConstSurfaceInfo.h"
#include "Mirel/DataModel/TICaptureObject.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::DataModel::Objects
{

using IConstCaptureParam = TIConstCaptureObject<float, IConstParamInfo>;
using ICaptureParam = TICaptureObject<float, IConstParamInfo>;

using IConstCaptureString = TIConstCaptureObject<const char*, IConstStringInfo>;
using ICaptureString = TICaptureObject<const char*, IConstStringInfo>;

/// A function got from a curve or surface is good for the time of the notification; who keeps it clones it.
using IConstCaptureCurve = TIConstCaptureObject<const Math::IFunction&, IConstCurveInfo>;
using ICaptureCurve = TICaptureObject<const Math::IFunction&, IConstCurveInfo>;

using IConstCaptureSurface = TIConstCaptureObject<const Math::IBinaryFunction&, IConstSurfaceInfo>;
using ICaptureSurface = TICaptureObject<const Math::IBinaryFunction&, IConstSurfaceInfo>;

} // namespace Mirel::DataModel::Objects
