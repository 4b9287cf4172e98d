#pragma once

#include "Mirel/GUI/Native/ECursorShape.h"
#include "Mirel/GUI/Native/NativeEvents.h"
#include "Mirel/GUI/Native/X11/CX11Connection.h"
#include "Mirel/Graphics/CBitmap.h"

#include <map>
#include <xcb/xcb.h>
#include <xcb/xcb_cursor.h>

namespace Mirel::GUI
{

/// The cursors of one connection: those of the user's theme, with others in the place of those that it lacks,
/// and those made of pictures. GUI thread only.
class CX11Cursors
{
public:
    explicit CX11Cursors(CX11Connection& connection_) : connection(connection_) {}
    CX11Cursors(const CX11Cursors&) = delete;
    CX11Cursors& operator=(const CX11Cursors&) = delete;
    ~CX11Cursors();

    /// Owned by this object; XCB_NONE, the cursor of the parent window, if there is not even the normal one.
    xcb_cursor_t Find(ECursorShape shape);

    /// A new cursor, for the caller to free; XCB_NONE if the picture is not of 32 bits, is too large, has no
    /// hot spot there, or the server cannot show coloured cursors.
    xcb_cursor_t Create(const Graphics::CBitmap& picture, CPoint hotSpot) const;

private:
    xcb_cursor_t Load(ECursorShape shape);

    CX11Connection& connection;
    xcb_cursor_context_t* theme = nullptr;
    bool isAsked = false;
    std::map<ECursorShape, xcb_cursor_t> loaded;
};

} // namespace Mirel::GUI
