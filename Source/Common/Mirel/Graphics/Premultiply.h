#pragma once

#include "Mirel/Graphics/CColor.h"

#include <cstdint>
#include <cstring>

namespace Mirel::Graphics
{

/// A 32-bit pixel, 0xAARRGGBB.
inline std::uint32_t LoadPixel(const std::uint8_t* row, int x)
{
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, row + std::int64_t{4} * x, sizeof(pixel));
    return pixel;
}

inline void StorePixel(std::uint8_t* row, int x, std::uint32_t pixel)
{
    std::memcpy(row + std::int64_t{4} * x, &pixel, sizeof(pixel));
}

inline CColor ColorOf(std::uint32_t pixel)
{
    return {static_cast<std::uint8_t>(pixel >> 16U), static_cast<std::uint8_t>(pixel >> 8U),
            static_cast<std::uint8_t>(pixel)};
}

/// The pixel of a colour with an opacity of 0 to 255, its components scaled by the opacity and rounded.
inline std::uint32_t Premultiply(CColor color, unsigned alpha)
{
    const auto scale = [alpha](std::uint8_t c) { return (c * alpha + 127U) / 255U; };
    return (alpha << 24U) | (scale(color.r) << 16U) | (scale(color.g) << 8U) | scale(color.b);
}

/// A pixel whose components are not scaled yet, with them scaled.
inline std::uint32_t Premultiply(std::uint32_t straight)
{
    return Premultiply(ColorOf(straight), straight >> 24U);
}

/// The colour of a premultiplied pixel before it was scaled, as far as the bits still tell; black if nothing
/// of it is seen.
inline CColor Straighten(std::uint32_t pixel)
{
    const unsigned alpha = pixel >> 24U;
    const CColor color = ColorOf(pixel);
    const auto unscale = [alpha](std::uint8_t c)
    {
        const unsigned value = (c * 255U + alpha / 2U) / alpha;
        return static_cast<std::uint8_t>(value > 255U ? 255U : value);
    };
    return alpha == 0 ? CColor() : CColor{unscale(color.r), unscale(color.g), unscale(color.b)};
}

} // namespace Mirel::Graphics
