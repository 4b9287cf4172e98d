#include "Mirel/GUI/CWindowFocus.h"

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/CWindowBase.h"
#include "Mirel/GUI/FocusStops.h"

#include <algorithm>
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

bool IsTraversal(const COSXKeyEvent& event)
{
    return event.key == ENativeKey::Tab && !event.IsShortcut();
}

} // namespace

bool CWindowFocus::Set(CWidget* widget)
{
    if (widget != nullptr && (!widget->IsVisible() || !widget->IsEnabled()))
    {
        return false;
    }
    const CWatch watch(life);
    CWidget* const old = std::exchange(focus, widget);
    const bool isOldTold = widget == nullptr ? away : std::exchange(away, false);
    if (widget != nullptr)
    {
        window.TakeNativeFocus();
    }
    if (widget == old && !isOldTold)
    {
        return true;
    }
    if (watch.IsAlive() && old != nullptr && !isOldTold)
    {
        old->GetNativeKeyboardTarget().SendFocus(false);
    }
    if (watch.IsAlive() && focus == widget && widget != nullptr)
    {
        widget->GetNativeKeyboardTarget().SendFocus(true);
    }
    return watch.IsAlive() && focus == widget;
}

void CWindowFocus::OnNativeFocus(bool gained)
{
    if (away != gained)
    {
        return;
    }
    away = !gained;
    if (focus != nullptr)
    {
        focus->GetNativeKeyboardTarget().SendFocus(gained);
    }
}

bool CWindowFocus::OnKey(const SNativeKeyEvent& event, bool down)
{
    const COSXKeyEvent key = ToKeyEvent(event);
    if (event.key == ENativeKey::Modifier)
    {
        return OnModifier(event);
    }
    const CWatch watch(life);
    const bool handled = SendUpward(event, [&key, down](CNativeKeyboardTarget& target)
                                    { return down ? target.SendKeyDown(key) : target.SendKeyUp(key); });
    return handled || (watch.IsAlive() && down && IsTraversal(key) &&
                       GoToStop(!key.IsModifierDown(EModifierKey::Shift)));
}

void CWindowFocus::Forget(const CWidget& widget, bool isAlive)
{
    if (focus == nullptr || !focus->StandsIn(widget))
    {
        return;
    }
    CWidget* const old = std::exchange(focus, nullptr);
    if (isAlive && !away)
    {
        old->GetNativeKeyboardTarget().SendFocus(false);
    }
}

/// False if there is none.
bool CWindowFocus::GoToStop(bool forward)
{
    const CWidget* const content = window.GetContent();
    if (content == nullptr)
    {
        return false;
    }
    std::vector<CLightWidget*> stops = FindFocusStops(*content);
    if (stops.empty())
    {
        return false;
    }
    if (!forward)
    {
        std::reverse(stops.begin(), stops.end());
    }
    const auto current =
        std::find_if(stops.begin(), stops.end(), [](const CLightWidget* stop) { return stop->HasFocus(); });
    const bool isLast = current == stops.end() || current + 1 == stops.end();
    (isLast ? stops.front() : *(current + 1))->SetFocus();
    return true;
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
