#include "Mirel/GUI/Native/X11/X11Properties.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <unistd.h>
#include <xcb/xcb_icccm.h>

namespace Mirel::GUI
{

namespace
{
/// The protocol keeps sizes in 16 bits.
constexpr int unlimited = 32767;

template <std::size_t size>
void WriteNumbers(const CX11Connection& connection, xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                  const std::array<std::uint32_t, size>& numbers)
{
    xcb_change_property(connection.Get(), XCB_PROP_MODE_REPLACE, window, name, type, 32, size,
                        numbers.data());
}

EX11Atom TypeOf(ENativeWindowKind kind)
{
    switch (kind)
    {
    case ENativeWindowKind::Dialog:
        return EX11Atom::NetWmWindowTypeDialog;
    case ENativeWindowKind::Menu:
        return EX11Atom::NetWmWindowTypePopupMenu;
    case ENativeWindowKind::Tooltip:
        return EX11Atom::NetWmWindowTypeTooltip;
    case ENativeWindowKind::TopLevel:
    case ENativeWindowKind::Child:
        break;
    }
    return EX11Atom::NetWmWindowTypeNormal;
}
} // namespace

void WriteKind(const CX11Connection& connection, xcb_window_t window, ENativeWindowKind kind)
{
    const auto atom = [&](EX11Atom name) { return connection.GetAtom(name); };
    if (kind == ENativeWindowKind::Child)
    {
        constexpr std::uint32_t version = 0;
        constexpr std::uint32_t isMapped = 1;
        WriteNumbers<2>(connection, window, atom(EX11Atom::XEmbedInfo), atom(EX11Atom::XEmbedInfo),
                        {version, isMapped});
        return;
    }
    WriteNumbers<1>(connection, window, atom(EX11Atom::NetWmWindowType), XCB_ATOM_ATOM, {atom(TypeOf(kind))});
    WriteNumbers<2>(connection, window, atom(EX11Atom::WmProtocols), XCB_ATOM_ATOM,
                    {atom(EX11Atom::WmDeleteWindow), atom(EX11Atom::NetWmPing)});
    WriteNumbers<1>(connection, window, atom(EX11Atom::NetWmPid), XCB_ATOM_CARDINAL,
                    {static_cast<std::uint32_t>(getpid())});
    if (kind == ENativeWindowKind::Dialog)
    {
        WriteNumbers<1>(connection, window, atom(EX11Atom::NetWmState), XCB_ATOM_ATOM,
                        {atom(EX11Atom::NetWmStateModal)});
    }
    xcb_icccm_wm_hints_t hints{};
    xcb_icccm_wm_hints_set_input(&hints, 1);
    xcb_icccm_wm_hints_set_normal(&hints);
    xcb_icccm_set_wm_hints(connection.Get(), window, &hints);
}

void WriteTitle(const CX11Connection& connection, xcb_window_t window, const std::string& title)
{
    const xcb_atom_t utf8 = connection.GetAtom(EX11Atom::Utf8String);
    const auto length = static_cast<std::uint32_t>(title.size());
    for (const xcb_atom_t name : {xcb_atom_t{XCB_ATOM_WM_NAME}, connection.GetAtom(EX11Atom::NetWmName),
                                  connection.GetAtom(EX11Atom::NetWmIconName)})
    {
        xcb_change_property(connection.Get(), XCB_PROP_MODE_REPLACE, window, name, utf8, 8, length,
                            title.data());
    }
}

void WriteOwner(const CX11Connection& connection, xcb_window_t window, xcb_window_t owner)
{
    if (owner == XCB_NONE)
    {
        xcb_delete_property(connection.Get(), window, XCB_ATOM_WM_TRANSIENT_FOR);
        return;
    }
    xcb_icccm_set_wm_transient_for(connection.Get(), window, owner);
}

void WriteOpacity(const CX11Connection& connection, xcb_window_t window, float opacity)
{
    const xcb_atom_t name = connection.GetAtom(EX11Atom::NetWmWindowOpacity);
    if (!(opacity < 1.0F))
    {
        xcb_delete_property(connection.Get(), window, name);
        return;
    }
    const double whole = std::numeric_limits<std::uint32_t>::max();
    const double part = std::max(static_cast<double>(opacity), 0.0);
    WriteNumbers<1>(connection, window, name, XCB_ATOM_CARDINAL,
                    {static_cast<std::uint32_t>(std::lround(part * whole))});
}

void WriteLimits(const CX11Connection& connection, xcb_window_t window, CSize smallest, CSize largest,
                 bool isPlaced)
{
    xcb_size_hints_t hints{};
    if (isPlaced)
    {
        xcb_icccm_size_hints_set_position(&hints, 1, 0, 0);
    }
    if (smallest.width > 0 || smallest.height > 0)
    {
        xcb_icccm_size_hints_set_min_size(&hints, std::max(smallest.width, 1), std::max(smallest.height, 1));
    }
    if (largest.width > 0 || largest.height > 0)
    {
        xcb_icccm_size_hints_set_max_size(&hints, largest.width > 0 ? largest.width : unlimited,
                                          largest.height > 0 ? largest.height : unlimited);
    }
    xcb_icccm_set_wm_normal_hints(connection.Get(), window, &hints);
}

bool HasWindowManager(const CX11Connection& connection)
{
    return !connection
                .ReadProperty(connection.GetRoot(), connection.GetAtom(EX11Atom::NetSupportingWmCheck),
                              XCB_ATOM_WINDOW, 32, 4)
                .empty();
}

bool HasCompositor(const CX11Connection& connection)
{
    const std::string name = "_NET_WM_CM_S" + std::to_string(connection.GetScreenIndex());
    const auto atomCookie =
        xcb_intern_atom(connection.Get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const TX11Pointer<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(connection.Get(), atomCookie, nullptr));
    if (atom == nullptr)
    {
        return false;
    }
    const TX11Pointer<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.Get(), xcb_get_selection_owner(connection.Get(), atom->atom), nullptr));
    return owner != nullptr && owner->owner != XCB_NONE;
}

void SendToRoot(const CX11Connection& connection, xcb_window_t window, xcb_client_message_event_t message)
{
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    xcb_send_event(connection.Get(), 0, connection.GetRoot(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message)); // NOLINT: the protocol's bytes
}

} // namespace Mirel::GUI
