#pragma once

#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CCaptureSurface.h"

namespace Mirel::SkinEngine
{

/// What a lookup returns where a widget must have an object and the model has none: one object of each kind,
/// whose name tells the user. GUI thread only.
struct CModelPlaceholders
{
    CModelPlaceholders();

    DataModel::Objects::CCaptureParam param;
    DataModel::Objects::CCaptureCurve curve;
    DataModel::Objects::CCaptureSurface surface;
    DataModel::Objects::CCaptureString string;
    DataModel::Objects::CAction action;
};

} // namespace Mirel::SkinEngine
