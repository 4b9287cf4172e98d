#include "Mirel/GUI/CNativeKeyboardTarget.h"

#include "Mirel/GUI/OwnedTarget.h"

namespace Mirel::GUI
{

void CNativeKeyboardTarget::SetTarget(CKeyboardTarget* newTarget, bool owned)
{
    target = HoldTarget(newTarget, owned);
}

bool CNativeKeyboardTarget::SendKeyDown(const COSXKeyEvent& event) const
{
    return SendKey(&CKeyboardTarget::OnKeyDown, event);
}

bool CNativeKeyboardTarget::SendKeyUp(const COSXKeyEvent& event) const
{
    return SendKey(&CKeyboardTarget::OnKeyUp, event);
}

bool CNativeKeyboardTarget::SendModifierChanged(const COSXModifierKeyEvent& event) const
{
    const auto held = target;
    return held != nullptr && held->OnModifierChanged(event);
}

bool CNativeKeyboardTarget::SendFocus(bool gained) const
{
    const auto held = target;
    return held != nullptr && (gained ? held->OnFocusGained() : held->OnFocusLost());
}

/// The question may destroy the widget, or replace its target.
bool CNativeKeyboardTarget::SendKey(bool (CKeyboardTarget::*operation)(const COSXKeyEvent&),
                                    const COSXKeyEvent& event) const
{
    const auto held = target;
    const Core::CLifeToken::CWatch watch(life);
    return held != nullptr && held->AcceptsKey(event) && watch.IsAlive() && held == target &&
           (held.get()->*operation)(event);
}

} // namespace Mirel::GUI
