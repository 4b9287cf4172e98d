#pragma once

#include "Mirel/Core/TAlignedVector.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace Mirel::Core
{

/// A function given by its values at evenly spaced positions from xMin to xMax, read through an interpolator.
/// Position p stands behind the interpolator's guard entries: p = 0 is xMin, p = size - 1 is xMax.
template <class V, class Interpolator>
class TLookupTable
{
public:
    static constexpr int guardsBefore = Interpolator::guardsBefore;
    static constexpr int guardsAfter = Interpolator::guardsAfter;

    TLookupTable(V xMin_, V xMax_, int size_ = 0) : xMin(xMin_), xMax(xMax_) { SetSize(size_); }

    /// Allocates; all values become 0. A negative size counts as 0.
    void SetSize(int newSize)
    {
        size = std::max(newSize, 0);
        values.assign(lead + static_cast<std::size_t>(size + guardsBefore + guardsAfter), V(0));
        values.shrink_to_fit();
        scale = static_cast<V>(size - 1) / (xMax - xMin);
    }

    int GetSize() const { return size; }
    V GetXMin() const { return xMin; }
    V GetXMax() const { return xMax; }

    /// The entry of position 0. Positions -guardsBefore to size + guardsAfter - 1 are there.
    V* GetPositions() { return GetEntries().data() + guardsBefore; }
    const V* GetPositions() const { return GetEntries().data() + guardsBefore; }

    /// All entries, guards included.
    std::span<V> GetEntries() { return std::span<V>(values).subspan(lead); }
    std::span<const V> GetEntries() const { return std::span<const V>(values).subspan(lead); }

    void Fill(V value) { std::fill(values.begin(), values.end(), value); }

    /// The position of x, clamped to the range; NaN is read as xMin, so that it can index nothing else.
    V GetPosition(V x) const
    {
        const V clamped = x > xMin ? (x > xMax ? xMax : x) : xMin;
        return (clamped - xMin) * scale;
    }

    /// The interpolated value at a position from 0 to size, exclusive. 0 for an empty table.
    V At(V position) const
    {
        return size > 0 ? Interpolator::Interpolate(GetEntries().data(), position) : V(0);
    }

    V operator()(V x) const { return At(GetPosition(x)); }

private:
    /// Unused entries in front that put position 0 at the start of a cache line.
    static constexpr std::size_t lead = guardsBefore == 0 ? 0 : cacheLineSize / sizeof(V) - guardsBefore;

    V xMin;
    V xMax;
    V scale = V(0);
    int size = 0;
    TAlignedVector<V> values;
};

} // namespace Mirel::Core
