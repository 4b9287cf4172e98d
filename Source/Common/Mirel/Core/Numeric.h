#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Mirel::Core
{

/// The whole part of a value, rounded towards zero. NaN and what a 32-bit integer cannot hold give
/// -2147483648, as the processor's own conversion does, where a cast would be undefined.
constexpr std::int32_t TruncateToInt32(double value)
{
    constexpr double belowLowest = -2147483649.0;
    constexpr double aboveHighest = 2147483648.0;
    return value > belowLowest && value < aboveHighest ? static_cast<std::int32_t>(value)
                                                       : std::numeric_limits<std::int32_t>::min();
}

/// The value, or the end of the 32-bit integers that lies nearest to it.
constexpr std::int32_t SaturateToInt32(std::int64_t value)
{
    using CLimits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, CLimits::min(), CLimits::max()));
}

} // namespace Mirel::Core
