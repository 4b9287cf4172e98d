#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Tests
{

/// What people with weak eyes can still read, by the Web Content Accessibility Guidelines 2.1.
constexpr double leastTextContrast = 4.5;

/// Of a colour 0xRRGGBB in sRGB: 0 for black, 1 for white. The guidelines' definition.
inline double GetRelativeLuminance(std::uint32_t color)
{
    const auto linear = [color](unsigned shift)
    {
        const double share = static_cast<double>((color >> shift) & 0xFFU) / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

/// From 1 for equal colours to 21 for black and white, in either order.
inline double GetContrast(std::uint32_t one, std::uint32_t other)
{
    const auto [darker, lighter] = std::minmax({GetRelativeLuminance(one), GetRelativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace Tests
