#include "Mirel/DataModel/Objects/CCaptureCurve.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantFunction;
using Tests::CCountedFunction;
using Tests::CEventCounter;
using Tests::CFunctionCommand;

namespace
{

CCurveInfo Sample()
{
    return {CParamInfo(2, 0.0F, 1.0F, 0.0F, "x", "s", ""), CParamInfo(2, -1.0F, 1.0F, 0.5F, "y", "V", ""),
            "Curve", "A curve"};
}

} // namespace

TEST(CCaptureCurve, TakesACopyOfTheDescription)
{
    CCurveInfo info = Sample();
    const CCaptureCurve curve(info);
    info.SetName("other");

    const IConstCaptureCurve& readable = curve;
    EXPECT_STREQ(readable.GetInfo().GetName(), "Curve");
    EXPECT_STREQ(readable.GetInfo().GetXInfo().GetName(), "x");
    EXPECT_STREQ(readable.GetInfo().GetYInfo().GetUnit(), "V");
}

TEST(CCaptureCurve, BeginsWithTheDefaultFunctionOfTheDescription)
{
    CCaptureCurve curve(Sample());
    EXPECT_EQ(curve.GetValue()(0.25F), 0.5F);
    curve.GetInfo().GetYInfo().SetDefault(-1.0F);
    EXPECT_EQ(curve.GetValue()(0.25F), -1.0F);
    EXPECT_EQ(CCaptureCurve().GetValue()(3.0F), 0.0F);
    EXPECT_FALSE(curve.IsCaptured());
}

TEST(CCaptureCurve, HoldsACloneAndDestroysItInTheEnd)
{
    int alive = 0;
    {
        CCaptureCurve curve;
        {
            const CCountedFunction function(alive, 2.0F);
            curve.SetValue(function);
            EXPECT_EQ(alive, 2);
            EXPECT_NE(&curve.GetValue(), &function);
        }
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(curve.GetValue()(7.0F), 2.0F);

        curve.SetValue(CConstantFunction(3.0F));
        EXPECT_EQ(alive, 0);
        EXPECT_EQ(curve.GetValue()(7.0F), 3.0F);
        curve.SetValue(CCountedFunction(alive, 4.0F));
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CCaptureCurve, SetOfTheSameFunctionFiresAllTheSame)
{
    const CConstantFunction function(2.0F);
    CCaptureCurve curve;
    CEventCounter changes(curve.GetValueChangedEventProvider());
    curve.SetValue(function);
    EXPECT_EQ(changes.Take(), 1);
    curve.SetValue(function);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CCaptureCurve, CanBeSetToItsOwnFunction)
{
    CCaptureCurve curve(Sample());
    curve.SetValue(curve.GetValue());
    curve.GetInfo().GetYInfo().SetDefault(-1.0F);
    EXPECT_EQ(curve.GetValue()(0.0F), 0.5F);
    curve.SetValue(curve.GetValue());
    EXPECT_EQ(curve.GetValue()(0.0F), 0.5F);
}

TEST(CCaptureCurve, ListenerReadsTheNewFunctionAndMaySetAnother)
{
    CCaptureCurve curve;
    float seen = 0.0F;
    CFunctionCommand listener(
        [&]
        {
            seen = curve.GetValue()(0.0F);
            curve.SetValue(CConstantFunction(5.0F));
        });
    curve.GetValueChangedEventProvider().Connect(listener);

    curve.SetValue(CConstantFunction(2.0F));

    EXPECT_EQ(seen, 2.0F);
    EXPECT_EQ(curve.GetValue()(0.0F), 5.0F);
}

TEST(CCaptureCurve, CapturesBeginAndEndOnce)
{
    CCaptureCurve curve;
    ICaptureCurve& writable = curve;
    CEventCounter begins(writable.GetBeginCaptureEventProvider());
    CEventCounter ends(writable.GetEndCaptureEventProvider());
    CEventCounter changes(writable.GetValueChangedEventProvider());

    writable.EndCapture();
    EXPECT_EQ(ends.Take(), 0);
    writable.BeginCapture();
    writable.BeginCapture();
    EXPECT_TRUE(writable.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    writable.EndCapture();
    EXPECT_FALSE(writable.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
    EXPECT_EQ(changes.Take(), 0);
}
