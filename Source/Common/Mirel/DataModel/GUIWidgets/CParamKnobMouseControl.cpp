#include "Mirel/DataModel/GUIWidgets/CParamKnobMouseControl.h"

#include "Mirel/DataModel/GUIWidgets/CSingleEdit.h"
#include "Mirel/GUI/InputEvents.h"

namespace Mirel::DataModel::GUIWidgets
{

bool CParamKnobMouseControl::OnLeftDown(const GUI::COSXMouseEvent& event)
{
    ReadFineMode(event);
    if (dragging)
    {
        return true;
    }
    if (event.IsModifierDown(GUI::EModifierKey::Alternate))
    {
        const CSingleEdit edit(control, life);
        control.SetDefault();
        return true;
    }
    MeasureFrom(event.position, control.GetPosition());
    fineAtLastEvent = control.IsFineMode();
    control.BeginEdit();
    SetDragging(true);
    return true;
}

bool CParamKnobMouseControl::OnMouseDrag(const GUI::COSXMouseEvent& event)
{
    ReadFineMode(event);
    if (!dragging)
    {
        return false;
    }
    if (control.IsFineMode() != fineAtLastEvent)
    {
        // Measured from here on, or the knob would jump by what it moved so far.
        MeasureFrom(lastPoint, control.GetPosition());
    }
    lastPoint = event.position;
    fineAtLastEvent = control.IsFineMode();
    const float range = GUIWidgets::GetPixelRange(pixelRange);
    if (MovesKnob(range))
    {
        const double pixels = horizontal ? static_cast<double>(lastPoint.x) - anchor.x
                                         : static_cast<double>(anchor.y) - lastPoint.y;
        control.SetPosition(GetFineScale(control) * static_cast<float>(pixels) / range + startPosition);
    }
    return true;
}

bool CParamKnobMouseControl::OnLeftUp(const GUI::COSXMouseEvent& event)
{
    ReadFineMode(event);
    if (!dragging)
    {
        return false;
    }
    OnCaptureLost();
    return true;
}

void CParamKnobMouseControl::OnCaptureLost()
{
    if (dragging)
    {
        const Core::CLifeToken::CWatch watch(life);
        SetDragging(false);
        if (watch.IsAlive())
        {
            control.EndEdit();
        }
    }
}

bool CParamKnobMouseControl::OnLeftDoubleClick(const GUI::COSXMouseEvent& event)
{
    ReadFineMode(event);
    if (opener != nullptr)
    {
        opener->OpenFineEdit(control, event.screenPosition);
    }
    return opener != nullptr;
}

bool CParamKnobMouseControl::OnMouseWheel(const GUI::COSXMouseWheelEvent& event)
{
    ReadFineMode(event);
    const float amount = GetSteps(control, GUIWidgets::GetPixelRange(pixelRange), event.deltaY);
    const CSingleEdit edit(control, life);
    control.SetPosition(amount + control.GetPosition());
    if (edit.IsAlive())
    {
        control.SetFineMode(false);
    }
    return true;
}

bool CParamKnobMouseControl::OnRightDown(const GUI::COSXMouseEvent& event)
{
    ReadFineMode(event);
    control.NotifyRightClick(true);
    return true;
}

bool CParamKnobMouseControl::OnRightUp(const GUI::COSXMouseEvent& event)
{
    ReadFineMode(event);
    control.NotifyRightClick(false);
    return true;
}

void CParamKnobMouseControl::MeasureFrom(Core::CPoint point, float position)
{
    anchor = lastPoint = point;
    startPosition = position;
}

void CParamKnobMouseControl::ReadFineMode(const GUI::CModifierState& event)
{
    control.SetFineMode(event.IsModifierDown(GUI::EModifierKey::Shift));
}

void CParamKnobMouseControl::SetDragging(bool newDragging)
{
    dragging = newDragging;
    draggingChanged.Notify();
}

} // namespace Mirel::DataModel::GUIWidgets
