#pragma once

#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineRasterizer.h"

namespace Mirel::Graphics
{

/// How coordinates of a context become pixels: times scale, then moved.
struct CPixelPlace
{
    CPoint origin;
    int scale = 1;
};

/// The memory under a context that is plain enough to be drawn into past the library: 32-bit pixels, a whole
/// number of them to a unit, moved by whole pixels, clipped to a rectangle of them. Else without data.
CPixelTarget GetPlainTarget(cairo_t* context, CPixelPlace& place);

} // namespace Mirel::Graphics
