#include "Mirel/Graphics/LineRasterizer.h"

#include "Mirel/Graphics/CSolidLine.h"
#include "Mirel/Graphics/Premultiply.h"

#include <algorithm>
#include <cmath>

namespace Mirel::Graphics
{

namespace
{

constexpr unsigned opaque = 255;
constexpr std::ptrdiff_t bytesPerPixel = 4;

std::uint32_t Blend(std::uint32_t under, CColor color, unsigned coverage)
{
    const auto mix = [&](unsigned above, unsigned below)
    { return (above * coverage + below * (opaque - coverage) + opaque / 2) / opaque; };
    return (mix(opaque, under >> 24U) << 24U) | (mix(color.r, (under >> 16U) & opaque) << 16U) |
           (mix(color.g, (under >> 8U) & opaque) << 8U) | mix(color.b, under & opaque);
}

/// The first of the rows or columns that a line along them covers; false if it covers one in part.
bool FindFirst(double middle, int width, int& first)
{
    const double side = middle - 0.5 * width;
    first = static_cast<int>(side);
    return !(first < side || first > side);
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

/// Lines along whole rows or columns, as those of grids and of steps are. False for any other.
bool DrawAlongPixels(const CPixelTarget& target, CColor color, const CSegment& segment, int width)
{
    const CRect& clip = target.clip;
    int first = 0;
    if (segment.ax == segment.bx && FindFirst(segment.ax, width, first))
    {
        const auto [from, to] = std::minmax(segment.ay, segment.by);
        const int end = std::min(first + width, clip.x + clip.width);
        for (int x = std::max(first, clip.x); x < end; ++x)
        {
            FillAlong(target.data + bytesPerPixel * x, target.stride, from, to, clip.y, clip.y + clip.height,
                      color);
        }
        return true;
    }
    if (segment.ay == segment.by && FindFirst(segment.ay, width, first))
    {
        const auto [from, to] = std::minmax(segment.ax, segment.bx);
        const int end = std::min(first + width, clip.y + clip.height);
        for (int y = std::max(first, clip.y); y < end; ++y)
        {
            FillAlong(target.data + std::int64_t{target.stride} * y, bytesPerPixel, from, to, clip.x,
                      clip.x + clip.width, color);
        }
        return true;
    }
    return false;
}

} // namespace

void DrawSegment(const CPixelTarget& target, CColor color, const CSegment& segment, int width)
{
    if (!DrawAlongPixels(target, color, segment, width))
    {
        CSolidLine(segment, width).Draw(target, color);
    }
}

} // namespace Mirel::Graphics
