#pragma once

#include "Mirel/DataModel/GUIWidgets/CGUIRuler.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The scale below a curve: its x axis, from left to right. GUI thread.
class CGUIXCurveRuler : public CGUIRuler
{
public:
    /// The curve is not owned and must outlive the widget.
    explicit CGUIXCurveRuler(const Objects::IConstCaptureCurve& curve, GUI::CLightWidget* parent_ = nullptr)
        : CGUIRuler(curve.GetInfo().GetXInfo(), parent_)
    {
    }
};

} // namespace Mirel::DataModel::GUIWidgets
