#include "Mirel/GUI/Native/X11/CX11Platform.h"
#include "Mirel/GUI/Native/X11/CX11Window.h"
#include "Mirel/GUI/Native/X11/X11Memory.h"
#include "Mirel/GUI/Native/X11/X11Properties.h"

namespace Mirel::GUI
{

void CX11Window::SetFocus()
{
    if (id == XCB_NONE)
    {
        return;
    }
    const CX11Scope scope(connection);
    xcb_client_message_event_t message{};
    if (embedder != XCB_NONE)
    {
        constexpr std::uint32_t requestFocus = 3;
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = embedder;
        message.type = connection.GetAtom(EX11Atom::XEmbed);
        message.data.data32[0] = platform.GetTime();
        message.data.data32[1] = requestFocus;
        xcb_send_event(connection.Get(), 0, embedder, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&message)); // NOLINT: the protocol's bytes
    }
    else if (IsTop() && HasWindowManager(connection))
    {
        constexpr std::uint32_t fromApplication = 1;
        message.type = connection.GetAtom(EX11Atom::NetActiveWindow);
        message.data.data32[0] = fromApplication;
        message.data.data32[1] = platform.GetTime();
        SendToRoot(connection, id, message);
    }
    xcb_set_input_focus(connection.Get(), XCB_INPUT_FOCUS_PARENT, id, XCB_CURRENT_TIME);
}

void CX11Window::FocusEmbedded()
{
    if (id == XCB_NONE)
    {
        return;
    }
    const CX11Scope scope(connection);
    const TX11Pointer<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection.Get(), xcb_query_tree(connection.Get(), id), nullptr));
    const int count = tree == nullptr ? 0 : xcb_query_tree_children_length(tree.get());
    if (count > 0)
    {
        const xcb_window_t inner = xcb_query_tree_children(tree.get())[count - 1];
        xcb_set_input_focus(connection.Get(), XCB_INPUT_FOCUS_PARENT, inner, XCB_CURRENT_TIME);
    }
}

bool CX11Window::CaptureMouse()
{
    return id != XCB_NONE && shown && platform.GetGrabs().Capture(id);
}

void CX11Window::ReleaseMouse()
{
    platform.GetGrabs().Release(id);
}

void CX11Window::SetCursor(ECursorShape shape)
{
    if (id != XCB_NONE && !(hasShape && shape == cursorShape))
    {
        cursorShape = shape;
        hasShape = true;
        ReplaceCursor(platform.GetCursors().Find(shape), XCB_NONE);
    }
}

void CX11Window::SetCursor(const Graphics::CBitmap& picture, CPoint hotSpot)
{
    if (id == XCB_NONE)
    {
        return;
    }
    const CX11Scope scope(connection);
    const xcb_cursor_t cursor = platform.GetCursors().Create(picture, hotSpot);
    if (cursor == XCB_NONE)
    {
        SetCursor(ECursorShape::Normal);
        return;
    }
    hasShape = false;
    ReplaceCursor(cursor, cursor);
}

void CX11Window::ReplaceCursor(xcb_cursor_t cursor, xcb_cursor_t owned)
{
    const CX11Scope scope(connection);
    xcb_change_window_attributes(connection.Get(), id, XCB_CW_CURSOR, &cursor);
    if (ownCursor != XCB_NONE)
    {
        xcb_free_cursor(connection.Get(), ownCursor);
    }
    ownCursor = owned;
}

} // namespace Mirel::GUI
