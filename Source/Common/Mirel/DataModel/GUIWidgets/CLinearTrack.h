#pragma once

#include "Mirel/Graphics/Geometry.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

/// Where on a slider or linear meter a thumb stands: it goes straight from the left to the right, or from the
/// bottom to the top, and stays between the margins with all of its length.
struct CLinearTrack
{
    bool horizontal = false;
    int marginBefore = 0; ///< pixels left free at the left, or at the top
    int marginAfter = 0;  ///< at the right, or at the bottom
    bool operator==(const CLinearTrack&) const = default;

    /// Pixels that a thumb of that length moves, from position 0 to position 1, in an area of that size; at
    /// least 0.
    int GetLength(Core::CSize size, int thumbLength) const
    {
        const std::int64_t along = horizontal ? size.width : size.height;
        return Core::SaturateToInt32(
            std::max<std::int64_t>(along - marginBefore - marginAfter - thumbLength, 0));
    }

    /// The pixel along the track where the thumb begins, at a position from 0 to 1.
    int GetPixel(Core::CSize size, int thumbLength, float position) const
    {
        const std::int64_t length = GetLength(size, thumbLength);
        const int moved = Graphics::RoundToPixel(static_cast<double>(position) * static_cast<double>(length));
        return Core::SaturateToInt32(marginBefore + (horizontal ? moved : length - moved));
    }

    /// The position that brings the middle of the thumb to a point of the area, within 0 to 1; 0 on a track
    /// without length.
    float GetPosition(Core::CSize size, int thumbLength, Core::CPoint point) const
    {
        const int length = GetLength(size, thumbLength);
        if (length == 0)
        {
            return 0.0F;
        }
        const std::int64_t along = horizontal ? point.x : point.y;
        const std::int64_t begin = along - thumbLength / 2 - marginBefore;
        const double share = static_cast<double>(begin) / length;
        return static_cast<float>(std::clamp(horizontal ? share : 1.0 - share, 0.0, 1.0));
    }
};

} // namespace Mirel::DataModel::GUIWidgets
