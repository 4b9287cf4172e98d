#include "Mirel/GUI/Native/X11/CX11Platform.h"
#include "Mirel/GUI/Native/X11/CX11Window.h"
#include "Mirel/GUI/Native/X11/X11Keys.h"
#include "Mirel/GUI/Native/X11/X11Properties.h"

#include <cstdint>

namespace Mirel::GUI
{

namespace
{
constexpr std::uint8_t syntheticBit = 0x80;

/// Buttons of the protocol that a wheel presses, one press a notch.
constexpr xcb_button_t wheelUp = 4;
constexpr xcb_button_t wheelRight = 7;

/// Messages of embedding.
constexpr std::uint32_t embeddedNotify = 0;
constexpr std::uint32_t embeddedFocusIn = 4;
constexpr std::uint32_t embeddedFocusOut = 5;

EMouseButton ButtonOf(xcb_button_t button)
{
    switch (button)
    {
    case XCB_BUTTON_INDEX_1:
        return EMouseButton::Left;
    case XCB_BUTTON_INDEX_2:
        return EMouseButton::Middle;
    case XCB_BUTTON_INDEX_3:
        return EMouseButton::Right;
    default:
        return EMouseButton::Other;
    }
}

/// Motion, buttons, enter and leave have these fields, by these names.
template <typename T>
SNativeMouseEvent MakeMouse(const T& event)
{
    SNativeMouseEvent made;
    made.position = {event.event_x, event.event_y};
    made.screenPosition = {event.root_x, event.root_y};
    made.buttons = ((event.state & XCB_BUTTON_MASK_1) != 0 ? ButtonFlag(EMouseButton::Left) : 0) |
                   ((event.state & XCB_BUTTON_MASK_2) != 0 ? ButtonFlag(EMouseButton::Middle) : 0) |
                   ((event.state & XCB_BUTTON_MASK_3) != 0 ? ButtonFlag(EMouseButton::Right) : 0);
    made.modifiers = ModifiersOfState(event.state);
    made.timeMs = event.time;
    return made;
}
} // namespace

void CX11Window::HandleEvent(const xcb_generic_event_t& event)
{
    const void* record = &event;
    const std::uint8_t type = event.response_type & 0x7F;
    switch (type)
    {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
        OnKey(*static_cast<const xcb_key_press_event_t*>(record), type == XCB_KEY_PRESS);
        break;
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
        OnButton(*static_cast<const xcb_button_press_event_t*>(record), type == XCB_BUTTON_PRESS);
        break;
    case XCB_MOTION_NOTIFY:
        OnMotion(*static_cast<const xcb_motion_notify_event_t*>(record));
        break;
    case XCB_ENTER_NOTIFY:
    case XCB_LEAVE_NOTIFY:
        OnCrossing(*static_cast<const xcb_enter_notify_event_t*>(record), type == XCB_ENTER_NOTIFY);
        break;
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT:
    {
        const auto& focus = *static_cast<const xcb_focus_in_event_t*>(record);
        OnFocus(type == XCB_FOCUS_IN, focus.mode, focus.detail);
        break;
    }
    case XCB_EXPOSE:
        OnExposed(*static_cast<const xcb_expose_event_t*>(record));
        break;
    case XCB_CONFIGURE_NOTIFY:
        OnConfigured(*static_cast<const xcb_configure_notify_event_t*>(record),
                     (event.response_type & syntheticBit) != 0, event.full_sequence);
        break;
    case XCB_MAP_NOTIFY:
    case XCB_UNMAP_NOTIFY:
        OnMapped(type == XCB_MAP_NOTIFY);
        break;
    case XCB_REPARENT_NOTIFY:
        reparented = static_cast<const xcb_reparent_notify_event_t*>(record)->parent != connection.GetRoot();
        break;
    case XCB_CLIENT_MESSAGE:
        OnClientMessage(*static_cast<const xcb_client_message_event_t*>(record));
        break;
    case XCB_DESTROY_NOTIFY:
        Close();
        break;
    default:
        break;
    }
}

void CX11Window::OnExposed(const xcb_expose_event_t& event)
{
    lost.Union(Graphics::CRect(event.x, event.y, event.width, event.height));
    platform.SchedulePaint();
}

void CX11Window::OnConfigured(const xcb_configure_notify_event_t& event, bool isSynthetic,
                              std::uint32_t sequence)
{
    const bool isOutdated = static_cast<std::int32_t>(sequence - configureSequence) < 0;
    if (isOutdated)
    {
        return;
    }
    // Inside a frame the server tells the place in the frame.
    const bool isInFrame = reparented && !isSynthetic && kind != ENativeWindowKind::Child;
    const CPoint place = isInFrame ? GetScreenPosition() : CPoint{event.x, event.y};
    const CSize extent{event.width, event.height};
    const bool isMoved = place != position;
    position = place;
    if (extent != size)
    {
        const Core::CLifeToken::CWatch watch(life);
        ChangeSize(extent);
        sink.OnResized(extent);
        if (!watch.IsAlive())
        {
            return;
        }
    }
    if (isMoved && id != XCB_NONE)
    {
        sink.OnMoved(place);
    }
}

void CX11Window::OnMapped(bool isMapped)
{
    if (mapped == isMapped)
    {
        return;
    }
    mapped = isMapped;
    if (mapped)
    {
        const CX11Scope scope(connection);
        if (IsTop() && !HasWindowManager(connection))
        {
            SetFocus(); // Nobody else would give it.
        }
        if (paintWanted)
        {
            platform.SchedulePaint();
        }
    }
    const Core::CLifeToken::CWatch watch(life);
    if (!mapped && pointerInside)
    {
        pointerInside = false;
        sink.OnPointerLeave(SNativeMouseEvent());
    }
    if (!watch.IsAlive())
    {
        return;
    }
    if (isMapped)
    {
        sink.OnShown();
    }
    else
    {
        sink.OnHidden();
    }
}

void CX11Window::OnFocus(bool isIn, std::uint8_t mode, std::uint8_t detail)
{
    const bool isGrab = mode == XCB_NOTIFY_MODE_GRAB || mode == XCB_NOTIFY_MODE_UNGRAB;
    const bool isByPointer = detail == XCB_NOTIFY_DETAIL_POINTER || detail == XCB_NOTIFY_DETAIL_POINTER_ROOT;
    if (!isGrab && !isByPointer)
    {
        ChangeFocus(isIn);
    }
}

void CX11Window::ChangeFocus(bool focused_)
{
    if (focused == focused_)
    {
        return;
    }
    focused = focused_;
    if (focused)
    {
        sink.OnFocusIn();
        return;
    }
    platform.GetKeyboard().Forget();
    sink.OnFocusOut();
}

void CX11Window::OnClientMessage(const xcb_client_message_event_t& event)
{
    if (event.type == connection.GetAtom(EX11Atom::XEmbed) && event.format == 32)
    {
        OnEmbedding(event);
        return;
    }
    if (event.type != connection.GetAtom(EX11Atom::WmProtocols) || event.format != 32)
    {
        return;
    }
    const xcb_atom_t protocol = event.data.data32[0];
    if (protocol == connection.GetAtom(EX11Atom::NetWmPing))
    {
        const CX11Scope scope(connection);
        SendToRoot(connection, connection.GetRoot(), event);
    }
    else if (protocol == connection.GetAtom(EX11Atom::WmDeleteWindow))
    {
        sink.OnCloseRequested();
    }
}

void CX11Window::OnEmbedding(const xcb_client_message_event_t& event)
{
    switch (event.data.data32[1])
    {
    case embeddedNotify:
        embedder = event.data.data32[3];
        break;
    case embeddedFocusIn:
        ChangeFocus(true);
        break;
    case embeddedFocusOut:
        ChangeFocus(false);
        break;
    default:
        break;
    }
}

void CX11Window::OnKey(const xcb_key_press_event_t& event, bool isDown)
{
    platform.SetTime(event.time);
    const Core::CLifeToken::CWatch watch(life);
    bool isSpare = false;
    if (isDown)
    {
        isSpare = !sink.OnKeyDown(platform.GetKeyboard().Press(event));
    }
    else
    {
        sink.OnKeyUp(platform.GetKeyboard().Release(event));
    }
    if (!watch.IsAlive())
    {
        return;
    }
    if (isDown)
    {
        // What another program sent here was its own before.
        const bool isSent = (event.response_type & syntheticBit) != 0;
        handedOn.set(event.detail, isSpare && !isSent && parent != XCB_NONE);
    }
    if (handedOn.test(event.detail))
    {
        HandOn(event);
    }
    if (!isDown)
    {
        handedOn.reset(event.detail);
    }
}

/// As the server does with a key that a window did not ask for: to the parent, or whatever around that wants
/// keys.
void CX11Window::HandOn(xcb_key_press_event_t event)
{
    if (id == XCB_NONE)
    {
        return;
    }
    const CX11Scope scope(connection);
    const bool isDown = (event.response_type & ~syntheticBit) == XCB_KEY_PRESS;
    event.event = parent;
    event.child = id;
    event.event_x = static_cast<std::int16_t>(event.event_x + position.x);
    event.event_y = static_cast<std::int16_t>(event.event_y + position.y);
    xcb_send_event(connection.Get(), 1, parent,
                   isDown ? XCB_EVENT_MASK_KEY_PRESS : XCB_EVENT_MASK_KEY_RELEASE,
                   reinterpret_cast<const char*>(&event)); // NOLINT: the protocol's bytes
}

void CX11Window::OnCrossing(const xcb_enter_notify_event_t& event, bool isIn)
{
    platform.SetTime(event.time);
    const bool isHeldBack = !platform.GetGrabs().GetMenus().empty() && !platform.GetGrabs().IsMenu(id);
    // A window that captures the pointer from outside is told that it enters.
    const bool isElsewhere = !IsInside({event.event_x, event.event_y});
    if (isIn == pointerInside || (isIn && (isHeldBack || isElsewhere)))
    {
        return;
    }
    pointerInside = isIn;
    if (isIn)
    {
        sink.OnPointerEnter(MakeMouse(event));
        return;
    }
    sink.OnPointerLeave(MakeMouse(event));
}

void CX11Window::OnMotion(const xcb_motion_notify_event_t& event)
{
    platform.SetTime(event.time);
    const bool isHeldBack = !platform.GetGrabs().GetMenus().empty() && !platform.GetGrabs().IsMenu(id);
    if (!isHeldBack)
    {
        sink.OnPointerMove(MakeMouse(event));
    }
}

void CX11Window::OnButton(const xcb_button_press_event_t& event, bool isDown)
{
    platform.SetTime(event.time);
    const CX11Grabs& grabs = platform.GetGrabs();
    const bool isOutside = !grabs.GetMenus().empty() && !grabs.IsCapturing(id) &&
                           (!grabs.IsMenu(id) || !IsInside({event.event_x, event.event_y}));
    const bool isWheel = event.detail >= wheelUp && event.detail <= wheelRight;
    if (isWheel)
    {
        if (isDown && !isOutside)
        {
            OnWheel(event);
        }
        return;
    }
    if (isDown && isOutside)
    {
        platform.Swallow(event.detail);
        platform.DismissMenus();
        return;
    }
    if (!isDown && platform.TakeSwallowed(event.detail))
    {
        return;
    }
    SNativeMouseEvent made = MakeMouse(event);
    made.button = ButtonOf(event.detail);
    if (isDown)
    {
        made.buttons |= ButtonFlag(made.button);
        made.clickCount = platform.GetClicks().CountPress(made.button, made.screenPosition, event.time);
        sink.OnButtonDown(made);
        return;
    }
    made.buttons &= ~ButtonFlag(made.button);
    made.clickCount = platform.GetClicks().CountRelease(made.button, made.screenPosition);
    sink.OnButtonUp(made);
}

void CX11Window::OnWheel(const xcb_button_press_event_t& event)
{
    constexpr xcb_button_t wheelDown = 5;
    constexpr xcb_button_t wheelLeft = 6;
    const SNativeMouseEvent mouse = MakeMouse(event);
    SNativeWheelEvent made;
    made.position = mouse.position;
    made.screenPosition = mouse.screenPosition;
    made.modifiers = mouse.modifiers;
    made.timeMs = mouse.timeMs;
    made.deltaY = event.detail == wheelUp ? 1.0 : event.detail == wheelDown ? -1.0 : 0.0;
    made.deltaX = event.detail == wheelLeft ? 1.0 : event.detail == wheelRight ? -1.0 : 0.0;
    sink.OnWheel(made);
}

} // namespace Mirel::GUI
