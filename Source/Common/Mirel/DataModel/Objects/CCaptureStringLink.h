#pragma once

#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureObjectLink.h"

namespace Mirel::DataModel::Objects
{

/// Hands a text on to another string. GUI thread only.
class CCaptureStringLink : public TCaptureObjectLink<IConstCaptureString, ICaptureString>
{
};

} // namespace Mirel::DataModel::Objects
