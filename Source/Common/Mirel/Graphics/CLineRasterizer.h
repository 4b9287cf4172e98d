#pragma once

#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineClip.h"

#include <cstdint>
#include <vector>

namespace Mirel::Graphics
{

/// 32-bit pixels, 0xAARRGGBB and premultiplied, and the part of them that may be written.
struct CPixelTarget
{
    std::uint8_t* data = nullptr;
    int stride = 0;
    CRect clip; ///< Must lie inside of the pixels.
};

/// Draws opaque lines one pixel wide with cut ends straight into memory, each pixel as far covered as the
/// line's area covers it. It is what makes a trace of many short segments cheap. Keeps a row of scratch,
/// which only grows. One thread.
class CLineRasterizer
{
public:
    /// From end to end, where (0.5, 0.5) is the centre of pixel (0, 0). The ends must lie within some pixels
    /// of the clip (ClipSegment). A segment without length draws nothing.
    void DrawSegment(const CPixelTarget& target, CColor color, const CSegment& segment);

private:
    struct CCorner
    {
        double x;
        double y;
    };

    /// One side of the line's outline; x counts from firstColumn.
    struct CEdge
    {
        CCorner from;
        CCorner to;
        double slope; ///< Columns for each row.
    };

    CEdge MakeEdge(CCorner from, CCorner to) const;
    void AddEdge(const CEdge& edge, double rowTop);
    void AddPiece(double x0, double x1, double height);
    void BlendRow(std::uint8_t* row, int first, int last, CColor color);

    /// Changes of coverage from pixel to pixel of the row being drawn; all 0 between rows.
    std::vector<float> deltas;
    int firstColumn = 0; ///< The pixel that deltas begin with.
    int columns = 0;
    int firstTouched = 0; ///< Of deltas, in this row.
    int lastTouched = -1;
};

} // namespace Mirel::Graphics
