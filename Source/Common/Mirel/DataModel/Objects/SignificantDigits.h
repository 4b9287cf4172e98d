#pragma once

namespace Mirel::DataModel::Objects
{

/// Rounds a value to a number of decimal digits, half away from zero. A value below 1 counts its digits from
/// the point where its logarithm, rounded towards zero, puts them: 0.5 to one digit is 0.5, 0.05 is 0.1. With
/// no digits (0 or less) gives the whole number below value + 0.5, or below value - 0.5 for a value of 0 or
/// less, so that 0 gives -1. What digits cannot change (0, NaN, infinity, more digits than numbers hold)
/// stays.
float RoundToSignificantDigits(float value, int digits);

} // namespace Mirel::DataModel::Objects
