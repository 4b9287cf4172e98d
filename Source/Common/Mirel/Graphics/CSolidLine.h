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
    // All coordinates count from the corner of pixel (firstColumn, firstRow), which is near the line's upper
    // end.

    /// One side of the outline, downward.
    struct CEdge
    {
        float x;
        float y;
        float endY;
        float slope;     ///< Columns for each row.
        float perColumn; ///< The sign divided by the slope.
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
    int DrawRun(const CPixelTarget& target, int at, int endAt, CColor color) const;
    void DrawBluntRow(const CRow& row, int at) const;
    void DrawWholeRow(const CRow& row, int at) const;
    void DrawEndRow(const CRow& row, int at) const;
    static __m128 CoverBy(const CEdge& edge, float top, float groupLeft, __m128 rightSides);
    template <class Cover>
    static void DrawColumns(const CRow& row, int first, int count, const Cover& cover);

    int width;
    int firstColumn = 0;
    int firstRow = 0;

    // Where the middle of the line begins and ends.
    float x = 0.0F;
    float y = 0.0F;
    float endY = 0.0F;

    // The strip that the line is but for its ends.
    float slope = 0.0F; ///< Columns for each row.
    float lean = 0.0F;  ///< The slope without its sign.
    float perLean = 0.0F;
    float wide = 0.0F;         ///< Along a row.
    float left = 0.0F;         ///< Where it begins at height 0.
    int mostColumns = INT_MAX; ///< That it covers of a row.

    // Rows with something of the line, and those with nothing of its ends.
    int begin = 0;
    int firstWhole = 0;
    int endWhole = 0;
    int end = 0;

    bool isBlunt = false; ///< The ends are as good as level; else:
    int firstCovered = 0; ///< Columns with something of the line.
    int endCovered = 0;
    std::array<CEdge, 4> edges;
};

} // namespace Mirel::Graphics
