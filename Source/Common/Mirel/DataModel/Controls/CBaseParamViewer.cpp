#include "Mirel/DataModel/Controls/CBaseParamViewer.h"

namespace Mirel::DataModel::Controls
{

// The connections to the axis are the first on its providers: who listens to them finds the new position.
CBaseParamViewer::CBaseParamViewer(const Objects::IConstCaptureParam& param_)
    : CParamViewerConfig(param_.GetInfo()),
      CForwardedCapture(param_),
      param(param_),
      position(CurrentPosition()),
      valueConnection(&param_.GetValueChangedEventProvider(), &updatePosition),
      zoomConnection(&GetZoomChangedEventProvider(), &updatePosition),
      offsetConnection(&GetOffsetChangedEventProvider(), &updatePosition),
      layoutConnection(&GetLayoutChangedEventProvider(), &updatePosition)
{
}

void CBaseParamViewer::UpdatePosition()
{
    // A listener that changes the value or the axis again does not reach this command, which is still
    // running: hence the second look.
    for (float current = CurrentPosition(); current < position || current > position;
         current = CurrentPosition())
    {
        position = current;
        positionChanged.Notify();
    }
}

} // namespace Mirel::DataModel::Controls
