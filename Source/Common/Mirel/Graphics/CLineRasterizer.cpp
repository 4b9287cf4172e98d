#include "Mirel/Graphics/CLineRasterizer.h"

#include "Mirel/Graphics/CNarrowLine.h"
#include "Mirel/Graphics/Premultiply.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

constexpr unsigned opaque = 255;
constexpr std::ptrdiff_t bytesPerPixel = 4;

/// Half of an eighth of a grey level: less is not seen.
constexpr float leastCoverage = 1.0F / 4096.0F;

std::uint32_t Blend(std::uint32_t under, CColor color, unsigned coverage)
{
    const auto mix = [&](unsigned above, unsigned below)
    { return (above * coverage + below * (opaque - coverage) + opaque / 2) / opaque; };
    return (mix(opaque, under >> 24U) << 24U) | (mix(color.r, (under >> 16U) & opaque) << 16U) |
           (mix(color.g, (under >> 8U) & opaque) << 8U) | mix(color.b, under & opaque);
}

/// The pixel if a line along its middle covers just it and its neighbours along the line; else none.
bool IsOnMiddle(double position, int& pixel)
{
    pixel = static_cast<int>(position); // Left of 0 nothing is drawn anyway.
    return !(pixel + 0.5 < position || pixel + 0.5 > position);
}

/// Pixels one after the other in memory, step bytes apart, of which those from one position to the other are
/// covered and only those from first to end may be written.
void FillAlong(std::uint8_t* pixels, std::ptrdiff_t step, double from, double to, int first, int end,
               CColor color)
{
    first = std::max(first, static_cast<int>(std::floor(from)));
    end = std::min(end, static_cast<int>(std::ceil(to)));
    const std::uint32_t pixel = 0xff000000U | color.Pack();
    const int firstWhole = std::max(first, static_cast<int>(std::ceil(from)));
    const int endWhole = std::min(end, static_cast<int>(std::floor(to)));
    if (step == bytesPerPixel)
    {
        // A loop of its own: the compiler stores many pixels at a time.
        for (int i = firstWhole; i < endWhole; ++i)
        {
            StorePixel(pixels, i, pixel);
        }
    }
    else
    {
        for (int i = firstWhole; i < endWhole; ++i)
        {
            StorePixel(pixels + step * i, 0, pixel);
        }
    }
    const auto blend = [&](int i)
    {
        const double coverage = std::min(to, i + 1.0) - std::max(from, static_cast<double>(i));
        std::uint8_t* under = pixels + step * i;
        StorePixel(under, 0,
                   Blend(LoadPixel(under, 0), color, static_cast<unsigned>(coverage * opaque + 0.5)));
    };
    for (int i = first; i < std::min(firstWhole, end); ++i)
    {
        blend(i);
    }
    for (int i = std::max(endWhole, firstWhole); i < end; ++i)
    {
        blend(i);
    }
}

/// Lines along the middle of a row or a column, as those of grids and of steps are. False for any other.
bool DrawAlongPixels(const CPixelTarget& target, CColor color, const CSegment& segment)
{
    const CRect& clip = target.clip;
    int pixel = 0;
    if (segment.ax == segment.bx && IsOnMiddle(segment.ax, pixel))
    {
        if (pixel >= clip.x && pixel < clip.x + clip.width)
        {
            const auto [from, to] = std::minmax(segment.ay, segment.by);
            FillAlong(target.data + bytesPerPixel * pixel, target.stride, from, to, clip.y,
                      clip.y + clip.height, color);
        }
        return true;
    }
    if (segment.ay == segment.by && IsOnMiddle(segment.ay, pixel))
    {
        if (pixel >= clip.y && pixel < clip.y + clip.height)
        {
            const auto [from, to] = std::minmax(segment.ax, segment.bx);
            FillAlong(target.data + std::int64_t{target.stride} * pixel, bytesPerPixel, from, to, clip.x,
                      clip.x + clip.width, color);
        }
        return true;
    }
    return false;
}

} // namespace

void CLineRasterizer::DrawSegment(const CPixelTarget& target, CColor color, const CSegment& segment)
{
    const double dx = segment.bx - segment.ax;
    const double dy = segment.by - segment.ay;
    if (DrawAlongPixels(target, color, segment))
    {
        return;
    }
    const double length = std::sqrt(dx * dx + dy * dy);
    if (!(length > 0.0))
    {
        return;
    }
    CNarrowLine narrow(segment);
    if (narrow.IsNarrow() && target.clip.width >= CNarrowLine::maxColumns)
    {
        narrow.Draw(target, color);
        return;
    }
    const double sideX = -dy / length * 0.5;
    const double sideY = dx / length * 0.5;
    const std::array<CCorner, 4> corners = {{{segment.ax + sideX, segment.ay + sideY},
                                             {segment.bx + sideX, segment.by + sideY},
                                             {segment.bx - sideX, segment.by - sideY},
                                             {segment.ax - sideX, segment.ay - sideY}}};
    const auto [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    const auto [top, bottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    const CRect& clip = target.clip;
    const int firstRow = std::max(clip.y, static_cast<int>(std::floor(top)));
    const int endRow = std::min(clip.y + clip.height, static_cast<int>(std::ceil(bottom)));
    firstColumn = static_cast<int>(std::floor(left));
    columns = static_cast<int>(std::ceil(right)) - firstColumn;
    const int first = std::max(clip.x - firstColumn, 0);
    const int last = std::min(clip.x + clip.width - firstColumn, columns);
    // One more: a change at the right edge of the last pixel is noted behind it.
    if (deltas.size() < static_cast<std::size_t>(columns) + 1)
    {
        deltas.resize(static_cast<std::size_t>(columns) + 1, 0.0F);
    }
    std::array<CEdge, 4> edges = {};
    for (std::size_t i = 0; i < edges.size(); ++i)
    {
        edges[i] = MakeEdge(corners[i], corners[(i + 1) % corners.size()]);
    }
    for (int y = firstRow; y < endRow && first < last; ++y)
    {
        firstTouched = columns;
        lastTouched = -1;
        for (const CEdge& edge : edges)
        {
            AddEdge(edge, y);
        }
        BlendRow(target.data + std::int64_t{target.stride} * y, first, last, color);
    }
}

CLineRasterizer::CEdge CLineRasterizer::MakeEdge(CCorner from, CCorner to) const
{
    const double rise = to.y - from.y;
    const bool isLevel = !(rise < 0.0 || rise > 0.0);
    return {
        {from.x - firstColumn, from.y}, {to.x - firstColumn, to.y}, isLevel ? 0.0 : (to.x - from.x) / rise};
}

void CLineRasterizer::AddEdge(const CEdge& edge, double rowTop)
{
    const double start = std::clamp(edge.from.y, rowTop, rowTop + 1.0);
    const double end = std::clamp(edge.to.y, rowTop, rowTop + 1.0);
    if (!(start < end || start > end))
    {
        return;
    }
    const auto [left, right] = std::minmax(edge.from.x, edge.to.x);
    AddPiece(std::clamp(edge.from.x + (start - edge.from.y) * edge.slope, left, right),
             std::clamp(edge.from.x + (end - edge.from.y) * edge.slope, left, right), end - start);
}

/// Notes one straight piece of the outline within the row. Pixels to the right of it change their coverage by
/// its height; those that it crosses, by the area to its right.
void CLineRasterizer::AddPiece(double x0, double x1, double height)
{
    const double left = std::min(x0, x1);
    const double right = std::max(x0, x1);
    const int firstCrossed = std::clamp(static_cast<int>(left), 0, columns - 1);
    const int lastCrossed = std::clamp(static_cast<int>(std::ceil(right)) - 1, firstCrossed, columns - 1);
    if (firstCrossed == lastCrossed)
    {
        const double inside = firstCrossed + 1.0 - 0.5 * (left + right);
        deltas[static_cast<std::size_t>(firstCrossed)] += static_cast<float>(height * inside);
        deltas[static_cast<std::size_t>(firstCrossed) + 1] += static_cast<float>(height * (1.0 - inside));
        firstTouched = std::min(firstTouched, firstCrossed);
        lastTouched = std::max(lastTouched, firstCrossed + 1);
        return;
    }
    const double perColumn = 1.0 / (right - left);
    firstTouched = std::min(firstTouched, firstCrossed);
    lastTouched = std::max(lastTouched, lastCrossed + 1);
    double carried = 0.0;
    for (int column = firstCrossed; column <= lastCrossed; ++column)
    {
        // The share of the piece that lies in this pixel, and how much of the pixel is to the right of it.
        const double from = std::max(left, static_cast<double>(column));
        const double to = std::min(right, column + 1.0);
        const double share = (to - from) * perColumn;
        const double inside = share * (column + 1.0 - 0.5 * (from + to));
        deltas[static_cast<std::size_t>(column)] += static_cast<float>(height * (carried + inside));
        carried = share - inside;
    }
    deltas[static_cast<std::size_t>(lastCrossed) + 1] += static_cast<float>(height * carried);
}

void CLineRasterizer::BlendRow(std::uint8_t* row, int first, int last, CColor color)
{
    float covered = 0.0F;
    for (int column = firstTouched; column <= lastTouched; ++column)
    {
        covered += std::exchange(deltas[static_cast<std::size_t>(column)], 0.0F);
        const float coverage = std::fabs(covered);
        if (column >= first && column < last && coverage > leastCoverage)
        {
            const int x = firstColumn + column;
            const auto level = static_cast<unsigned>(std::min(coverage, 1.0F) * 255.0F + 0.5F);
            StorePixel(row, x,
                       level == opaque ? 0xff000000U | color.Pack() : Blend(LoadPixel(row, x), color, level));
        }
    }
}

} // namespace Mirel::Graphics
