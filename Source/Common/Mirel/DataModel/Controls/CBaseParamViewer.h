#pragma once

#include "Mirel/DataModel/Controls/CForwardedCapture.h"
#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Controls
{

/// Shows a parameter as a position, 0 to 1, on the axis of its description. GUI thread only.
class CBaseParamViewer : public CParamViewerConfig, public CForwardedCapture
{
public:
    /// The parameter is not owned and must outlive the viewer.
    explicit CBaseParamViewer(const Objects::IConstCaptureParam& param_);

    const Objects::IConstCaptureParam& GetParam() const { return param; }

    /// Of the parameter's value, within 0 to 1.
    float GetPosition() const { return position; }

    /// Fires when the position changes, be it by the value or by the axis.
    Core::IEventProvider& GetPositionChangedEventProvider() const { return positionChanged; }

private:
    float CurrentPosition() const { return ValueToPosition(param.GetValue(), true); }
    void UpdatePosition();

    const Objects::IConstCaptureParam& param;
    float position;
    mutable Core::CEventProvider positionChanged; ///< Listening to a viewer changes nothing of it.
    Core::TCommand<CBaseParamViewer> updatePosition{this, &CBaseParamViewer::UpdatePosition};
    CoreUtilities::CCallbackHelper valueConnection;
    CoreUtilities::CCallbackHelper zoomConnection;
    CoreUtilities::CCallbackHelper offsetConnection;
    CoreUtilities::CCallbackHelper layoutConnection;
};

} // namespace Mirel::DataModel::Controls
