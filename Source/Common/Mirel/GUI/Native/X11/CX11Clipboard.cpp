#include "Mirel/GUI/Native/X11/CX11Clipboard.h"

#include <array>
#include <cstdint>
#include <utility>

namespace Mirel::GUI
{

namespace
{
/// Pasting more than this into a plug-in is a mistake or an attack.
constexpr std::uint32_t longestText = 16 * 1024 * 1024;

/// Other programs that take longer count as hung.
constexpr int patienceMs = 2000;

/// What a request carries beside its data, generously.
constexpr std::size_t requestHead = 64;

std::string Latin1ToUtf8(const std::vector<std::uint8_t>& bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes)
    {
        if (byte < 0x80)
        {
            text.push_back(static_cast<char>(byte));
            continue;
        }
        text.push_back(static_cast<char>(0xC0U | (byte >> 6U)));
        text.push_back(static_cast<char>(0x80U | (byte & 0x3FU)));
    }
    return text;
}
} // namespace

CX11Clipboard::~CX11Clipboard()
{
    if (patience != 0)
    {
        loop.RemoveTimer(patience);
    }
    if (window != XCB_NONE)
    {
        const CX11Scope scope(connection);
        xcb_destroy_window(connection.Get(), window);
    }
}

void CX11Clipboard::MakeWindow()
{
    if (window != XCB_NONE)
    {
        return;
    }
    window = xcb_generate_id(connection.Get());
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.Get(), XCB_COPY_FROM_PARENT, window, connection.GetRoot(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
}

void CX11Clipboard::SetText(const std::string& text_, xcb_timestamp_t time)
{
    const CX11Scope scope(connection);
    MakeWindow();
    text = text_;
    isOwner = true;
    ownedSince = time;
    xcb_set_selection_owner(connection.Get(), window, connection.GetAtom(EX11Atom::Clipboard), time);
}

void CX11Clipboard::RequestText(TextReceiver receiver, xcb_timestamp_t time)
{
    if (isOwner || connection.IsLost())
    {
        receiver(isOwner ? text : std::string());
        return;
    }
    receivers.push_back(std::move(receiver));
    if (patience != 0)
    {
        return;
    }
    const CX11Scope scope(connection);
    MakeWindow();
    patience = loop.AddTimer(patienceMs, [this] { GiveUp(); });
    isIncremental = false;
    pieces.clear();
    Convert(connection.GetAtom(EX11Atom::Utf8String), time);
}

void CX11Clipboard::Convert(xcb_atom_t target, xcb_timestamp_t time)
{
    xcb_delete_property(connection.Get(), window, connection.GetAtom(EX11Atom::ClipboardTransfer));
    xcb_convert_selection(connection.Get(), window, connection.GetAtom(EX11Atom::Clipboard), target,
                          connection.GetAtom(EX11Atom::ClipboardTransfer), time);
}

bool CX11Clipboard::HandleEvent(const xcb_generic_event_t& event)
{
    const void* record = &event;
    switch (event.response_type & 0x7F)
    {
    case XCB_SELECTION_CLEAR:
        isOwner = false;
        text.clear();
        return true;
    case XCB_SELECTION_REQUEST:
        Answer(*static_cast<const xcb_selection_request_event_t*>(record));
        return true;
    case XCB_SELECTION_NOTIFY:
        OnConverted(*static_cast<const xcb_selection_notify_event_t*>(record));
        return true;
    case XCB_PROPERTY_NOTIFY:
    {
        const auto& change = *static_cast<const xcb_property_notify_event_t*>(record);
        const bool isOurs = change.window == window && window != XCB_NONE;
        if (isOurs && isIncremental && change.state == XCB_PROPERTY_NEW_VALUE)
        {
            OnPiece();
        }
        return isOurs;
    }
    default:
        return false;
    }
}

bool CX11Clipboard::WriteTarget(const xcb_selection_request_event_t& request, xcb_atom_t property) const
{
    const auto write = [&](xcb_atom_t type, std::uint8_t format, std::size_t count, const void* data)
    {
        xcb_change_property(connection.Get(), XCB_PROP_MODE_REPLACE, request.requestor, property, type,
                            format, static_cast<std::uint32_t>(count), data);
        return true;
    };
    const auto atom = [&](EX11Atom name) { return connection.GetAtom(name); };
    if (request.target == atom(EX11Atom::Targets))
    {
        const std::array<xcb_atom_t, 4> targets = {atom(EX11Atom::Targets), atom(EX11Atom::Timestamp),
                                                   atom(EX11Atom::Utf8String), atom(EX11Atom::TextPlainUtf8)};
        return write(XCB_ATOM_ATOM, 32, targets.size(), targets.data());
    }
    if (request.target == atom(EX11Atom::Timestamp))
    {
        return write(XCB_ATOM_INTEGER, 32, 1, &ownedSince);
    }
    const bool isText =
        request.target == atom(EX11Atom::Utf8String) || request.target == atom(EX11Atom::TextPlainUtf8);
    const std::size_t room = std::size_t{xcb_get_maximum_request_length(connection.Get())} * 4 - requestHead;
    return isText && text.size() <= room && write(request.target, 8, text.size(), text.data());
}

void CX11Clipboard::Answer(const xcb_selection_request_event_t& request) const
{
    const CX11Scope scope(connection);
    const xcb_atom_t property = request.property != XCB_NONE ? request.property : request.target;
    const bool isDone = isOwner && request.owner == window && WriteTarget(request, property);
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.time = request.time;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = isDone ? property : xcb_atom_t{XCB_NONE};
    xcb_send_event(connection.Get(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&answer)); // NOLINT: the protocol's bytes
}

void CX11Clipboard::OnConverted(const xcb_selection_notify_event_t& event)
{
    if (event.requestor != window || receivers.empty())
    {
        return;
    }
    if (event.property == XCB_NONE)
    {
        const CX11Scope scope(connection);
        if (event.target == connection.GetAtom(EX11Atom::Utf8String))
        {
            Convert(XCB_ATOM_STRING, event.time); // An old program, with Latin-1.
            return;
        }
    }
    std::string result;
    {
        const CX11Scope scope(connection);
        const xcb_atom_t property = connection.GetAtom(EX11Atom::ClipboardTransfer);
        const xcb_atom_t incremental = connection.GetAtom(EX11Atom::Incremental);
        isIncremental = event.property != XCB_NONE &&
                        !connection.ReadProperty(window, property, incremental, 32, 4).empty();
        const std::vector<std::uint8_t> bytes =
            connection.ReadProperty(window, property, XCB_GET_PROPERTY_TYPE_ANY, 8, longestText);
        xcb_delete_property(connection.Get(), window, property); // Also asks for the first piece.
        result =
            event.target == XCB_ATOM_STRING ? Latin1ToUtf8(bytes) : std::string(bytes.begin(), bytes.end());
    }
    if (!isIncremental)
    {
        Finish(result);
    }
}

void CX11Clipboard::OnPiece()
{
    bool isLast = false;
    {
        const CX11Scope scope(connection);
        const xcb_atom_t property = connection.GetAtom(EX11Atom::ClipboardTransfer);
        const std::vector<std::uint8_t> bytes =
            connection.ReadProperty(window, property, XCB_GET_PROPERTY_TYPE_ANY, 8, longestText);
        xcb_delete_property(connection.Get(), window, property);
        isLast = bytes.empty() || pieces.size() + bytes.size() > longestText;
        pieces.append(bytes.begin(), bytes.end());
    }
    if (isLast)
    {
        Finish(std::string(std::move(pieces)));
    }
}

void CX11Clipboard::Finish(const std::string& result)
{
    if (patience != 0)
    {
        loop.RemoveTimer(patience);
        patience = 0;
    }
    isIncremental = false;
    const std::vector<TextReceiver> waiting = std::exchange(receivers, {});
    for (const TextReceiver& receiver : waiting) // One of them may destroy this object.
    {
        receiver(result);
    }
}

} // namespace Mirel::GUI
