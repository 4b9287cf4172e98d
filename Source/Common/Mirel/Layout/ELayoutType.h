#pragma once

#include <cstdint>

namespace Mirel::Layout
{

/// How a group arranges its cells.
enum class ELayoutType : std::uint32_t
{
    Row = 0,
    Column = 1,
    LayerStack = 2 ///< One above the other, all on the same area.
};

} // namespace Mirel::Layout
