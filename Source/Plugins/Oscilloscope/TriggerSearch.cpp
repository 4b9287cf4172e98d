#include "Plugins/Oscilloscope/TriggerSearch.h"

#include <cstddef>

namespace PluginsFilters
{

namespace
{

constexpr std::ptrdiff_t notFound = -1;

struct SAtMost
{
    float level;
    bool operator()(float value) const { return value <= level; }
};

struct SAbove
{
    float level;
    bool operator()(float value) const { return value > level; }
};

struct SAtLeast
{
    float level;
    bool operator()(float value) const { return value >= level; }
};

struct SBelow
{
    float level;
    bool operator()(float value) const { return value < level; }
};

/// The index of the last value that meets the condition, or notFound. Whole groups are ruled out without a
/// branch a value, which the compiler turns into vector comparisons.
template <class Condition>
std::ptrdiff_t FindLast(std::span<const float> values, Condition condition)
{
    constexpr std::ptrdiff_t group = 64;
    auto end = static_cast<std::ptrdiff_t>(values.size());
    for (; end >= group; end -= group)
    {
        const float* first = values.data() + end - group;
        int any = 0;
        for (std::ptrdiff_t i = 0; i < group; ++i)
        {
            any |= condition(first[i]) ? 1 : 0;
        }
        if (any != 0)
        {
            break;
        }
    }
    while (end > 0 && !condition(values[static_cast<std::size_t>(end - 1)]))
    {
        --end;
    }
    return end > 0 ? end - 1 : notFound;
}

/// A ring unrolled into a list from the oldest value (index 0) to the newest.
class CRingByAge
{
public:
    CRingByAge(std::span<const float> values, int writePos)
        : older(values.subspan(static_cast<std::size_t>(writePos))),
          newer(values.first(static_cast<std::size_t>(writePos)))
    {
    }

    float GetNewest() const { return newer.empty() ? older.back() : newer.back(); }
    std::ptrdiff_t GetCount() const { return std::ssize(older) + std::ssize(newer); }

    /// The position in the ring.
    std::ptrdiff_t GetPosition(std::ptrdiff_t index) const
    {
        return index < std::ssize(older) ? index + std::ssize(newer) : index - std::ssize(older);
    }

    /// The last value that meets the condition among the first `count`.
    template <class Condition>
    std::ptrdiff_t FindLastOf(std::ptrdiff_t count, Condition condition) const
    {
        const std::ptrdiff_t split = std::ssize(older);
        if (count > split)
        {
            const auto found = FindLast(newer.first(static_cast<std::size_t>(count - split)), condition);
            if (found != notFound)
            {
                return split + found;
            }
        }
        return FindLast(older.first(static_cast<std::size_t>(count < split ? count : split)), condition);
    }

private:
    std::span<const float> older;
    std::span<const float> newer;
};

/// With the newest value beyond the level, the last one that is not; otherwise first the last one beyond it.
template <class Beyond, class NotBeyond>
std::ptrdiff_t FindCrossing(const CRingByAge& ring, bool isBeyond, Beyond beyond, NotBeyond notBeyond)
{
    std::ptrdiff_t count = ring.GetCount() - 1; // the newest value itself is no end of a walk
    if (!isBeyond)
    {
        count = ring.FindLastOf(count, beyond);
    }
    return count > 0 ? ring.FindLastOf(count, notBeyond) : notFound;
}

} // namespace

int FindTrigger(std::span<const float> values, int writePos, float level, ETriggerDirection direction)
{
    if (values.empty())
    {
        return notFound;
    }
    const CRingByAge ring(values, writePos);
    const float newest = ring.GetNewest();
    std::ptrdiff_t before = 0; // the position before the crossing, if nothing needs to be walked
    if (newest < level || newest > level)
    {
        const std::ptrdiff_t found = direction == ETriggerDirection::Up
                                         ? FindCrossing(ring, newest > level, SAbove{level}, SAtMost{level})
                                         : FindCrossing(ring, newest < level, SBelow{level}, SAtLeast{level});
        if (found == notFound)
        {
            return notFound;
        }
        before = ring.GetPosition(found);
    }
    return static_cast<int>(before) + 1;
}

} // namespace PluginsFilters
