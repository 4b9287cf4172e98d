#pragma once

#include "Mirel/SkinEngine/Formula/TLocalFormulaBuilder.h"

#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

/// Builds formulas in two variables. Where both have one name it is the first.
class CBinaryFunctionFormulaBuilder : public TLocalFormulaBuilder<Math::IBinaryFunction>
{
public:
    CBinaryFunctionFormulaBuilder(std::string xName_, std::string yName_)
        : xName(std::move(xName_)),
          yName(std::move(yName_))
    {
    }

protected:
    CResult BuildParameter(const CFormulaNode& node) override
    {
        CResult known = TLocalFormulaBuilder::BuildParameter(node);
        if (known == nullptr && NameOf(node) == xName)
        {
            known = MakeFirstVariable();
        }
        else if (known == nullptr && NameOf(node) == yName)
        {
            known = MakeSecondVariable();
        }
        return known;
    }

private:
    std::string xName;
    std::string yName;
};

} // namespace Mirel::SkinEngine
