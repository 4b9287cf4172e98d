#include "SkinCheck/CheckFormula.h"

#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"

namespace SkinCheck
{

using namespace Mirel::SkinEngine;

std::optional<float> EvaluateFormula(const SFormulaQuestion& question)
{
    const char* text = question.text.c_str();
    if (question.y)
    {
        const auto function = CompileParametrizedBinaryFunction(text, "x", "y");
        return function == nullptr ? std::nullopt
                                   : std::optional((*function)(question.x.value_or(0.0F), *question.y));
    }
    if (question.x)
    {
        const auto function = CompileParametrizedFunction(text, "x");
        return function == nullptr ? std::nullopt : std::optional((*function)(*question.x));
    }
    const auto constant = CompileParametrizedConstant(text);
    return constant == nullptr ? std::nullopt : std::optional((*constant)());
}

} // namespace SkinCheck
