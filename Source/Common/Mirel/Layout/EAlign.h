#pragma once

#include <cstdint>

namespace Mirel::Layout
{

/// Where something smaller stands within something larger, on one axis.
enum class EAlign : std::uint32_t
{
    Begin = 0, ///< Left or top.
    Center = 1,
    End = 2 ///< Right or bottom.
};

} // namespace Mirel::Layout
