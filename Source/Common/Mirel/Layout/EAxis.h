#pragma once

#include "Mirel/Core/Geometry.h"

#include <cstdint>

namespace Mirel::Layout
{

/// Lets one routine serve rows and columns: each is the other with the axes swapped.
enum class EAxis : std::uint8_t
{
    Horizontal,
    Vertical
};

constexpr EAxis CrossOf(EAxis axis)
{
    return axis == EAxis::Horizontal ? EAxis::Vertical : EAxis::Horizontal;
}

constexpr std::int32_t& Along(Core::CSize& size, EAxis axis)
{
    return axis == EAxis::Horizontal ? size.width : size.height;
}

constexpr std::int32_t Along(const Core::CSize& size, EAxis axis)
{
    return axis == EAxis::Horizontal ? size.width : size.height;
}

constexpr std::int32_t& Along(Core::CPoint& point, EAxis axis)
{
    return axis == EAxis::Horizontal ? point.x : point.y;
}

constexpr std::int32_t Along(const Core::CPoint& point, EAxis axis)
{
    return axis == EAxis::Horizontal ? point.x : point.y;
}

} // namespace Mirel::Layout
