#pragma once

#include "Mirel/GUI/Native/INativeWindow.h"
#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <string>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

/// What windows tell the window manager about themselves.

/// Kind, process and the protocols that it takes part in.
void WriteKind(const CX11Connection& connection, xcb_window_t window, ENativeWindowKind kind);

void WriteTitle(const CX11Connection& connection, xcb_window_t window, const std::string& title);

/// In front of which window it stays; 0 for none.
void WriteOwner(const CX11Connection& connection, xcb_window_t window, xcb_window_t owner);

/// 0.0 to 1.0; what is outside counts as the nearer end.
void WriteOpacity(const CX11Connection& connection, xcb_window_t window, float opacity);

/// Sizes that the user may choose; a side of 0 has no limit. A placed window stays where it was put.
void WriteLimits(const CX11Connection& connection, xcb_window_t window, CSize smallest, CSize largest,
                 bool isPlaced);

/// Whether somebody manages the windows of the screen.
bool HasWindowManager(const CX11Connection& connection);

/// Whether somebody blends the windows of the screen.
bool HasCompositor(const CX11Connection& connection);

/// Sends one of the window manager's messages about a window.
void SendToRoot(const CX11Connection& connection, xcb_window_t window, xcb_client_message_event_t message);

} // namespace Mirel::GUI
