#pragma once

#include <bit>

namespace Mirel::Core
{

/// Ring sizes are powers of two so that an index wraps with a mask. A power of two stays; any other value is
/// raised to the next one; 0, 1 and negative values give 1. The count must not exceed 2^30.
constexpr int RoundUpToPowerOfTwo(int count)
{
    return count <= 1 ? 1 : static_cast<int>(std::bit_ceil(static_cast<unsigned>(count)));
}

} // namespace Mirel::Core
