#pragma once

#include "Mirel/SkinEngine/Formula/CBinaryFunctionFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/TParametrizedFunctionFormulaBuilder.h"

namespace Mirel::SkinEngine
{

/// Builds formulas in two variables, with parameters.
class CParametrizedBinaryFunctionFormulaBuilder
    : public TParametrizedFunctionFormulaBuilder<Math::IBinaryFunction, CBinaryFunctionFormulaBuilder>
{
public:
    using TParametrizedFunctionFormulaBuilder::TParametrizedFunctionFormulaBuilder;
};

} // namespace Mirel::SkinEngine
