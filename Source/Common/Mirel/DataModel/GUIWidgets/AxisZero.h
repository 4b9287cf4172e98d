#pragma once

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"

#include <cmath>

namespace Mirel::DataModel::GUIWidgets
{

/// Where zero stands on an axis, from 0 to 1 in its view and beyond: what bars stand on and grids begin at.
/// On an axis that has no zero, as a logarithmic one, it is the end of the range that is nearer to it.
inline float GetZeroPosition(const Controls::CParamViewerConfig& axis)
{
    constexpr float farOff = 1e6F;
    const float zero = axis.ValueToPosition(0.0F, false);
    if (!axis.IsLogScale() && std::fabs(zero) < farOff)
    {
        return zero;
    }
    const float min = axis.GetInfo().GetMin();
    const float max = axis.GetInfo().GetMax();
    const float end = axis.ValueToPosition(std::fabs(max) < std::fabs(min) ? max : min, false);
    return std::isfinite(end) ? end : 0.0F;
}

} // namespace Mirel::DataModel::GUIWidgets
