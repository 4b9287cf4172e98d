#include "Mirel/DataModel/Objects/CMultipleCaptureCurveLink.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/Limits.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TFunctionsOperation.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantFunction;
using Mirel::Math::TFunctionsOperation;
using Tests::CCountedFunction;
using Tests::CEventCounter;
namespace Library = Mirel::Math::FunctionsLibrary;

namespace
{

using CSum = TFunctionsOperation<Library::Sum>;
using CDifference = TFunctionsOperation<Library::Difference>;

float At(const CCaptureCurve& curve, float x)
{
    return curve.GetValue()(x);
}

class CMultipleCaptureCurveLinkTest : public testing::Test
{
protected:
    CMultipleCaptureCurveLinkTest()
    {
        first.SetValue(CConstantFunction(8.0F));
        second.SetValue(CConstantFunction(5.0F));
        link->AddSource(&first);
        link->AddSource(&second);
        link->AddTarget(&one);
        link->AddTarget(&two);
    }

    int alive = 0; ///< Outlives the clones that count in it.
    CCaptureCurve first;
    CCaptureCurve second;
    CCaptureCurve one;
    CCaptureCurve two;
    std::unique_ptr<CMultipleCaptureCurveLink> link = std::make_unique<CMultipleCaptureCurveLink>();
};

} // namespace

TEST_F(CMultipleCaptureCurveLinkTest, HandsTheChangedCurveToAllTargets)
{
    link->Enable(true);
    second.SetValue(CConstantFunction(2.0F));
    EXPECT_EQ(At(one, 0.0F), 2.0F);
    EXPECT_EQ(At(two, 0.0F), 2.0F);
    first.SetValue(CConstantFunction(1.0F));
    EXPECT_EQ(At(one, 0.0F), 1.0F);
    EXPECT_EQ(At(two, 0.0F), 1.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, EnablingHandsOnTheFirstCurve)
{
    link->Enable(true);
    EXPECT_EQ(At(one, 0.0F), 8.0F);
    EXPECT_EQ(At(two, 0.0F), 8.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, EachTargetHoldsACloneOfItsOwn)
{
    link->Enable(true);
    first.SetValue(CCountedFunction(alive, 3.0F));
    EXPECT_EQ(alive, 3);
}

TEST_F(CMultipleCaptureCurveLinkTest, TheChangedCurveIsNotWritten)
{
    link->AddTarget(&first);
    link->Enable(true);
    CEventCounter changes(first.GetValueChangedEventProvider());
    first.SetValue(CConstantFunction(1.0F));
    EXPECT_EQ(changes.Take(), 1);
    second.SetValue(CConstantFunction(2.0F));
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(At(first, 0.0F), 2.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, OperationCombinesAllCurvesInTheirOrder)
{
    first.SetValue(Mirel::Math::TFunction<Library::Square>());
    link->SetOperation(new CDifference, true);
    link->Enable(true);
    EXPECT_EQ(At(one, 3.0F), 4.0F);
    EXPECT_EQ(At(two, 4.0F), 11.0F);
    second.SetValue(CConstantFunction(1.0F));
    EXPECT_EQ(At(one, 3.0F), 8.0F);
    EXPECT_EQ(At(two, 3.0F), 8.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, CombinedCurveStandsOnItsOwn)
{
    link->SetOperation(new CSum, true);
    link->Enable(true);
    first.SetValue(CCountedFunction(alive, 3.0F));
    EXPECT_EQ(alive, 3);
    link.reset();
    first.SetValue(CConstantFunction(0.0F));
    EXPECT_EQ(alive, 2);
    EXPECT_EQ(At(one, 0.0F), 8.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, ChangeOfTheOperationUpdatesAndFires)
{
    link->Enable(true);
    CEventCounter changes(link->GetChangedEventProvider());
    CSum sum;
    link->SetOperation(&sum, false);
    link->SetOperation(&sum, false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(At(one, 0.0F), 13.0F);
    EXPECT_EQ(link->GetOperation(), &sum);
    EXPECT_EQ(sum.GetCount(), 0);
    link->SetOperation(nullptr, false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(At(one, 0.0F), 8.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, CombinedTargetThatIsASourceAsWellIsNotWritten)
{
    link->AddTarget(&second);
    link->SetOperation(new CSum, true);
    link->Enable(true);
    first.SetValue(CConstantFunction(1.0F));
    EXPECT_EQ(At(second, 0.0F), 5.0F);
    EXPECT_EQ(At(one, 0.0F), 6.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, CombinedCurvesMayBeCombinedAgain)
{
    link->SetOperation(new CSum, true);
    link->Enable(true);
    CCaptureCurve result;
    CMultipleCaptureCurveLink next;
    next.AddSource(&one);
    next.AddSource(&first);
    next.AddTarget(&result);
    next.SetOperation(new CDifference, true);
    next.Enable(true);
    first.SetValue(CConstantFunction(1.0F));
    EXPECT_EQ(At(result, 0.0F), 5.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, CurveThatIsCombinedWithItselfThroughAnotherLinkEndsAtTheLimit)
{
    CMultipleCaptureCurveLink back;
    back.AddSource(&one);
    back.AddTarget(&second);
    back.Enable(true);
    link->SetOperation(new CSum, true);
    link->AddSource(&second);
    link->Enable(true);
    for (int i = 0; i < 100; ++i)
    {
        first.SetValue(CCountedFunction(alive, 1.0F));
        EXPECT_LE(alive, 4 * maxCombinedFunctions);
    }
    EXPECT_TRUE(std::isfinite(At(one, 0.0F)));
}

TEST_F(CMultipleCaptureCurveLinkTest, WithoutSourcesNothingIsWritten)
{
    CMultipleCaptureCurveLink empty;
    empty.AddTarget(&one);
    CEventCounter changes(one.GetValueChangedEventProvider());
    empty.Enable(true);
    empty.SetOperation(new CSum, true);
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(CMultipleCaptureCurveLinkTest, ListenerMaySetTheSourceAnewAndDestroyTheLink)
{
    link->Enable(true);
    Tests::CFunctionCommand resetting([this] { first.SetValue(CConstantFunction(9.0F)); });
    one.GetValueChangedEventProvider().Connect(resetting);
    first.SetValue(CConstantFunction(1.0F));
    EXPECT_EQ(At(one, 0.0F), 1.0F);
    EXPECT_EQ(At(two, 0.0F), 9.0F);

    Tests::CFunctionCommand destroying([this] { link.reset(); });
    one.GetValueChangedEventProvider().Disconnect(&resetting);
    one.GetValueChangedEventProvider().Connect(destroying);
    link->SetOperation(new CSum, true);
    EXPECT_EQ(link, nullptr);
    EXPECT_EQ(At(one, 0.0F), 14.0F);
    EXPECT_EQ(At(two, 0.0F), 9.0F);
}

TEST_F(CMultipleCaptureCurveLinkTest, CapturesGoThrough)
{
    link->Enable(true);
    second.BeginCapture();
    EXPECT_TRUE(one.IsCaptured() && two.IsCaptured());
    second.EndCapture();
    EXPECT_FALSE(one.IsCaptured() || two.IsCaptured());
}
