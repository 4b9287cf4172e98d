#pragma once

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/Graphics/Geometry.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

/// The last stop of the axis in its window, counted from 0. 0 for an axis of one stop, for one without stops
/// and for one of more than can be counted.
inline int GetLastStop(const Controls::CParamViewerConfig& axis)
{
    return std::max(Core::TruncateToInt32(static_cast<double>(axis.GetVisiblePositions())), 1) - 1;
}

/// The stop at a position from 0 to 1.
inline int GetStopOf(float position, int lastStop)
{
    return Graphics::RoundToPixel(static_cast<double>(position * static_cast<float>(lastStop)));
}

/// The position of a stop; lastStop above 0.
inline float GetPositionOfStop(int stop, int lastStop)
{
    return static_cast<float>(stop) / static_cast<float>(lastStop);
}

} // namespace Mirel::DataModel::GUIWidgets
