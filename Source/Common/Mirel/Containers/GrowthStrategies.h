#pragma once

#include <algorithm>

namespace Mirel::Containers
{

/// Capacity for a request, given the present capacity and a step: a request above the capacity grows to the
/// larger of the request and capacity + step; one that lies more than a step below shrinks to the request.
constexpr int GrownCapacity(int request, int capacity, int step)
{
    if (request > capacity)
    {
        return std::max(request, capacity + step);
    }
    return request < capacity - step ? request : capacity;
}

/// Grows by a fixed number of elements.
class CStepGrowthStrategy
{
public:
    explicit constexpr CStepGrowthStrategy(int step_ = 1) : step(step_) {}
    constexpr int GetCapacity(int request, int capacity) const
    {
        return GrownCapacity(request, capacity, step);
    }

private:
    int step;
};

/// Doubles.
class CExpGrowthStrategy
{
public:
    constexpr int GetCapacity(int request, int capacity) const
    {
        return GrownCapacity(request, capacity, std::max(capacity, 1));
    }
};

} // namespace Mirel::Containers
