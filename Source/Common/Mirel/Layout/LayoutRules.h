#pragma once

#include "Mirel/Core/Numeric.h"
#include "Mirel/Layout/EAlign.h"

#include <cmath>
#include <cstdint>

namespace Mirel::Layout
{

/// The extent of a cell that takes a share of the available pixels, in single precision, rounded towards
/// zero.
inline std::int32_t RatioExtent(std::int64_t available, float ratio)
{
    const float extent = static_cast<float>(Core::SaturateToInt32(available)) * ratio;
    return Core::TruncateToInt32(static_cast<double>(extent));
}

/// How far the content moves into what is left over around it, which may be negative. The half of an odd
/// rest is rounded towards zero.
constexpr std::int64_t AlignedOffset(EAlign align, std::int64_t rest)
{
    switch (align)
    {
    case EAlign::Center:
        return rest / 2;
    case EAlign::End:
        return rest;
    case EAlign::Begin:
        break;
    }
    return 0;
}

/// Shares free pixels among cells by their weights. What one share loses by rounding goes to the next one, so
/// that the shares add up to the whole.
class CFlexSharing
{
public:
    /// A negative number of pixels makes the shares negative. The total must not be 0.
    CFlexSharing(std::int64_t freePixels, float flexTotal)
        : unit(static_cast<float>(Core::SaturateToInt32(freePixels)) / flexTotal)
    {
    }

    /// The share of the next cell. What is no number shares nothing.
    std::int32_t Next(float flex)
    {
        const float share = unit * flex + carry;
        if (!std::isfinite(share))
        {
            return 0;
        }
        const double rounding = share >= 0.0F ? 0.5 : -0.5;
        const std::int32_t pixels = Core::TruncateToInt32(static_cast<double>(share) + rounding);
        carry = share - static_cast<float>(pixels);
        return pixels;
    }

private:
    float unit;
    float carry = 0.0F;
};

} // namespace Mirel::Layout
