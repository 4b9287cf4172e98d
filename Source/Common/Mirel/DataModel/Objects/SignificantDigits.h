#pragma once

namespace Mirel::DataModel::Objects
{

/// Rounds a value to a number of decimal digits, of which those before the point count from 1 up. A value
/// below 1 thus counts its digits from the first place after the point that is not zero, or one place before
/// it. With no digits (0 or less) rounds to the whole number, half away from zero. What the digits cannot
/// change (0, NaN, infinity, more digits than a double holds) stays as it is.
float RoundToSignificantDigits(float value, int digits);

} // namespace Mirel::DataModel::Objects
