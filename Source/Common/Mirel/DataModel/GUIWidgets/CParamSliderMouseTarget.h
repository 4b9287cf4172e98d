#pragma once

#include "Mirel/DataModel/GUIWidgets/CLinearParamGraphics.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobMouseControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Drags the thumb of a slider as a knob is turned. A press beside the thumb first brings it there, in the
/// same gesture. GUI thread.
class CParamSliderMouseTarget : public CParamKnobMouseControl
{
public:
    /// None is owned; all must outlive this object.
    CParamSliderMouseTarget(Controls::CParamControl& control_, const CLinearParamGraphics& graphics_,
                            IFineEditOpener* opener_)
        : CParamKnobMouseControl(control_, opener_),
          graphics(graphics_)
    {
    }

    bool OnLeftDown(const GUI::COSXMouseEvent& event) override;

private:
    const CLinearParamGraphics& graphics;
};

} // namespace Mirel::DataModel::GUIWidgets
