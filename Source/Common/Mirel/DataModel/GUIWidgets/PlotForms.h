#pragma once

#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <cmath>

namespace Mirel::DataModel::GUIWidgets
{

/// The pixel of a position that may lie far outside of the graph: the next thousand million pixels are told
/// apart, which leaves room for sums. Not for NaN.
inline int ToPixel(float position)
{
    constexpr float farOff = 1e9F;
    return Graphics::RoundToPixel(static_cast<double>(std::clamp(position, -farOff, farOff)));
}

/// Points of a graph in whole pixels. Values run from 0 at the bottom to 1 at the top, those of a vertical
/// graph from 0 at the left to 1 at the right.
struct CWholePixels
{
    using Point = Graphics::CPoint;

    /// The position that a bar at `position` has and is sampled at.
    static float AlignBar(float position) { return static_cast<float>(ToPixel(position)); }

    /// Down from the top.
    static int FromValue(float value, int length)
    {
        return length - 1 - ToPixel(value * static_cast<float>(length - 1));
    }

    static int FromValueRightward(float value, int length)
    {
        return ToPixel(value * static_cast<float>(length - 1));
    }

    static int FromPosition(float position) { return ToPixel(position); }

    static void DrawPolyline(Graphics::CDrawSurface& surface, const Point* points, int count)
    {
        surface.DrawPolyline(points, count);
    }

    static void DrawPoints(Graphics::CDrawSurface& surface, const Point* points, int count)
    {
        surface.DrawPoints(points, count);
    }
};

/// The same between pixels, for antialiased graphs.
struct CExactPixels
{
    using Point = Graphics::CPointF;

    static float AlignBar(float position) { return position; }

    static float FromValue(float value, int length)
    {
        return static_cast<float>(length) - value * static_cast<float>(length - 1) - 1.0F;
    }

    static float FromValueRightward(float value, int length)
    {
        return value * static_cast<float>(length - 1);
    }

    static float FromPosition(float position) { return position; }

    static void DrawPolyline(Graphics::CDrawSurface& surface, const Point* points, int count)
    {
        surface.DrawPolylineF(points, count);
    }

    static void DrawPoints(Graphics::CDrawSurface& surface, const Point* points, int count)
    {
        surface.DrawPointsF(points, count);
    }
};

/// Where a sample stands: `position` in pixels along the sweep, `value` from 0 to 1 across it.
template <class Form>
typename Form::Point ToPoint(Graphics::CSize size, bool vertical, float position, float value)
{
    if (vertical)
    {
        return {Form::FromValueRightward(value, size.width), Form::FromPosition(position)};
    }
    return {Form::FromPosition(position), Form::FromValue(value, size.height)};
}

} // namespace Mirel::DataModel::GUIWidgets
