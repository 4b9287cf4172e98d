#pragma once

#include <algorithm>

namespace MirelExt::AAXPlugin
{

/// Maps a parameter's range to the host's 0 to 1 and back, evenly. A range without width maps to 0.
class CLinearTaper
{
public:
    CLinearTaper(float min_, float max_) : min(min_), max(max_) {}

    /// The nearest value of the range; NaN stays NaN.
    float Clamp(float plain) const
    {
        return std::min(std::max(plain, std::min(min, max)), std::max(min, max));
    }

    double ToNormalized(float plain) const
    {
        const double width = static_cast<double>(max) - static_cast<double>(min);
        return width < 0.0 || width > 0.0
                   ? (static_cast<double>(Clamp(plain)) - static_cast<double>(min)) / width
                   : 0.0;
    }

    /// Values outside 0 to 1 give the end of the range; NaN stays NaN.
    float ToPlain(double normalized) const
    {
        const double clamped = std::min(std::max(normalized, 0.0), 1.0);
        return static_cast<float>(static_cast<double>(min) +
                                  clamped * (static_cast<double>(max) - static_cast<double>(min)));
    }

private:
    float min;
    float max;
};

} // namespace MirelExt::AAXPlugin
