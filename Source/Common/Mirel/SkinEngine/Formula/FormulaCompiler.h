#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/SkinEngine/Formula/TParametrizedFunction.h"

#include <memory>

namespace Mirel::SkinEngine
{

// Formulas of skin and model files, compiled into trees of function objects. The result is the caller's; null
// is for a null text and for an invalid formula, which the caller reports in its own words. Any thread.
//
// The language: || or, && and, = == != <>, < <= > >=, + -, * /, ^, ! not and the sign of a bracket, a value
// or a call, from the loosest to the tightest, all from left to right; numbers without sign and exponent,
// true, false, pi; exp log cosh sinh tanh sqrt cos sin tan floor ceil round abs of one argument, min max of
// two.

/// A number without any names in it: `2+3*4`.
std::unique_ptr<Math::IConstant> CompileConstant(const char* text);

/// A number that depends on named ones: `(input.left + input.right) / 2`.
std::unique_ptr<CParametrizedConstant> CompileParametrizedConstant(const char* text);

/// A function of the named variable. The variable's name hides nothing: pi stays pi.
std::unique_ptr<Math::IFunction> CompileFunction(const char* text, const char* variable);

/// As above; every other name is a parameter, and every call of an unknown function one of the function's
/// name: `gain * curve(x)`.
std::unique_ptr<CParametrizedFunction> CompileParametrizedFunction(const char* text, const char* variable);

/// As above with two variables; where both have one name it is x.
std::unique_ptr<CParametrizedBinaryFunction>
CompileParametrizedBinaryFunction(const char* text, const char* xName, const char* yName);

} // namespace Mirel::SkinEngine
