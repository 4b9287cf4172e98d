#include "Mirel/DataModel/Objects/CConstCaptureCurve.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <type_traits>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantFunction;
using Tests::CCountedFunction;
using Tests::CEventCounter;

namespace
{

CCurveInfo Sample()
{
    return {CParamInfo(2, 0.0F, 1.0F, 0.0F, "x", "s", ""), CParamInfo(2, -1.0F, 1.0F, 0.5F, "y", "V", ""),
            "Curve", "A curve"};
}

} // namespace

TEST(CConstCaptureCurve, ShowsItselfForReadingAlone)
{
    CConstCaptureCurve curve(Sample());
    const IConstCaptureCurve& readable = curve;
    EXPECT_STREQ(readable.GetInfo().GetName(), "Curve");
    EXPECT_EQ(readable.GetValue()(0.25F), 0.5F);
    static_assert(!std::is_base_of_v<ICaptureCurve, CConstCaptureCurve>);
}

TEST(CConstCaptureCurve, HoldsTheVeryFunctionAndDestroysItOnlyIfOwned)
{
    int alive = 0;
    const CCountedFunction borrowed(alive, 1.0F);
    {
        CConstCaptureCurve curve;
        auto* owned = new CCountedFunction(alive, 2.0F);
        curve.SetFunction(owned, true);
        EXPECT_EQ(alive, 2);
        EXPECT_EQ(&curve.GetValue(), owned);
        curve.SetFunction(&borrowed, false);
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(&curve.GetValue(), &borrowed);
    }
    EXPECT_EQ(alive, 1);
}

TEST(CConstCaptureCurve, EveryFunctionFiresAndNullBringsTheDefaultBack)
{
    const CConstantFunction function(2.0F);
    CConstCaptureCurve curve(Sample());
    CEventCounter changes(curve.GetValueChangedEventProvider());
    curve.SetFunction(&function, false);
    curve.SetFunction(&function, false);
    EXPECT_EQ(changes.Take(), 2);
    curve.SetFunction(nullptr, false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(curve.GetValue()(0.0F), 0.5F);
}

TEST(CConstCaptureCurve, OwnerTellsThatTheFunctionEvaluatesDifferently)
{
    CConstantFunction function(2.0F);
    CConstCaptureCurve curve;
    curve.SetFunction(&function, false);
    CEventCounter changes(curve.GetValueChangedEventProvider());
    function.SetValue(3.0F);
    curve.NotifyChanged();
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(curve.GetValue()(0.0F), 3.0F);
}

TEST(CConstCaptureCurve, OwnerMayHoldItInCapture)
{
    CConstCaptureCurve curve;
    const IConstCaptureCurve& readable = curve;
    CEventCounter begins(readable.GetBeginCaptureEventProvider());
    CEventCounter ends(readable.GetEndCaptureEventProvider());
    curve.BeginCapture();
    EXPECT_TRUE(readable.IsCaptured());
    curve.EndCapture();
    EXPECT_FALSE(readable.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
}
