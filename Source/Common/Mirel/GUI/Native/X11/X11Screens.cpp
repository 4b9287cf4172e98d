#include "Mirel/GUI/Native/X11/X11Screens.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <string>
#include <xcb/randr.h>

namespace Mirel::GUI
{

using Graphics::CRect;

namespace
{
constexpr int standardDotsPerInch = 96;
constexpr int largestScale = 4;
constexpr std::uint32_t mostResourceBytes = 64 * 1024;
constexpr std::string_view resolutionKey = "Xft.dpi:";

/// Monitors came with version 1.5.
bool HasMonitors(xcb_connection_t* server)
{
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(server, &xcb_randr_id);
    if (extension == nullptr || extension->present == 0)
    {
        return false;
    }
    const TX11Pointer<xcb_randr_query_version_reply_t> version(
        xcb_randr_query_version_reply(server, xcb_randr_query_version(server, 1, 5), nullptr));
    return version != nullptr &&
           (version->major_version > 1 || (version->major_version == 1 && version->minor_version >= 5));
}

std::vector<SNativeScreen> FindMonitors(const CX11Connection& connection)
{
    std::vector<SNativeScreen> screens;
    if (!HasMonitors(connection.Get()))
    {
        return screens;
    }
    const auto cookie = xcb_randr_get_monitors(connection.Get(), connection.GetRoot(), 1);
    const TX11Pointer<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(connection.Get(), cookie, nullptr));
    if (reply == nullptr)
    {
        return screens;
    }
    xcb_randr_monitor_info_iterator_t place = xcb_randr_get_monitors_monitors_iterator(reply.get());
    for (; place.rem > 0; xcb_randr_monitor_info_next(&place))
    {
        const xcb_randr_monitor_info_t& monitor = *place.data;
        const CRect bounds(monitor.x, monitor.y, monitor.width, monitor.height);
        screens.push_back({bounds, bounds, monitor.primary != 0});
    }
    std::stable_sort(screens.begin(), screens.end(),
                     [](const SNativeScreen& a, const SNativeScreen& b)
                     { return a.isPrimary && !b.isPrimary; });
    return screens;
}

CRect FindWorkArea(const CX11Connection& connection)
{
    const auto read = [&](EX11Atom name, std::uint32_t limit)
    {
        const std::vector<std::uint8_t> bytes = connection.ReadProperty(
            connection.GetRoot(), connection.GetAtom(name), XCB_ATOM_CARDINAL, 32, limit);
        std::vector<std::uint32_t> numbers(bytes.size() / 4);
        std::memcpy(numbers.data(), bytes.data(), numbers.size() * 4);
        return numbers;
    };
    constexpr std::uint32_t mostDesktopBytes = 64 * 16;
    const std::vector<std::uint32_t> areas = read(EX11Atom::NetWorkarea, mostDesktopBytes);
    const std::vector<std::uint32_t> current = read(EX11Atom::NetCurrentDesktop, 4);
    const std::size_t first = current.empty() ? 0 : std::size_t{current[0]} * 4;
    if (first + 4 > areas.size())
    {
        return {};
    }
    const auto number = [&](std::size_t index) { return static_cast<int>(areas[first + index]); };
    return {number(0), number(1), number(2), number(3)};
}
} // namespace

std::vector<SNativeScreen> FindScreens(const CX11Connection& connection)
{
    std::vector<SNativeScreen> screens = FindMonitors(connection);
    if (screens.empty())
    {
        const xcb_screen_t& screen = connection.GetScreen();
        const CRect whole(0, 0, screen.width_in_pixels, screen.height_in_pixels);
        screens.push_back({whole, whole, true});
    }
    screens.front().isPrimary = true;
    const CRect workArea = FindWorkArea(connection);
    for (SNativeScreen& screen : screens)
    {
        const CRect shared = Graphics::Intersect(screen.bounds, workArea);
        screen.workArea = shared.IsEmpty() ? screen.bounds : shared;
    }
    return screens;
}

int ScaleOfResources(std::string_view resources)
{
    const std::size_t place = resources.find(resolutionKey);
    const bool startsLine = place == 0 || (place != std::string_view::npos && resources[place - 1] == '\n');
    if (!startsLine)
    {
        return 1;
    }
    std::string_view value = resources.substr(place + resolutionKey.size());
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    double dotsPerInch = standardDotsPerInch;
    std::from_chars(value.data(), value.data() + value.size(), dotsPerInch);
    const double scale = std::clamp(dotsPerInch / standardDotsPerInch + 0.5, 1.0, largestScale + 0.5);
    return scale >= 1.0 ? static_cast<int>(scale) : 1;
}

int FindScale(const CX11Connection& connection)
{
    const std::vector<std::uint8_t> resources = connection.ReadProperty(
        connection.GetRoot(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8, mostResourceBytes);
    return ScaleOfResources(std::string(resources.begin(), resources.end()));
}

} // namespace Mirel::GUI
