#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Pixels that the pointer moves for the whole range of a knob that nobody gave a range.
inline constexpr float defaultPixelRange = 200.0F;

/// The range given, or the default one for a negative range, which stands for none given. 0 is a knob that
/// the pointer does not move.
inline float GetPixelRange(float given)
{
    return given < 0.0F ? defaultPixelRange : given;
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
    return pixelRange < 0.0F || pixelRange > 0.0F ? amount * GetFineScale(control) / pixelRange : 0.0F;
}

} // namespace Mirel::DataModel::GUIWidgets
