#include "SkinCheck/FormulaCheck.h"

#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"
#include "Mirel/SkinEngine/Formula/Limits.h"
#include "SkinCheck/CCheckReport.h"

#include <cmath>
#include <string>
#include <vector>

namespace SkinCheck
{

using namespace Mirel::SkinEngine;

namespace
{

using ESeverity = CCheckReport::ESeverity;

/// Why the recogniser refused the text, as a sentence.
std::string Sentence(const CFormulaFault& fault)
{
    using EKind = CFormulaFault::EKind;
    switch (fault.kind)
    {
    case EKind::Empty:
        return "the formula is empty";
    case EKind::TooLong:
        return "a formula has " + std::to_string(CFormulaLimits::maxBytes) + " bytes at most";
    case EKind::TooManyBrackets:
        return "brackets nest " + std::to_string(CFormulaLimits::maxBrackets) + " deep at most";
    case EKind::TooDeep:
        return "operators and calls nest " + std::to_string(CFormulaLimits::maxDepth) + " deep at most";
    default:
        return "syntax error at character " + std::to_string(fault.position + 1);
    }
}

template <class N>
std::vector<std::string> ListOf(const N& names)
{
    std::vector<std::string> list;
    for (const std::string& name : names)
    {
        list.push_back(name);
    }
    return list;
}

/// What needs no name of the model, from the least variables to the most.
std::vector<std::string> FormsOf(const char* text, const CFormulaParameters& parameters)
{
    std::vector<std::string> forms;
    const bool isPlain = parameters.GetConstantNames().IsEmpty() && parameters.GetFunctionNames().IsEmpty() &&
                         parameters.GetBinaryFunctionNames().IsEmpty();
    if (CompileConstant(text) != nullptr)
    {
        forms.emplace_back("number");
    }
    if (CompileFunction(text, "x") != nullptr)
    {
        forms.emplace_back("function of x");
    }
    if (isPlain)
    {
        forms.emplace_back("function of x and y");
    }
    return forms;
}

void ReportCompiled(const char* text, float x, float y, const CParametrizedBinaryFunction& formula,
                    CCheckReport& report)
{
    const CFormulaParameters& parameters = formula.GetParameters();
    report.AddList("valid_as", FormsOf(text, parameters));
    report.AddList("params", ListOf(parameters.GetConstantNames()));
    report.AddList("curves", ListOf(parameters.GetFunctionNames()));
    report.AddList("surfaces", ListOf(parameters.GetBinaryFunctionNames()));
    const float value = formula(x, y);
    report.AddNumber("x", x);
    report.AddNumber("y", y);
    report.AddNumber("value", value);
    if (!std::isfinite(value))
    {
        report.AddMessage(ESeverity::Warning, "the value is no finite number");
    }
}

} // namespace

void CheckFormula(const char* text, float x, float y, CCheckReport& report)
{
    report.AddText("formula", text);
    CFormulaFault fault;
    const bool isSyntax = ParseFormula(text, &fault).has_value();
    const auto formula = CompileParametrizedBinaryFunction(text, "x", "y");
    report.AddBool("valid", formula != nullptr);
    if (formula != nullptr)
    {
        ReportCompiled(text, x, y, *formula, report);
    }
    else if (isSyntax)
    {
        report.AddMessage(ESeverity::Error, "the formula uses %, a text, a date, a call without or with more "
                                            "than two arguments, or a number too large");
    }
    else
    {
        report.AddMessage(ESeverity::Error, Sentence(fault));
    }
    if (fault.skips > 0)
    {
        report.AddMessage(ESeverity::Warning, "characters without a meaning are passed over");
    }
}

} // namespace SkinCheck
