#include "Mirel/DataModel/GUIWidgets/CToggleSwitchUserControl.h"

namespace Mirel::DataModel::GUIWidgets
{

void CToggleSwitchUserControl::SetPushed(bool pushed)
{
    if (pushed == IsPushed())
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    GetGraphics().SetPushed(pushed);
    if (pushed && watch.IsAlive())
    {
        control.BeginEdit();
    }
    if (watch.IsAlive())
    {
        control.SetPosition(pushed ? 1.0F : 0.0F);
    }
    if (!pushed && watch.IsAlive())
    {
        control.EndEdit();
    }
}

bool CToggleSwitchUserControl::OnRightDown(const GUI::COSXMouseEvent& /*event*/)
{
    control.NotifyRightClick(true);
    return true;
}

bool CToggleSwitchUserControl::OnRightUp(const GUI::COSXMouseEvent& /*event*/)
{
    control.NotifyRightClick(false);
    return true;
}

bool CToggleSwitchUserControl::Pushes(const GUI::COSXKeyEvent& event) const
{
    return CPushUserControl::Pushes(event) || IsStepKey(event.key);
}

} // namespace Mirel::DataModel::GUIWidgets
