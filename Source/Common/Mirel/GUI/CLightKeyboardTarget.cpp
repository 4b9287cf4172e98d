#include "Mirel/GUI/CLightKeyboardTarget.h"

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/OwnedTarget.h"

namespace Mirel::GUI
{

void CLightKeyboardTarget::SetTarget(CKeyboardTarget* newTarget, bool owned)
{
    target = HoldTarget(newTarget, owned);
}

bool CLightKeyboardTarget::OnKeyDown(const COSXKeyEvent& event)
{
    return SendIfEnabled(&CKeyboardTarget::OnKeyDown, event);
}

bool CLightKeyboardTarget::OnKeyUp(const COSXKeyEvent& event)
{
    return SendIfEnabled(&CKeyboardTarget::OnKeyUp, event);
}

bool CLightKeyboardTarget::OnModifierChanged(const COSXModifierKeyEvent& event)
{
    return SendIfEnabled(&CKeyboardTarget::OnModifierChanged, event);
}

bool CLightKeyboardTarget::AcceptsKey(const COSXKeyEvent& event)
{
    return SendIfEnabled(&CKeyboardTarget::AcceptsKey, event);
}

bool CLightKeyboardTarget::OnFocusGained()
{
    return SetFocused(true, &CKeyboardTarget::OnFocusGained);
}

bool CLightKeyboardTarget::OnFocusLost()
{
    return SetFocused(false, &CKeyboardTarget::OnFocusLost);
}

/// Nothing of this object is touched after the call, which may have destroyed the widget.
template <class Event>
bool CLightKeyboardTarget::SendIfEnabled(bool (CKeyboardTarget::*operation)(const Event&), const Event& event)
{
    const auto held = target;
    return held != nullptr && widget.IsEnabled() && (held.get()->*operation)(event);
}

bool CLightKeyboardTarget::SetFocused(bool newFocused, bool (CKeyboardTarget::*operation)())
{
    if (newFocused == focused)
    {
        return false;
    }
    const Core::CLifeToken::CWatch watch(life);
    focused = newFocused;
    focusChanged.Notify();
    if (!watch.IsAlive() || focused != newFocused)
    {
        return false;
    }
    const auto held = target;
    return held != nullptr && (held.get()->*operation)();
}

} // namespace Mirel::GUI
