#pragma once

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/SkinEngine/UI/CUIElement.h"

#include <string>

namespace Mirel::SkinEngine
{

/// Which settings an axis has. The prefix stands before the name of each: "", "x_", "y_curve.x_".
struct SAxisNames
{
    std::string prefix;
    bool hasPositionsCount = true; ///< Otherwise the name means something else there.
};

/// Reads the settings of an axis, and exposes its zoom and offset under the element's identifier. The axis
/// belongs to a widget that the element has made. False if an identifier is taken.
bool ReadAxis(CUIElement& element, const SAxisNames& names, DataModel::Controls::CParamViewerConfig& axis);

} // namespace Mirel::SkinEngine
