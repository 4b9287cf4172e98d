// Every class comes back from every form of data object, created by its class key alone.

#include "FunctionTables.h"
#include "KeyedConstant.h"
#include "Mirel/Math/CBinaryFunctionComposition.h"
#include "Mirel/Math/CBinaryFunctionProxy.h"
#include "Mirel/Math/CBinaryFunctionsCombination.h"
#include "Mirel/Math/CConstant.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantComposition.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CConstantsCombination.h"
#include "Mirel/Math/CFunctionProxy.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "SavedFunctions.h"
#include "Steps.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <memory>

namespace Mirel::Math
{
namespace
{

using namespace FunctionsLibrary;
using Serialization::CMemDataObject;

bool SameBits(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

void ExpectSame(const IFunction& function, const IFunction* read)
{
    ASSERT_NE(read, nullptr);
    EXPECT_STREQ(read->GetTypeKey(), function.GetTypeKey());
    for (const float x : Steps(-3.0f, 3.0f, 0.375f))
    {
        EXPECT_TRUE(SameBits((*read)(x), function(x))) << x;
    }
}

void ExpectSame(const IBinaryFunction& function, const IBinaryFunction* read)
{
    ASSERT_NE(read, nullptr);
    EXPECT_STREQ(read->GetTypeKey(), function.GetTypeKey());
    for (const float x : Steps(-3.0f, 3.0f, 0.75f))
    {
        for (const float y : Steps(-3.0f, 3.0f, 0.75f))
        {
            EXPECT_TRUE(SameBits((*read)(x, y), function(x, y))) << x << ", " << y;
        }
    }
}

void ExpectSame(const IConstant& constant, const IConstant* read)
{
    ASSERT_NE(read, nullptr);
    EXPECT_STREQ(read->GetTypeKey(), constant.GetTypeKey());
    EXPECT_EQ((*read)(), constant());
}

template <class I>
void ExpectRoundTrip(const I& function)
{
    ThroughEveryForm(function, [&function](std::unique_ptr<I> read) { ExpectSame(function, read.get()); });
}

/// exp(x) + 0.5
CFunctionsCombination MakeCombination()
{
    return {{&SharedFunction<&Exp>(), false},
            {new CConstantFunction(0.5f), true},
            {&SharedBinaryFunction<&Sum>(), false}};
}

} // namespace

TEST(SavedFunctions, ElementaryFunctionsComeBack)
{
    for (const CFunctionRow& row : functionRows)
    {
        SCOPED_TRACE(row.name);
        ExpectRoundTrip(*CreateFunction<IFunction>(row.key));
    }
    for (const CBinaryFunctionRow& row : binaryFunctionRows)
    {
        SCOPED_TRACE(row.name);
        ExpectRoundTrip(*CreateFunction<IBinaryFunction>(row.key));
    }
}

TEST(SavedFunctions, ConstantsComeBack)
{
    ExpectRoundTrip<IFunction>(CConstantFunction(-0.1f));
    ExpectRoundTrip<IBinaryFunction>(CConstantBinaryFunction(1e-40f));
}

TEST(SavedFunctions, ProxiesComeBack)
{
    const CFunctionProxy proxy({&SharedFunction<&Square>(), false});
    EXPECT_STREQ(proxy.GetTypeKey(), "{709DCE8B-8C2B-44c4-AF00-EF02D7F53121}");
    ExpectRoundTrip<IFunction>(proxy);

    const CBinaryFunctionProxy binary({&SharedBinaryFunction<&Distance>(), false});
    EXPECT_STREQ(binary.GetTypeKey(), "{3F409A8F-20F5-4531-80DA-99441215C125}");
    ExpectRoundTrip<IBinaryFunction>(binary);
}

TEST(SavedFunctions, CombinationsComeBack)
{
    const CFunctionsCombination combination = MakeCombination();
    EXPECT_STREQ(combination.GetTypeKey(), "{FA439331-DF20-4e00-8922-1FEEE83F9B39}");
    ExpectRoundTrip<IFunction>(combination);

    const CBinaryFunctionsCombination binary({&SharedBinaryFunction<&X>(), false},
                                             {new CConstantBinaryFunction(3.0f), true},
                                             {&SharedBinaryFunction<&Product>(), false});
    EXPECT_STREQ(binary.GetTypeKey(), "{A8FBFEF4-0FFE-41a6-83AC-D8B94B84AABF}");
    ExpectRoundTrip<IBinaryFunction>(binary);

    const CConstantsCombination constants({new CKeyedConstant(5.0f), true}, {new CKeyedConstant(2.0f), true},
                                          {&SharedBinaryFunction<&Difference>(), false});
    EXPECT_STREQ(constants.GetTypeKey(), "{5145420A-1DCF-449e-8AC4-0006CF96D0F2}");
    ExpectRoundTrip<IConstant>(constants);
}

TEST(SavedFunctions, CompositionsComeBack)
{
    CFunctionsComposition list;
    list.Add(&SharedFunction<&Square>(), false);
    list.Add(nullptr, false);
    list.Add(new CFunctionsCombination(MakeCombination()), true);
    EXPECT_STREQ(list.GetTypeKey(), "{C6B18AB7-10C4-46c3-975E-91255060ECA9}");
    ExpectRoundTrip<IFunction>(list);
    ExpectRoundTrip<IFunction>(CFunctionsComposition());

    const CBinaryFunctionComposition binary({&SharedFunction<&Abs>(), false},
                                            {&SharedBinaryFunction<&Difference>(), false});
    EXPECT_STREQ(binary.GetTypeKey(), "{D9BEEC6F-C530-46c7-A19C-FF009E5E2C26}");
    ExpectRoundTrip<IBinaryFunction>(binary);

    const CConstantComposition constant({&SharedFunction<&Negate>(), false},
                                        {new CKeyedConstant(4.0f), true});
    EXPECT_STREQ(constant.GetTypeKey(), "{83F37E7C-0ABF-4083-9F35-DD6310CC0951}");
    ExpectRoundTrip<IConstant>(constant);
}

TEST(SavedFunctions, FiftyCombinationsDeepComeBack)
{
    auto tree = std::make_unique<CFunctionsCombination>(MakeCombination());
    constexpr int depth = 50;
    for (int level = 1; level < depth; ++level)
    {
        tree = std::make_unique<CFunctionsCombination>(
            TFunctionHolder<IFunction>{&SharedFunction<&Sin>(), false},
            TFunctionHolder<IFunction>{tree.release(), true},
            TFunctionHolder<IBinaryFunction>{&SharedBinaryFunction<&Average>(), false});
    }
    ExpectRoundTrip<IFunction>(*tree);
}

TEST(SavedFunctions, FiftyListsDeepComeBack)
{
    auto tree = std::make_unique<CFunctionsComposition>();
    constexpr int depth = 50;
    for (int level = 1; level < depth; ++level)
    {
        auto outer = std::make_unique<CFunctionsComposition>();
        outer->Add(tree.release(), true);
        outer->Add(&SharedFunction<&Cos>(), false);
        tree = std::move(outer);
    }
    ExpectRoundTrip<IFunction>(*tree);
}

TEST(SavedFunctions, FiftyBinaryCompositionsDeepComeBack)
{
    std::unique_ptr<IBinaryFunction> tree(SharedBinaryFunction<&Sum>().Clone());
    constexpr int depth = 50;
    for (int level = 0; level < depth; ++level)
    {
        tree = std::make_unique<CBinaryFunctionComposition>(
            TFunctionHolder<IFunction>{&SharedFunction<&Tanh>(), false},
            TFunctionHolder<IBinaryFunction>{tree.release(), true});
    }
    ExpectRoundTrip<IBinaryFunction>(*tree);
}

TEST(SavedFunctions, FieldsStandUnderTheirKeys)
{
    CMemDataObject combination;
    ASSERT_TRUE(MakeCombination().Serialize(combination));
    EXPECT_EQ(combination.GetCount(), 3);
    for (const char* key : {"func1", "func2", "combineFunction"})
    {
        EXPECT_TRUE(combination.Exists(key)) << key;
    }

    CMemDataObject proxy;
    ASSERT_TRUE(CFunctionProxy({&SharedFunction<&Exp>(), false}).Serialize(proxy));
    EXPECT_EQ(proxy.GetCount(), 1);
    EXPECT_TRUE(proxy.Exists("value"));

    CMemDataObject binary;
    ASSERT_TRUE(
        CBinaryFunctionComposition({&SharedFunction<&Exp>(), false}, {&SharedBinaryFunction<&Sum>(), false})
            .Serialize(binary));
    EXPECT_EQ(binary.GetCount(), 2);
    EXPECT_TRUE(binary.Exists("function") && binary.Exists("binaryFunction"));

    CMemDataObject constant;
    ASSERT_TRUE(CConstantComposition({&SharedFunction<&Exp>(), false}, {new CKeyedConstant(1.0f), true})
                    .Serialize(constant));
    EXPECT_EQ(constant.GetCount(), 2);
    EXPECT_TRUE(constant.Exists("function") && constant.Exists("constFunction"));

    CMemDataObject list;
    CFunctionsComposition composition;
    composition.Add(&SharedFunction<&Exp>(), false);
    ASSERT_TRUE(composition.Serialize(list));
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_TRUE(list.Exists("valueCount") && list.Exists("value0"));
}

TEST(SavedFunctions, AnUnknownClassInsideLeavesNoFunctionThatCouldNotBeEvaluated)
{
    CMemDataObject saved;
    const CFunctionsCombination whole = MakeCombination();
    ASSERT_TRUE(whole.Serialize(saved));
    CMemDataObject unknown;
    unknown.Write("isNull", false);
    unknown.Write("type", "{00000000-0000-0000-0000-000000000000}");
    saved.Write("func2", static_cast<const Serialization::ISerialize&>(unknown));

    CFunctionsCombination read;
    EXPECT_FALSE(read.Deserialize(saved));
}

TEST(SavedFunctions, ACompositeOfNothingCannotBeRead)
{
    const CFunctionProxy proxy;
    EXPECT_EQ(ThroughMemory<IFunction>(proxy), nullptr);
    EXPECT_EQ(ThroughMemory<IFunction>(CFunctionsCombination()), nullptr);
    EXPECT_EQ(ThroughMemory<IBinaryFunction>(CBinaryFunctionComposition()), nullptr);
}

TEST(SavedFunctions, AMissingFieldKeepsThePresentFunction)
{
    CFunctionProxy proxy({&SharedFunction<&Square>(), false});
    EXPECT_FALSE(proxy.Deserialize(CMemDataObject()));
    EXPECT_EQ(proxy(3.0f), 9.0f);
}

TEST(SavedFunctions, ANumberWithoutAClassKeyIsNotReadBack)
{
    const CConstantComposition constant({&SharedFunction<&Negate>(), false}, {new CConstant(4.0f), true});
    EXPECT_EQ(ThroughMemory<IConstant>(constant), nullptr);
}

TEST(SavedFunctions, AFunctionIsNotReadAsAnotherInterface)
{
    CMemDataObject object;
    ASSERT_TRUE(Serialization::WriteItem(object, "f", &SharedFunction<&Exp>()));
    EXPECT_EQ(ReadFunction<IBinaryFunction>(object), nullptr);
    EXPECT_NE(ReadFunction<IFunction>(object), nullptr);
}

} // namespace Mirel::Math
