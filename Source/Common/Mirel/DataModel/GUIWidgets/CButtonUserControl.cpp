#include "Mirel/DataModel/GUIWidgets/CButtonUserControl.h"

#include "Mirel/DataModel/GUIWidgets/CSingleEdit.h"
#include "Mirel/DataModel/GUIWidgets/ParamStops.h"

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

using CWatch = Core::CLifeToken::CWatch;
using GUI::ENativeKey;

bool IsDefaultKey(const GUI::COSXKeyEvent& event)
{
    return event.key == ENativeKey::Character && event.character == U'd';
}

} // namespace

void CButtonUserControl::SetPushed(bool pushed, bool apply)
{
    if (pushed == IsPushed())
    {
        return;
    }
    const CWatch watch(GetLifeToken());
    if (pushed)
    {
        control.BeginEdit();
    }
    else if (apply)
    {
        Step(true);
    }
    if (!pushed && watch.IsAlive())
    {
        control.EndEdit();
    }
    if (watch.IsAlive())
    {
        GetGraphics().SetPushed(pushed);
    }
}

bool CButtonUserControl::OnRightDown(const GUI::COSXMouseEvent& /*event*/)
{
    control.NotifyRightClick(true);
    return true;
}

bool CButtonUserControl::OnRightUp(const GUI::COSXMouseEvent& /*event*/)
{
    control.NotifyRightClick(false);
    return true;
}

bool CButtonUserControl::AcceptsKey(const GUI::COSXKeyEvent& event)
{
    return Pushes(event) || (!event.IsShortcut() && (IsStepKey(event.key) || IsDefaultKey(event)));
}

bool CButtonUserControl::OnKeyDown(const GUI::COSXKeyEvent& event)
{
    ReadModifiers(event);
    if (IsDefaultKey(event))
    {
        SetDefault();
        return true;
    }
    if (!IsStepKey(event.key))
    {
        return CPushUserControl::OnKeyDown(event);
    }
    // A press in hand steps at its end.
    if (!IsPushed())
    {
        const CSingleEdit edit(control, GetLifeToken());
        Step(event.key == ENativeKey::Right || event.key == ENativeKey::Up ||
             event.key == ENativeKey::PageUp);
    }
    return true;
}

void CButtonUserControl::ReadModifiers(const GUI::CModifierState& event)
{
    control.SetFineMode(event.IsModifierDown(GUI::EModifierKey::Shift));
}

bool CButtonUserControl::TakesPress(const GUI::COSXMouseEvent& event)
{
    if (!event.IsModifierDown(GUI::EModifierKey::Alternate))
    {
        return false;
    }
    SetDefault();
    return true;
}

/// Nothing of this object is touched after the value is set, which may have destroyed it.
void CButtonUserControl::Step(bool upward)
{
    const int last = GetLastStop(control);
    if (last < 1)
    {
        return;
    }
    const int stop = GetStopOf(control.GetPosition(), last);
    if (upward ? stop < last : stop > 0)
    {
        control.SetPosition(GetPositionOfStop(upward ? stop + 1 : stop - 1, last));
    }
    else if (GetGraphics().IsLoop())
    {
        control.SetPosition(upward ? 0.0F : 1.0F);
    }
}

void CButtonUserControl::SetDefault()
{
    Cancel();
    const CSingleEdit edit(control, GetLifeToken());
    control.SetDefault();
}

} // namespace Mirel::DataModel::GUIWidgets
