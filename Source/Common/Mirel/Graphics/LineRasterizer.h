#pragma once

#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineClip.h"

#include <cstdint>

namespace Mirel::Graphics
{

/// 32-bit pixels, 0xAARRGGBB and premultiplied, and the part of them that may be written.
struct CPixelTarget
{
    std::uint8_t* data = nullptr;
    int stride = 0;
    CRect clip; ///< Must lie inside of the pixels.
};

/// Draws an opaque line with cut ends straight into memory, each pixel as far covered as the line's area
/// covers it. It is what makes a trace of many short segments cheap.
///
/// The line runs from end to end, where (0.5, 0.5) is the centre of pixel (0, 0), and is that many pixels
/// wide. The ends must lie within some pixels of the clip (ClipSegment). A segment without length draws
/// nothing.
void DrawSegment(const CPixelTarget& target, CColor color, const CSegment& segment, int width = 1);

} // namespace Mirel::Graphics
