#pragma once

#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <vector>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

/// Who holds the pointer: the window that captured it, else the latest of the menus that are shown, else
/// nobody. A menu also holds the keys, which it has no focus to get. GUI thread only.
class CX11Grabs
{
public:
    explicit CX11Grabs(CX11Connection& connection_) : connection(connection_) {}

    /// False if another program holds the pointer.
    bool Capture(xcb_window_t window);

    /// False if it was not this one that captured.
    bool Release(xcb_window_t window);
    bool IsCapturing(xcb_window_t window) const { return capturing == window; }

    void AddMenu(xcb_window_t window);
    void RemoveMenu(xcb_window_t window);
    bool IsMenu(xcb_window_t window) const;

    /// Those that are shown, the latest last.
    const std::vector<xcb_window_t>& GetMenus() const { return menus; }

private:
    bool GrabPointer(xcb_window_t window, bool ownEvents) const;
    void HandToMenu() const;

    CX11Connection& connection;
    xcb_window_t capturing = XCB_NONE;
    std::vector<xcb_window_t> menus;
};

} // namespace Mirel::GUI
