#include "Mirel/Graphics/CNarrowLine.h"

#include "Mirel/Graphics/CLineRasterizer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

/// Less than this sideways, an edge counts as upright.
constexpr float leastSlope = 1.0F / 1024.0F;

/// Without the call that the library's takes on processors without an instruction for it.
template <class T>
int Floor(T value)
{
    const int whole = static_cast<int>(value);
    return whole - (static_cast<T>(whole) > value ? 1 : 0);
}

template <class T>
int Ceil(T value)
{
    return -Floor(-value);
}

__m128 Clamp(__m128 value)
{
    return _mm_min_ps(_mm_max_ps(value, _mm_setzero_ps()), _mm_set1_ps(1.0F));
}

/// The integral of Clamp from 0.
__m128 ClampIntegral(__m128 value)
{
    const __m128 positive = _mm_max_ps(value, _mm_setzero_ps());
    const __m128 bounded = _mm_min_ps(positive, _mm_set1_ps(1.0F));
    return _mm_mul_ps(bounded, _mm_sub_ps(positive, _mm_mul_ps(bounded, _mm_set1_ps(0.5F))));
}

__m128i LoadHalves(const std::uint8_t* low, const std::uint8_t* high)
{
    return _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(low)),
                              _mm_loadl_epi64(reinterpret_cast<const __m128i*>(high)));
}

/// Four 16-bit lanes of the one, then four of the other.
__m128i SetHalves(int low, int high)
{
    return _mm_unpacklo_epi64(_mm_set1_epi16(static_cast<short>(low)),
                              _mm_set1_epi16(static_cast<short>(high)));
}

} // namespace

CNarrowLine::CNarrowLine(const CSegment& segment)
{
    const bool down = segment.ay <= segment.by;
    const double ax = down ? segment.ax : segment.bx;
    const double ay = down ? segment.ay : segment.by;
    const double dx = (down ? segment.bx : segment.ax) - ax;
    const double dy = (down ? segment.by : segment.ay) - ay;
    const double half = 0.5 / std::sqrt(dx * dx + dy * dy);
    const double sideX = dy * half; // To the right side; upward if the line runs to the right.
    const double sideY = -dx * half;

    const double top = ay - std::fabs(sideY);
    firstColumn = Floor(std::min(ax, ax + dx) - sideX);
    firstRow = Floor(top);
    columns = Ceil(std::max(ax, ax + dx) + sideX) - firstColumn;
    rows = Ceil(ay + dy + std::fabs(sideY)) - firstRow;
    isSteep = dy >= std::fabs(dx);
    if (!IsNarrow())
    {
        return;
    }
    slope = dy > 0.0 ? static_cast<float>(dx / dy) : 0.0F;
    const float across = dx < 0.0 || dx > 0.0 ? static_cast<float>(-dy / dx) : 0.0F;
    const auto x = static_cast<float>(ax - firstColumn);
    const auto y = static_cast<float>(ay - firstRow);
    const auto endX = x + static_cast<float>(dx);
    const auto endY = y + static_cast<float>(dy);
    const auto rx = static_cast<float>(sideX);
    const auto ry = static_cast<float>(sideY);
    edges[0] = {x - rx, y - ry, endY - ry, slope, -across, 1.0F};
    edges[1] = {x + rx, y + ry, endY + ry, slope, -across, -1.0F};
    // The outline runs along the ends from their upper corners: to the left if the line runs to the right.
    if (dx > 0.0)
    {
        edges[2] = {x + rx, y + ry, y - ry, across, -slope, 1.0F};
        edges[3] = {endX + rx, endY + ry, endY - ry, across, -slope, -1.0F};
    }
    else
    {
        edges[2] = {x - rx, y - ry, y + ry, across, -slope, -1.0F};
        edges[3] = {endX - rx, endY - ry, endY + ry, across, -slope, 1.0F};
    }
    if (isSteep)
    {
        wide = static_cast<float>(0.5 / (half * dy));
        left = x - 0.5F * wide - y * slope;
        const float slant = std::fabs(ry);
        firstWhole = Floor(y + slant) + 1;
        endWhole = Floor(endY - slant);
    }
}

/// The share of each pixel that lies to the right of the edge between two heights of the row; the pixels are
/// given by their right sides.
__m128 CNarrowLine::Cover(const CEdge& edge, float from, float to, __m128 rightSides)
{
    const float x0 = edge.x + (from - edge.y) * edge.slope;
    const float x1 = edge.x + (to - edge.y) * edge.slope;
    if (std::fabs(x1 - x0) < leastSlope)
    {
        const __m128 middle = _mm_set1_ps(0.5F * (x0 + x1));
        return _mm_mul_ps(Clamp(_mm_sub_ps(rightSides, middle)), _mm_set1_ps((to - from) * edge.sign));
    }
    const __m128 change = _mm_sub_ps(ClampIntegral(_mm_sub_ps(rightSides, _mm_set1_ps(x0))),
                                     ClampIntegral(_mm_sub_ps(rightSides, _mm_set1_ps(x1))));
    return _mm_mul_ps(change, _mm_set1_ps(edge.perSlope * edge.sign));
}

void CNarrowLine::Draw(const CPixelTarget& target, CColor color)
{
    const CFourPixelBlender blender(color);
    const CRect& clip = target.clip;
    const int clipLeft = clip.x - firstColumn;
    const int clipRight = clipLeft + clip.width;
    const int endY = std::min(rows, clip.y + clip.height - firstRow);
    int y = std::max(0, clip.y - firstRow);
    while (y < endY)
    {
        const int drawn = y >= firstWhole ? DrawRun(target, y, std::min(endY, endWhole), blender) : 0;
        if (drawn == 0)
        {
            DrawRow(target.data + std::int64_t{target.stride} * (firstRow + y) +
                        std::int64_t{4} * firstColumn,
                    y, clipLeft, clipRight, blender);
        }
        y += std::max(drawn, 1);
    }
}

void CNarrowLine::DrawRow(std::uint8_t* row, int y, int clipLeft, int clipRight,
                          const CFourPixelBlender& blender) const
{
    const auto top = static_cast<float>(y);
    int first = 0;
    if (columns > maxColumns)
    {
        const float leftHere = left + slope * top;
        first = std::max(Floor(std::min(leftHere, leftHere + slope)), 0);
    }
    if (first >= clipRight || first + maxColumns <= clipLeft)
    {
        return;
    }
    first = std::clamp(first, clipLeft, clipRight - maxColumns);
    const __m128 rightSides =
        _mm_add_ps(_mm_set1_ps(static_cast<float>(first)), _mm_set_ps(4.0F, 3.0F, 2.0F, 1.0F));
    __m128 coverage = _mm_setzero_ps();
    for (const CEdge& edge : edges)
    {
        const float from = std::max(edge.y, top);
        const float to = std::min(edge.endY, top + 1.0F);
        if (from < to)
        {
            coverage = _mm_add_ps(coverage, Cover(edge, from, to, rightSides));
        }
    }
    blender.BlendRow(row + std::int64_t{4} * first, coverage);
}

/// Rows without an end in which both sides of the strip stay within one pixel each: there the coverage of the
/// two pixels changes evenly from row to row. Gives how many it drew; 0 if already the first is not such a
/// row.
int CNarrowLine::DrawRun(const CPixelTarget& target, int y, int endY, const CFourPixelBlender& blender) const
{
    // Whole pixels often fit but for a rounding error.
    constexpr float tolerance = 1.0F / 2048.0F;
    constexpr int longest = 64; // Steps are rounded, and the error grows with their number.
    const float start = left + slope * static_cast<float>(y);
    const float lean = std::fabs(slope);
    const int first = Floor(std::min(start, start + slope) + tolerance);
    const auto base = static_cast<float>(first);
    const float room = slope < 0.0F ? start - base : base + 2.0F - wide - start;
    const int clipLeft = target.clip.x - firstColumn;
    if (first < clipLeft || first + 2 > clipLeft + target.clip.width ||
        start + wide > base + 2.0F + tolerance)
    {
        return 0;
    }
    int count = std::min(endY - y, longest);
    if (static_cast<float>(count) * lean > room + tolerance)
    {
        count = static_cast<int>((room + tolerance) / lean);
    }
    if (count < 1)
    {
        return 0;
    }
    // The middle of the row tells its area, since no side leaves its pixel.
    constexpr float one = 32768.0F;
    const auto toUnits = [](float coverage)
    { return static_cast<int>(std::clamp(coverage, 0.0F, 1.0F) * one + 0.5F); };
    const float middle = start + 0.5F * slope;
    const float lastMiddle = middle + slope * static_cast<float>(count - 1);
    const int low = toUnits(base + 1.0F - middle);
    const int high = toUnits(middle + wide - base - 1.0F);
    const int steps = std::max(count - 1, 1);
    const int lowStep = (toUnits(base + 1.0F - lastMiddle) - low) / steps;
    const int highStep = (toUnits(lastMiddle + wide - base - 1.0F) - high) / steps;
    constexpr int toLevel = 7; // From 32768 to 256.
    constexpr int rounding = 1 << (toLevel - 1);
    __m128i even = SetHalves(low + rounding, high + rounding);
    const __m128i step = SetHalves(lowStep, highStep);
    __m128i odd = _mm_add_epi16(even, step);
    const __m128i twoSteps = _mm_add_epi16(step, step);

    const auto stride = static_cast<std::ptrdiff_t>(target.stride);
    std::uint8_t* pixels = target.data + stride * (firstRow + y) + std::int64_t{4} * (firstColumn + first);
    int row = 0;
    for (; row + 2 <= count; row += 2, pixels += 2 * stride)
    {
        const __m128i blended = blender.Blend(LoadHalves(pixels, pixels + stride),
                                              _mm_srli_epi16(even, toLevel), _mm_srli_epi16(odd, toLevel));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(pixels), blended);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(pixels + stride), _mm_unpackhi_epi64(blended, blended));
        even = _mm_add_epi16(even, twoSteps);
        odd = _mm_add_epi16(odd, twoSteps);
    }
    if (row < count)
    {
        const __m128i level = _mm_srli_epi16(even, toLevel);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(pixels),
                         blender.Blend(LoadHalves(pixels, pixels), level, level));
    }
    return count;
}

} // namespace Mirel::Graphics
