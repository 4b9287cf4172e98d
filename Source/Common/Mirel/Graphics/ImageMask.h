#pragma once

#include "Mirel/Graphics/CImage.h"

namespace Mirel::Graphics
{

/// The grey values of an image as 8-bit pixels, the form in which masks are kept. None for an empty image or
/// one too large.
CSharedImage MakeMask(const CImage& image);

/// A 32-bit image with the colours of the one and, as opacity, the grey values of the other. None unless both
/// have the same size and device scale, and pixels.
CSharedImage ComposeWithMask(const CImage& colors, const CImage& mask);

/// The same pixels as an image for that device scale, and so of smaller size. None for an empty image or one
/// too large.
CSharedImage MakeScaled(const CImage& image, int scale);

} // namespace Mirel::Graphics
