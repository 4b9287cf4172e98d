#include "Mirel/DataModel/Objects/SignificantDigits.h"

#include <cmath>

namespace Mirel::DataModel::Objects
{

namespace
{

float RoundPositive(float value, int digits)
{
    const double wide = value;
    const double scale = std::pow(10.0, digits - std::trunc(std::log10(wide) + 1.0));
    const double rounded = std::floor(wide * scale + 0.5) / scale;
    return std::isfinite(rounded) ? static_cast<float>(rounded) : value;
}

} // namespace

float RoundToSignificantDigits(float value, int digits)
{
    if (digits <= 0)
    {
        return value > 0.0F ? std::floor(value + 0.5F) : std::floor(value - 0.5F);
    }
    if (value > 0.0F)
    {
        return RoundPositive(value, digits);
    }
    return value < 0.0F ? -RoundPositive(-value, digits) : value;
}

} // namespace Mirel::DataModel::Objects
