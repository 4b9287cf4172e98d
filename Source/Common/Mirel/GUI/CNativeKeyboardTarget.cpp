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
    const auto held = target;
    return held != nullptr && held->AcceptsKey(event) && held->OnKeyDown(event);
}

bool CNativeKeyboardTarget::SendKeyUp(const COSXKeyEvent& event) const
{
    const auto held = target;
    return held != nullptr && held->AcceptsKey(event) && held->OnKeyUp(event);
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

} // namespace Mirel::GUI
