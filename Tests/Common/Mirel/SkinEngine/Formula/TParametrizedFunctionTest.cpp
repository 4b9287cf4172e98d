#include "Mirel/SkinEngine/Formula/TParametrizedFunction.h"

#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/ItemStreams.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

namespace
{

using namespace Math;
using testing::ElementsAre;
using testing::IsEmpty;

template <class N>
std::vector<std::string> ListOf(const N& names)
{
    std::vector<std::string> list;
    for (const std::string& name : names)
    {
        list.push_back(name);
    }
    EXPECT_EQ(names.IsEmpty(), list.empty());
    return list;
}

/// x times a factor; counts its kind.
class CCountedFunction : public CConstantFunction
{
public:
    CCountedFunction(float factor, int& alive_) : CConstantFunction(factor), alive(alive_) { ++alive; }
    CCountedFunction(const CCountedFunction& other) : CConstantFunction(other), alive(other.alive)
    {
        ++alive;
    }
    CCountedFunction& operator=(const CCountedFunction&) = delete;
    ~CCountedFunction() override { --alive; }

    CCountedFunction* Clone() const override { return new CCountedFunction(*this); }
    float operator()(float x) const override { return GetValue() * x; }

private:
    int& alive;
};

const IFunction& Cosine()
{
    return SharedFunction<&FunctionsLibrary::Cos>();
}

const IBinaryFunction& Difference()
{
    return SharedBinaryFunction<&FunctionsLibrary::Difference>();
}

} // namespace

TEST(TParametrizedFunction, ListsTheNamesOfEachKindOnceInOrder)
{
    const auto formula = CompileParametrizedFunction(
        "b + a*b + pi + x + curve(a) + surface(x, c) + sin(x) + curve(2) + min(1, a)", "x");
    ASSERT_NE(formula, nullptr);
    const CFormulaParameters& parameters = formula->GetParameters();
    EXPECT_THAT(ListOf(parameters.GetConstantNames()), ElementsAre("a", "b", "c"));
    EXPECT_THAT(ListOf(parameters.GetFunctionNames()), ElementsAre("curve"));
    EXPECT_THAT(ListOf(parameters.GetBinaryFunctionNames()), ElementsAre("surface"));
}

TEST(TParametrizedFunction, OneNameMayBeOfAllKinds)
{
    const auto formula = CompileParametrizedConstant("f + f(1) + f(1, 2)");
    ASSERT_NE(formula, nullptr);
    CFormulaParameters& parameters = formula->GetParameters();
    EXPECT_THAT(ListOf(parameters.GetConstantNames()), ElementsAre("f"));
    EXPECT_THAT(ListOf(parameters.GetFunctionNames()), ElementsAre("f"));
    EXPECT_THAT(ListOf(parameters.GetBinaryFunctionNames()), ElementsAre("f"));
    EXPECT_TRUE(parameters.SetConstant("f", 10.0f));
    EXPECT_TRUE(parameters.SetFunction("f", new CConstantFunction(200.0f), true));
    EXPECT_TRUE(parameters.SetBinaryFunction("f", &Difference(), false));
    EXPECT_EQ((*formula)(), 10.0f + 200.0f + (1.0f - 2.0f));
}

TEST(TParametrizedFunction, AFormulaWithoutNamesHasNone)
{
    const auto formula = CompileParametrizedConstant("2+3*4");
    ASSERT_NE(formula, nullptr);
    EXPECT_THAT(ListOf(formula->GetParameters().GetConstantNames()), IsEmpty());
    EXPECT_THAT(ListOf(formula->GetParameters().GetFunctionNames()), IsEmpty());
    EXPECT_THAT(ListOf(formula->GetParameters().GetBinaryFunctionNames()), IsEmpty());
    EXPECT_EQ((*formula)(), 14.0f);
}

TEST(TParametrizedFunction, AVariableIsNoParameterOfItsFormula)
{
    EXPECT_THAT(ListOf(CompileParametrizedConstant("x")->GetParameters().GetConstantNames()),
                ElementsAre("x"));
    EXPECT_THAT(ListOf(CompileParametrizedFunction("x+y", "x")->GetParameters().GetConstantNames()),
                ElementsAre("y"));
    EXPECT_THAT(
        ListOf(CompileParametrizedBinaryFunction("x+y+z", "x", "y")->GetParameters().GetConstantNames()),
        ElementsAre("z"));
    EXPECT_THAT(ListOf(CompileParametrizedFunction("x", nullptr)->GetParameters().GetConstantNames()),
                ElementsAre("x"));
}

TEST(TParametrizedFunction, TheNamesOfTheLibraryHideParameters)
{
    const auto formula = CompileParametrizedFunction("sin(x) + min(x, pi) + round(true)", "x");
    ASSERT_NE(formula, nullptr);
    EXPECT_THAT(ListOf(formula->GetParameters().GetConstantNames()), IsEmpty());
    EXPECT_THAT(ListOf(formula->GetParameters().GetFunctionNames()), IsEmpty());
    EXPECT_THAT(ListOf(formula->GetParameters().GetBinaryFunctionNames()), IsEmpty());
}

TEST(TParametrizedFunction, LibraryNamesWithOtherCountsOfArgumentsAreParameters)
{
    const auto formula = CompileParametrizedFunction("sin(x, 1) + min(x) + sin", "x");
    ASSERT_NE(formula, nullptr);
    EXPECT_THAT(ListOf(formula->GetParameters().GetConstantNames()), ElementsAre("sin"));
    EXPECT_THAT(ListOf(formula->GetParameters().GetFunctionNames()), ElementsAre("min"));
    EXPECT_THAT(ListOf(formula->GetParameters().GetBinaryFunctionNames()), ElementsAre("sin"));
}

TEST(TParametrizedFunction, NamesAreZeroUntilTheyAreSet)
{
    const auto formula = CompileParametrizedFunction("1 + a + curve(x) + surface(x, a)", "x");
    ASSERT_NE(formula, nullptr);
    EXPECT_EQ((*formula)(5.0f), 1.0f);
}

TEST(TParametrizedFunction, AllOccurrencesFollowTheirName)
{
    const auto formula = CompileParametrizedFunction("a*x + a + c(x) + c(c(0)) + s(x, 1) * s(3, a)", "x");
    ASSERT_NE(formula, nullptr);
    CFormulaParameters& parameters = formula->GetParameters();
    EXPECT_TRUE(parameters.SetConstant("a", 2.0f));
    int alive = 0;
    EXPECT_TRUE(parameters.SetFunction("c", new CCountedFunction(10.0f, alive), true));
    EXPECT_TRUE(parameters.SetBinaryFunction("s", &Difference(), false));
    EXPECT_EQ((*formula)(5.0f), 10.0f + 2.0f + 50.0f + 0.0f + (5.0f - 1.0f) * (3.0f - 2.0f));
}

TEST(TParametrizedFunction, EveryFamilyTakesEveryKindOfName)
{
    const char* const text = "a + c(1) + s(5, 2)";
    const auto set = [](CFormulaParameters& parameters)
    {
        EXPECT_TRUE(parameters.SetConstant("a", 100.0f));
        EXPECT_TRUE(parameters.SetFunction("c", new CConstantFunction(10.0f), true));
        EXPECT_TRUE(parameters.SetBinaryFunction("s", &Difference(), false));
    };
    const auto constant = CompileParametrizedConstant(text);
    set(constant->GetParameters());
    EXPECT_EQ((*constant)(), 113.0f);
    const auto function = CompileParametrizedFunction(text, "x");
    set(function->GetParameters());
    EXPECT_EQ((*function)(0.0f), 113.0f);
    const auto binary = CompileParametrizedBinaryFunction(text, "x", "y");
    set(binary->GetParameters());
    EXPECT_EQ((*binary)(0.0f, 0.0f), 113.0f);
}

TEST(TParametrizedFunction, UnknownNamesCannotBeSet)
{
    const auto formula = CompileParametrizedFunction("a + c(x)", "x");
    ASSERT_NE(formula, nullptr);
    CFormulaParameters& parameters = formula->GetParameters();
    EXPECT_FALSE(parameters.SetConstant("c", 1.0f));
    EXPECT_FALSE(parameters.SetConstant("", 1.0f));
    EXPECT_FALSE(parameters.SetConstant(nullptr, 1.0f));
    EXPECT_FALSE(parameters.SetFunction("a", &Cosine(), false));
    EXPECT_FALSE(parameters.SetBinaryFunction("c", &Difference(), false));
    EXPECT_EQ((*formula)(5.0f), 0.0f);
}

TEST(TParametrizedFunction, OwnedFunctionsGoWithTheirReplacementOrTheFormula)
{
    int alive = 0;
    auto formula = CompileParametrizedFunction("c(x) + c(1)", "x");
    ASSERT_NE(formula, nullptr);
    CFormulaParameters& parameters = formula->GetParameters();
    EXPECT_TRUE(parameters.SetFunction("c", new CCountedFunction(2.0f, alive), true));
    EXPECT_EQ(alive, 1);
    EXPECT_TRUE(parameters.SetFunction("c", new CCountedFunction(3.0f, alive), true));
    EXPECT_EQ(alive, 1);
    EXPECT_EQ((*formula)(5.0f), 18.0f);
    EXPECT_FALSE(parameters.SetFunction("d", new CCountedFunction(4.0f, alive), true));
    EXPECT_EQ(alive, 1);
    formula.reset();
    EXPECT_EQ(alive, 0);
}

TEST(TParametrizedFunction, BorrowedFunctionsStay)
{
    int alive = 0;
    const CCountedFunction function(2.0f, alive);
    auto formula = CompileParametrizedFunction("c(x)", "x");
    ASSERT_NE(formula, nullptr);
    EXPECT_TRUE(formula->GetParameters().SetFunction("c", &function, false));
    EXPECT_EQ((*formula)(5.0f), 10.0f);
    EXPECT_FALSE(formula->GetParameters().SetFunction("d", &function, false));
    formula.reset();
    EXPECT_EQ(alive, 1);
}

TEST(TParametrizedFunction, TheSameFunctionMayBeSetAgain)
{
    int alive = 0;
    const auto formula = CompileParametrizedFunction("c(x)", "x");
    ASSERT_NE(formula, nullptr);
    auto* const function = new CCountedFunction(2.0f, alive);
    EXPECT_TRUE(formula->GetParameters().SetFunction("c", function, true));
    EXPECT_TRUE(formula->GetParameters().SetFunction("c", function, true));
    EXPECT_EQ(alive, 1);
    EXPECT_EQ((*formula)(5.0f), 10.0f);
}

TEST(TParametrizedFunction, NullPutsZeroBack)
{
    const auto formula = CompileParametrizedFunction("1 + c(x) + s(x, x)", "x");
    ASSERT_NE(formula, nullptr);
    CFormulaParameters& parameters = formula->GetParameters();
    EXPECT_TRUE(parameters.SetFunction("c", new CConstantFunction(10.0f), true));
    EXPECT_TRUE(parameters.SetFunction("c", nullptr, false));
    EXPECT_TRUE(parameters.SetBinaryFunction("s", nullptr, true));
    EXPECT_EQ((*formula)(5.0f), 1.0f);
}

TEST(TParametrizedFunction, ACloneKeepsThePresentObjects)
{
    int alive = 0;
    auto formula = CompileParametrizedFunction("a + c(x)", "x");
    ASSERT_NE(formula, nullptr);
    CFormulaParameters& parameters = formula->GetParameters();
    parameters.SetConstant("a", 1.0f);
    parameters.SetFunction("c", new CCountedFunction(2.0f, alive), true);
    const std::unique_ptr<IFunction> clone(formula->Clone());
    parameters.SetConstant("a", 100.0f);
    parameters.SetFunction("c", nullptr, false);
    EXPECT_EQ((*formula)(5.0f), 100.0f);
    formula.reset();
    EXPECT_EQ((*clone)(5.0f), 11.0f);
    EXPECT_EQ(alive, 1);
}

TEST(TParametrizedFunction, IsSavedAsItsTree)
{
    const auto formula = CompileParametrizedFunction("a*x + 1", "x");
    ASSERT_NE(formula, nullptr);
    formula->GetParameters().SetConstant("a", 3.0f);
    Serialization::CMemDataObject object;
    const IFunction* const function = formula.get();
    ASSERT_TRUE(Serialization::WriteItem(object, "f", function));
    Serialization::TRuntimeDeSerializer<IFunction> reader;
    object.Read("f", static_cast<Serialization::IDeSerialize&>(reader));
    const std::unique_ptr<IFunction> read(reader.Detach());
    ASSERT_NE(read, nullptr);
    EXPECT_EQ((*read)(5.0f), 16.0f);
    EXPECT_FALSE(formula->Deserialize(object));
    EXPECT_EQ((*formula)(5.0f), 16.0f);
}

} // namespace Mirel::SkinEngine
