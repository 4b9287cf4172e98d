#include "Mirel/SkinEngine/Language/FormulaText.h"

#include "Mirel/Core/NumberFormat.h"
#include "Mirel/Serialization/NumberText.h"

#include <cmath>

namespace Mirel::SkinEngine
{

std::string FormatFormulaValue(float value)
{
    if (std::isfinite(value) && !(value < std::floor(value) || value > std::floor(value)))
    {
        // Adding 0 makes a negative zero a plain one.
        return Core::FormatNumber("%.0f", static_cast<double>(value) + 0.0);
    }
    std::string text;
    Serialization::FormatNumber(value, text);
    return text;
}

} // namespace Mirel::SkinEngine
