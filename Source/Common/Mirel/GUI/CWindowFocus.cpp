#include "Mirel/GUI/CWindowFocus.h"

#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/CWindowBase.h"

#include <utility>

namespace Mirel::GUI
{

namespace
{

using CWatch = Core::CLifeToken::CWatch;

COSXKeyEvent ToKeyEvent(const SNativeKeyEvent& event)
{
    COSXKeyEvent key;
    key.modifiers = event.modifiers;
    key.key = event.key;
    key.keyCode = event.keyCode;
    key.character = event.character;
    key.text = event.text;
    key.repeat = event.repeat;
    key.count = event.count;
    return key;
}

} // namespace

bool CWindowFocus::Set(CWidget* widget)
{
    if (widget != nullptr && (!widget->IsVisible() || !widget->IsEnabled()))
    {
        return false;
    }
    if (widget == focus)
    {
        return true;
    }
    const CWatch watch(life);
    CWidget* const old = std::exchange(focus, widget);
    if (widget != nullptr)
    {
        window.TakeNativeFocus();
    }
    if (watch.IsAlive() && old != nullptr)
    {
        old->GetNativeKeyboardTarget().SendFocus(false);
    }
    if (watch.IsAlive() && focus == widget && widget != nullptr)
    {
        widget->GetNativeKeyboardTarget().SendFocus(true);
    }
    return watch.IsAlive() && focus == widget;
}

bool CWindowFocus::OnKey(const SNativeKeyEvent& event, bool down)
{
    const COSXKeyEvent key = ToKeyEvent(event);
    if (event.key == ENativeKey::Modifier)
    {
        return OnModifier(event);
    }
    return SendUpward(event, [&key, down](CNativeKeyboardTarget& target)
                      { return down ? target.SendKeyDown(key) : target.SendKeyUp(key); });
}

void CWindowFocus::Forget(const CWidget& widget, bool isAlive)
{
    if (focus == nullptr || !focus->StandsIn(widget))
    {
        return;
    }
    CWidget* const old = std::exchange(focus, nullptr);
    if (isAlive)
    {
        old->GetNativeKeyboardTarget().SendFocus(false);
    }
}

/// Only the alternate key is told of.
bool CWindowFocus::OnModifier(const SNativeKeyEvent& event)
{
    COSXModifierKeyEvent modifier;
    modifier.previous = std::exchange(modifiers, event.modifiers);
    modifier.modifiers = event.modifiers;
    const bool changed = ((modifier.previous ^ modifier.modifiers) & ModifierFlags::alternate) != 0;
    return changed && SendUpward(event, [&modifier](CNativeKeyboardTarget& target)
                                 { return target.SendModifierChanged(modifier); });
}

template <class Send>
bool CWindowFocus::SendUpward(const SNativeKeyEvent& event, const Send& send)
{
    const CWatch watch(life);
    CWidget* widget = focus;
    while (widget != nullptr)
    {
        const CWatch widgetWatch(widget->GetLifeToken());
        if (!window.Announce(*widget, {&event}) || send(widget->GetNativeKeyboardTarget()))
        {
            return true;
        }
        if (!watch.IsAlive() || !widgetWatch.IsAlive())
        {
            return false;
        }
        widget = widget->GetParent();
    }
    return false;
}

} // namespace Mirel::GUI
