#pragma once

#include <cstddef>
#include <vector>

namespace Mirel::Math
{

/// The numbers from `from` to `to`, `step` apart, with `to` where it is one of them. Each is computed afresh,
/// so that no error gathers.
inline std::vector<float> Steps(float from, float to, float step)
{
    const int last = static_cast<int>((to - from) / step + 0.01f);
    std::vector<float> numbers(static_cast<std::size_t>(last + 1));
    for (int i = 0; i <= last; ++i)
    {
        numbers[static_cast<std::size_t>(i)] = from + static_cast<float>(i) * step;
    }
    return numbers;
}

} // namespace Mirel::Math
