#pragma once

#include "Mirel/Math/TFunction.h"
#include "Mirel/Serialization/NumberText.h"
#include "Mirel/SkinEngine/Formula/FormulaFunctions.h"
#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"
#include "Mirel/SkinEngine/Formula/TFormulaFamily.h"

#include <memory>
#include <numbers>
#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

/// Makes function objects of the tree of a formula, an object for each node: nothing is folded, so that the
/// results are those of the formula as it is written. I is IConstant, IFunction or IBinaryFunction. The
/// builders below it differ in the names that they know.
///
/// Results belong to the caller; null is for a tree without a meaning. One thread at a time.
template <class I>
class TLocalFormulaBuilder
{
public:
    using CResult = std::unique_ptr<I>;

    TLocalFormulaBuilder() = default;
    TLocalFormulaBuilder(const TLocalFormulaBuilder&) = delete;
    TLocalFormulaBuilder& operator=(const TLocalFormulaBuilder&) = delete;
    virtual ~TLocalFormulaBuilder() = default;

    /// The function of a formula; null too for a null text and a syntax error.
    CResult Compile(const char* text)
    {
        const auto root = ParseFormula(text);
        return root ? Build(*root) : nullptr;
    }

    /// The function of a tree.
    CResult Build(const CFormulaNode& node)
    {
        switch (node.type)
        {
        case EFormulaToken::Parameter:
            return BuildParameter(node);
        case EFormulaToken::Negate:
            return ApplyUnaryFunction(node, Math::SharedFunction<&Math::FunctionsLibrary::Negate>());
        case EFormulaToken::Not:
            return ApplyUnaryFunction(node, Math::SharedFunction<&Math::FunctionsLibrary::Not>());
        case EFormulaToken::Integer:
        case EFormulaToken::Float:
            return BuildNumber(node);
        case EFormulaToken::Boolean:
            return MakeNumber<I>(node.text == "true" ? 1.0f : 0.0f);
        case EFormulaToken::Identifier:
            return BuildCall(node);
        default:
            return BuildOperator(node);
        }
    }

protected:
    /// A name that stands alone: here pi and no other.
    virtual CResult BuildParameter(const CFormulaNode& node)
    {
        return NameOf(node) == "pi" ? MakeNumber<I>(std::numbers::pi_v<float>) : nullptr;
    }

    /// The function of the value of the node's only child. The function outlives all formulas.
    virtual CResult ApplyUnaryFunction(const CFormulaNode& node, const Math::IFunction& function)
    {
        CResult inner = node.children.size() == 1 ? Build(node.children.front()) : nullptr;
        return inner != nullptr ? MakeComposition<I>(&function, false, std::move(inner)) : nullptr;
    }

    /// A call with one argument: here of the language's own functions.
    virtual CResult BuildOneArgumentCall(const CFormulaNode& node)
    {
        const Math::IFunction* const function = FindUnaryFunction(node.text);
        return function != nullptr ? ApplyUnaryFunction(node, *function) : nullptr;
    }

    /// A call with two arguments: here of the language's own functions.
    virtual CResult BuildTwoArgumentCall(const CFormulaNode& node)
    {
        return Combine(node, FindBinaryFunction(node.text), false);
    }

    /// The name of a parameter's node; empty if it has none.
    static const std::string& NameOf(const CFormulaNode& node)
    {
        static const std::string none;
        return node.children.size() == 1 ? node.children.front().text : none;
    }

    /// The function of the values of the node's two children; null if there is no function. With owned it is
    /// destroyed with the result, or at once if there is none.
    CResult Combine(const CFormulaNode& node, const Math::IBinaryFunction* function, bool owned)
    {
        Math::TFunctionHolder<Math::IBinaryFunction> holder(function, owned);
        if (function == nullptr || node.children.size() != 2)
        {
            return nullptr;
        }
        CResult left = Build(node.children.front());
        CResult right = left != nullptr ? Build(node.children.back()) : nullptr;
        return right != nullptr ? MakeCombination<I>(std::move(left), std::move(right), std::move(holder))
                                : nullptr;
    }

private:
    static CResult BuildNumber(const CFormulaNode& node)
    {
        float value = 0.0f;
        return Serialization::ParseNumber(node.text.c_str(), value) ? MakeNumber<I>(value) : nullptr;
    }

    CResult BuildCall(const CFormulaNode& node)
    {
        switch (node.children.size())
        {
        case 1:
            return BuildOneArgumentCall(node);
        case 2:
            return BuildTwoArgumentCall(node);
        default:
            return nullptr;
        }
    }

    CResult BuildOperator(const CFormulaNode& node) { return Combine(node, FindOperator(node.type), false); }
};

} // namespace Mirel::SkinEngine
