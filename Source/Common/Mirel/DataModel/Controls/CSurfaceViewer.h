#pragma once

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/DataModel/Controls/TFunctionSource.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Controls
{

/// Shows a surface between three axes: positions on x and y give one on z. GUI thread only.
class CSurfaceViewer
{
public:
    /// The surface is not owned and must outlive the viewer.
    explicit CSurfaceViewer(const Objects::IConstCaptureSurface& surface_)
        : xViewer(surface_.GetInfo().GetXInfo()),
          yViewer(surface_.GetInfo().GetYInfo()),
          zViewer(surface_.GetInfo().GetZInfo()),
          source(surface_),
          xConnection(&xViewer.GetLayoutChangedEventProvider(), &forwardLayout),
          yConnection(&yViewer.GetLayoutChangedEventProvider(), &forwardLayout),
          zConnection(&zViewer.GetLayoutChangedEventProvider(), &forwardLayout)
    {
    }
    CSurfaceViewer(const CSurfaceViewer&) = delete;
    CSurfaceViewer& operator=(const CSurfaceViewer&) = delete;
    virtual ~CSurfaceViewer() = default;

    CParamViewerConfig& GetXViewer() { return xViewer; }
    const CParamViewerConfig& GetXViewer() const { return xViewer; }
    CParamViewerConfig& GetYViewer() { return yViewer; }
    const CParamViewerConfig& GetYViewer() const { return yViewer; }
    CParamViewerConfig& GetZViewer() { return zViewer; }
    const CParamViewerConfig& GetZViewer() const { return zViewer; }
    const Objects::IConstCaptureSurface& GetSurface() const { return source.GetCapture(); }

    /// Fires when any axis changes its mapping.
    Core::IEventProvider& GetLayoutChangedEventProvider() const { return layoutChanged; }

    /// Fires when the surface changes.
    Core::IEventProvider& GetSurfaceChangedEventProvider() const { return source.GetChangedEventProvider(); }

    /// As CCurveViewer::SetAccessMode.
    void SetAccessMode(bool newAccessMode) { source.SetAccessMode(newAccessMode); }
    bool GetAccessMode() const { return source.GetAccessMode(); }

    /// The z position at an x and a y position; clamped, it lies in 0 to 1.
    float GetValue(float x, float y, bool clamp) const
    {
        const float xValue = xViewer.CParamViewerConfig::PositionToValue(x);
        const float yValue = yViewer.CParamViewerConfig::PositionToValue(y);
        return zViewer.CParamViewerConfig::ValueToPosition(source.GetFunction()(xValue, yValue), clamp);
    }

private:
    CParamViewerConfig xViewer;
    CParamViewerConfig yViewer;
    CParamViewerConfig zViewer;
    TFunctionSource<Math::IBinaryFunction, Objects::IConstSurfaceInfo> source;
    mutable Core::CEventProvider layoutChanged; ///< Listening to a viewer changes nothing of it.
    Core::TConstCommand<Core::INotify> forwardLayout{&layoutChanged, &Core::INotify::Notify};
    CoreUtilities::CCallbackHelper xConnection;
    CoreUtilities::CCallbackHelper yConnection;
    CoreUtilities::CCallbackHelper zConnection;
};

} // namespace Mirel::DataModel::Controls
