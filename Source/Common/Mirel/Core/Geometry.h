#pragma once

#include <cstdint>

namespace Mirel::Core
{

/// A place in pixels: x to the right, y downward, from the top left corner of whatever encloses it.
struct CPoint
{
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend constexpr bool operator==(const CPoint&, const CPoint&) = default;
};

/// An extent in pixels. Nothing here keeps it from being negative.
struct CSize
{
    std::int32_t width = 0;
    std::int32_t height = 0;

    /// True if there is no pixel in it.
    constexpr bool IsEmpty() const { return width < 1 || height < 1; }

    friend constexpr bool operator==(const CSize&, const CSize&) = default;
};

} // namespace Mirel::Core
