// What the composites compute, whom they own, and what their clones share: nothing.

#include "KeyedConstant.h"
#include "Mirel/Containers/TDynamicVector.h"
#include "Mirel/Math/CBinaryFunctionComposition.h"
#include "Mirel/Math/CBinaryFunctionProxy.h"
#include "Mirel/Math/CBinaryFunctionsCombination.h"
#include "Mirel/Math/CConstFunctionValuesMux.h"
#include "Mirel/Math/CConstant.h"
#include "Mirel/Math/CConstantComposition.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CConstantsCombination.h"
#include "Mirel/Math/CFunctionProxy.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TFunctionsOperation.h"
#include "Steps.h"
#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

namespace Mirel::Math
{
namespace
{

using namespace FunctionsLibrary;

/// A constant function that counts how many of it live.
class CCounted : public CConstantFunction
{
public:
    explicit CCounted(int& live_, float value_ = 0.0f) : CConstantFunction(value_), live(&live_) { ++*live; }
    CCounted(const CCounted& other) : CConstantFunction(other), live(other.live) { ++*live; }
    CCounted& operator=(const CCounted&) = delete;
    ~CCounted() override { --*live; }
    CCounted* Clone() const override { return new CCounted(*this); }

private:
    int* live;
};

const IFunction* const square = &SharedFunction<&Square>();
const IFunction* const negate = &SharedFunction<&Negate>();
const IBinaryFunction* const difference = &SharedBinaryFunction<&Difference>();
const IBinaryFunction* const product = &SharedBinaryFunction<&Product>();

} // namespace

TEST(CFunctionsComposition, WithoutMembersIsTheIdentity)
{
    const CFunctionsComposition composition;
    for (const float x : {-1.5f, 0.0f, 1e30f, std::numeric_limits<float>::infinity()})
    {
        EXPECT_EQ(composition(x), x);
    }
}

TEST(CFunctionsComposition, AppliesInTheOrderOfTheList)
{
    CFunctionsComposition composition;
    composition.Add(square, false);
    composition.Add(negate, false);
    EXPECT_EQ(composition(3.0f), -9.0f);

    composition.Clear();
    composition.Add(negate, false);
    composition.Add(square, false);
    EXPECT_EQ(composition(3.0f), 9.0f);
}

TEST(CFunctionsComposition, SkipsEmptyEntries)
{
    CFunctionsComposition composition;
    composition.Add(nullptr, false);
    composition.Add(square, false);
    composition.Add(nullptr, true);
    EXPECT_EQ(composition.GetCount(), 3);
    EXPECT_EQ(composition(3.0f), 9.0f);
}

TEST(CFunctionsCombination, CombinesBothValuesInOrder)
{
    const CFunctionsCombination combination({square, false}, {negate, false}, {difference, false});
    EXPECT_EQ(combination(3.0f), 12.0f); // 9 - -3
}

TEST(CBinaryFunctionsCombination, CombinesBothValuesInOrder)
{
    const CBinaryFunctionsCombination combination({difference, false}, {product, false}, {difference, false});
    EXPECT_EQ(combination(5.0f, 2.0f), -7.0f); // 3 - 10
}

TEST(CConstantsCombination, CombinesBothNumbersInOrder)
{
    const CConstantsCombination combination({new CConstant(5.0f), true}, {new CConstant(2.0f), true},
                                            {difference, false});
    EXPECT_EQ(combination(), 3.0f);
}

TEST(CBinaryFunctionComposition, AppliesTheFunctionToTheValueOfBoth)
{
    const CBinaryFunctionComposition composition({square, false}, {difference, false});
    EXPECT_EQ(composition(5.0f, 2.0f), 9.0f);
}

TEST(CConstantComposition, AppliesTheFunctionToTheNumber)
{
    const CConstantComposition composition({square, false}, {new CConstant(-3.0f), true});
    EXPECT_EQ(composition(), 9.0f);
}

TEST(CConstantComposition, FollowsABorrowedPlaceholder)
{
    CConstant placeholder(2.0f);
    const CConstantComposition composition({square, false}, {&placeholder, false});
    placeholder.SetValue(4.0f);
    EXPECT_EQ(composition(), 16.0f);
}

TEST(CFunctionProxy, ForwardsToWhatItWasGivenLast)
{
    CFunctionProxy proxy({square, false});
    EXPECT_EQ(proxy(3.0f), 9.0f);
    proxy.SetFunction(negate, false);
    EXPECT_EQ(proxy(3.0f), -3.0f);
    EXPECT_EQ(proxy.GetFunction(), negate);
}

TEST(CFunctionProxy, DestroysWhatItOwnsWhenItIsReplaced)
{
    int live = 0;
    CFunctionProxy proxy({new CCounted(live), true});
    proxy.SetFunction(square, false);
    EXPECT_EQ(live, 0);
}

TEST(CBinaryFunctionProxy, Forwards)
{
    CBinaryFunctionProxy proxy({difference, false});
    EXPECT_EQ(proxy(5.0f, 2.0f), 3.0f);
    proxy.SetFunction(product, false);
    EXPECT_EQ(proxy(5.0f, 2.0f), 10.0f);
}

TEST(FunctionComposites, OwnedFunctionsGoWithTheCompositeAndBorrowedOnesStay)
{
    int live = 0;
    {
        const CCounted borrowed(live);
        {
            const CFunctionsCombination combination({new CCounted(live), true}, {&borrowed, false},
                                                    {difference, false});
            CFunctionsComposition list;
            list.Add(new CCounted(live), true);
            list.Add(&borrowed, false);
            EXPECT_EQ(live, 3);
        }
        EXPECT_EQ(live, 1);
    }
    EXPECT_EQ(live, 0);
}

TEST(FunctionComposites, AClonedTreeSharesNothingWithItsModel)
{
    int live = 0;
    auto* constant = new CCounted(live, 2.0f);
    auto combination = std::make_unique<CFunctionsCombination>(
        TFunctionHolder<IFunction>{constant, true}, TFunctionHolder<IFunction>{square, false},
        TFunctionHolder<IBinaryFunction>{product, false});
    CFunctionsComposition list;
    list.Add(combination.get(), false);
    const std::unique_ptr<IFunction> clone(list.Clone());
    EXPECT_EQ(live, 2);

    constant->SetValue(100.0f);
    EXPECT_EQ(list(3.0f), 900.0f);
    EXPECT_EQ((*clone)(3.0f), 18.0f);

    list.Clear();
    combination.reset();
    EXPECT_EQ(live, 1);
    EXPECT_EQ((*clone)(3.0f), 18.0f);
}

TEST(TFunctionsOperation, CombinesFromLeftToRight)
{
    const CConstantFunction hundred(100.0f);
    const CConstantFunction ten(10.0f);
    const auto evaluate = [&](auto operation, float x)
    {
        operation.Add(&hundred, false);
        operation.Add(&ten, false);
        operation.Add(square, false);
        return operation(x);
    };
    EXPECT_EQ(evaluate(TFunctionsOperation<&Sum>(), 2.0f), 114.0f);
    EXPECT_EQ(evaluate(TFunctionsOperation<&Difference>(), 2.0f), 86.0f);
    EXPECT_EQ(evaluate(TFunctionsOperation<&Product>(), 2.0f), 4000.0f);
    EXPECT_EQ(evaluate(TFunctionsOperation<&Division>(), 2.0f), 2.5f);
}

TEST(TFunctionsOperation, OfOneFunctionIsThatFunction)
{
    TFunctionsOperation<&Difference> operation;
    operation.Add(square, false);
    EXPECT_EQ(operation(3.0f), 9.0f);
    EXPECT_EQ(operation.GetTypeKey(), nullptr);
}

TEST(CConstFunctionValuesMux, GivesTheValuesAtItsX)
{
    Containers::TDynamicVector<const IFunction*> functions;
    functions.Add(square);
    functions.Add(negate);
    functions.Add(nullptr);
    CConstFunctionValuesMux mux(functions, 3.0f);

    EXPECT_EQ(mux.GetCount(), 3);
    EXPECT_EQ(mux.GetValue(0), 9.0f);
    EXPECT_EQ(mux.GetValue(1), -3.0f);
    mux.SetX(2.0f);
    EXPECT_EQ(mux.GetValue(0), 4.0f);
    EXPECT_EQ(mux.GetX(), 2.0f);
}

TEST(CConstFunctionValuesMux, IsZeroWhereThereIsNoFunction)
{
    Containers::TDynamicVector<const IFunction*> functions;
    functions.Add(nullptr);
    const CConstFunctionValuesMux mux(functions, 3.0f);

    EXPECT_EQ(mux.GetValue(-1), 0.0f);
    EXPECT_EQ(mux.GetValue(0), 0.0f);
    EXPECT_EQ(mux.GetValue(1), 0.0f);
}

TEST(FunctionComposites, EvaluationAllocatesNothing)
{
    CFunctionsComposition list;
    list.Add(square, false);
    list.Add(new CFunctionsCombination({square, false}, {negate, false}, {difference, false}), true);
    list.Add(new CFunctionProxy({negate, false}), true);
    TFunctionsOperation<&Sum> operation;
    operation.Add(&list, false);
    operation.Add(square, false);
    const CBinaryFunctionComposition binary({&list, false}, {product, false});
    const CConstantComposition constant({&list, false}, {new CConstant(2.0f), true});

    const std::vector<float> steps = Steps(0.0f, 10.0f, 1.0f);
    const Tests::CAllocationCounter counter;
    float sum = 0.0f;
    for (const float x : steps)
    {
        sum += operation(x) + binary(x, x) + constant();
    }
    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_NE(sum, 0.0f);
}

} // namespace Mirel::Math
