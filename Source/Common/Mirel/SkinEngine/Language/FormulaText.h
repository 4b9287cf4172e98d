#pragma once

#include <string>

namespace Mirel::SkinEngine
{

/// The result of a formula as the text of a variable: a whole number in plain decimal, any other with up to
/// 11 significant digits and a point.
std::string FormatFormulaValue(float value);

} // namespace Mirel::SkinEngine
