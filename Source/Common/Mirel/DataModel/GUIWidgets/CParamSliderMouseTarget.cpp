#include "Mirel/DataModel/GUIWidgets/CParamSliderMouseTarget.h"

namespace Mirel::DataModel::GUIWidgets
{

bool CParamSliderMouseTarget::OnLeftDown(const GUI::COSXMouseEvent& event)
{
    // A slider that the pointer does not move is not moved by a press either.
    const bool goesThere = !IsDragging() && !event.IsModifierDown(GUI::EModifierKey::Alternate) &&
                           !graphics.IsOnThumb(event.position) &&
                           MovesKnob(GUIWidgets::GetPixelRange(GetPixelRange()));
    CParamKnobMouseControl::OnLeftDown(event);
    if (goesThere)
    {
        const float position = graphics.GetPositionAt(event.position);
        MeasureFrom(event.position, position);
        GetControl().SetPosition(position);
    }
    return true;
}

} // namespace Mirel::DataModel::GUIWidgets
