#include "Mirel/SkinEngine/Formula/CFormulaParameters.h"

#include <string_view>

namespace Mirel::SkinEngine
{

namespace
{

std::string_view TextOf(const char* name)
{
    return name != nullptr ? name : "";
}

/// What a call of a name without a function gives.
const Math::IFunction* NoFunction(const Math::CFunctionProxy*)
{
    static const Math::CConstantFunction zero;
    return &zero;
}

const Math::IBinaryFunction* NoFunction(const Math::CBinaryFunctionProxy*)
{
    static const Math::CConstantBinaryFunction zero;
    return &zero;
}

template <class P, class I>
void Follow(P& placeholder, const I* function)
{
    placeholder.SetFunction(function != nullptr ? function : NoFunction(&placeholder), false);
}

template <class M, class I>
bool Set(M& map, const char* name, const I* function, bool owned)
{
    const auto found = map.find(TextOf(name));
    if (found == map.end())
    {
        const Math::TFunctionHolder<I> unwanted(function, owned);
        return false;
    }
    auto& [placeholders, present] = found->second;
    for (auto* const placeholder : placeholders)
    {
        Follow(*placeholder, function);
    }
    present.Set(function, owned);
    return true;
}

template <class P, class M>
std::unique_ptr<P> Add(M& map, const std::string& name)
{
    auto placeholder = std::make_unique<P>();
    auto& [placeholders, function] = map[name];
    Follow(*placeholder, function.Get());
    placeholders.push_back(placeholder.get());
    return placeholder;
}

} // namespace

bool CFormulaParameters::SetConstant(const char* name, float value)
{
    const auto found = constants.find(TextOf(name));
    if (found == constants.end())
    {
        return false;
    }
    for (const CNumber& placeholder : found->second)
    {
        std::visit([value](auto* number) { number->SetValue(value); }, placeholder);
    }
    return true;
}

bool CFormulaParameters::SetFunction(const char* name, const Math::IFunction* function, bool owned)
{
    return Set(functions, name, function, owned);
}

bool CFormulaParameters::SetBinaryFunction(const char* name, const Math::IBinaryFunction* function,
                                           bool owned)
{
    return Set(binaryFunctions, name, function, owned);
}

template <class P>
std::unique_ptr<P> CFormulaParameters::AddConstant(const std::string& name)
{
    auto placeholder = std::make_unique<P>(0.0f);
    constants[name].push_back(placeholder.get());
    return placeholder;
}

template std::unique_ptr<Math::CConstant> CFormulaParameters::AddConstant(const std::string&);
template std::unique_ptr<Math::CConstantFunction> CFormulaParameters::AddConstant(const std::string&);
template std::unique_ptr<Math::CConstantBinaryFunction> CFormulaParameters::AddConstant(const std::string&);

std::unique_ptr<Math::CFunctionProxy> CFormulaParameters::AddFunction(const std::string& name)
{
    return Add<Math::CFunctionProxy>(functions, name);
}

std::unique_ptr<Math::CBinaryFunctionProxy> CFormulaParameters::AddBinaryFunction(const std::string& name)
{
    return Add<Math::CBinaryFunctionProxy>(binaryFunctions, name);
}

} // namespace Mirel::SkinEngine
