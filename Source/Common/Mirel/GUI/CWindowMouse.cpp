#include "Mirel/GUI/CWindowMouse.h"

#include "Mirel/GUI/CWindowBase.h"
#include "Mirel/GUI/FindWidget.h"

#include <utility>

namespace Mirel::GUI
{

namespace
{

using CWatch = Core::CLifeToken::CWatch;

} // namespace

void CWindowMouse::OnMove(const SNativeMouseEvent& event)
{
    last = event;
    inside = true;
    const CWatch watch(life);
    if (!EndStalePress(event.buttons))
    {
        return;
    }
    buttons = event.buttons;
    if (buttons != 0)
    {
        if (CWidget* const holder = GetHolder(); holder != nullptr && window.Announce(*holder, {&event}))
        {
            holder->GetNativeMouseTarget().Send(&CMouseTarget::OnMouseDrag, Translate(event, *holder));
        }
        return;
    }
    CWidget* const target = captured != nullptr ? captured : Find(event);
    if (!ChangeHover(target, event))
    {
        return;
    }
    if (hover != nullptr && window.Announce(*hover, {&event}) && hover != nullptr)
    {
        hover->GetNativeMouseTarget().Send(&CMouseTarget::OnMouseMove, Translate(event, *hover));
    }
    if (watch.IsAlive())
    {
        ShowCursor(event);
    }
}

void CWindowMouse::OnLeave(const SNativeMouseEvent& event)
{
    last = event;
    inside = false;
    if (buttons == 0 && captured == nullptr)
    {
        ChangeHover(nullptr, event);
    }
}

void CWindowMouse::OnDown(const SNativeMouseEvent& event)
{
    last = event;
    if (!EndStalePress(event.buttons & ~ButtonFlag(event.button)))
    {
        return;
    }
    buttons = event.buttons;
    if (GetHolder() == nullptr)
    {
        pressed = Find(event);
    }
    CWidget* const target = GetHolder();
    if (target == nullptr)
    {
        return;
    }
    const CWatch watch(life);
    const CWatch targetWatch(target->GetLifeToken());
    if (target->GetFocusOnClick() && target->GetKeyboardTarget() != nullptr)
    {
        target->SetFocus();
    }
    if (watch.IsAlive() && targetWatch.IsAlive() && window.Announce(*target, {&event}))
    {
        target->GetNativeMouseTarget().SendDown(Translate(event, *target));
    }
}

void CWindowMouse::OnUp(const SNativeMouseEvent& event)
{
    last = event;
    buttons = event.buttons;
    CWidget* const target = GetHolder();
    if (buttons == 0)
    {
        pressed = nullptr;
    }
    const CWatch watch(life);
    if (target != nullptr && window.Announce(*target, {&event}))
    {
        target->GetNativeMouseTarget().SendUp(Translate(event, *target));
    }
    if (!watch.IsAlive())
    {
        return;
    }
    UpdateNativeCapture();
    if (buttons != 0 || captured != nullptr)
    {
        return;
    }
    // What was not told while the button was held.
    CWidget* const under = Find(event);
    if (under != hover && ChangeHover(inside ? under : nullptr, event))
    {
        ShowCursor(event);
    }
}

void CWindowMouse::OnWheel(const SNativeWheelEvent& event)
{
    SNativeMouseEvent place;
    place.position = event.position;
    CWidget* target = Find(place);
    const CWatch watch(life);
    while (target != nullptr)
    {
        const CWatch targetWatch(target->GetLifeToken());
        COSXMouseWheelEvent translated;
        translated.position = Minus(window.ToSkin(event.position), target->GetPositionInWindow());
        translated.screenPosition = event.screenPosition;
        translated.deltaY = static_cast<float>(event.deltaY);
        translated.modifiers = event.modifiers;
        if (!window.Announce(*target, {&event}) ||
            target->GetNativeMouseTarget().Send(&CMouseTarget::OnMouseWheel, translated) ||
            !watch.IsAlive() || !targetWatch.IsAlive())
        {
            return;
        }
        target = target->GetParent();
    }
}

void CWindowMouse::OnCaptureLost()
{
    buttons = 0;
    holdsNative = false;
    CWidget* const first = std::exchange(captured, nullptr);
    CWidget* const second = std::exchange(pressed, nullptr);
    CWidget* const target = first != nullptr ? first : second;
    if (target != nullptr)
    {
        target->GetNativeMouseTarget().SendCaptureLost();
    }
}

bool CWindowMouse::Capture(CWidget& widget)
{
    if (captured != nullptr && captured != &widget)
    {
        return false;
    }
    captured = &widget;
    UpdateNativeCapture();
    return true;
}

void CWindowMouse::Release(CWidget& widget)
{
    if (captured == &widget)
    {
        captured = nullptr;
        UpdateNativeCapture();
    }
}

void CWindowMouse::Forget(CWidget& widget, bool isAlive)
{
    const auto standsIn = [&widget](const CWidget* other)
    { return other != nullptr && other->StandsIn(widget); };
    if (standsIn(hover))
    {
        hover = nullptr;
    }
    CWidget* const holder = GetHolder();
    if (standsIn(pressed))
    {
        pressed = nullptr;
    }
    if (standsIn(captured))
    {
        captured = nullptr;
        UpdateNativeCapture();
    }
    if (isAlive && standsIn(holder))
    {
        holder->GetNativeMouseTarget().SendCaptureLost();
    }
}

void CWindowMouse::RefreshCursor()
{
    if (inside)
    {
        ShowCursor(last);
    }
}

COSXMouseEvent CWindowMouse::Translate(const SNativeMouseEvent& event, const CWidget& widget) const
{
    COSXMouseEvent translated;
    translated.position = Minus(window.ToSkin(event.position), widget.GetPositionInWindow());
    translated.button = event.button;
    translated.clickCount = event.clickCount;
    translated.modifiers = event.modifiers;
    translated.screenPosition = event.screenPosition;
    return translated;
}

CWidget* CWindowMouse::Find(const SNativeMouseEvent& event) const
{
    CWidget* const content = window.GetContent();
    return content == nullptr
               ? nullptr
               : FindWidget(*content, Minus(window.ToSkin(event.position), content->GetPosition()));
}

/// A menu that was opened by a press gets the release of it. False if the window went meanwhile.
bool CWindowMouse::EndStalePress(std::uint32_t heldBefore)
{
    const CWatch watch(life);
    if (pressed != nullptr && heldBefore == 0)
    {
        std::exchange(pressed, nullptr)->GetNativeMouseTarget().SendCaptureLost();
    }
    return watch.IsAlive();
}

/// False if the window went meanwhile.
bool CWindowMouse::ChangeHover(CWidget* widget, const SNativeMouseEvent& event)
{
    if (widget == hover)
    {
        return true;
    }
    const CWatch watch(life);
    CWidget* const old = std::exchange(hover, widget);
    if (old != nullptr)
    {
        old->GetNativeMouseTarget().Send(&CMouseTarget::OnMouseLeave, Translate(event, *old));
    }
    if (watch.IsAlive() && hover == widget && widget != nullptr)
    {
        widget->GetNativeMouseTarget().Send(&CMouseTarget::OnMouseEnter, Translate(event, *widget));
    }
    return watch.IsAlive();
}

/// The target may set a cursor of its own; otherwise it is the widget's, or that of the next one around it.
void CWindowMouse::ShowCursor(const SNativeMouseEvent& event)
{
    const CWatch watch(life);
    if (hover != nullptr &&
        hover->GetNativeMouseTarget().Send(&CMouseTarget::OnCursorUpdate, Translate(event, *hover)))
    {
        return;
    }
    if (!watch.IsAlive())
    {
        return;
    }
    const CWidget* widget = hover;
    while (widget != nullptr && widget->GetCursor() == nullptr)
    {
        widget = widget->GetParent();
    }
    window.ShowCursor(widget == nullptr ? nullptr : widget->GetCursor().get());
}

/// A held button captures by itself.
void CWindowMouse::UpdateNativeCapture()
{
    const bool wanted = captured != nullptr && buttons == 0;
    if (wanted && !holdsNative)
    {
        holdsNative = window.CaptureNative();
    }
    else if (captured == nullptr && holdsNative)
    {
        holdsNative = false;
        window.ReleaseNative();
    }
}

} // namespace Mirel::GUI
