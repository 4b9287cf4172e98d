#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/Graphics/Geometry.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

/// By how many pixels a zoomed picture exceeds its view, along both axes: what a scroller needs. GUI thread.
class CExtraPixels
{
public:
    /// Neither axis is owned; both must outlive this object.
    CExtraPixels(const Controls::CParamViewerConfig& xAxis_, const Controls::CParamViewerConfig& yAxis_)
        : xAxis(xAxis_),
          yAxis(yAxis_),
          xConnection(&xAxis_.GetZoomChangedEventProvider(), &forward),
          yConnection(&yAxis_.GetZoomChangedEventProvider(), &forward)
    {
    }
    CExtraPixels(const CExtraPixels&) = delete;
    CExtraPixels& operator=(const CExtraPixels&) = delete;

    /// 0 without zoom.
    int GetX() const { return Count(xAxis, size.width); }
    int GetY() const { return Count(yAxis, size.height); }

    /// Fires when the zoom changes, and when a zoomed picture gets another size.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    void SetSize(Graphics::CSize newSize)
    {
        const Graphics::CPoint before = {GetX(), GetY()};
        size = newSize;
        if (before != Graphics::CPoint{GetX(), GetY()})
        {
            changed.Notify();
        }
    }

private:
    static int Count(const Controls::CParamViewerConfig& axis, int length)
    {
        const double extra = (static_cast<double>(axis.GetZoom()) - 1.0) * std::max(length, 0);
        return extra < 2147483647.0 ? Graphics::RoundToPixel(extra) : 2147483647;
    }

    const Controls::CParamViewerConfig& xAxis;
    const Controls::CParamViewerConfig& yAxis;
    Graphics::CSize size;
    mutable Core::CEventProvider changed; ///< Listening changes nothing of the picture.
    Core::TConstCommand<Core::INotify> forward{&changed, &Core::INotify::Notify};
    CoreUtilities::CCallbackHelper xConnection;
    CoreUtilities::CCallbackHelper yConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
