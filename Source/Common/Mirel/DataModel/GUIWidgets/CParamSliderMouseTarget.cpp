#include "Mirel/DataModel/GUIWidgets/CParamSliderMouseTarget.h"

namespace Mirel::DataModel::GUIWidgets
{

bool CParamSliderMouseTarget::OnLeftDown(const GUI::COSXMouseEvent& event)
{
    const bool wasDragging = IsDragging();
    const bool onThumb = graphics.IsOnThumb(event.position);
    CParamKnobMouseControl::OnLeftDown(event);
    // A slider that the pointer does not move is not moved by a press either.
    if (!wasDragging && IsDragging() && !onThumb && GUIWidgets::GetPixelRange(GetPixelRange()) > 0.0F)
    {
        const float position = graphics.GetTrack().GetPosition(graphics.GetSize(), event.position);
        MeasureFrom(event.position, position);
        GetControl().SetPosition(position);
    }
    return true;
}

} // namespace Mirel::DataModel::GUIWidgets
