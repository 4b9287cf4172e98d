#pragma once

#include "Mirel/DataModel/GUIWidgets/CGUIRuler.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The scale beside a curve: its y axis, from the bottom to the top. GUI thread.
class CGUIYCurveRuler : public CGUIRuler
{
public:
    /// The curve is not owned and must outlive the widget.
    explicit CGUIYCurveRuler(const Objects::IConstCaptureCurve& curve, GUI::CLightWidget* parent_ = nullptr)
        : CGUIRuler(curve.GetInfo().GetYInfo(), parent_)
    {
        GetRulerGraphics().SetVertical(true);
    }
};

} // namespace Mirel::DataModel::GUIWidgets
