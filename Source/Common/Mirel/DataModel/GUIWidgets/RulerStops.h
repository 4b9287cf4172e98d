#pragma once

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"

#include <vector>

namespace Mirel::DataModel::GUIWidgets
{

/// A place on a ruler that may get a label.
struct CRulerStop
{
    float position = 0.0F; ///< From 0 to 1 in the view.
    float value = 0.0F;    ///< Zero is 0, not what is left of it by the arithmetic of the axis.
};

/// The stops of an axis in its view, in the order of their positions. On an axis without stops they are round
/// values about labelDistance apart, in the unit in which the view is `length`.
std::vector<CRulerStop> GetRulerStops(const Controls::CParamViewerConfig& axis, float length,
                                      float labelDistance);

} // namespace Mirel::DataModel::GUIWidgets
