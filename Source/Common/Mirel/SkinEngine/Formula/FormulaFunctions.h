#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/SkinEngine/Formula/EFormulaToken.h"

#include <memory>
#include <string_view>

namespace Mirel::SkinEngine
{

// The functions that the formula language knows by itself: one object of each for all formulas, but for the
// variables, which belong to their tree. Any thread.

/// The variables: x of one, x or y of two.
std::unique_ptr<Math::IFunction> MakeVariable();
std::unique_ptr<Math::IBinaryFunction> MakeFirstVariable();
std::unique_ptr<Math::IBinaryFunction> MakeSecondVariable();

/// What a binary operator does; null for what is no binary operator, or is one without a meaning (%).
const Math::IBinaryFunction* FindOperator(EFormulaToken type);

/// The function of one argument that a call names; null for an unknown name.
const Math::IFunction* FindUnaryFunction(std::string_view name);

/// The function of two arguments that a call names; null for an unknown name.
const Math::IBinaryFunction* FindBinaryFunction(std::string_view name);

} // namespace Mirel::SkinEngine
