#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace Mirel::Math
{

/// Evenly spaced bins with their centres from low to high.
struct CBinRange
{
    float low;
    float high;
    float binsPerUnit; ///< (number of bins - 1) / (high - low), of at most 256 bins.
};

/// The bin of each value, the nearest one, halves going up. Values beyond the ends go to the end's bin, NaN
/// to bin 0. indices has room for as many as there are values. Runs on vectors of the widest kind that the
/// processor has; the results are the same on every kind. Any thread.
void FindBins(std::span<const float> values, const CBinRange& range, std::uint8_t* indices);

using CFindBins = void(std::span<const float> values, const CBinRange& range, std::uint8_t* indices);

/// All that this processor can run of what FindBins chooses from, its choice first. Any thread.
std::vector<CFindBins*> FindBinsVariants();

} // namespace Mirel::Math
