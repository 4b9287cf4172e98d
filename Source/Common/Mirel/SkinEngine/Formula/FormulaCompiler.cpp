#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"

#include "Mirel/SkinEngine/Formula/CParametrizedBinaryFunctionFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/CParametrizedFunctionFormulaBuilder.h"

#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

/// Without a name there is no variable: no identifier is empty.
const char* NameOf(const char* variable)
{
    return variable != nullptr ? variable : "";
}

/// B is the builder, which takes the names of the variables after the parameters.
template <class I, class B, class... Variables>
std::unique_ptr<TParametrizedFunction<I>> CompileParametrized(const char* text, Variables... variables)
{
    auto compiled = std::make_unique<TParametrizedFunction<I>>();
    auto tree = B(compiled->GetParameters(), variables...).Compile(text);
    if (tree == nullptr)
    {
        return nullptr;
    }
    compiled->SetTree(std::move(tree));
    return compiled;
}

} // namespace

std::unique_ptr<Math::IConstant> CompileConstant(const char* text)
{
    return CConstantFormulaBuilder().Compile(text);
}

std::unique_ptr<CParametrizedConstant> CompileParametrizedConstant(const char* text)
{
    using CBuilder = TParametrizedFunctionFormulaBuilder<Math::IConstant>;
    return CompileParametrized<Math::IConstant, CBuilder>(text);
}

std::unique_ptr<Math::IFunction> CompileFunction(const char* text, const char* variable)
{
    return CFunctionFormulaBuilder(NameOf(variable)).Compile(text);
}

std::unique_ptr<CParametrizedFunction> CompileParametrizedFunction(const char* text, const char* variable)
{
    using CBuilder = CParametrizedFunctionFormulaBuilder;
    return CompileParametrized<Math::IFunction, CBuilder>(text, NameOf(variable));
}

std::unique_ptr<CParametrizedBinaryFunction>
CompileParametrizedBinaryFunction(const char* text, const char* xName, const char* yName)
{
    using CBuilder = CParametrizedBinaryFunctionFormulaBuilder;
    return CompileParametrized<Math::IBinaryFunction, CBuilder>(text, NameOf(xName), NameOf(yName));
}

} // namespace Mirel::SkinEngine
