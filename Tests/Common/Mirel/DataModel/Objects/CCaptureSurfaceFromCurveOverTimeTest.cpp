#include "Mirel/DataModel/Objects/CCaptureSurfaceFromCurveOverTime.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/Limits.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TFunction.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CManualTickSource.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantFunction;
using Tests::CCountedFunction;
using Tests::CEventCounter;
using Tests::CFakeTimerProvider;
using Tests::CManualTickSource;

namespace
{

using CSquare = Mirel::Math::TFunction<Mirel::Math::FunctionsLibrary::Square>;
using CNegate = Mirel::Math::TFunction<Mirel::Math::FunctionsLibrary::Negate>;

CCurveInfo Spectrum()
{
    return {CParamInfo(2, 20.0F, 20000.0F, 1000.0F, "Frequency", "Hz", ""),
            CParamInfo(2, -100.0F, 0.0F, -60.0F, "Level", "dB", ""), "Spectrum", ""};
}

class CCaptureSurfaceFromCurveOverTimeTest : public testing::Test
{
protected:
    CCaptureSurfaceFromCurveOverTimeTest() { surface->SetDuration(2000.0F); }

    void Tick(int milliseconds = 50)
    {
        clock.AdvanceMilliseconds(milliseconds);
        timer.Tick();
    }

    float At(float time, float x) const { return surface->GetValue()(time, x); }

    int alive = 0; ///< Outlives the clones that count in it.
    CManualTickSource clock;
    CFakeTimerProvider timer;
    CCaptureCurve curve{Spectrum()};
    std::unique_ptr<CCaptureSurfaceFromCurveOverTime> surface =
        std::make_unique<CCaptureSurfaceFromCurveOverTime>(&timer, clock);
};

} // namespace

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, AxesAreTimeAndThoseOfTheCurve)
{
    surface->SetSource(&curve);
    const CSurfaceInfo& info = std::as_const(*surface).GetInfo();
    EXPECT_EQ(surface->GetCapacity(), 40);
    EXPECT_GE(surface->GetValue().GetCapacity(), 40);
    EXPECT_STREQ(info.GetXInfo().GetName(), "time");
    EXPECT_STREQ(info.GetXInfo().GetUnit(), "s");
    EXPECT_EQ(info.GetXInfo().GetMin(), -2.0F);
    EXPECT_EQ(info.GetXInfo().GetMax(), 0.0F);
    EXPECT_STREQ(info.GetYInfo().GetName(), "Frequency");
    EXPECT_EQ(info.GetYInfo().GetMax(), 20000.0F);
    EXPECT_STREQ(info.GetZInfo().GetName(), "Level");
    EXPECT_EQ(info.GetZInfo().GetMin(), -100.0F);

    curve.GetInfo().GetXInfo().SetMax(24000.0F);
    curve.GetInfo().GetYInfo().SetUnit("dBFS");
    EXPECT_EQ(info.GetYInfo().GetMax(), 24000.0F);
    EXPECT_STREQ(info.GetZInfo().GetUnit(), "dBFS");
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, GivesTheDefaultOfTheCurveEverywhereBeforeTheFirstTick)
{
    EXPECT_EQ(At(0.0F, 3.0F), 0.0F);
    curve.SetValue(CSquare());
    surface->SetSource(&curve);
    EXPECT_EQ(At(0.0F, 3.0F), -60.0F);
    EXPECT_EQ(At(-1.0F, 3.0F), -60.0F);

    const CNegate shape;
    curve.GetInfo().SetDefaultFunction(&shape);
    EXPECT_EQ(At(-1.0F, 3.0F), -3.0F);
    surface->SetSource(nullptr);
    EXPECT_EQ(At(-1.0F, 3.0F), 0.0F);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, DefaultOutlivesTheOneOfTheDescription)
{
    auto shape = std::make_unique<CNegate>();
    curve.GetInfo().SetDefaultFunction(shape.get());
    surface->SetSource(&curve);
    Tick();
    shape.reset();
    EXPECT_EQ(At(-1.0F, 3.0F), -3.0F);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, RunsStraightFromOneCurveToTheNext)
{
    surface->SetSource(&curve);
    CEventCounter changes(surface->GetValueChangedEventProvider());
    curve.SetValue(CSquare());
    Tick();
    EXPECT_EQ(At(0.0F, 3.0F), 9.0F);
    EXPECT_EQ(At(-0.02F, 3.0F), -60.0F);
    curve.SetValue(CNegate());
    Tick();

    EXPECT_EQ(changes.Take(), 2);
    EXPECT_EQ(At(0.0F, 3.0F), -3.0F);
    EXPECT_NEAR(At(-0.025F, 3.0F), (9.0F - 3.0F) / 2.0F, 1e-3F);
    EXPECT_NEAR(At(-0.0125F, 2.0F), 4.0F * 0.25F - 2.0F * 0.75F, 1e-3F);
    EXPECT_EQ(At(-0.06F, 3.0F), -60.0F);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, EachTickEntersAClone)
{
    surface->SetSource(&curve);
    curve.SetValue(CCountedFunction(alive, 1.0F));
    Tick();
    Tick();
    Tick();
    EXPECT_EQ(alive, 4);
    curve.SetValue(CConstantFunction(2.0F));
    EXPECT_EQ(alive, 3);
    EXPECT_EQ(At(0.0F, 0.0F), 1.0F);
    for (int i = 0; i < 64; ++i)
    {
        Tick();
    }
    EXPECT_EQ(alive, 0);
    curve.SetValue(CCountedFunction(alive, 1.0F));
    Tick();
    surface->SetSource(nullptr);
    EXPECT_EQ(alive, 1);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, PausedThereAreNoTicksAndTheTimeStandsStill)
{
    surface->SetSource(&curve);
    curve.SetValue(CConstantFunction(10.0F));
    Tick();
    surface->Enable(false);
    EXPECT_TRUE(timer.periods.empty());
    clock.AdvanceMilliseconds(60000);
    surface->Enable(true);
    curve.SetValue(CConstantFunction(20.0F));
    Tick();
    EXPECT_NEAR(At(-0.025F, 0.0F), 15.0F, 1e-3F);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, WithoutASourceTicksDoNothing)
{
    CEventCounter changes(surface->GetValueChangedEventProvider());
    Tick();
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(surface->GetValue().GetPointsCount(), 0);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, StaysFineAfterWeeks)
{
    surface->SetSource(&curve);
    clock.AdvanceTicks(30ULL * 86400ULL * 1000000000ULL);
    for (int i = -1; i < 40; ++i)
    {
        curve.SetValue(CConstantFunction(static_cast<float>(i)));
        Tick();
    }
    for (int back = 0; back < 40; ++back)
    {
        EXPECT_NEAR(At(static_cast<float>(back) * -0.05F, 0.0F), static_cast<float>(39 - back), 0.02F);
    }
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, KeepsNoMoreCurvesThanTheLimit)
{
    surface->SetDuration(1e12F);
    EXPECT_EQ(surface->GetCapacity(), maxCurvesOverTime);
    EXPECT_EQ(surface->GetValue().GetCapacity(), maxCurvesOverTime);
}

TEST_F(CCaptureSurfaceFromCurveOverTimeTest, LeavesNoTimerAndNoConnectionBehind)
{
    surface->SetSource(&curve);
    surface.reset();
    EXPECT_TRUE(timer.periods.empty());
    curve.GetInfo().GetYInfo().SetDefault(-10.0F);
    Tick();
}
