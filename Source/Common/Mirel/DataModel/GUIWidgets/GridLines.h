#pragma once

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/GUIWidgets/Limits.h"

#include <algorithm>
#include <cmath>

namespace Mirel::DataModel::GUIWidgets
{

enum class EGridLine
{
    Subdivision,
    Major,
    Origin
};

/// What the lines across one axis follow from.
struct CGridAxis
{
    float positions = 0.0F; ///< The lines of a view, its two edges included, with fractions.
    float origin = 0.0F;    ///< Where the lines begin, from 0 to 1 in the view; it may lie outside.
    int subdivisions = 0;   ///< Lines between each two.
    int length = 0;         ///< Pixels.
};

/// Calls draw(EGridLine, pixel) for each line within the axis' pixels, in the order of drawing: outward from
/// the origin, to the right and then to the left, the subdivisions before a line ahead of it, and the origin
/// last. A pixel may come more than once. There are no lines for one position or less.
template <class Draw>
void ForEachGridLine(const CGridAxis& axis, Draw draw)
{
    if (axis.length < 1 || !(axis.positions > 1.0F) || !std::isfinite(axis.origin))
    {
        return;
    }
    const auto last = static_cast<float>(axis.length - 1);
    const float step = 1.0F / (std::min(axis.positions, static_cast<float>(CLimits::maxGridLines)) - 1.0F);
    const int subdivisions = std::clamp(axis.subdivisions, 0, CLimits::maxGridLines);
    int budget = CLimits::maxGridLines;
    const auto drawIn = [&](EGridLine kind, int pixel)
    {
        if (pixel >= 0 && pixel < axis.length)
        {
            draw(kind, pixel);
        }
    };
    const auto toPixel = [last](float p)
    {
        constexpr float farOff = 1e9F; // leaves room for sums
        return Core::TruncateToInt32(static_cast<double>(std::clamp(p * last + 0.5F, -farOff, farOff)));
    };
    // The part between the line before `pixel` and that at it. Direction 1 looks back to the left.
    const auto drawSubdivisions = [&](int pixel, int direction)
    {
        for (int k = 1; k <= subdivisions && budget > 0; ++k, --budget)
        {
            const float share = static_cast<float>(k) * step / static_cast<float>(subdivisions + 1);
            drawIn(EGridLine::Subdivision, pixel - direction * toPixel(share));
        }
    };
    const auto drawSide = [&](int direction)
    {
        const float signedStep = static_cast<float>(direction) * step;
        // Lines that lie before the view are not counted out one by one where they are many.
        constexpr float many = 64.0F;
        const float before = (direction > 0 ? -axis.origin : axis.origin - 1.0F) / step;
        float p = axis.origin + signedStep;
        if (before > many)
        {
            p = axis.origin + std::floor(before) * signedStep;
        }
        int pixel = toPixel(p);
        for (; (direction > 0 ? pixel < axis.length : pixel >= 0) && budget > 0; --budget)
        {
            drawSubdivisions(pixel, direction);
            drawIn(EGridLine::Major, pixel);
            p += signedStep;
            pixel = toPixel(p);
        }
        drawSubdivisions(pixel, direction);
    };
    if (axis.length > 1) // on a single pixel the lines would never leave the area
    {
        drawSide(1);
        drawSide(-1);
    }
    drawIn(EGridLine::Origin, toPixel(axis.origin));
}

} // namespace Mirel::DataModel::GUIWidgets
