#include "Mirel/GUI/CInputManager.h"

#include "Mirel/GUI/CWindowBase.h"

#include <utility>

namespace Mirel::GUI
{

namespace
{

using CWatch = Core::CLifeToken::CWatch;
using EButton = CLightWidgetAdapter::CInputManager::EButton;

std::size_t ToIndex(EButton button)
{
    return static_cast<std::size_t>(button);
}

std::uint32_t ToBit(EButton button)
{
    return 1U << ToIndex(button);
}

CTranslatedMouseEvent Translate(const COSXMouseEvent& event, const CLightWidget& widget)
{
    return {event, widget.GetAbsolutePosition()};
}

} // namespace

bool CLightWidgetAdapter::CInputManager::OnDown(EButton button, const COSXMouseEvent& event)
{
    held |= ToBit(button);
    pressed[ToIndex(button)] = nullptr;
    const CWatch watch(life);
    if (captured == nullptr)
    {
        CLightWidget* const hit = host.FindLight(event.position);
        if (hit == nullptr || !hit->IsEnabled())
        {
            return false;
        }
        captured = hit;
        host.CaptureMouse();
        if (CLightWidget* const target = hit->GetFocusTarget(); target != nullptr)
        {
            SetFocus(target);
        }
        if (!watch.IsAlive() || captured == nullptr)
        {
            return true;
        }
    }
    pressed[ToIndex(button)] = captured;
    if (!captured->IsVisible())
    {
        return false;
    }
    GUI::CMouseTarget& target = captured->GetInnerMouseTarget();
    const CTranslatedMouseEvent translated = Translate(event, *captured);
    return button == EButton::Left ? target.OnLeftDown(translated) : target.OnRightDown(translated);
}

bool CLightWidgetAdapter::CInputManager::OnUp(EButton button, const COSXMouseEvent& event)
{
    held &= ~ToBit(button);
    CLightWidget* const widget = captured != nullptr ? captured : host.FindLight(event.position);
    const CWatch watch(life);
    bool handled = false;
    if (widget != nullptr && widget->IsVisible())
    {
        GUI::CMouseTarget& target = widget->GetInnerMouseTarget();
        const CTranslatedMouseEvent translated = Translate(event, *widget);
        handled = button == EButton::Left ? target.OnLeftUp(translated) : target.OnRightUp(translated);
    }
    if (watch.IsAlive() && held == 0)
    {
        EndCapture(event);
    }
    return handled;
}

bool CLightWidgetAdapter::CInputManager::OnClick(EButton button, bool isDouble, const COSXMouseEvent& event)
{
    CLightWidget* const widget = host.FindLight(event.position);
    if (widget == nullptr || widget != pressed[ToIndex(button)])
    {
        return false;
    }
    GUI::CMouseTarget& target = widget->GetInnerMouseTarget();
    const CTranslatedMouseEvent translated = Translate(event, *widget);
    if (button == EButton::Left)
    {
        return isDouble ? target.OnLeftDoubleClick(translated) : target.OnLeftClick(translated);
    }
    return isDouble ? target.OnRightDoubleClick(translated) : target.OnRightClick(translated);
}

bool CLightWidgetAdapter::CInputManager::OnMove(const COSXMouseEvent& event)
{
    if (captured != nullptr)
    {
        bool wasEntered = false;
        return TrackCaptured(event, wasEntered) &&
               (wasEntered || captured->GetInnerMouseTarget().OnMouseMove(Translate(event, *captured)));
    }
    CLightWidget* const target = host.FindLight(event.position);
    if (target != hover)
    {
        return ChangeHover(target, event);
    }
    return hover != nullptr && hover->GetInnerMouseTarget().OnMouseMove(Translate(event, *hover));
}

bool CLightWidgetAdapter::CInputManager::OnDrag(const COSXMouseEvent& event)
{
    bool wasEntered = false;
    return captured != nullptr && TrackCaptured(event, wasEntered) &&
           captured->GetInnerMouseTarget().OnMouseDrag(Translate(event, *captured));
}

bool CLightWidgetAdapter::CInputManager::OnWheel(const COSXMouseWheelEvent& event)
{
    CLightWidget* const widget = host.FindLight(event.position);
    return widget != nullptr && widget->GetInnerMouseTarget().OnMouseWheel(
                                    CTranslatedMouseWheelEvent(event, widget->GetAbsolutePosition()));
}

/// A widget without a cursor shows that of the next one around it.
bool CLightWidgetAdapter::CInputManager::OnCursorUpdate(const COSXMouseEvent& event)
{
    CLightWidget* widget = host.FindLight(event.position);
    if (widget == nullptr)
    {
        return false;
    }
    const CWatch watch(life);
    const CWatch widgetWatch(widget->GetLifeToken());
    if (widget->GetInnerMouseTarget().OnCursorUpdate(Translate(event, *widget)) || !watch.IsAlive() ||
        !widgetWatch.IsAlive())
    {
        return true;
    }
    while (widget != nullptr && widget->GetCursor() == nullptr)
    {
        widget = widget->GetParent();
    }
    CWindowBase* const window = host.GetWindow();
    if (widget == nullptr || window == nullptr)
    {
        return false;
    }
    window->ShowCursor(widget->GetCursor().get());
    return true;
}

bool CLightWidgetAdapter::CInputManager::OnHostLeave(const COSXMouseEvent& event)
{
    return ChangeHover(nullptr, event);
}

void CLightWidgetAdapter::CInputManager::OnCaptureLost()
{
    held = 0;
    pressed.fill(nullptr);
    if (CLightWidget* const old = std::exchange(captured, nullptr); old != nullptr)
    {
        old->GetInnerMouseTarget().OnCaptureLost();
    }
}

bool CLightWidgetAdapter::CInputManager::Capture(CLightWidget& widget)
{
    if (captured != nullptr && captured != &widget)
    {
        return false;
    }
    captured = &widget;
    return host.CaptureMouse();
}

void CLightWidgetAdapter::CInputManager::Release(CLightWidget& widget)
{
    if (captured == &widget && held == 0)
    {
        captured = nullptr;
        host.ReleaseMouse();
    }
}

void CLightWidgetAdapter::CInputManager::SetFocus(CLightWidget* widget)
{
    if (widget != nullptr && (!widget->IsVisible() || !widget->IsEnabled()))
    {
        return;
    }
    const CWatch watch(life);
    CLightWidget* const old = std::exchange(focus, widget);
    if (old != nullptr && old != widget)
    {
        old->GetInnerKeyboardTarget().OnFocusLost();
    }
    if (!watch.IsAlive() || focus != widget || widget == nullptr)
    {
        return;
    }
    // Tells the widget on the way, if the host was without the focus.
    host.CWidget::SetFocus();
    if (watch.IsAlive() && focus == widget && host.HasFocus())
    {
        widget->GetInnerKeyboardTarget().OnFocusGained();
    }
}

bool CLightWidgetAdapter::CInputManager::OnHostFocus(bool gained)
{
    if (focus == nullptr)
    {
        return false;
    }
    CLightKeyboardTarget& target = focus->GetInnerKeyboardTarget();
    return gained ? target.OnFocusGained() : target.OnFocusLost();
}

void CLightWidgetAdapter::CInputManager::Forget(CLightWidget& widget, bool isAlive)
{
    const SLost lost = Take(widget);
    if (lost.captured != nullptr && held == 0)
    {
        host.ReleaseMouse();
    }
    if (isAlive)
    {
        Tell(lost);
    }
}

void CLightWidgetAdapter::CInputManager::OnHidden(CLightWidget& widget)
{
    const SLost lost = Take(widget);
    if (lost.captured != nullptr && held != 0)
    {
        captured = lost.captured;
    }
    else if (lost.captured != nullptr)
    {
        host.ReleaseMouse();
    }
    Tell(lost);
}

CLightWidgetAdapter::CInputManager::SLost CLightWidgetAdapter::CInputManager::Take(const CLightWidget& widget)
{
    const auto take = [&widget](CLightWidget*& place) -> CLightWidget*
    { return place != nullptr && place->StandsIn(widget) ? std::exchange(place, nullptr) : nullptr; };
    for (CLightWidget*& place : pressed)
    {
        take(place);
    }
    return {take(hover), take(captured), take(focus)};
}

/// Each of them may destroy the others.
void CLightWidgetAdapter::CInputManager::Tell(const SLost& lost)
{
    const auto watchOf = [](const CLightWidget* widget)
    { return widget == nullptr ? nullptr : std::make_unique<CWatch>(widget->GetLifeToken()); };
    const auto capturedWatch = watchOf(lost.captured);
    const auto focusWatch = watchOf(lost.focus);
    if (lost.hover != nullptr)
    {
        lost.hover->GetInnerMouseTarget().ForgetMouse();
    }
    if (capturedWatch != nullptr && capturedWatch->IsAlive())
    {
        lost.captured->GetInnerMouseTarget().OnCaptureLost();
    }
    if (focusWatch != nullptr && focusWatch->IsAlive())
    {
        lost.focus->GetInnerKeyboardTarget().OnFocusLost();
    }
}

/// True if the old or the new widget handled it.
bool CLightWidgetAdapter::CInputManager::ChangeHover(CLightWidget* widget, const COSXMouseEvent& event)
{
    if (widget == hover)
    {
        return false;
    }
    const CWatch watch(life);
    CLightWidget* const old = std::exchange(hover, widget);
    bool handled = false;
    if (old != nullptr)
    {
        handled = old->GetInnerMouseTarget().OnMouseLeave(Translate(event, *old));
    }
    if (watch.IsAlive() && widget != nullptr && hover == widget)
    {
        handled = widget->GetInnerMouseTarget().OnMouseEnter(Translate(event, *widget)) || handled;
    }
    return handled;
}

/// Enter and leave of the widget that holds the mouse. False if it gets no more of this event: it is hidden,
/// or a handler took it or the manager away.
bool CLightWidgetAdapter::CInputManager::TrackCaptured(const COSXMouseEvent& event, bool& wasEntered)
{
    CLightWidget* const holder = captured;
    if (!holder->IsVisible())
    {
        return false;
    }
    const CWatch watch(life);
    const bool isInside = host.FindLight(event.position) == holder;
    if (isInside != (hover == holder))
    {
        wasEntered = isInside;
        ChangeHover(isInside ? holder : nullptr, event);
    }
    return watch.IsAlive() && captured == holder;
}

void CLightWidgetAdapter::CInputManager::EndCapture(const COSXMouseEvent& event)
{
    CLightWidget* const old = std::exchange(captured, nullptr);
    host.ReleaseMouse();
    if (old != nullptr && hover == old && host.FindLight(event.position) != old)
    {
        ChangeHover(nullptr, event);
    }
}

} // namespace Mirel::GUI
