#pragma once

#include "Mirel/SkinEngine/Formula/EFormulaToken.h"

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// A node of the tree that the recogniser makes of a formula: an operator over its operands, a call over its
/// arguments, a number or a name. A plain value, for any thread.
struct CFormulaNode
{
    EFormulaToken type = EFormulaToken::Parameter;

    /// As it stands in the formula.
    std::string text;

    std::vector<CFormulaNode> children;
};

} // namespace Mirel::SkinEngine
