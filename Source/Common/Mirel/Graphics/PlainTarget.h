#pragma once

#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineRasterizer.h"

namespace Mirel::Graphics
{

/// The memory under a context that is plain enough to be drawn into past the library: 32-bit pixels, moved by
/// whole pixels, clipped to a rectangle of them. Else without data.
/// Origin is told where the context's (0, 0) lies in the memory.
CPixelTarget GetPlainTarget(cairo_t* context, CPoint& origin);

} // namespace Mirel::Graphics
