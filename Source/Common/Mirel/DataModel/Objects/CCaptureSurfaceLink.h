#pragma once

#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureObjectLink.h"

namespace Mirel::DataModel::Objects
{

/// Hands a surface on to another, which holds a clone of it. GUI thread only.
class CCaptureSurfaceLink : public TCaptureObjectLink<IConstCaptureSurface, ICaptureSurface>
{
};

} // namespace Mirel::DataModel::Objects
