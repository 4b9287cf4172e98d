#pragma once

#include "Mirel/SkinEngine/Formula/TLocalFormulaBuilder.h"

namespace Mirel::SkinEngine
{

/// Builds formulas without variables: numbers.
class CConstantFormulaBuilder : public TLocalFormulaBuilder<Math::IConstant>
{
};

} // namespace Mirel::SkinEngine
