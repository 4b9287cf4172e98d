#pragma once

#include "Mirel/Graphics/FourPixels.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineClip.h"

#include <array>
#include <cstdint>

namespace Mirel::Graphics
{

struct CPixelTarget;

/// A line one pixel wide with cut ends, of which no row of pixels holds more than four: a steep line of any
/// length, and every line from one pixel column to the next. Such are nearly all lines of a trace. Each pixel
/// is as far covered as the line's area covers it. One thread.
class CNarrowLine
{
public:
    /// segment in the space of CLineRasterizer, with a length.
    explicit CNarrowLine(const CSegment& segment);

    /// False if a row may hold more than four pixels: then the line must not be drawn in this way.
    bool IsNarrow() const { return isSteep || columns <= maxColumns; }

    /// Needs a clip of at least four columns.
    void Draw(const CPixelTarget& target, CColor color);

    static constexpr int maxColumns = 4;

private:
    /// One side of the outline, downward. Coordinates count from the corner (firstColumn, firstRow).
    struct CEdge
    {
        float x; ///< Where it begins.
        float y;
        float endY;
        float slope; ///< Columns for each row.
        float perSlope;
        float sign; ///< 1 if the line lies to the right of it, else -1.
    };

    static __m128 Cover(const CEdge& edge, float from, float to, __m128 rightSides);
    void DrawRow(std::uint8_t* row, int y, int clipLeft, int clipRight,
                 const CFourPixelBlender& blender) const;
    int DrawRun(const CPixelTarget& target, int y, int endY, const CFourPixelBlender& blender) const;

    int firstColumn = 0;
    int columns = 0;
    int firstRow = 0;
    int rows = 0;
    bool isSteep = false;
    float left = 0.0F;  ///< Of the line's strip, without its ends, where firstRow begins.
    float slope = 0.0F; ///< Columns for each row; of a steep line -1 to 1.
    float wide = 0.0F;  ///< Of the strip, along a row.
    int firstWhole = 0; ///< Rows that hold no part of an end.
    int endWhole = 0;
    std::array<CEdge, 4> edges;
};

} // namespace Mirel::Graphics
