#pragma once

#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureObjectLink.h"

namespace Mirel::DataModel::Objects
{

/// Hands a curve on to another, which holds a clone of it. GUI thread only.
class CCaptureCurveLink : public TCaptureObjectLink<IConstCaptureCurve, ICaptureCurve>
{
};

} // namespace Mirel::DataModel::Objects
