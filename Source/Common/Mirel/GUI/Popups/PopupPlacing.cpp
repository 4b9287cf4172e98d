#include "Mirel/GUI/Popups/PopupPlacing.h"

#include "Mirel/GUI/Native/INativePlatform.h"

#include <algorithm>

namespace Mirel::GUI
{

namespace
{

int MoveInside(int from, int length, int areaFrom, int areaLength)
{
    return std::max(std::min(from, areaFrom + areaLength - length), areaFrom);
}

int GetRight(const CRect& rect)
{
    return rect.x + rect.width;
}

int GetBottom(const CRect& rect)
{
    return rect.y + rect.height;
}

} // namespace

CRect FindPopupArea(const INativePlatform& platform, CPoint place)
{
    const std::vector<SNativeScreen> screens = platform.GetScreens();
    const auto found =
        std::find_if(screens.begin(), screens.end(),
                     [place](const SNativeScreen& screen) { return screen.bounds.Contains(place); });
    const SNativeScreen& screen = found == screens.end() ? screens.front() : *found;
    return screen.workArea.IsEmpty() ? screen.bounds : screen.workArea;
}

CRect MoveInside(const CRect& rect, const CRect& area)
{
    return {MoveInside(rect.x, rect.width, area.x, area.width),
            MoveInside(rect.y, rect.height, area.y, area.height), rect.width, rect.height};
}

CRect PlaceMenu(CPoint place, CSize size, const CRect& area)
{
    CRect frame = {place, size};
    if (GetRight(frame) > GetRight(area) && place.x - size.width >= area.x)
    {
        frame.x = place.x - size.width;
    }
    if (GetBottom(frame) > GetBottom(area) && place.y - size.height >= area.y)
    {
        frame.y = place.y - size.height;
    }
    return MoveInside(frame, area);
}

CRect PlaceSubMenu(const CRect& item, CSize size, const CRect& area)
{
    CRect frame = {{GetRight(item), item.y}, size};
    if (GetRight(frame) > GetRight(area) && item.x - size.width >= area.x)
    {
        frame.x = item.x - size.width;
    }
    return MoveInside(frame, area);
}

CRect PlaceTooltip(CPoint pointer, CSize size, const CRect& area, int scale)
{
    constexpr int below = 20; // clears the arrow of the pointer
    constexpr int beside = 8;
    constexpr int above = 6;
    CRect frame = {{pointer.x + beside * scale, pointer.y + below * scale}, size};
    if (GetBottom(frame) > GetBottom(area))
    {
        frame.y = pointer.y - above * scale - size.height;
    }
    return MoveInside(frame, area);
}

} // namespace Mirel::GUI
