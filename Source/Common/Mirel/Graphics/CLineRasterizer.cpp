#include "Mirel/Graphics/CLineRasterizer.h"

#include "Mirel/Graphics/Premultiply.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

constexpr int opaque = 255;

/// Half of an eighth of a grey level: less is not seen.
constexpr float leastCoverage = 1.0F / 4096.0F;

int ToLevel(float coverage)
{
    return static_cast<int>(std::min(coverage, 1.0F) * 255.0F + 0.5F);
}

int FloorToInt(double value)
{
    const int truncated = static_cast<int>(value);
    return truncated - (static_cast<double>(truncated) > value ? 1 : 0);
}

int CeilToInt(double value)
{
    return -FloorToInt(-value);
}

/// What the interval from `from` to `to` has of the pixel.
double GetShare(int pixel, double from, double to)
{
    return std::min(pixel + 1.0, to) - std::max(static_cast<double>(pixel), from);
}

} // namespace

/// Where and how a line is drawn.
struct CLineRasterizer::CPaint
{
    const CPixelTarget& target;
    CPixelBlend blend;

    std::uint8_t* GetRow(int y) const { return target.data + std::int64_t{target.stride} * y; }

    void Cover(std::uint8_t* row, int x, float coverage) const
    {
        if (coverage > leastCoverage)
        {
            const int level = ToLevel(coverage);
            StorePixel(row, x, level == opaque ? blend.GetOpaque() : blend.BlendOne(LoadPixel(row, x), level));
        }
    }
};

/// The part of a steep line between its ends: in each row it is a slanted stripe.
struct CLineRasterizer::CSlant
{
    double x;         ///< Of the middle of the line at y = 0.
    double slope;     ///< Columns for each row, -1 to 1 and not 0.
    double halfWidth; ///< Along a row.

    double GetMiddle(int row) const { return x + (row + 0.5) * slope; }
    double GetSpread() const { return 0.5 * std::fabs(slope); }
};

void CLineRasterizer::DrawSegment(const CPixelTarget& target, CColor color, const CSegment& segment)
{
    const CPaint paint = {target, CPixelBlend(color)};
    const double dx = segment.bx - segment.ax;
    const double dy = segment.by - segment.ay;
    const bool isUpright = !(dx < 0.0 || dx > 0.0);
    const bool isLevel = !(dy < 0.0 || dy > 0.0);
    if (isUpright || isLevel)
    {
        const auto [left, right] = std::minmax(segment.ax, segment.bx);
        const auto [top, bottom] = std::minmax(segment.ay, segment.by);
        const double aside = isUpright && !isLevel ? 0.5 : 0.0;
        const double above = isLevel && !isUpright ? 0.5 : 0.0;
        DrawBox(paint, {left - aside, top - above}, {right + aside, bottom + above});
        return;
    }
    const double length = std::sqrt(dx * dx + dy * dy);
    const double sideX = -dy / length * 0.5;
    const double sideY = dx / length * 0.5;
    const std::array<CCorner, 4> corners = {{{segment.ax + sideX, segment.ay + sideY},
                                             {segment.bx + sideX, segment.by + sideY},
                                             {segment.bx - sideX, segment.by - sideY},
                                             {segment.ax - sideX, segment.ay - sideY}}};
    const auto [upper, lower] = std::minmax(segment.ay, segment.by);
    const double cap = std::fabs(sideY);
    const CRect& clip = target.clip;
    const int firstRow = std::max(clip.y, FloorToInt(upper - cap));
    const int endRow = std::min(clip.y + clip.height, CeilToInt(lower + cap));
    // Between the caps of a steep line every row is crossed by its two long edges alone.
    const int firstInner = std::clamp(CeilToInt(upper + cap), firstRow, std::max(firstRow, endRow));
    const int endInner = std::clamp(FloorToInt(lower - cap), firstInner, std::max(firstInner, endRow));
    if (std::fabs(dx) > std::fabs(dy) || firstInner == endInner)
    {
        DrawOutline(paint, corners, firstRow, endRow);
        return;
    }
    const double slope = dx / dy;
    DrawOutline(paint, corners, firstRow, firstInner);
    DrawSlant(paint, {segment.ax - segment.ay * slope, slope, 0.5 * length / std::fabs(dy)}, firstInner, endInner);
    DrawOutline(paint, corners, endInner, endRow);
}

void CLineRasterizer::DrawBox(const CPaint& paint, CCorner topLeft, CCorner bottomRight)
{
    const CRect& clip = paint.target.clip;
    const int firstRow = std::max(clip.y, FloorToInt(topLeft.y));
    const int endRow = std::min(clip.y + clip.height, CeilToInt(bottomRight.y));
    const int firstX = std::max(clip.x, FloorToInt(topLeft.x));
    const int endX = std::min(clip.x + clip.width, CeilToInt(bottomRight.x));
    for (int y = firstRow; y < endRow; ++y)
    {
        std::uint8_t* const row = paint.GetRow(y);
        const double high = GetShare(y, topLeft.y, bottomRight.y);
        for (int x = firstX; x < endX; ++x)
        {
            paint.Cover(row, x, static_cast<float>(high * GetShare(x, topLeft.x, bottomRight.x)));
        }
    }
}

void CLineRasterizer::DrawSlant(const CPaint& paint, const CSlant& slant, int firstRow, int endRow)
{
    int row = firstRow;
    while (row < endRow)
    {
        const double x = slant.GetMiddle(row);
        const int column = FloorToInt(x - slant.halfWidth - slant.GetSpread());
        const int pairs = std::min(CountPairRows(paint, slant, x, column), endRow - row);
        if (pairs > 0)
        {
            DrawPairs(paint, slant, row, pairs, column);
            row += pairs;
        }
        else
        {
            DrawSlantRow(paint, slant, row);
            ++row;
        }
    }
}

/// How many rows from that with its middle at x on have the left edge of the line in `column` and the right
/// one in the next: there the coverage of both pixels changes evenly.
int CLineRasterizer::CountPairRows(const CPaint& paint, const CSlant& slant, double x, int column)
{
    const CRect& clip = paint.target.clip;
    if (column < clip.x || column + 2 > clip.x + clip.width)
    {
        return 0;
    }
    // How far the middle may move to either side.
    const double spread = slant.GetSpread();
    const double toLeft = x - spread - std::max(column + slant.halfWidth, column + 1.0 - slant.halfWidth);
    const double toRight = std::min(column + 1.0 + slant.halfWidth, column + 2.0 - slant.halfWidth) - x - spread;
    if (toLeft < 0.0 || toRight < 0.0)
    {
        return 0;
    }
    return 1 + static_cast<int>((slant.slope > 0.0 ? toRight : toLeft) / std::fabs(slant.slope));
}

void CLineRasterizer::DrawPairs(const CPaint& paint, const CSlant& slant, int row, int rows, int column)
{
    // Levels as whole numbers with 23 bits behind the point, and half a level for the rounding.
    constexpr double one = 8388608.0;
    const auto toFixed = [](double coverage)
    { return static_cast<int>((std::clamp(coverage, 0.0, 1.0) * 255.0 + 0.5) * one); };
    const double x = slant.GetMiddle(row);
    const int left = toFixed(column + 1.0 - (x - slant.halfWidth));
    const int right = toFixed(x + slant.halfWidth - (column + 1.0));
    const int step = static_cast<int>(slant.slope * 255.0 * one);
    __m128i levels = _mm_set_epi32(right, right, left, left);
    const __m128i steps = _mm_set_epi32(step, step, -step, -step);
    const int stride = paint.target.stride;
    std::uint8_t* pixels = paint.GetRow(row) + std::int64_t{4} * column;
    for (int i = 0; i < rows; ++i, pixels += stride)
    {
        const __m128i whole = _mm_srli_epi32(levels, 23);
        paint.blend.BlendTwo(pixels, _mm_shuffle_epi32(_mm_packs_epi32(whole, whole), _MM_SHUFFLE(1, 1, 0, 0)));
        levels = _mm_add_epi32(levels, steps);
    }
}

void CLineRasterizer::DrawSlantRow(const CPaint& paint, const CSlant& slant, int row)
{
    const double spread = slant.GetSpread();
    // What of the row lies between a long edge and the side of a pixel, `distance` to the right of the middle
    // of the edge.
    const auto getArea = [spread](double distance)
    {
        const double crossed = std::clamp(distance, -spread, spread) + spread;
        return crossed * crossed / (4.0 * spread) + std::max(distance - spread, 0.0);
    };
    const double left = slant.GetMiddle(row) - slant.halfWidth;
    const double right = left + 2.0 * slant.halfWidth;
    const CRect& clip = paint.target.clip;
    const int first = std::max(clip.x, FloorToInt(left - spread));
    const int end = std::min(clip.x + clip.width, CeilToInt(right + spread));
    std::uint8_t* const pixels = paint.GetRow(row);
    double before = getArea(first - left) - getArea(first - right);
    for (int x = first; x < end; ++x)
    {
        const double behind = getArea(x + 1.0 - left) - getArea(x + 1.0 - right);
        paint.Cover(pixels, x, static_cast<float>(behind - before));
        before = behind;
    }
}

/// The rows of any outline, by its edges.
void CLineRasterizer::DrawOutline(const CPaint& paint, const std::array<CCorner, 4>& corners, int firstRow,
                                  int endRow)
{
    if (firstRow >= endRow)
    {
        return;
    }
    const auto [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    firstColumn = FloorToInt(left);
    columns = CeilToInt(right) - firstColumn;
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
    for (int y = firstRow; y < endRow; ++y)
    {
        firstTouched = columns;
        lastTouched = -1;
        for (const CEdge& edge : edges)
        {
            AddEdge(edge, y);
        }
        BlendRow(paint, y);
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

void CLineRasterizer::BlendRow(const CPaint& paint, int y)
{
    const CRect& clip = paint.target.clip;
    std::uint8_t* const row = paint.GetRow(y);
    float covered = 0.0F;
    for (int column = firstTouched; column <= lastTouched; ++column)
    {
        covered += std::exchange(deltas[static_cast<std::size_t>(column)], 0.0F);
        const int x = firstColumn + column;
        // A change behind the last pixel of the outline leaves nothing covered there.
        if (x >= clip.x && x - clip.x < clip.width && column < columns)
        {
            paint.Cover(row, x, std::fabs(covered));
        }
    }
}

} // namespace Mirel::Graphics
