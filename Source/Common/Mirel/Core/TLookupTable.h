#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

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
        const int entries = size + guardsBefore + guardsAfter;
        values.assign(static_cast<std::size_t>(entries), V(0));
        values.shrink_to_fit();
        scale = static_cast<V>(size - 1) / (xMax - xMin);
    }

    int GetSize() const { return size; }
    V GetXMin() const { return xMin; }
    V GetXMax() const { return xMax; }

    /// The entry of position 0. Positions -guardsBefore to size + guardsAfter - 1 are there.
    V* GetPositions() { return values.data() + guardsBefore; }
    const V* GetPositions() const { return values.data() + guardsBefore; }

    /// All entries, guards included.
    std::vector<V>& GetEntries() { return values; }
    const std::vector<V>& GetEntries() const { return values; }

    void Fill(V value) { std::fill(values.begin(), values.end(), value); }

    /// The position of x, clamped to the range; NaN is read as xMin, so that it can index nothing else.
    V GetPosition(V x) const
    {
        const V clamped = x > xMin ? (x > xMax ? xMax : x) : xMin;
        return (clamped - xMin) * scale;
    }

    /// The interpolated value at a position from 0 to size, exclusive. 0 for an empty table.
    V At(V position) const { return size > 0 ? Interpolator::Interpolate(values.data(), position) : V(0); }

    V operator()(V x) const { return At(GetPosition(x)); }

private:
    V xMin;
    V xMax;
    V scale = V(0);
    int size = 0;
    std::vector<V> values;
};

} // namespace Mirel::Core
