#pragma once

#include "Mirel/SkinEngine/Formula/CFunctionFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/TParametrizedFunctionFormulaBuilder.h"

namespace Mirel::SkinEngine
{

/// Builds formulas in one variable, with parameters.
class CParametrizedFunctionFormulaBuilder
    : public TParametrizedFunctionFormulaBuilder<Math::IFunction, CFunctionFormulaBuilder>
{
public:
    using TParametrizedFunctionFormulaBuilder::TParametrizedFunctionFormulaBuilder;
};

} // namespace Mirel::SkinEngine
