#pragma once

#include "Mirel/DataModel/Objects/EValueKind.h"

#include <cmath>

namespace Mirel::DataModel::Controls
{

/// The nearest integer, halves away from zero. What a 32-bit integer cannot hold keeps its size: ranges go up
/// to 2147483648. Zero has no sign, which a text would show.
inline float RoundAwayFromZero(float value)
{
    const auto wide = static_cast<double>(value);
    return static_cast<float>(std::trunc(value > 0.0F ? wide + 0.5 : wide - 0.5) + 0.0);
}

/// The value of a kind that a number on an axis stands for: the nearest integer, max or min for the two-state
/// kinds, a real as it is.
inline float ValueOfKind(int kind, float min, float max, float value)
{
    switch (kind)
    {
    case Objects::ValueKindInteger:
        return RoundAwayFromZero(value);
    case Objects::ValueKindBoolean:
    case Objects::ValueKindSwitch:
        return value > (max - min) * 0.5F ? max : min;
    default:
        return value;
    }
}

} // namespace Mirel::DataModel::Controls
