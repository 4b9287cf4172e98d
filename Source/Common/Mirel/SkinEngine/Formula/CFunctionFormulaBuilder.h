#pragma once

#include "Mirel/SkinEngine/Formula/TLocalFormulaBuilder.h"

#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

/// Builds formulas in one variable.
class CFunctionFormulaBuilder : public TLocalFormulaBuilder<Math::IFunction>
{
public:
    explicit CFunctionFormulaBuilder(std::string variable_) : variable(std::move(variable_)) {}

protected:
    CResult BuildParameter(const CFormulaNode& node) override
    {
        CResult known = TLocalFormulaBuilder::BuildParameter(node);
        if (known == nullptr && NameOf(node) == variable)
        {
            known = MakeVariable();
        }
        return known;
    }

private:
    std::string variable;
};

} // namespace Mirel::SkinEngine
