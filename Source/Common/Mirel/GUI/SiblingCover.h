#pragma once

#include "Mirel/Graphics/Geometry.h"

namespace Mirel::GUI
{

/// What is left of a rectangle behind an opaque cover, as a rectangle: a cover that spans its whole width or
/// height and reaches one of its edges moves that edge. Any other cover takes nothing away.
Graphics::CRect WithoutCover(const Graphics::CRect& rect, const Graphics::CRect& cover);

} // namespace Mirel::GUI
