#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <bit>
#include <cstring>
#include <ctime>
#include <utility>
#include <xcb/shm.h>

namespace Mirel::GUI
{

namespace
{
constexpr std::uint32_t redMask = 0xFF0000;
constexpr std::uint32_t greenMask = 0xFF00;
constexpr std::uint32_t blueMask = 0xFF;
constexpr std::uint8_t pictureBits = 32;

xcb_screen_t* FindScreen(xcb_connection_t* connection, int index)
{
    xcb_screen_iterator_t place = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; place.rem > 0; xcb_screen_next(&place))
    {
        if (index-- == 0)
        {
            return place.data;
        }
    }
    return nullptr;
}

bool HasColoursInBytes(const xcb_visualtype_t& type)
{
    return type._class == XCB_VISUAL_CLASS_TRUE_COLOR && type.red_mask == redMask &&
           type.green_mask == greenMask && type.blue_mask == blueMask;
}

bool IsPipeSignalPending()
{
    sigset_t pending{};
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
}
} // namespace

std::unique_ptr<CX11Connection> CX11Connection::Open(const std::string& display)
{
    int index = 0;
    xcb_connection_t* opened = xcb_connect(display.empty() ? nullptr : display.c_str(), &index);
    std::unique_ptr<CX11Connection> made(new CX11Connection(opened, index));
    const CX11Scope scope(*made);
    return made->Init() ? std::move(made) : nullptr;
}

CX11Connection::~CX11Connection()
{
    const CX11Scope scope(*this);
    if (screen != nullptr && colormap != screen->default_colormap)
    {
        xcb_free_colormap(connection, colormap);
    }
    xcb_disconnect(connection);
    connection = nullptr;
}

bool CX11Connection::Init()
{
    if (IsLost())
    {
        return false;
    }
    screen = FindScreen(connection, screenIndex);
    const bool isLittle = std::endian::native == std::endian::little;
    const std::uint8_t order = isLittle ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST;
    if (screen == nullptr || xcb_get_setup(connection)->image_byte_order != order || !ChooseVisual())
    {
        screen = nullptr;
        return false;
    }
    colormap = screen->default_colormap;
    if (visual != screen->root_visual)
    {
        colormap = xcb_generate_id(connection);
        xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, colormap, screen->root, visual);
    }
    InternAtoms();
    FindSharedMemory();
    return !IsLost();
}

bool CX11Connection::HasFullPictures(std::uint8_t candidate) const
{
    xcb_format_iterator_t format = xcb_setup_pixmap_formats_iterator(xcb_get_setup(connection));
    for (; format.rem > 0; xcb_format_next(&format))
    {
        if (format.data->depth == candidate)
        {
            return format.data->bits_per_pixel == pictureBits && format.data->scanline_pad <= pictureBits;
        }
    }
    return false;
}

bool CX11Connection::ChooseVisual()
{
    xcb_depth_iterator_t place = xcb_screen_allowed_depths_iterator(screen);
    for (; place.rem > 0; xcb_depth_next(&place))
    {
        // A depth of 32 would let the desktop look through the window.
        if (place.data->depth != 24 || !HasFullPictures(place.data->depth))
        {
            continue;
        }
        xcb_visualtype_iterator_t type = xcb_depth_visuals_iterator(place.data);
        for (; type.rem > 0; xcb_visualtype_next(&type))
        {
            const bool isRoot = type.data->visual_id == screen->root_visual;
            if (HasColoursInBytes(*type.data) && (visual == 0 || isRoot))
            {
                visual = type.data->visual_id;
                depth = place.data->depth;
            }
        }
    }
    return visual != 0;
}

void CX11Connection::InternAtoms()
{
    std::array<xcb_intern_atom_cookie_t, x11AtomNames.size()> cookies{};
    for (std::size_t i = 0; i < cookies.size(); ++i)
    {
        const auto length = static_cast<std::uint16_t>(std::strlen(x11AtomNames[i]));
        cookies[i] = xcb_intern_atom(connection, 0, length, x11AtomNames[i]);
    }
    for (std::size_t i = 0; i < cookies.size(); ++i)
    {
        const TX11Pointer<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookies[i], nullptr));
        atoms[i] = reply != nullptr ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
}

void CX11Connection::FindSharedMemory()
{
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_shm_id);
    if (extension == nullptr || extension->present == 0)
    {
        return;
    }
    const TX11Pointer<xcb_shm_query_version_reply_t> version(
        xcb_shm_query_version_reply(connection, xcb_shm_query_version(connection), nullptr));
    sharedMemory = version != nullptr;
    completionType = static_cast<std::uint8_t>(extension->first_event + XCB_SHM_COMPLETION);
}

bool CX11Connection::HasQueuedEvents()
{
    while (CX11Event event{xcb_poll_for_queued_event(connection)})
    {
        events.push_back(std::move(event));
    }
    return !events.empty();
}

CX11Event CX11Connection::NextEvent()
{
    if (events.empty())
    {
        const CX11Scope scope(*this);
        while (CX11Event event{xcb_poll_for_event(connection)})
        {
            events.push_back(std::move(event));
        }
    }
    if (events.empty())
    {
        return nullptr;
    }
    CX11Event next = std::move(events.front());
    events.pop_front();
    return next;
}

std::vector<std::uint8_t> CX11Connection::ReadProperty(xcb_window_t window, xcb_atom_t property,
                                                       xcb_atom_t type, int format, std::uint32_t limit) const
{
    const auto cookie = xcb_get_property(connection, 0, window, property, type, 0, limit / 4);
    const TX11Pointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    const bool isWanted = reply != nullptr && reply->format == format &&
                          (type == XCB_GET_PROPERTY_TYPE_ANY || reply->type == type);
    if (!isWanted)
    {
        return {};
    }
    const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
    return {bytes, bytes + xcb_get_property_value_length(reply.get())};
}

void CX11Connection::Enter()
{
    if (scopes++ == 0)
    {
        wasPipeSignalPending = IsPipeSignalPending();
        sigset_t signals{};
        sigemptyset(&signals);
        sigaddset(&signals, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &signals, &signalsBefore);
    }
}

void CX11Connection::Leave()
{
    if (--scopes != 0)
    {
        return;
    }
    if (connection != nullptr)
    {
        xcb_flush(connection);
    }
    if (!wasPipeSignalPending && IsPipeSignalPending())
    {
        sigset_t signals{};
        sigemptyset(&signals);
        sigaddset(&signals, SIGPIPE);
        const timespec now{};
        sigtimedwait(&signals, nullptr, &now);
    }
    pthread_sigmask(SIG_SETMASK, &signalsBefore, nullptr);
    if (connection != nullptr && onQueuedEvents && HasQueuedEvents())
    {
        onQueuedEvents();
    }
}

} // namespace Mirel::GUI
