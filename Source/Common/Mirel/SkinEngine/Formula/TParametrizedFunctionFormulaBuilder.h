#pragma once

#include "Mirel/SkinEngine/Formula/CConstantFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/CFormulaParameters.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

/// Builds formulas whose unknown names are parameters. B is the builder that knows the others; without
/// variables it is CConstantFormulaBuilder. The placeholders of a tree are in `parameters` from then on,
/// which must not be used any more once the tree is destroyed: TParametrizedFunction keeps the two together.
template <class I, class B = CConstantFormulaBuilder>
class TParametrizedFunctionFormulaBuilder : public B
{
public:
    using typename B::CResult;

    /// The names of the variables, if B takes any.
    template <class... Variables>
    explicit TParametrizedFunctionFormulaBuilder(CFormulaParameters& parameters_, Variables&&... variables)
        : B(std::forward<Variables>(variables)...),
          parameters(parameters_)
    {
    }

protected:
    CResult BuildParameter(const CFormulaNode& node) override
    {
        CResult known = B::BuildParameter(node);
        const auto& name = B::NameOf(node);
        if (known == nullptr && !name.empty())
        {
            known = parameters.template AddConstant<typename TFormulaFamily<I>::CNumber>(name);
        }
        return known;
    }

    CResult BuildOneArgumentCall(const CFormulaNode& node) override
    {
        if (node.text.empty() || FindUnaryFunction(node.text) != nullptr)
        {
            return B::BuildOneArgumentCall(node);
        }
        auto placeholder = parameters.AddFunction(node.text);
        CResult inner = this->Build(node.children.front());
        return inner != nullptr ? MakeComposition<I>(placeholder.release(), true, std::move(inner)) : nullptr;
    }

    CResult BuildTwoArgumentCall(const CFormulaNode& node) override
    {
        if (node.text.empty() || FindBinaryFunction(node.text) != nullptr)
        {
            return B::BuildTwoArgumentCall(node);
        }
        return this->Combine(node, parameters.AddBinaryFunction(node.text).release(), true);
    }

private:
    CFormulaParameters& parameters;
};

} // namespace Mirel::SkinEngine
