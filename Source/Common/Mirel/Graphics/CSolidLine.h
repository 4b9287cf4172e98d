#pragma once

#include "Mirel/Graphics/FourPixels.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineClip.h"

#include <array>
#include <climits>
#include <cstdint>

namespace Mirel::Graphics
{

struct CPixelTarget;

/// A line of some whole width with cut ends, drawn row by row, four pixels at a time. Each pixel is as far
/// covered as the line's area covers it. One thread.
class CSolidLine
{
public:
    /// segment and width as those of DrawSegment.
    CSolidLine(const CSegment& segment, int width);

    void Draw(const CPixelTarget& target, CColor color) const;

private:
    /// One side of the outline, downward. All coordinates count from the corner (firstColumn, firstRow).
    struct CEdge
    {
        float x;
        float y;
        float endY;
        float slope;     ///< Columns for each row.
        float perColumn; ///< Rows for each column, times the sign.
        float sign;      ///< 1 if the line lies to the right of it, else -1.
    };

    /// What a row is drawn with.
    struct CRow
    {
        std::uint8_t* pixels; ///< Of column 0.
        int clipLeft;
        int clipRight;
        const CFourPixelBlender& blender;
    };

    void SetEdges(float dx, float dy, float rx, float ry);
    static __m128 CoverBy(const CEdge& edge, float top, float left, __m128 rightSides);
    void DrawEndRow(const CRow& row, int y) const;
    void DrawBluntRow(const CRow& row, int at) const;
    void DrawWholeRow(const CRow& row, int at) const;
    template <class Cover>
    static void DrawColumns(const CRow& row, int first, int count, const Cover& cover);
    int DrawRun(const CPixelTarget& target, int at, int endAt, CColor color) const;

    int width = 1;
    int firstColumn = 0;
    int firstRow = 0;
    int begin = 0; ///< The rows that the line touches.
    int end = 0;
    int firstCovered = 0; ///< The columns, unless it is blunt.
    int endCovered = 0;
    float x = 0.0F; ///< Where the line begins, in its middle.
    float y = 0.0F;
    float endY = 0.0F;
    float slope = 0.0F; ///< Columns for each row.
    float wide = 0.0F;  ///< Of the strip that the line is but for its ends, along a row.
    float left = 0.0F;  ///< Of that strip, where firstRow begins.
    float lean = 0.0F;  ///< The slope without its sign.
    float perLean = 0.0F;
    int mostColumns = INT_MAX; ///< That a row holds.
    bool isBlunt = false;      ///< The ends are as good as level.
    int firstWhole = 0;        ///< Rows that hold no part of an end.
    int endWhole = 0;
    std::array<CEdge, 4> edges;
};

} // namespace Mirel::Graphics
