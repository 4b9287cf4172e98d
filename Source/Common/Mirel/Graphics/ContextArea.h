#pragma once

#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/Geometry.h"

namespace Mirel::Graphics
{

/// The clip's bounding box in whole pixels, with those that it only touches.
CRect GetOuterClip(cairo_t* context);

/// Adds the rectangle to the context's path.
void AddRect(cairo_t* context, const CRect& rect);

} // namespace Mirel::Graphics
