#include "Mirel/GUI/PaintBoxes.h"

#include <algorithm>
#include <cstdint>

namespace Mirel::GUI
{

namespace
{

using Graphics::CRect;

/// More rectangles than that are painted as one box.
constexpr int maxRects = 64;

/// Pixels that may be painted in vain to spare a walk through the tree.
constexpr std::int64_t walkPixels = 4096;

std::int64_t GetArea(const CRect& rect)
{
    return std::int64_t{rect.width} * rect.height;
}

CRect GetCommonBox(const CRect& a, const CRect& b)
{
    const int x = std::min(a.x, b.x);
    const int y = std::min(a.y, b.y);
    return {x, y, std::max(a.x + a.width, b.x + b.width) - x, std::max(a.y + a.height, b.y + b.height) - y};
}

/// Puts the last box together with others for as long as that pays.
void Join(std::vector<CRect>& boxes)
{
    for (std::size_t i = 0; i + 1 < boxes.size();)
    {
        const CRect common = GetCommonBox(boxes[i], boxes.back());
        if (GetArea(common) > GetArea(boxes[i]) + GetArea(boxes.back()) + walkPixels)
        {
            ++i;
            continue;
        }
        boxes.pop_back();
        boxes.erase(boxes.begin() + static_cast<std::ptrdiff_t>(i));
        boxes.push_back(common);
        i = 0;
    }
}

} // namespace

std::vector<CRect> GetPaintBoxes(const Graphics::CSimple2DRegion& region)
{
    const int count = region.GetRectCount();
    if (count > maxRects)
    {
        return {region.GetBounds()};
    }
    std::vector<CRect> boxes;
    for (int i = 0; i < count; ++i)
    {
        boxes.push_back(region.GetRect(i));
        Join(boxes);
    }
    return boxes;
}

} // namespace Mirel::GUI
