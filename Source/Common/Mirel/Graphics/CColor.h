#pragma once

#include <cstdint>

namespace Mirel::Graphics
{

/// A colour without opacity: that belongs to the drawing of an image.
struct CColor
{
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    bool operator==(const CColor&) const = default;

    /// Red in bits 16 to 23, blue in the lowest.
    std::uint32_t Pack() const
    {
        return (std::uint32_t{r} << 16U) | (std::uint32_t{g} << 8U) | std::uint32_t{b};
    }

    /// The brightness that masks and grey bitmaps hold, 0 to 255.
    std::uint8_t ToGrey() const { return static_cast<std::uint8_t>((r + 2 * g + b) >> 2); }
};

/// One of 0 to 255 as a share of 255. The factor is a little above 1 / 255.
inline double ToUnit(int component)
{
    constexpr double unit = 0.003921569;
    return component * unit;
}

} // namespace Mirel::Graphics
