#include "Mirel/GUI/Native/X11/CX11Grabs.h"

#include <algorithm>
#include <cstdint>

namespace Mirel::GUI
{

namespace
{
constexpr std::uint16_t pointerEvents = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                        XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW |
                                        XCB_EVENT_MASK_LEAVE_WINDOW;
}

bool CX11Grabs::GrabPointer(xcb_window_t window, bool ownEvents) const
{
    const auto cookie =
        xcb_grab_pointer(connection.Get(), ownEvents ? 1 : 0, window, pointerEvents, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    const TX11Pointer<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(connection.Get(), cookie, nullptr));
    return reply != nullptr && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void CX11Grabs::HandToMenu() const
{
    if (menus.empty())
    {
        xcb_ungrab_pointer(connection.Get(), XCB_CURRENT_TIME);
        return;
    }
    // The program's own windows get their own events, so that the pointer can go from one menu to the next.
    GrabPointer(menus.back(), true);
    const auto cookie = xcb_grab_keyboard(connection.Get(), 0, menus.back(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const TX11Pointer<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(connection.Get(), cookie, nullptr));
}

bool CX11Grabs::Capture(xcb_window_t window)
{
    const CX11Scope scope(connection);
    if (capturing == window)
    {
        return true;
    }
    if (!GrabPointer(window, false))
    {
        return false;
    }
    capturing = window;
    return true;
}

bool CX11Grabs::Release(xcb_window_t window)
{
    if (window == XCB_NONE || capturing != window)
    {
        return false;
    }
    const CX11Scope scope(connection);
    capturing = XCB_NONE;
    HandToMenu();
    return true;
}

void CX11Grabs::AddMenu(xcb_window_t window)
{
    const CX11Scope scope(connection);
    capturing = XCB_NONE;
    menus.push_back(window);
    HandToMenu();
}

void CX11Grabs::RemoveMenu(xcb_window_t window)
{
    const auto place = std::find(menus.begin(), menus.end(), window);
    if (place == menus.end())
    {
        return;
    }
    const CX11Scope scope(connection);
    const bool isLatest = window == menus.back();
    menus.erase(place);
    if (isLatest && capturing == XCB_NONE)
    {
        HandToMenu();
    }
    if (menus.empty())
    {
        xcb_ungrab_keyboard(connection.Get(), XCB_CURRENT_TIME);
    }
}

bool CX11Grabs::IsMenu(xcb_window_t window) const
{
    return std::find(menus.begin(), menus.end(), window) != menus.end();
}

} // namespace Mirel::GUI
