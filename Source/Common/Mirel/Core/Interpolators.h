#pragma once

#include <cstddef>

namespace Mirel::Core
{

/// The value of the nearest table position; halves go up.
template <class V, class A>
struct TNearestInterpolator
{
    static constexpr int guardsBefore = 0;
    static constexpr int guardsAfter = 0;

    /// position: 0 to size - 1.
    static V Interpolate(const V* values, A position)
    {
        return values[static_cast<std::ptrdiff_t>(position + A(0.5))];
    }
};

/// The straight line between each two positions. It reads one entry after the position: the table keeps one
/// guard.
template <class V, class A>
struct TLinearInterpolator
{
    static constexpr int guardsBefore = 0;
    static constexpr int guardsAfter = 1;

    /// position: 0 to size, exclusive.
    static V Interpolate(const V* values, A position)
    {
        const auto index = static_cast<std::ptrdiff_t>(position);
        const V a = values[index];
        return (values[index + 1] - a) * (position - static_cast<A>(index)) + a;
    }
};

/// A cubic between each two positions whose slope is 0 at a local extremum of the data, so that the curve
/// never overshoots a sample. It reads one entry before and two after the position: the table keeps that many
/// guards.
///
/// Elsewhere the slope at a point is the harmonic mean of the slopes of its two chords (C. J. C. Kruger,
/// "Constrained Cubic Spline Interpolation"); g0 and g1 below are a third of it at either end.
template <class V, class A>
struct TConstrainedSplineInterpolator
{
    static constexpr int guardsBefore = 1;
    static constexpr int guardsAfter = 2;

    /// values: the first guard. position: 0 to size, exclusive.
    static V Interpolate(const V* values, A position)
    {
        const A shifted = position + A(1);
        const auto index = static_cast<std::ptrdiff_t>(shifted);
        const A t = shifted - static_cast<A>(index);
        const V a = values[index - 1];
        const V b = values[index];
        const V c = values[index + 1];
        const V e = values[index + 2];
        constexpr V twoThirds = V(0.6666667);

        const V d = c - b;
        const V u = (e - c) * d;
        const V g1 = u > 0 ? u * twoThirds / (e - b) : V(0);
        const V w = (b - a) * d;
        const V g0 = w > 0 ? w * twoThirds / (c - a) : V(0);
        const V h = d - g1 - 2 * g0;
        const V m = 2 * g1 - d + g0 - h;
        return (d - 3 * h - m) * t + b + (m * t + 3 * h) * t * t;
    }
};

} // namespace Mirel::Core
