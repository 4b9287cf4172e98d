#include "Mirel/DataModel/Objects/CCaptureCurveValueParam.h"

#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TFunction.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantFunction;
using Tests::CEventCounter;

namespace
{

using CSquare = Mirel::Math::TFunction<Mirel::Math::FunctionsLibrary::Square>;
using CNegate = Mirel::Math::TFunction<Mirel::Math::FunctionsLibrary::Negate>;

CCurveInfo Parabola()
{
    return {CParamInfo(2, 0.0F, 10.0F, 0.0F, "x", "s", ""), CParamInfo(2, 0.0F, 50.0F, 0.0F, "y", "V", ""),
            "Curve", ""};
}

class CCaptureCurveValueParamTest : public testing::Test
{
protected:
    CCaptureCurveValueParamTest()
    {
        curve.SetValue(CSquare());
        x.SetValue(3.0F);
    }

    void Connect()
    {
        value.SetCurve(&curve);
        value.SetX(&x);
    }

    CCaptureCurve curve{Parabola()};
    CCaptureParam x{CParamInfo(2, 0.0F, 10.0F, 0.0F, "X", "s", "")};
    CCaptureCurveValueParam value;
};

} // namespace

TEST_F(CCaptureCurveValueParamTest, IsTheCurveWhereTheParameterStands)
{
    Connect();
    EXPECT_EQ(value.GetValue(), 9.0F);
    EXPECT_EQ(value.GetCurve(), &curve);
    EXPECT_EQ(value.GetX(), &x);
}

TEST_F(CCaptureCurveValueParamTest, FollowsTheParameterAndTheCurve)
{
    Connect();
    CEventCounter changes(value.GetValueChangedEventProvider());
    x.SetValue(5.0F);
    EXPECT_EQ(value.GetValue(), 25.0F);
    EXPECT_EQ(changes.Take(), 1);
    curve.SetValue(CConstantFunction(7.0F));
    EXPECT_EQ(value.GetValue(), 7.0F);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CCaptureCurveValueParamTest, FiresTheSetOnEveryInputAndTheChangeOnlyOnAnotherValue)
{
    Connect();
    CEventCounter changes(value.GetValueChangedEventProvider());
    CEventCounter sets(value.GetSetEventProvider());
    curve.SetValue(CSquare());
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(sets.Take(), 1);
}

TEST_F(CCaptureCurveValueParamTest, ClampsToTheDescriptionOfTheCurvesValues)
{
    Connect();
    x.SetValue(10.0F);
    EXPECT_EQ(value.GetValue(), 50.0F);
    curve.SetValue(CNegate());
    EXPECT_EQ(value.GetValue(), 0.0F);
}

TEST_F(CCaptureCurveValueParamTest, DescriptionFollowsThatOfTheCurvesValues)
{
    Connect();
    EXPECT_STREQ(value.GetInfo().GetName(), "y");
    EXPECT_STREQ(value.GetInfo().GetUnit(), "V");
    x.SetValue(10.0F);
    curve.GetInfo().GetYInfo().SetMax(200.0F);
    EXPECT_EQ(value.GetInfo().GetMax(), 200.0F);
    EXPECT_EQ(value.GetValue(), 100.0F);
}

TEST_F(CCaptureCurveValueParamTest, KeepsItsValueWhileAnInputIsMissing)
{
    EXPECT_EQ(value.GetValue(), 0.0F);
    value.SetX(&x);
    EXPECT_EQ(value.GetValue(), 0.0F);
    value.SetCurve(&curve);
    EXPECT_EQ(value.GetValue(), 9.0F);
    value.SetX(nullptr);
    x.SetValue(5.0F);
    curve.SetValue(CConstantFunction(7.0F));
    EXPECT_EQ(value.GetValue(), 9.0F);
    value.SetX(&x);
    EXPECT_EQ(value.GetValue(), 7.0F);
    value.SetCurve(nullptr);
    curve.SetValue(CConstantFunction(8.0F));
    curve.GetInfo().GetYInfo().SetMax(5.0F);
    EXPECT_EQ(value.GetValue(), 7.0F);
}

TEST_F(CCaptureCurveValueParamTest, AnotherCurveIsReadAtOnceAndTheFirstNoMore)
{
    Connect();
    auto other = std::make_unique<CCaptureCurve>(Parabola());
    other->SetValue(CConstantFunction(4.0F));
    CEventCounter sets(value.GetSetEventProvider());
    value.SetCurve(other.get());
    EXPECT_EQ(value.GetValue(), 4.0F);
    EXPECT_EQ(sets.Take(), 1);
    curve.SetValue(CSquare());
    value.SetCurve(other.get());
    EXPECT_EQ(sets.Take(), 0);

    value.SetCurve(&curve);
    other.reset();
    EXPECT_EQ(value.GetValue(), 9.0F);
}

TEST_F(CCaptureCurveValueParamTest, LeavesNoConnectionBehind)
{
    {
        CCaptureCurveValueParam shortLived;
        shortLived.SetCurve(&curve);
        shortLived.SetX(&x);
    }
    x.SetValue(1.0F);
    curve.SetValue(CSquare());
    curve.GetInfo().GetYInfo().SetMax(5.0F);
    EXPECT_EQ(x.GetValue(), 1.0F);
}

TEST_F(CCaptureCurveValueParamTest, IsForReadingAlone)
{
    const IConstCaptureParam& readable = value;
    EXPECT_FALSE(readable.IsCaptured());
    static_assert(!std::is_base_of_v<ICaptureParam, CCaptureCurveValueParam>);
    CEventCounter begins(readable.GetBeginCaptureEventProvider());
    CEventCounter ends(readable.GetEndCaptureEventProvider());
    Connect();
    x.BeginCapture();
    x.EndCapture();
    EXPECT_EQ(begins.Take() + ends.Take(), 0);
}
