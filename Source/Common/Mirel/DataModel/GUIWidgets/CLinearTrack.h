#pragma once

#include "Mirel/Graphics/Geometry.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

/// Where on a slider or linear meter a position stands: the way of a thumb's middle, straight from the left
/// to the right, or from the bottom to the top.
struct CLinearTrack
{
    bool horizontal = false;
    int marginBefore = 0; ///< pixels left free at the left, or at the top
    int marginAfter = 0;  ///< at the right, or at the bottom
    bool operator==(const CLinearTrack&) const = default;

    /// Pixels from position 0 to position 1 in an area of that size; at least 0.
    int GetLength(Core::CSize size) const
    {
        const std::int64_t along = horizontal ? size.width : size.height;
        return Core::SaturateToInt32(std::max<std::int64_t>(along - marginBefore - marginAfter, 0));
    }

    /// The pixel along the track of a position from 0 to 1.
    int GetPixel(Core::CSize size, float position) const
    {
        const auto given = static_cast<double>(position);
        const double share = horizontal ? given : 1.0 - given;
        return Core::SaturateToInt32(std::int64_t{marginBefore} +
                                     Graphics::RoundToPixel(share * GetLength(size)));
    }

    /// The position of a point of the area, within 0 to 1; 0 on a track without length.
    float GetPosition(Core::CSize size, Core::CPoint point) const
    {
        const int length = GetLength(size);
        if (length == 0)
        {
            return 0.0F;
        }
        const double share = (static_cast<double>(horizontal ? point.x : point.y) - marginBefore) / length;
        return static_cast<float>(std::clamp(horizontal ? share : 1.0 - share, 0.0, 1.0));
    }
};

} // namespace Mirel::DataModel::GUIWidgets
