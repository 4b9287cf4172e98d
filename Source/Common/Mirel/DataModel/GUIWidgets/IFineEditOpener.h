#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/DataModel/Controls/CParamControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Opens the small window in which a value is typed. Of one opener there is one window at most: an older one
/// goes first. GUI thread.
class IFineEditOpener
{
public:
    /// position: device pixels of the screen. The control outlives the window or closes it.
    virtual void OpenFineEdit(Controls::CParamControl& control, Core::CPoint position) = 0;

    virtual ~IFineEditOpener() = default;
};

} // namespace Mirel::DataModel::GUIWidgets
