#include "Support/CX11Probe.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xtest.h>

namespace Tests
{

namespace
{
struct CFree
{
    void operator()(void* memory) const { std::free(memory); } // NOLINT: allocated by the library
};

template <typename T>
using TReply = std::unique_ptr<T, CFree>;

constexpr std::uint32_t colourBits = 0xFFFFFF;

xcb_visualid_t FindDeepVisual(const xcb_screen_t& screen)
{
    xcb_depth_iterator_t place = xcb_screen_allowed_depths_iterator(&screen);
    for (; place.rem > 0; xcb_depth_next(&place))
    {
        if (place.data->depth == 32)
        {
            return xcb_depth_visuals(place.data)->visual_id;
        }
    }
    return 0;
}
} // namespace

CX11Probe::CX11Probe(const std::string& display)
    : connection(xcb_connect(display.c_str(), nullptr)),
      screen(xcb_setup_roots_iterator(xcb_get_setup(connection)).data)
{
}

CX11Probe::~CX11Probe()
{
    xcb_disconnect(connection);
}

void CX11Probe::Sync() const
{
    const TReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

void CX11Probe::Fake(std::uint8_t type, int detail, int x, int y) const
{
    xcb_test_fake_input(connection, type, static_cast<std::uint8_t>(detail), XCB_CURRENT_TIME, GetRoot(),
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    Sync();
}

void CX11Probe::Move(int x, int y) const
{
    Fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void CX11Probe::Press(int button) const
{
    Fake(XCB_BUTTON_PRESS, button, 0, 0);
}

void CX11Probe::Release(int button) const
{
    Fake(XCB_BUTTON_RELEASE, button, 0, 0);
}

void CX11Probe::Click(int button) const
{
    Press(button);
    Release(button);
}

void CX11Probe::KeyDown(int code) const
{
    Fake(XCB_KEY_PRESS, code, 0, 0);
}

void CX11Probe::KeyUp(int code) const
{
    Fake(XCB_KEY_RELEASE, code, 0, 0);
}

void CX11Probe::Type(int code) const
{
    KeyDown(code);
    KeyUp(code);
}

xcb_window_t CX11Probe::ShowWindow(int x, int y, int width, int height, bool isDeep,
                                   xcb_window_t parent) const
{
    xcb_visualid_t visual = screen->root_visual;
    xcb_colormap_t colormap = screen->default_colormap;
    if (isDeep)
    {
        visual = FindDeepVisual(*screen);
        colormap = xcb_generate_id(connection);
        xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, colormap, GetRoot(), visual);
    }
    const xcb_window_t window = xcb_generate_id(connection);
    const std::array<std::uint32_t, 4> values = {0, 0, 1, colormap};
    xcb_create_window(
        connection, isDeep ? 32 : screen->root_depth, window, parent != 0 ? parent : GetRoot(),
        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), static_cast<std::uint16_t>(width),
        static_cast<std::uint16_t>(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP, values.data());
    xcb_map_window(connection, window);
    Sync();
    return window;
}

void CX11Probe::Destroy(xcb_window_t window) const
{
    xcb_destroy_window(connection, window);
    Sync();
}

void CX11Probe::Focus(xcb_window_t window) const
{
    xcb_set_input_focus(connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    Sync();
}

std::vector<std::uint32_t> CX11Probe::ReadScreen(int x, int y, int width, int height) const
{
    const auto cookie =
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, GetRoot(), static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height), ~0U);
    const TReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection, cookie, nullptr));
    std::vector<std::uint32_t> pixels;
    if (reply != nullptr)
    {
        pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        std::memcpy(pixels.data(), xcb_get_image_data(reply.get()), pixels.size() * 4);
    }
    for (std::uint32_t& pixel : pixels)
    {
        pixel &= colourBits;
    }
    return pixels;
}

std::uint32_t CX11Probe::ReadPixel(int x, int y) const
{
    const std::vector<std::uint32_t> pixels = ReadScreen(x, y, 1, 1);
    return pixels.empty() ? ~0U : pixels.front();
}

int CX11Probe::CountBelow(xcb_window_t window) const
{
    const TReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    int count = 1;
    for (int i = 0; reply != nullptr && i < xcb_query_tree_children_length(reply.get()); ++i)
    {
        count += CountBelow(xcb_query_tree_children(reply.get())[i]);
    }
    return count;
}

xcb_atom_t CX11Probe::GetAtom(const std::string& name) const
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const TReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply != nullptr ? reply->atom : xcb_atom_t{XCB_NONE};
}

std::string CX11Probe::ReadProperty(xcb_window_t window, const std::string& name) const
{
    const auto cookie =
        xcb_get_property(connection, 0, window, GetAtom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 1024);
    const TReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (reply == nullptr)
    {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

} // namespace Tests
