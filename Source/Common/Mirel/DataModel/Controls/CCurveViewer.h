#pragma once

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/DataModel/Controls/TFunctionSource.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Controls
{

/// Shows a curve between two axes: a position on the x axis gives one on the y axis. GUI thread only.
class CCurveViewer
{
public:
    /// The curve is not owned and must outlive the viewer.
    explicit CCurveViewer(const Objects::IConstCaptureCurve& curve_)
        : xViewer(curve_.GetInfo().GetXInfo()),
          yViewer(curve_.GetInfo().GetYInfo()),
          source(curve_),
          xConnection(&xViewer.GetLayoutChangedEventProvider(), &forwardLayout),
          yConnection(&yViewer.GetLayoutChangedEventProvider(), &forwardLayout)
    {
    }
    CCurveViewer(const CCurveViewer&) = delete;
    CCurveViewer& operator=(const CCurveViewer&) = delete;
    virtual ~CCurveViewer() = default;

    CParamViewerConfig& GetXViewer() { return xViewer; }
    const CParamViewerConfig& GetXViewer() const { return xViewer; }
    CParamViewerConfig& GetYViewer() { return yViewer; }
    const CParamViewerConfig& GetYViewer() const { return yViewer; }
    const Objects::IConstCaptureCurve& GetCurve() const { return source.GetCapture(); }

    /// Fires when either axis changes its mapping, and when the orientation changes.
    Core::IEventProvider& GetLayoutChangedEventProvider() const { return layoutChanged; }

    /// Fires when the curve changes.
    Core::IEventProvider& GetCurveChangedEventProvider() const { return source.GetChangedEventProvider(); }

    /// A vertical curve runs down the widget, with its values to the right. The positions are the same.
    void SetVertical(bool newVertical)
    {
        if (vertical != newVertical)
        {
            vertical = newVertical;
            layoutChanged.Notify();
        }
    }

    bool IsVertical() const { return vertical; }

    /// Without it every GetValue evaluates what the capture holds at that moment. With it, a clone that the
    /// viewer takes at each change of the curve: a capture that is replaced without its event, or while a
    /// picture is drawn, then does not reach into the picture.
    void SetAccessMode(bool newAccessMode) { source.SetAccessMode(newAccessMode); }
    bool GetAccessMode() const { return source.GetAccessMode(); }

    /// The y position at an x position; clamped, it lies in 0 to 1. Called for each pixel of a graph.
    float GetValue(float x, bool clamp) const
    {
        const float value = source.GetFunction()(xViewer.CParamViewerConfig::PositionToValue(x));
        return yViewer.CParamViewerConfig::ValueToPosition(value, clamp);
    }

private:
    CParamViewerConfig xViewer;
    CParamViewerConfig yViewer;
    TFunctionSource<Math::IFunction, Objects::IConstCurveInfo> source;
    bool vertical = false;
    mutable Core::CEventProvider layoutChanged; ///< Listening to a viewer changes nothing of it.
    Core::TConstCommand<Core::INotify> forwardLayout{&layoutChanged, &Core::INotify::Notify};
    CoreUtilities::CCallbackHelper xConnection;
    CoreUtilities::CCallbackHelper yConnection;
};

} // namespace Mirel::DataModel::Controls
