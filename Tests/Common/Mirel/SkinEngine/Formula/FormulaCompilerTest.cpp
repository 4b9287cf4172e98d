#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"

#include "Mirel/Math/CBinaryFunctionComposition.h"
#include "Mirel/Math/CBinaryFunctionsCombination.h"
#include "Mirel/Math/CConstantComposition.h"
#include "Mirel/Math/CConstantsCombination.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/SkinEngine/Formula/CBinaryFunctionFormulaBuilder.h"
#include "Support/AllocationCounter.h"
#include "Support/CommaLocale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <string>

namespace Mirel::SkinEngine
{

namespace
{

using namespace Math;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

std::unique_ptr<IBinaryFunction> CompileBinary(const char* text)
{
    return CBinaryFunctionFormulaBuilder("x", "y").Compile(text);
}

/// The value of a formula that must be valid in all forms, with x and y bound to nothing.
float ValueOf(const std::string& text)
{
    const auto constant = CompileConstant(text.c_str());
    const auto function = CompileFunction(text.c_str(), "x");
    const auto binary = CompileBinary(text.c_str());
    const auto parametrized = CompileParametrizedConstant(text.c_str());
    const auto parametrizedFunction = CompileParametrizedFunction(text.c_str(), "x");
    const auto parametrizedBinary = CompileParametrizedBinaryFunction(text.c_str(), "x", "y");
    if (constant == nullptr || function == nullptr || binary == nullptr || parametrized == nullptr ||
        parametrizedFunction == nullptr || parametrizedBinary == nullptr)
    {
        ADD_FAILURE() << text << " does not compile in all forms";
        return nan;
    }
    const float value = (*constant)();
    for (const float other : {(*function)(7.0f), (*binary)(7.0f, 8.0f), (*parametrized)(),
                              (*parametrizedFunction)(7.0f), (*parametrizedBinary)(7.0f, 8.0f)})
    {
        EXPECT_TRUE(value == other || (std::isnan(value) && std::isnan(other))) << text;
    }
    return value;
}

bool IsInvalidInAllForms(const char* text)
{
    return CompileConstant(text) == nullptr && CompileFunction(text, "x") == nullptr &&
           CompileBinary(text) == nullptr && CompileParametrizedConstant(text) == nullptr &&
           CompileParametrizedFunction(text, "x") == nullptr &&
           CompileParametrizedBinaryFunction(text, "x", "y") == nullptr;
}

} // namespace

TEST(FormulaCompiler, OperatorsHaveTheirFunctions)
{
    const struct
    {
        const char* text;
        float value;
    } rows[] = {
        {"2+3*4", 14.0f},    {"(2+3)*4", 20.0f}, {"7-2-1", 4.0f},    {"7/2", 3.5f},      {"2^3^2", 64.0f},
        {"-3^2", 9.0f},      {"2^-1", 0.5f},     {"1<2", 1.0f},      {"2<1", 0.0f},      {"2<2", 0.0f},
        {"1<2<3", 1.0f},     {"3>2>1", 0.0f},    {"2<=2", 1.0f},     {"3<=2", 0.0f},     {"2>1", 1.0f},
        {"2>2", 0.0f},       {"2>=2", 1.0f},     {"1>=2", 0.0f},     {"2=2", 1.0f},      {"2==3", 0.0f},
        {"2!=3", 1.0f},      {"2<>2", 0.0f},     {"2 and 3", 1.0f},  {"2 && 0", 0.0f},   {"0 and 0", 0.0f},
        {"0 or 0", 0.0f},    {"0 || 5", 1.0f},   {"-2 or 0", 1.0f},  {"!0", 1.0f},       {"not 5", 0.0f},
        {"!true", 0.0f},     {"true", 1.0f},     {"false", 0.0f},    {"-5", -5.0f},      {"1-(-5)", 6.0f},
        {".5", 0.5f},        {"007", 7.0f},      {"12.25", 12.25f},  {"min(1,2)", 1.0f}, {"min(2,1)", 1.0f},
        {"max(1,2)", 2.0f},  {"max(2,1)", 2.0f}, {"0/0 = 1", 1.0f},  {"0/0 < 1", 1.0f},  {"0/0 <= 1", 1.0f},
        {"0/0 != 1", 0.0f},  {"0/0 > 1", 0.0f},  {"0/0 >= 1", 0.0f}, {"!(0/0)", 1.0f},   {"0/0 or 0", 0.0f},
        {"1 and 0/0", 0.0f},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(ValueOf(row.text), row.value) << row.text;
    }
}

TEST(FormulaCompiler, FunctionsOfOneArgumentHaveTheirNames)
{
    const struct
    {
        const char* name;
        double (*value)(double x);
    } rows[] = {
        {"exp", [](double x) { return std::exp(x); }},   {"log", [](double x) { return std::log(x); }},
        {"cosh", [](double x) { return std::cosh(x); }}, {"sinh", [](double x) { return std::sinh(x); }},
        {"tanh", [](double x) { return std::tanh(x); }}, {"sqrt", [](double x) { return std::sqrt(x); }},
        {"cos", [](double x) { return std::cos(x); }},   {"sin", [](double x) { return std::sin(x); }},
        {"tan", [](double x) { return std::tan(x); }},   {"floor", [](double x) { return std::floor(x); }},
        {"ceil", [](double x) { return std::ceil(x); }}, {"round", [](double x) { return std::round(x); }},
        {"abs", [](double x) { return std::fabs(x); }},
    };
    for (const auto& row : rows)
    {
        for (const double argument : {0.25, 1.5, 2.75})
        {
            const std::string text =
                std::string(row.name).append("(").append(std::to_string(argument)).append(")");
            EXPECT_NEAR(static_cast<double>(ValueOf(text)), row.value(argument), 2e-6) << text;
        }
    }
    EXPECT_EQ(ValueOf("sqrt(-4)"), 0.0f);
    EXPECT_EQ(ValueOf("round(-2.5)"), -3.0f);
    EXPECT_EQ(ValueOf("abs(-2)"), 2.0f);
}

TEST(FormulaCompiler, FunctionNamesAreCaseSensitive)
{
    EXPECT_EQ(CompileConstant("Sin(1)"), nullptr);
    EXPECT_EQ(CompileConstant("MIN(1,2)"), nullptr);
    EXPECT_EQ(CompileConstant("PI"), nullptr);
}

TEST(FormulaCompiler, PiIsTheNearestSingleInAllForms)
{
    EXPECT_EQ(ValueOf("pi"), std::numbers::pi_v<float>);
    EXPECT_EQ(ValueOf("pi"), 3.14159274f);
}

TEST(FormulaCompiler, PiHidesAVariableOfItsName)
{
    EXPECT_EQ((*CompileFunction("pi", "pi"))(5.0f), std::numbers::pi_v<float>);
    EXPECT_EQ((*CBinaryFunctionFormulaBuilder("pi", "y").Compile("pi"))(5.0f, 6.0f),
              std::numbers::pi_v<float>);
}

TEST(FormulaCompiler, WhatHasNoMeaningIsInvalidInAllForms)
{
    for (const char* const text : {"5%2",        "'text'",     "1 + 'text'",
                                   "#1.1.2024#", "abs(#now#)", "f()",
                                   "sin()",      "f(1,2,3)",   "max(1,2,3)",
                                   "min()",      "sin(f())",   "max(1, 2%1)",
                                   "-(1%2)",     "!'a'",       "max('a', 1)",
                                   "g(1%2)",     "g(1, 1%2)",  "g(1%2, 1)",
                                   "1%2 + 1",    "1 + 1%2",    "1 2",
                                   "--1",        "1e3",        "",
                                   "(",          "1)",         "99999999999999999999999999999999999999999"})
    {
        EXPECT_TRUE(IsInvalidInAllForms(text)) << text;
    }
    EXPECT_TRUE(IsInvalidInAllForms(nullptr));
}

TEST(FormulaCompiler, WrongCountsOfArgumentsNameNoFunctionOfTheLanguage)
{
    EXPECT_EQ(CompileConstant("sin(1,2)"), nullptr);
    EXPECT_EQ(CompileConstant("min(1)"), nullptr);
    EXPECT_EQ(CompileFunction("max(x)", "x"), nullptr);
}

TEST(FormulaCompiler, UnknownNamesAreInvalidWithoutParameters)
{
    for (const char* const text : {"a", "1+a", "f(1)", "f(1,2)", "sin(a)", "min(a,1)", "-a"})
    {
        EXPECT_EQ(CompileConstant(text), nullptr) << text;
        EXPECT_EQ(CompileFunction(text, "x"), nullptr) << text;
        EXPECT_EQ(CompileBinary(text), nullptr) << text;
    }
}

TEST(FormulaCompiler, TheVariableIsTheIdentity)
{
    const auto function = CompileFunction("t", "t");
    ASSERT_NE(function, nullptr);
    EXPECT_EQ((*function)(-3.5f), -3.5f);
    EXPECT_STREQ(function->GetTypeKey(), TFunction<&FunctionsLibrary::Identity>::classKey);
    EXPECT_EQ(CompileFunction("x", "t"), nullptr);
    EXPECT_EQ(CompileConstant("x"), nullptr);
    EXPECT_EQ(CompileFunction("x", nullptr), nullptr);
    EXPECT_EQ(CompileFunction("X", "x"), nullptr);
}

TEST(FormulaCompiler, AVariableMayHaveDots)
{
    EXPECT_EQ((*CompileFunction("a.b*2", "a.b"))(3.0f), 6.0f);
}

TEST(FormulaCompiler, TwoVariablesAreTheTwoArguments)
{
    const auto difference = CompileBinary("x-2*y");
    ASSERT_NE(difference, nullptr);
    EXPECT_EQ((*difference)(7.0f, 2.0f), 3.0f);
    EXPECT_STREQ(CompileBinary("x")->GetTypeKey(), TBinaryFunction<&FunctionsLibrary::X>::classKey);
    EXPECT_STREQ(CompileBinary("y")->GetTypeKey(), TBinaryFunction<&FunctionsLibrary::Y>::classKey);
}

TEST(FormulaCompiler, TheFirstVariableWinsAName)
{
    EXPECT_EQ((*CBinaryFunctionFormulaBuilder("a", "a").Compile("a"))(1.0f, 2.0f), 1.0f);
    EXPECT_EQ((*CompileParametrizedBinaryFunction("a", "a", "a"))(1.0f, 2.0f), 1.0f);
}

TEST(FormulaCompiler, TheTreeMirrorsTheText)
{
    EXPECT_STREQ(CompileConstant("2+3")->GetTypeKey(), CConstantsCombination::classKey);
    EXPECT_STREQ(CompileConstant("-2")->GetTypeKey(), CConstantComposition::classKey);
    EXPECT_STREQ(CompileConstant("sin(2)")->GetTypeKey(), CConstantComposition::classKey);
    EXPECT_STREQ(CompileFunction("2", "x")->GetTypeKey(), CConstantFunction::classKey);
    EXPECT_STREQ(CompileFunction("2+3", "x")->GetTypeKey(), CFunctionsCombination::classKey);
    EXPECT_STREQ(CompileFunction("!2", "x")->GetTypeKey(), CFunctionsComposition::classKey);
    EXPECT_STREQ(CompileBinary("2")->GetTypeKey(), CConstantBinaryFunction::classKey);
    EXPECT_STREQ(CompileBinary("max(2,3)")->GetTypeKey(), CBinaryFunctionsCombination::classKey);
    EXPECT_STREQ(CompileBinary("abs(2)")->GetTypeKey(), CBinaryFunctionComposition::classKey);
}

TEST(FormulaCompiler, NumbersAreReadWithAPointWhateverTheLocale)
{
    const Tests::CCommaLocale locale;
    EXPECT_EQ(ValueOf("1.5"), 1.5f);
}

TEST(FormulaCompiler, NumbersAreTheNearestSingles)
{
    EXPECT_EQ(ValueOf("0.1"), 0.1f);
    EXPECT_EQ(ValueOf("16777217"), 16777216.0f);
    EXPECT_EQ(ValueOf("340282346638528859811704183484516925440"), std::numeric_limits<float>::max());
    EXPECT_EQ(ValueOf("0.0000000000000000000000000000000000000000000000000000001"), 0.0f);
}

TEST(FormulaCompiler, EvaluationAllocatesNothing)
{
    const auto function = CompileFunction("sin(x*2) ^ 2 + max(x, 1/3) * -x", "x");
    ASSERT_NE(function, nullptr);
    const Tests::CAllocationCounter allocations;
    float sum = 0.0f;
    for (int i = 0; i < 100; ++i)
    {
        sum += (*function)(static_cast<float>(i));
    }
    EXPECT_FALSE(std::isnan(sum));
    EXPECT_EQ(allocations.GetCount(), 0U);
}

} // namespace Mirel::SkinEngine
