#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Stands for no range given, as NaN does. 0 is a knob that the pointer does not move, and any other negative
/// range one that turns the other way.
inline constexpr float noPixelRange = -1.0F;

/// Pixels that the pointer moves for the whole range of a knob that nobody gave a range.
inline constexpr float defaultPixelRange = 200.0F;

inline bool IsPixelRangeGiven(float range)
{
    return range < noPixelRange || range > noPixelRange;
}

/// The range given, or the default one.
inline float GetPixelRange(float given)
{
    return IsPixelRangeGiven(given) ? given : defaultPixelRange;
}

/// Whether the pointer moves a knob of that range.
inline bool MovesKnob(float pixelRange)
{
    return pixelRange < 0.0F || pixelRange > 0.0F;
}

/// By what movements are multiplied: less than 1 in fine mode.
inline float GetFineScale(const Controls::CParamControl& control)
{
    return control.IsFineMode() ? 1.0F / static_cast<float>(control.GetFineRatio()) : 1.0F;
}

/// The change of position for `amount` steps: stops where the axis has some, else pixels.
inline float GetSteps(const Controls::CParamControl& control, float pixelRange, float amount)
{
    const int positions = control.GetPositionsCount();
    if (positions > 0)
    {
        return positions > 1 ? amount / static_cast<float>(positions - 1) : 0.0F;
    }
    return MovesKnob(pixelRange) ? amount * GetFineScale(control) / pixelRange : 0.0F;
}

} // namespace Mirel::DataModel::GUIWidgets
