#pragma once

#include "Mirel/DataModel/GUIWidgets/CGUIGrid.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The grid behind a curve, over the curve's axes. GUI thread.
class CGUICurveGridViewer : public CGUIGrid
{
public:
    /// The curve is not owned and must outlive the widget.
    explicit CGUICurveGridViewer(const Objects::IConstCaptureCurve& curve,
                                 GUI::CLightWidget* parent_ = nullptr)
        : CGUIGrid(curve.GetInfo().GetXInfo(), curve.GetInfo().GetYInfo(), parent_)
    {
    }
};

} // namespace Mirel::DataModel::GUIWidgets
