#pragma once

#include "Mirel/Graphics/CSimple2DRegion.h"

#include <vector>

namespace Mirel::GUI
{

/// The boxes in which a region is painted: each takes a walk through the tree, so that rectangles are put
/// together where their common box is not much larger than they are. Together they hold the whole region.
std::vector<Graphics::CRect> GetPaintBoxes(const Graphics::CSimple2DRegion& region);

} // namespace Mirel::GUI
