#include "Mirel/GUI/Native/X11/CX11Cursors.h"

#include "Mirel/Graphics/Geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <xcb/render.h>

namespace Mirel::GUI
{

namespace
{
using Names =
    std::array<const char*, 4>; ///< the names of a cursor in themes, the best first; the core font last

constexpr std::array<Names, static_cast<std::size_t>(ECursorShape::OpenHand) + 1> names{{
    {"left_ptr", "default", nullptr, nullptr},
    {"pointer", "hand2", nullptr, nullptr},
    {"crosshair", "cross", nullptr, nullptr},
    {"move", "all-scroll", "fleur", nullptr},
    {"ew-resize", "sb_h_double_arrow", nullptr, nullptr},
    {"ns-resize", "sb_v_double_arrow", nullptr, nullptr},
    {"nwse-resize", "size_fdiag", "top_left_corner", nullptr},
    {"nesw-resize", "size_bdiag", "top_right_corner", nullptr},
    {"wait", "watch", nullptr, nullptr},
    {"not-allowed", "crossed_circle", "X_cursor", nullptr},
    {"text", "xterm", nullptr, nullptr},
    {"progress", "left_ptr_watch", "watch", nullptr},
    {"up_arrow", "top_side", "sb_up_arrow", nullptr},
    {"openhand", "grab", "hand1", "fleur"},
}};

constexpr int largestSide = 256;
constexpr int pixelDepth = 32;

/// The server's name of premultiplied pixels with 8 bits of alpha, red, green and blue.
xcb_render_pictformat_t FindFormat(xcb_connection_t* connection)
{
    const TX11Pointer<xcb_render_query_pict_formats_reply_t> reply(
        xcb_render_query_pict_formats_reply(connection, xcb_render_query_pict_formats(connection), nullptr));
    if (reply == nullptr)
    {
        return XCB_NONE;
    }
    xcb_render_pictforminfo_iterator_t place = xcb_render_query_pict_formats_formats_iterator(reply.get());
    for (; place.rem > 0; xcb_render_pictforminfo_next(&place))
    {
        const xcb_render_directformat_t& direct = place.data->direct;
        const bool isPlaced = direct.alpha_shift == 24 && direct.red_shift == 16 && direct.green_shift == 8 &&
                              direct.blue_shift == 0;
        if (place.data->depth == pixelDepth && isPlaced && direct.alpha_mask == 0xFF)
        {
            return place.data->id;
        }
    }
    return XCB_NONE;
}

bool IsUsable(const Graphics::CBitmap& picture, CPoint hotSpot)
{
    const CSize size = picture.GetSize();
    return picture.GetDepth() == pixelDepth && picture.GetData() != nullptr && size.width <= largestSide &&
           size.height <= largestSide && Graphics::CRect({0, 0}, size).Contains(hotSpot);
}
} // namespace

CX11Cursors::~CX11Cursors()
{
    const CX11Scope scope(connection);
    for (const auto& [shape, cursor] : loaded)
    {
        xcb_free_cursor(connection.Get(), cursor);
    }
    if (theme != nullptr)
    {
        xcb_cursor_context_free(theme);
    }
}

xcb_cursor_t CX11Cursors::Load(ECursorShape shape)
{
    if (!isAsked)
    {
        isAsked = true;
        auto* screen = const_cast<xcb_screen_t*>(&connection.GetScreen()); // NOLINT: only read there
        if (xcb_cursor_context_new(connection.Get(), screen, &theme) < 0)
        {
            theme = nullptr;
        }
    }
    xcb_cursor_t cursor = XCB_NONE;
    for (const char* name : names[static_cast<std::size_t>(shape)])
    {
        if (theme != nullptr && name != nullptr && cursor == XCB_NONE)
        {
            cursor = xcb_cursor_load_cursor(theme, name);
        }
    }
    return cursor;
}

xcb_cursor_t CX11Cursors::Find(ECursorShape shape)
{
    const auto known = loaded.find(shape);
    if (known != loaded.end())
    {
        return known->second;
    }
    const CX11Scope scope(connection);
    const xcb_cursor_t cursor = Load(shape);
    if (cursor != XCB_NONE)
    {
        loaded.emplace(shape, cursor);
    }
    return cursor != XCB_NONE || shape == ECursorShape::Normal ? cursor : Find(ECursorShape::Normal);
}

xcb_cursor_t CX11Cursors::Create(const Graphics::CBitmap& picture, CPoint hotSpot) const
{
    xcb_connection_t* server = connection.Get();
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(server, &xcb_render_id);
    const bool hasRender = extension != nullptr && extension->present != 0;
    const xcb_render_pictformat_t format =
        hasRender && IsUsable(picture, hotSpot) ? FindFormat(server) : XCB_NONE;
    if (format == XCB_NONE)
    {
        return XCB_NONE;
    }
    const auto width = static_cast<std::uint16_t>(picture.GetSize().width);
    const auto height = static_cast<std::uint16_t>(picture.GetSize().height);
    const xcb_pixmap_t pixmap = xcb_generate_id(server);
    const xcb_gcontext_t context = xcb_generate_id(server);
    const xcb_render_picture_t source = xcb_generate_id(server);
    const xcb_cursor_t cursor = xcb_generate_id(server);
    xcb_create_pixmap(server, pixelDepth, pixmap, connection.GetRoot(), width, height);
    xcb_create_gc(server, context, pixmap, 0, nullptr);
    xcb_put_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width, height, 0, 0, 0, pixelDepth,
                  std::uint32_t{width} * height * 4, picture.GetData());
    xcb_render_create_picture(server, source, pixmap, format, 0, nullptr);
    xcb_render_create_cursor(server, cursor, source, static_cast<std::uint16_t>(hotSpot.x),
                             static_cast<std::uint16_t>(hotSpot.y));
    xcb_render_free_picture(server, source);
    xcb_free_gc(server, context);
    xcb_free_pixmap(server, pixmap);
    return cursor;
}

} // namespace Mirel::GUI
