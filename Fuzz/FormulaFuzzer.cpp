// Any text as a formula: what compiles can be evaluated, copied and given objects for its names, and the
// forms of the compiler agree with one another.

#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/SkinEngine/Formula/CBinaryFunctionFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"
#include "Require.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

using namespace Mirel::Math;
using namespace Mirel::SkinEngine;

namespace
{

constexpr float points[] = {0.0f, 1.0f, -2.5f, 1e30f, std::numeric_limits<float>::quiet_NaN()};

bool IsSame(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// Whatever the names are given, a copy is the same function.
template <class F>
void UseParameters(F& formula)
{
    CFormulaParameters& parameters = formula.GetParameters();
    float value = 0.5f;
    for (const std::string& name : parameters.GetConstantNames())
    {
        Fuzz::Require(parameters.SetConstant(name.c_str(), value));
        value = 1.0f - 3.0f * value;
    }
    for (const std::string& name : parameters.GetFunctionNames())
    {
        Fuzz::Require(parameters.SetFunction(name.c_str(), new TFunction<&FunctionsLibrary::Cos>(), true));
    }
    for (const std::string& name : parameters.GetBinaryFunctionNames())
    {
        Fuzz::Require(parameters.SetBinaryFunction(name.c_str(), new CConstantBinaryFunction(2.0f), true));
    }
}

void CompareConstants(const char* text)
{
    const auto parametrized = CompileParametrizedConstant(text);
    const auto constant = CompileConstant(text);
    Fuzz::Require(parametrized != nullptr || constant == nullptr);
    if (constant != nullptr)
    {
        Fuzz::Require(IsSame((*constant)(), (*parametrized)()));
    }
    if (parametrized != nullptr)
    {
        UseParameters(*parametrized);
        const std::unique_ptr<IConstant> clone(parametrized->Clone());
        Fuzz::Require(IsSame((*clone)(), (*parametrized)()));
    }
}

void CompareFunctions(const char* text)
{
    const auto parametrized = CompileParametrizedFunction(text, "x");
    const auto function = CompileFunction(text, "x");
    Fuzz::Require(parametrized != nullptr || function == nullptr);
    for (const float x : points)
    {
        Fuzz::Require(function == nullptr || IsSame((*function)(x), (*parametrized)(x)));
    }
    if (parametrized != nullptr)
    {
        UseParameters(*parametrized);
        const std::unique_ptr<IFunction> clone(parametrized->Clone());
        Fuzz::Require(IsSame((*clone)(0.5f), (*parametrized)(0.5f)));
    }
}

void CompareBinaryFunctions(const char* text)
{
    const auto parametrized = CompileParametrizedBinaryFunction(text, "x", "y");
    const auto function = CBinaryFunctionFormulaBuilder("x", "y").Compile(text);
    Fuzz::Require(parametrized != nullptr || function == nullptr);
    for (const float x : points)
    {
        Fuzz::Require(function == nullptr || IsSame((*function)(x, 0.5f), (*parametrized)(x, 0.5f)));
    }
    if (parametrized != nullptr)
    {
        UseParameters(*parametrized);
        const std::unique_ptr<IBinaryFunction> clone(parametrized->Clone());
        Fuzz::Require(IsSame((*clone)(0.5f, 2.0f), (*parametrized)(0.5f, 2.0f)));
    }
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    CFormulaFault fault;
    const bool isSyntax = ParseFormula(text.c_str(), &fault).has_value();
    Fuzz::Require(isSyntax == (fault.kind == CFormulaFault::EKind::None));
    Fuzz::Require(fault.position <= text.size() && fault.skips >= 0);
    if (isSyntax)
    {
        CompareConstants(text.c_str());
        CompareFunctions(text.c_str());
        CompareBinaryFunctions(text.c_str());
    }
    return 0;
}
