#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/Core/Numeric.h"

#include <algorithm>
#include <cstdint>

namespace Mirel::Graphics
{

using Core::CPoint;
using Core::CSize;

/// A position between pixels, in the same space: the centre of the pixel (0, 0) is (0.0, 0.0).
struct CPointF
{
    float x = 0.0F;
    float y = 0.0F;
};

/// Pixels from (x, y) up to, and without, (x + width, y + height).
struct CRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const CRect&) const = default;

    CRect() = default;
    CRect(int x_, int y_, int width_, int height_) : x(x_), y(y_), width(width_), height(height_) {}
    CRect(CPoint origin, CSize size) : CRect(origin.x, origin.y, size.width, size.height) {}

    CPoint GetOrigin() const { return {x, y}; }
    CSize GetSize() const { return {width, height}; }
    bool IsEmpty() const { return GetSize().IsEmpty(); }

    bool Contains(CPoint point) const
    {
        return point.x >= x && point.y >= y && std::int64_t{point.x} - x < width &&
               std::int64_t{point.y} - y < height;
    }
};

/// What both have, with no size if they do not meet.
inline CRect Intersect(const CRect& a, const CRect& b)
{
    const auto shared = [](int from1, int length1, int from2, int length2)
    {
        const std::int64_t end = std::min(std::int64_t{from1} + length1, std::int64_t{from2} + length2);
        return static_cast<int>(std::max<std::int64_t>(end - std::max(from1, from2), 0));
    };
    return {std::max(a.x, b.x), std::max(a.y, b.y), shared(a.x, a.width, b.x, b.width),
            shared(a.y, a.height, b.y, b.height)};
}

/// The pixel that a position lies in: v + 0.5 without its fraction.
inline int RoundToPixel(double value)
{
    return Core::TruncateToInt32(value + 0.5);
}

} // namespace Mirel::Graphics
