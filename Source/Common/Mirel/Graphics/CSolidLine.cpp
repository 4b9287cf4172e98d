#include "Mirel/Graphics/CSolidLine.h"

#include "Mirel/Graphics/CPairRamp.h"
#include "Mirel/Graphics/LineRasterizer.h"

#include <algorithm>
#include <cmath>

namespace Mirel::Graphics
{

namespace
{

constexpr int groupWidth = 4;

/// Lines that lean more than this, in columns a row, leave their pixels too soon for runs to pay.
constexpr float mostLeanOfRuns = 1.0F / 8.0F;

/// An edge that goes less than this sideways in a row counts as upright: no pixel changes by a level.
constexpr float leastWidth = 1.0F / 64.0F;

/// An end that rises less than this counts as level: it changes a pixel by two levels at most.
constexpr float leastSlant = 1.0F / 128.0F;

/// A line that falls less than this, in pixels, counts as level: its slope is too great for the arithmetic.
constexpr float leastFall = 1.0F / 1024.0F;

/// Without the call that the library's takes on processors without an instruction for it.
int Floor(float value)
{
    const int whole = static_cast<int>(value);
    return whole - (static_cast<float>(whole) > value ? 1 : 0);
}

int Ceil(float value)
{
    return -Floor(-value);
}

__m128 Clamp(__m128 value)
{
    return _mm_min_ps(_mm_max_ps(value, _mm_setzero_ps()), _mm_set1_ps(1.0F));
}

/// The integral from 0 of what lies between 0 and a bound.
__m128 ClampIntegral(__m128 value, __m128 bound)
{
    const __m128 positive = _mm_max_ps(value, _mm_setzero_ps());
    const __m128 bounded = _mm_min_ps(positive, bound);
    return _mm_mul_ps(bounded, _mm_sub_ps(positive, _mm_mul_ps(bounded, _mm_set1_ps(0.5F))));
}

} // namespace

CSolidLine::CSolidLine(const CSegment& segment, int width_) : width(width_)
{
    // From the upper end downward, without a branch: nobody foresees where noise goes.
    const double way = std::copysign(1.0, segment.by - segment.ay);
    const double ax = 0.5 * (segment.ax + segment.bx - way * (segment.bx - segment.ax));
    const double ay = std::min(segment.ay, segment.by);
    const auto dx = static_cast<float>(way * (segment.bx - segment.ax));
    const auto fall = static_cast<float>(way * (segment.by - segment.ay));
    const float dy = fall < leastFall ? 0.0F : fall;
    const float length = std::sqrt(dx * dx + dy * dy);
    if (!(length > 0.0F))
    {
        return;
    }
    firstColumn = static_cast<int>(ax);
    firstRow = static_cast<int>(ay);
    x = static_cast<float>(ax - firstColumn);
    y = static_cast<float>(ay - firstRow);
    endY = y + dy;
    const float half = 0.5F * static_cast<float>(width) / length;
    const float slant = std::fabs(dx) * half;
    isBlunt = slant < leastSlant;
    const float reach = isBlunt ? 0.0F : slant;
    begin = Floor(y - reach);
    firstWhole = Ceil(y + reach);
    endWhole = Floor(endY - reach);
    end = Ceil(endY + reach);
    left = std::min(x, x + dx);
    if (dy > 0.0F)
    {
        const float perRow = 1.0F / dy;
        slope = dx * perRow;
        lean = std::fabs(slope);
        wide = static_cast<float>(width) * length * perRow;
        left = x - 0.5F * wide - y * slope;
        // The same for all rows, though some would do with less: so the processor foresees the loops' ends.
        mostColumns = static_cast<int>(lean + wide) + 2;
    }
    if (!isBlunt)
    {
        SetEdges(dx, dy, dy * half, -dx * half);
    }
}

/// (rx, ry) leads from the middle of the line to its right side; upward if the line runs to the right.
void CSolidLine::SetEdges(float dx, float dy, float rx, float ry)
{
    const float endX = x + dx;
    firstCovered = Floor(std::min(x, endX) - rx);
    endCovered = Ceil(std::max(x, endX) + rx);
    const float perSlope = dy / dx;
    const float across = -perSlope;
    perLean = std::fabs(perSlope);
    edges[0] = {x - rx, y - ry, endY - ry, slope, perSlope, 1.0F};
    edges[1] = {x + rx, y + ry, endY + ry, slope, -perSlope, -1.0F};
    // The outline runs along the ends from their upper corners: to the left if the line runs to the right.
    const float turn = std::copysign(1.0F, dx);
    const float upX = turn * rx;
    const float upY = turn * ry;
    edges[2] = {x + upX, y + upY, y - upY, across, -lean, turn};
    edges[3] = {endX + upX, endY + upY, endY - upY, across, lean, -turn};
}

void CSolidLine::Draw(const CPixelTarget& target, CColor color) const
{
    const CFourPixelBlender blender(color);
    const CRect& clip = target.clip;
    const int clipLeft = clip.x - firstColumn;
    const int last = std::min(end, clip.y + clip.height - firstRow);
    const bool hasRuns = lean < mostLeanOfRuns;
    int at = std::max(begin, clip.y - firstRow);
    while (at < last)
    {
        const bool isWhole = at >= firstWhole && at < endWhole;
        if (isWhole && hasRuns)
        {
            const int drawn = DrawRun(target, at, std::min(last, endWhole), color);
            at += drawn;
            if (drawn > 0)
            {
                continue;
            }
        }
        const CRow row = {target.data + std::int64_t{target.stride} * (firstRow + at) +
                              std::int64_t{4} * firstColumn,
                          clipLeft, clipLeft + clip.width, blender};
        if (isBlunt)
        {
            DrawBluntRow(row, at);
        }
        else if (isWhole)
        {
            DrawWholeRow(row, at);
        }
        else
        {
            DrawEndRow(row, at);
        }
        ++at;
    }
}

/// Draws some columns of the row; cover tells the coverage of four pixels, given by the left side of the
/// first and all right sides.
template <class Cover>
void CSolidLine::DrawColumns(const CRow& row, int first, int count, const Cover& cover)
{
    const int end = std::min(first + count, row.clipRight);
    for (int column = std::max(first, row.clipLeft); column < end; column += groupWidth)
    {
        const auto groupLeft = static_cast<float>(column);
        const __m128 rightSides = _mm_add_ps(_mm_set1_ps(groupLeft), _mm_set_ps(4.0F, 3.0F, 2.0F, 1.0F));
        row.blender.BlendRow(row.pixels + std::int64_t{4} * column, cover(groupLeft, rightSides),
                             std::min(groupWidth, row.clipRight - column));
    }
}

/// Any row of a blunt line, whose sides are as good as upright.
void CSolidLine::DrawBluntRow(const CRow& row, int at) const
{
    const float from = std::max(static_cast<float>(at), y);
    const float to = std::min(static_cast<float>(at) + 1.0F, endY);
    const float side = left + 0.5F * (from + to) * slope;
    const __m128 height = _mm_set1_ps(to - from);
    DrawColumns(row, Floor(side), mostColumns,
                [&](float /*groupLeft*/, __m128 rightSides)
                {
                    const __m128 toSide = _mm_sub_ps(rightSides, _mm_set1_ps(side));
                    return _mm_mul_ps(
                        height, _mm_sub_ps(Clamp(toSide), Clamp(_mm_sub_ps(toSide, _mm_set1_ps(wide)))));
                });
}

/// A row that both sides go through from top to bottom. Along the row the line's share of the height rises,
/// stays and falls; a pixel is as far covered as the area under that profile grows from its left side to its
/// right.
void CSolidLine::DrawWholeRow(const CRow& row, int at) const
{
    const float top = left + slope * static_cast<float>(at);
    const float side = std::min(top, top + slope);
    const int first = Floor(side);
    const __m128 rise = _mm_set1_ps(std::min(lean, wide));
    const __m128 fall = _mm_set1_ps(side + std::max(lean, wide));
    const auto getArea = [&](__m128 places)
    {
        const __m128 risen = ClampIntegral(_mm_sub_ps(places, _mm_set1_ps(side)), rise);
        return _mm_mul_ps(_mm_sub_ps(risen, ClampIntegral(_mm_sub_ps(places, fall), rise)),
                          _mm_set1_ps(perLean));
    };
    __m128 before =
        first < row.clipLeft ? getArea(_mm_set1_ps(static_cast<float>(row.clipLeft))) : _mm_setzero_ps();
    DrawColumns(row, first, mostColumns,
                [&](float /*groupLeft*/, __m128 rightSides)
                {
                    const __m128 area = getArea(rightSides);
                    const __m128 shifted =
                        _mm_move_ss(_mm_shuffle_ps(area, area, _MM_SHUFFLE(2, 1, 0, 0)), before);
                    before = _mm_shuffle_ps(area, area, _MM_SHUFFLE(3, 3, 3, 3));
                    return _mm_sub_ps(area, shifted);
                });
}

/// What the part of the edge in a row covers of pixels, given by the first one's left side and all right
/// sides: what lies to the right of it.
__m128 CSolidLine::CoverBy(const CEdge& edge, float top, float groupLeft, __m128 rightSides)
{
    const float from = std::max(edge.y, top);
    const float to = std::min(edge.endY, top + 1.0F);
    if (!(from < to))
    {
        return _mm_setzero_ps();
    }
    const float x0 = edge.x + (from - edge.y) * edge.slope;
    const float x1 = edge.x + (to - edge.y) * edge.slope;
    const __m128 height = _mm_set1_ps((to - from) * edge.sign);
    // Far from an edge its share is known, and the arithmetic would round.
    if (std::max(x0, x1) <= groupLeft)
    {
        return height;
    }
    if (std::fabs(x1 - x0) < leastWidth)
    {
        return _mm_mul_ps(height, Clamp(_mm_sub_ps(rightSides, _mm_set1_ps(0.5F * (x0 + x1)))));
    }
    const __m128 one = _mm_set1_ps(1.0F);
    const __m128 change = _mm_sub_ps(ClampIntegral(_mm_sub_ps(rightSides, _mm_set1_ps(x0)), one),
                                     ClampIntegral(_mm_sub_ps(rightSides, _mm_set1_ps(x1)), one));
    return _mm_mul_ps(change, _mm_set1_ps(edge.perColumn));
}

/// Any other row: by the parts of the outline in it.
void CSolidLine::DrawEndRow(const CRow& row, int at) const
{
    int first = firstCovered;
    int count = endCovered - firstCovered;
    if (count > groupWidth)
    {
        const float top = left + slope * static_cast<float>(at);
        first = std::max(Floor(std::min(top, top + slope)), firstCovered);
        count = std::min(mostColumns, endCovered - first);
    }
    DrawColumns(row, first, count,
                [&](float groupLeft, __m128 rightSides)
                {
                    __m128 coverage = _mm_setzero_ps();
                    for (const CEdge& edge : edges)
                    {
                        coverage = _mm_add_ps(coverage,
                                              CoverBy(edge, static_cast<float>(at), groupLeft, rightSides));
                    }
                    return coverage;
                });
}

/// Rows without an end in which both sides of the strip stay within one pixel each, as far apart as the line
/// is wide: there the coverage of the two pixels changes evenly from row to row. Gives how many it drew; 0 if
/// already the first is not such a row.
int CSolidLine::DrawRun(const CPixelTarget& target, int at, int endAt, CColor color) const
{
    // Whole pixels often fit but for a rounding error.
    constexpr float tolerance = 1.0F / 2048.0F;
    constexpr int longest = 128; // Steps are rounded, and the error grows with their number.
    const float start = left + slope * static_cast<float>(at);
    const int first = Floor(std::min(start, start + slope) + tolerance);
    const auto base = static_cast<float>(first);
    const float lastBase = base + static_cast<float>(width);
    const float room = slope < 0.0F ? start - base : lastBase + 1.0F - wide - start;
    const int clipLeft = target.clip.x - firstColumn;
    if (first < clipLeft || first + width >= clipLeft + target.clip.width ||
        start + wide > lastBase + 1.0F + tolerance)
    {
        return 0;
    }
    int count = std::min(endAt - at, longest);
    if (static_cast<float>(count) * lean > room + tolerance)
    {
        count = static_cast<int>((room + tolerance) / lean);
    }
    if (count < 1)
    {
        return 0;
    }
    // The middle of the row tells its area, since no side leaves its pixel.
    const auto bound = [](float coverage) { return std::clamp(coverage, 0.0F, 1.0F); };
    const float middle = start + 0.5F * slope;
    const float lastMiddle = middle + slope * static_cast<float>(count - 1);
    CPairRamp ramp(color, {bound(base + 1.0F - middle), bound(middle + wide - lastBase)},
                   {bound(base + 1.0F - lastMiddle), bound(lastMiddle + wide - lastBase)}, count);
    ramp.Draw(target.data + std::int64_t{target.stride} * (firstRow + at) +
                  std::int64_t{4} * (firstColumn + first),
              target.stride, width);
    return count;
}

} // namespace Mirel::Graphics
