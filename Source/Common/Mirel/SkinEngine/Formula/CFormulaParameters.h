#pragma once

#include "Mirel/Math/CBinaryFunctionProxy.h"
#include "Mirel/Math/CConstant.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionProxy.h"
#include "Mirel/SkinEngine/Formula/TFormulaNames.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace Mirel::SkinEngine
{

/// The names that a formula uses without knowing them, and the placeholders in its tree that stand for them:
/// numbers such as `gain`, functions such as `curve(x)`, functions of two variables such as `surface(x, y)`.
/// A name may be of several kinds at a time.
///
/// Belongs to the TParametrizedFunction whose tree holds the placeholders. Setting is for the thread that
/// evaluates that tree; other threads evaluate clones of it.
class CFormulaParameters
{
public:
    /// A number in the tree, in the form of the tree's family.
    using CNumber = std::variant<Math::CConstant*, Math::CConstantFunction*, Math::CConstantBinaryFunction*>;
    using CNumbers = std::vector<CNumber>;

    /// The placeholders of one name, and the function that they follow.
    template <class P, class I>
    struct TProxies
    {
        std::vector<P*> placeholders;
        Math::TFunctionHolder<I> function;
    };

    using CFunctions = TProxies<Math::CFunctionProxy, Math::IFunction>;
    using CBinaryFunctions = TProxies<Math::CBinaryFunctionProxy, Math::IBinaryFunction>;

    CFormulaParameters() = default;
    CFormulaParameters(const CFormulaParameters&) = delete;
    CFormulaParameters& operator=(const CFormulaParameters&) = delete;

    /// The names of each kind, to be iterated over.
    TFormulaNames<CNumbers> GetConstantNames() const { return TFormulaNames<CNumbers>(constants); }
    TFormulaNames<CFunctions> GetFunctionNames() const { return TFormulaNames<CFunctions>(functions); }

    TFormulaNames<CBinaryFunctions> GetBinaryFunctionNames() const
    {
        return TFormulaNames<CBinaryFunctions>(binaryFunctions);
    }

    /// Gives a number its value wherever the formula uses it; until then it is 0. False if the formula uses
    /// no number of this name.
    bool SetConstant(const char* name, float value);

    /// Gives a name its function wherever the formula calls it. With owned the function is destroyed when it
    /// is replaced or with the formula, and at once if the formula calls no function of this name, which
    /// gives false; a borrowed one must live until then. Null stands for 0 everywhere, which also holds
    /// before the first call. A function that leads back to this formula would never come to an end.
    bool SetFunction(const char* name, const Math::IFunction* function, bool owned);
    bool SetBinaryFunction(const char* name, const Math::IBinaryFunction* function, bool owned);

    /// For the builder of the tree, which takes the placeholder into it: one more occurrence of the name.
    /// P is the class of numbers of the tree's family.
    template <class P>
    std::unique_ptr<P> AddConstant(const std::string& name);

    std::unique_ptr<Math::CFunctionProxy> AddFunction(const std::string& name);
    std::unique_ptr<Math::CBinaryFunctionProxy> AddBinaryFunction(const std::string& name);

private:
    TFormulaNames<CNumbers>::CMap constants;
    TFormulaNames<CFunctions>::CMap functions;
    TFormulaNames<CBinaryFunctions>::CMap binaryFunctions;
};

} // namespace Mirel::SkinEngine
