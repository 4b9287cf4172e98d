#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

using Graphics::CRect;

constexpr int maxScale = 4;
constexpr int screenSide = 4096;

CPoint Minus(CPoint a, CPoint b)
{
    return {Core::SaturateToInt32(std::int64_t{a.x} - b.x), Core::SaturateToInt32(std::int64_t{a.y} - b.y)};
}

} // namespace

COffscreenPlatform::COffscreenPlatform(CNativeRunLoop& loop_, int scale_)
    : loop(loop_),
      scale(std::clamp(scale_, 1, maxScale))
{
}

COffscreenPlatform::~COffscreenPlatform()
{
    // A pump that is still posted finds that there is nothing to do.
    *pumpScheduled = false;
}

std::unique_ptr<INativeWindow> COffscreenPlatform::CreateNativeWindow(const SNativeWindowOptions& options,
                                                                      INativeWindowSink& sink)
{
    return std::make_unique<COffscreenWindow>(*this, options, sink);
}

std::vector<SNativeScreen> COffscreenPlatform::GetScreens() const
{
    const CRect screen = {0, 0, screenSide, screenSide};
    return {{screen, screen, true}};
}

bool COffscreenPlatform::Pump()
{
    *pumpScheduled = false;
    bool any = false;
    const Core::CLifeToken::CWatch watch(life);
    const auto all = windows.GetAll();
    for (COffscreenWindow* window : all)
    {
        if (!watch.IsAlive())
        {
            return any;
        }
        any = (windows.Has(window) && window->PaintIfDue()) || any;
    }
    return any;
}

void COffscreenPlatform::MovePointer(CPoint screenPosition)
{
    pointer = screenPosition;
    const Core::CLifeToken::CWatch watch(life);
    const bool hasEntered = Track();
    COffscreenWindow* const target = watch.IsAlive() ? FindTarget() : nullptr;
    if (target != nullptr && !(hasEntered && target == hover))
    {
        target->GetSink().OnPointerMove(MakeEvent(*target));
    }
}

void COffscreenPlatform::PressButton(EMouseButton button)
{
    COffscreenWindow* const menu = windows.FindTopMenu();
    COffscreenWindow* const under = windows.FindAt(pointer);
    if (menu != nullptr && (under == nullptr || under->GetKind() != ENativeWindowKind::Menu))
    {
        DismissMenus();
        return;
    }
    COffscreenWindow* const target = FindTarget();
    if (buttons == 0)
    {
        grabbed = target;
    }
    buttons |= ButtonFlag(button);
    const int count = clicks.CountPress(button, pointer, static_cast<std::uint32_t>(timeMs));
    if (target != nullptr)
    {
        SNativeMouseEvent event = MakeEvent(*target);
        event.button = button;
        event.clickCount = count;
        target->GetSink().OnButtonDown(event);
    }
}

void COffscreenPlatform::ReleaseButton(EMouseButton button)
{
    if ((buttons & ButtonFlag(button)) == 0)
    {
        return;
    }
    COffscreenWindow* const target = FindTarget();
    buttons &= ~ButtonFlag(button);
    if (buttons == 0)
    {
        grabbed = nullptr;
    }
    const int count = clicks.CountRelease(button, pointer);
    const Core::CLifeToken::CWatch watch(life);
    if (target != nullptr)
    {
        SNativeMouseEvent event = MakeEvent(*target);
        event.button = button;
        event.clickCount = count;
        target->GetSink().OnButtonUp(event);
    }
    if (watch.IsAlive())
    {
        Track();
    }
}

void COffscreenPlatform::TurnWheel(double notches)
{
    COffscreenWindow* const target = FindTarget();
    if (target != nullptr)
    {
        const SNativeMouseEvent place = MakeEvent(*target);
        SNativeWheelEvent event;
        event.position = place.position;
        event.screenPosition = place.screenPosition;
        event.deltaY = notches;
        event.modifiers = modifiers;
        event.timeMs = timeMs;
        target->GetSink().OnWheel(event);
    }
}

void COffscreenPlatform::PressKey(SNativeKeyEvent event)
{
    SendKey(std::move(event), true);
}

void COffscreenPlatform::ReleaseKey(SNativeKeyEvent event)
{
    SendKey(std::move(event), false);
}

void COffscreenPlatform::SetModifiers(std::uint32_t newModifiers)
{
    const std::uint32_t changed = std::exchange(modifiers, newModifiers) ^ newModifiers;
    if (changed != 0)
    {
        SNativeKeyEvent event;
        event.key = ENativeKey::Modifier;
        SendKey(event, (changed & newModifiers) != 0);
    }
}

void COffscreenPlatform::AskToClose()
{
    if (focus != nullptr)
    {
        focus->GetSink().OnCloseRequested();
    }
}

void COffscreenPlatform::LoseCapture()
{
    COffscreenWindow* const held = grabbed != nullptr ? grabbed : captured;
    grabbed = nullptr;
    captured = nullptr;
    buttons = 0;
    if (held != nullptr)
    {
        held->GetSink().OnCaptureLost();
    }
}

void COffscreenPlatform::ChangeScale(int newScale)
{
    scale = std::clamp(newScale, 1, maxScale);
    const Core::CLifeToken::CWatch watch(life);
    const auto all = windows.GetAll();
    for (COffscreenWindow* window : all)
    {
        if (watch.IsAlive() && windows.Has(window))
        {
            window->GetSink().OnScaleChanged(scale);
        }
    }
}

void COffscreenPlatform::Remove(COffscreenWindow& window)
{
    windows.Remove(window);
    ForgetInput(window);
}

void COffscreenPlatform::OnWindowShown(COffscreenWindow& window)
{
    const bool takesFocus =
        window.GetKind() == ENativeWindowKind::TopLevel || window.GetKind() == ENativeWindowKind::Dialog;
    if (!window.IsShown())
    {
        const bool heldMouse = grabbed == &window || captured == &window;
        const bool hadFocus = focus == &window;
        ForgetInput(window);
        if (heldMouse)
        {
            window.GetSink().OnCaptureLost();
        }
        if (hadFocus && windows.Has(&window))
        {
            window.GetSink().OnFocusOut();
        }
        if (windows.Has(&window))
        {
            window.GetSink().OnHidden();
        }
        return;
    }
    SchedulePump();
    if (takesFocus)
    {
        windows.Raise(window);
    }
    window.GetSink().OnShown();
    if (takesFocus && windows.Has(&window) && window.IsShown())
    {
        SetFocus(&window);
    }
}

void COffscreenPlatform::SetFocus(COffscreenWindow* window)
{
    if (window == focus)
    {
        return;
    }
    COffscreenWindow* const old = std::exchange(focus, window);
    const Core::CLifeToken::CWatch watch(life);
    if (old != nullptr)
    {
        old->GetSink().OnFocusOut();
    }
    if (watch.IsAlive() && focus == window && window != nullptr)
    {
        window->GetSink().OnFocusIn();
    }
}

bool COffscreenPlatform::Capture(COffscreenWindow& window)
{
    if (captured != nullptr && captured != &window)
    {
        return false;
    }
    captured = &window;
    return true;
}

void COffscreenPlatform::ReleaseCapture(const COffscreenWindow& window)
{
    if (captured == &window)
    {
        captured = nullptr;
    }
}

void COffscreenPlatform::ForgetInput(const COffscreenWindow& window)
{
    for (COffscreenWindow** place : {&focus, &hover, &captured, &grabbed})
    {
        if (*place == &window)
        {
            *place = nullptr;
        }
    }
}

/// The loop may outlive the platform, so that what it runs asks first.
void COffscreenPlatform::SchedulePump()
{
    if (!std::exchange(*pumpScheduled, true))
    {
        loop.Post(
            [this, scheduled = pumpScheduled]
            {
                if (*scheduled)
                {
                    Pump();
                }
            });
    }
}

/// A menu takes the pointer from what was pressed before it came, and leaves it to the windows that the
/// pointer is over.
COffscreenWindow* COffscreenPlatform::FindTarget() const
{
    COffscreenWindow* const menu = windows.FindTopMenu();
    if (menu != nullptr && captured == nullptr)
    {
        COffscreenWindow* const under = windows.FindAt(pointer);
        return under != nullptr ? under : menu;
    }
    if (grabbed != nullptr || buttons != 0)
    {
        return grabbed;
    }
    return captured != nullptr ? captured : windows.FindAt(pointer);
}

void COffscreenPlatform::DismissMenus()
{
    const Core::CLifeToken::CWatch watch(life);
    const auto all = windows.GetAll();
    for (auto place = all.rbegin(); place != all.rend() && watch.IsAlive(); ++place)
    {
        if (windows.Has(*place) && (*place)->IsShown() && (*place)->GetKind() == ENativeWindowKind::Menu)
        {
            (*place)->GetSink().OnCloseRequested();
        }
    }
}

SNativeMouseEvent COffscreenPlatform::MakeEvent(const COffscreenWindow& window) const
{
    SNativeMouseEvent event;
    event.position = Minus(pointer, window.GetPosition());
    event.screenPosition = pointer;
    event.buttons = buttons;
    event.modifiers = modifiers;
    event.timeMs = timeMs;
    return event;
}

/// Enter and leave of windows; a held button puts them off. True if a window was entered.
bool COffscreenPlatform::Track()
{
    COffscreenWindow* const under = windows.FindAt(pointer);
    if (under == hover || (buttons != 0 && windows.FindTopMenu() == nullptr))
    {
        return false;
    }
    const Core::CLifeToken::CWatch watch(life);
    COffscreenWindow* const old = std::exchange(hover, under);
    if (old != nullptr)
    {
        old->GetSink().OnPointerLeave(MakeEvent(*old));
    }
    if (watch.IsAlive() && under != nullptr && hover == under)
    {
        under->GetSink().OnPointerEnter(MakeEvent(*under));
        return true;
    }
    return false;
}

void COffscreenPlatform::SendKey(SNativeKeyEvent event, bool down)
{
    event.modifiers = modifiers;
    event.timeMs = timeMs;
    COffscreenWindow* const menu = windows.FindTopMenu();
    COffscreenWindow* const target = menu != nullptr ? menu : focus;
    if (target != nullptr && down)
    {
        target->GetSink().OnKeyDown(event);
    }
    else if (target != nullptr)
    {
        target->GetSink().OnKeyUp(event);
    }
}

} // namespace Mirel::GUI
