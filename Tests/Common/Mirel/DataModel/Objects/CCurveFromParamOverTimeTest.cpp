#include "Mirel/DataModel/Objects/CCurveFromParamOverTime.h"

#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Support/AllocationCounter.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CManualTickSource.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Mirel::DataModel::Objects;
using Tests::CAllocationCounter;
using Tests::CEventCounter;
using Tests::CFakeTimerProvider;
using Tests::CManualTickSource;

namespace
{

CParamInfo Level()
{
    return {2, -100.0F, 10000.0F, -5.0F, "Level", "dB", "How loud"};
}

class CCurveFromParamOverTimeTest : public testing::Test
{
protected:
    CCurveFromParamOverTimeTest() { curve->SetDuration(2000.0F); }

    /// Sets the parameter, lets the time pass and ticks.
    void Sample(float value, int milliseconds = 50)
    {
        param.SetValue(value);
        clock.AdvanceMilliseconds(milliseconds);
        timer.Tick();
    }

    float At(float x) const { return curve->GetValue()(x); }

    CManualTickSource clock;
    CFakeTimerProvider timer;
    CCaptureParam param{Level()};
    std::unique_ptr<CCurveFromParamOverTime> curve = std::make_unique<CCurveFromParamOverTime>(&timer, clock);
};

} // namespace

TEST_F(CCurveFromParamOverTimeTest, TwoSecondsAtFiftyMillisecondsAreFortySamples)
{
    EXPECT_EQ(curve->GetCapacity(), 40);
    EXPECT_GE(curve->GetValue().GetCapacity(), 40);
    EXPECT_EQ(curve->GetValue().GetDuration(), 2.0F);
    const IConstParamInfo& x = std::as_const(*curve).GetInfo().GetXInfo();
    EXPECT_EQ(x.GetMin(), -2.0F);
    EXPECT_EQ(x.GetMax(), 0.0F);
    EXPECT_EQ(x.GetDefault(), 0.0F);
    EXPECT_EQ(x.GetType(), 2);
    EXPECT_STREQ(x.GetName(), "time");
    EXPECT_STREQ(x.GetUnit(), "s");
}

TEST_F(CCurveFromParamOverTimeTest, CapacityIsTheWholePartOfDurationByRefreshTime)
{
    struct SCase
    {
        float durationMs;
        int refreshMs;
        int samples;
    };
    for (const SCase& item : {SCase{2049.0F, 50, 40},
                              {99.0F, 50, 1},
                              {49.0F, 50, 0},
                              {5000.0F, 30, 166},
                              {600.0F, 50, 12},
                              {1000.0F, 1, 1000},
                              {60000.0F, 20, 3000}})
    {
        SCOPED_TRACE(item.durationMs);
        curve->SetDuration(item.durationMs);
        curve->SetRefreshTime(item.refreshMs);
        EXPECT_EQ(curve->GetCapacity(), item.samples);
        EXPECT_GE(curve->GetValue().GetCapacity(), item.samples);
        EXPECT_EQ(curve->GetValue().GetCapacity() & (curve->GetValue().GetCapacity() - 1), 0);
    }
}

TEST_F(CCurveFromParamOverTimeTest, BeginsRunningWithFiveSecondsAtFiftyMilliseconds)
{
    CFakeTimerProvider other;
    const CCurveFromParamOverTime fresh(&other, clock);
    EXPECT_TRUE(fresh.IsEnabled());
    EXPECT_EQ(fresh.GetRefreshTime(), 50);
    EXPECT_EQ(fresh.GetDuration(), 5000.0F);
    EXPECT_EQ(fresh.GetCapacity(), 100);
    EXPECT_EQ(fresh.GetInfo().GetXInfo().GetMin(), -5.0F);
    EXPECT_EQ(fresh.GetSource(), nullptr);
    EXPECT_EQ(fresh.GetValue()(-1.0F), 0.0F);
    EXPECT_EQ(other.trace, "+50");
}

TEST_F(CCurveFromParamOverTimeTest, GivesTheDefaultOfTheParameterEverywhereBeforeTheFirstTick)
{
    curve->SetSource(&param);
    for (const float x : {-3.0F, -2.0F, -0.01F, 0.0F, 1.0F})
    {
        EXPECT_EQ(At(x), -5.0F);
    }
}

TEST_F(CCurveFromParamOverTimeTest, EachTickEntersTheValue)
{
    curve->SetSource(&param);
    Sample(10.0F);
    EXPECT_EQ(At(0.0F), 10.0F);
    EXPECT_EQ(At(-0.05F), -5.0F);
    Sample(20.0F);
    Sample(40.0F);

    EXPECT_EQ(At(0.0F), 40.0F);
    EXPECT_NEAR(At(-0.025F), 30.0F, 1e-3F);
    EXPECT_NEAR(At(-0.05F), 20.0F, 1e-3F);
    EXPECT_NEAR(At(-0.075F), 15.0F, 1e-3F);
    EXPECT_EQ(At(-0.11F), -5.0F);
    EXPECT_EQ(At(-2.0F), -5.0F);
}

TEST_F(CCurveFromParamOverTimeTest, TimeIsMeasuredAndNotCounted)
{
    curve->SetSource(&param);
    Sample(0.0F, 10);
    Sample(100.0F, 200);
    EXPECT_NEAR(At(-0.1F), 50.0F, 1e-3F);
    EXPECT_NEAR(At(-0.15F), 25.0F, 1e-3F);
}

TEST_F(CCurveFromParamOverTimeTest, TicksOfTheClockCountByItsRate)
{
    CManualTickSource quarzClock({125, 3}); // 24 MHz
    CCurveFromParamOverTime other(&timer, quarzClock);
    other.SetSource(&param);
    for (const float value : {0.0F, 8.0F})
    {
        param.SetValue(value);
        quarzClock.AdvanceTicks(24000000);
        timer.Tick();
    }
    EXPECT_EQ(other.GetValue()(-0.5F), 4.0F);
    EXPECT_EQ(other.GetValue()(-0.25F), 6.0F);
}

TEST_F(CCurveFromParamOverTimeTest, KeepsTheWholeDuration)
{
    curve->SetSource(&param);
    for (int i = 0; i < 500; ++i)
    {
        Sample(static_cast<float>(i));
    }
    for (int back = 0; back < 40; ++back)
    {
        EXPECT_NEAR(At(static_cast<float>(back) * -0.05F), static_cast<float>(499 - back), 0.01F) << back;
    }
    EXPECT_EQ(At(-2.0F * 64.0F / 40.0F), -5.0F);
}

TEST_F(CCurveFromParamOverTimeTest, EveryTickFiresWhetherOrNotTheValueMoved)
{
    curve->SetSource(&param);
    CEventCounter changes(curve->GetValueChangedEventProvider());
    Sample(10.0F);
    Sample(10.0F);
    EXPECT_EQ(changes.Take(), 2);
    param.SetValue(20.0F);
    EXPECT_EQ(changes.Take(), 0);
    timer.Tick();
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(At(0.0F), 10.0F) << "a tick in no time enters nothing";
}

TEST_F(CCurveFromParamOverTimeTest, WithoutASourceTicksDoNothing)
{
    CEventCounter changes(curve->GetValueChangedEventProvider());
    clock.AdvanceMilliseconds(50);
    timer.Tick();
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(curve->GetValue().GetPointsCount(), 0);

    curve->SetSource(&param);
    Sample(10.0F);
    curve->SetSource(nullptr);
    EXPECT_EQ(changes.Take(), 3);
    EXPECT_EQ(At(0.0F), 0.0F);
    clock.AdvanceMilliseconds(50);
    timer.Tick();
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(CCurveFromParamOverTimeTest, AnotherSourceBeginsAnotherHistory)
{
    curve->SetSource(&param);
    Sample(10.0F);
    curve->SetSource(&param);
    EXPECT_EQ(At(0.0F), 10.0F);

    auto other = std::make_unique<CCaptureParam>(CParamInfo(1, 0.0F, 9.0F, 7.0F, "Count", "pcs", ""));
    curve->SetSource(other.get());
    EXPECT_EQ(curve->GetSource(), other.get());
    EXPECT_EQ(At(0.0F), 7.0F);
    EXPECT_STREQ(std::as_const(*curve).GetInfo().GetYInfo().GetName(), "Count");

    curve->SetSource(nullptr);
    other.reset();
    timer.Tick();
    EXPECT_EQ(At(0.0F), 0.0F);
}

TEST_F(CCurveFromParamOverTimeTest, DescriptionOfTheValuesFollowsTheParameters)
{
    curve->SetSource(&param);
    const IConstParamInfo& y = std::as_const(*curve).GetInfo().GetYInfo();
    EXPECT_STREQ(y.GetName(), "Level");
    EXPECT_STREQ(y.GetUnit(), "dB");
    EXPECT_EQ(y.GetMin(), -100.0F);
    EXPECT_EQ(y.GetMax(), 10000.0F);
    EXPECT_EQ(y.GetDefault(), -5.0F);

    CEventCounter changes(curve->GetValueChangedEventProvider());
    param.GetInfo().SetDefault(3.0F);
    EXPECT_EQ(y.GetDefault(), 3.0F);
    EXPECT_EQ(At(-1.0F), 3.0F);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CCurveFromParamOverTimeTest, OwnNameAndCommentStay)
{
    curve->GetInfo().SetName("Loudness");
    curve->GetInfo().SetComment("Over time");
    curve->SetSource(&param);
    curve->SetDuration(1000.0F);
    EXPECT_STREQ(std::as_const(*curve).GetInfo().GetName(), "Loudness");
    EXPECT_STREQ(std::as_const(*curve).GetInfo().GetComment(), "Over time");
}

TEST_F(CCurveFromParamOverTimeTest, PausedThereAreNoTicksAndTheTimeStandsStill)
{
    curve->SetSource(&param);
    Sample(10.0F);
    Sample(20.0F);
    timer.trace.clear();
    CEventCounter switches(curve->GetEnableChangedEventProvider());

    curve->Enable(false);
    curve->Enable(false);
    EXPECT_FALSE(curve->IsEnabled());
    EXPECT_TRUE(timer.periods.empty());
    EXPECT_EQ(timer.trace, "-");
    clock.AdvanceMilliseconds(60000);
    EXPECT_EQ(At(0.0F), 20.0F);
    curve->Enable(true);
    EXPECT_EQ(timer.trace, "-+50");
    EXPECT_EQ(switches.Take(), 2);
    Sample(40.0F);

    EXPECT_EQ(At(0.0F), 40.0F);
    EXPECT_NEAR(At(-0.025F), 30.0F, 1e-3F);
    EXPECT_NEAR(At(-0.05F), 20.0F, 1e-3F);
    EXPECT_NEAR(At(-0.075F), 15.0F, 1e-3F);
}

TEST_F(CCurveFromParamOverTimeTest, TickThatWasUnderWayAtThePauseEntersNothing)
{
    curve->SetSource(&param);
    Sample(10.0F);
    const auto tick = timer.periods.begin()->first;
    curve->Enable(false);
    clock.AdvanceMilliseconds(50);
    CEventCounter changes(curve->GetValueChangedEventProvider());
    tick->Execute();
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(curve->GetValue().GetPointsCount(), 1);
}

TEST_F(CCurveFromParamOverTimeTest, RefreshTimeMovesTheTimerAndTheCapacityAndKeepsTheSamples)
{
    curve->SetSource(&param);
    Sample(10.0F);
    Sample(20.0F);
    timer.trace.clear();
    curve->SetRefreshTime(10);
    curve->SetRefreshTime(10);
    EXPECT_EQ(timer.trace, "-+10");
    EXPECT_EQ(curve->GetRefreshTime(), 10);
    EXPECT_EQ(curve->GetCapacity(), 200);
    EXPECT_GE(curve->GetValue().GetCapacity(), 200);
    EXPECT_NEAR(At(-0.025F), 15.0F, 1e-3F);

    curve->Enable(false);
    curve->SetRefreshTime(20);
    EXPECT_EQ(timer.trace, "-+10-");
    curve->Enable(true);
    EXPECT_EQ(timer.trace, "-+10-+20");
}

TEST_F(CCurveFromParamOverTimeTest, ShorterDurationKeepsTheNewestSamples)
{
    curve->SetSource(&param);
    for (int i = 0; i < 64; ++i)
    {
        Sample(static_cast<float>(i));
    }
    CEventCounter changes(curve->GetValueChangedEventProvider());
    CEventCounter infoChanges(curve->GetInfo().GetChangedEventProvider());
    curve->SetDuration(200.0F);
    curve->SetDuration(200.0F);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(infoChanges.Take(), 1);
    EXPECT_EQ(std::as_const(*curve).GetInfo().GetXInfo().GetMin(), -0.2F);
    EXPECT_EQ(At(0.0F), 63.0F);
    EXPECT_NEAR(At(-0.1F), 61.0F, 0.01F);
    EXPECT_EQ(At(-1.0F), -5.0F);
}

TEST_F(CCurveFromParamOverTimeTest, OddDurationsAndRefreshTimesAreHarmless)
{
    curve->SetSource(&param);
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float duration : {-1.0F, 0.0F, 1e30F, infinity, -infinity})
    {
        for (const int refresh : {0, -50, std::numeric_limits<int>::max(), 50})
        {
            SCOPED_TRACE(testing::Message() << duration << " " << refresh);
            curve->SetRefreshTime(refresh);
            curve->SetDuration(duration);
            EXPECT_GE(curve->GetCapacity(), 0);
            EXPECT_LE(curve->GetCapacity(), 1 << 18U);
            EXPECT_LE(curve->GetValue().GetCapacity(), 1 << 18U);
            Sample(10.0F);
            EXPECT_EQ(At(0.0F), 10.0F);
        }
    }
    curve->SetDuration(2000.0F);
    curve->SetDuration(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(curve->GetDuration(), 2000.0F);
}

TEST_F(CCurveFromParamOverTimeTest, StaysFineAfterWeeks)
{
    curve->SetRefreshTime(10);
    curve->SetSource(&param);
    for (int day = 0; day < 30; ++day)
    {
        clock.AdvanceTicks(86400ULL * 1000000000ULL);
        Sample(1000.0F, 0);
    }
    for (int i = 0; i < 200; ++i)
    {
        Sample(static_cast<float>(i), 10);
    }
    for (int back = 0; back < 200; ++back)
    {
        EXPECT_NEAR(At(static_cast<float>(back) * -0.01F), static_cast<float>(199 - back), 0.05F) << back;
    }
}

TEST_F(CCurveFromParamOverTimeTest, TicksAllocateNothing)
{
    curve->SetSource(&param);
    Sample(1.0F);
    const CAllocationCounter counter;
    for (int i = 0; i < 100; ++i)
    {
        param.SetValue(static_cast<float>(i));
        clock.AdvanceMilliseconds(50);
        timer.periods.begin()->first->Execute();
        curve->GetValue()(-0.3F);
    }
    EXPECT_EQ(counter.GetCount(), 0U);
}

TEST_F(CCurveFromParamOverTimeTest, CloneKeepsThePictureOfItsMoment)
{
    curve->SetSource(&param);
    Sample(10.0F);
    Sample(20.0F);
    const std::unique_ptr<const Mirel::Math::IFunction> clone(curve->GetValue().Clone());
    Sample(30.0F);
    curve.reset();
    EXPECT_EQ((*clone)(0.0F), 20.0F);
    EXPECT_NEAR((*clone)(-0.025F), 15.0F, 1e-3F);
}

TEST_F(CCurveFromParamOverTimeTest, LeavesNoTimerAndNoConnectionBehind)
{
    curve->SetSource(&param);
    curve.reset();
    EXPECT_TRUE(timer.periods.empty());
    param.GetInfo().SetDefault(3.0F);
    Sample(10.0F);
}

TEST_F(CCurveFromParamOverTimeTest, WithoutATimerNothingTicksUntilThereIsOne)
{
    CCurveFromParamOverTime other(nullptr, clock);
    other.SetSource(&param);
    other.Enable(false);
    other.Enable(true);
    other.SetTimerProvider(&timer);
    Sample(10.0F);
    EXPECT_EQ(other.GetValue()(0.0F), 10.0F);
}

TEST_F(CCurveFromParamOverTimeTest, IsForReadingAlone)
{
    static_assert(!std::is_base_of_v<ICaptureCurve, CCurveFromParamOverTime>);
    const IConstCaptureCurve& readable = *curve;
    curve->SetSource(&param);
    Sample(10.0F);
    EXPECT_EQ(readable.GetValue()(0.0F), 10.0F);
    EXPECT_STREQ(readable.GetInfo().GetXInfo().GetName(), "time");
    param.BeginCapture();
    EXPECT_FALSE(readable.IsCaptured());
}

namespace
{

struct SSample
{
    double time;
    double value;
};

/// Straight lines between the recorded samples, by a walk over all of them; the default from the oldest
/// sample's time on backwards.
double Interpolate(const std::vector<SSample>& samples, double time, double defaultValue)
{
    for (std::size_t i = 1; i < samples.size(); ++i)
    {
        const SSample& a = samples[i - 1];
        const SSample& b = samples[i];
        if (time > a.time && time <= b.time)
        {
            return a.value + (b.value - a.value) * (time - a.time) / (b.time - a.time);
        }
    }
    return defaultValue;
}

} // namespace

RC_GTEST_PROP(CCurveFromParamOverTime, EqualsAnInterpolationOfWhatItHasSampled, ())
{
    CManualTickSource clock({1953125, 2}); // 1024 ticks a second: a float holds them exactly
    CFakeTimerProvider timer;
    CCaptureParam param(Level());
    CCurveFromParamOverTime curve(&timer, clock);
    const int refreshMs = *rc::gen::inRange(10, 100);
    const int samplesWanted = *rc::gen::inRange(1, 60);
    curve.SetRefreshTime(refreshMs);
    curve.SetDuration(static_cast<float>(refreshMs * samplesWanted));
    RC_ASSERT(curve.GetCapacity() == samplesWanted);
    curve.SetSource(&param);

    std::vector<SSample> samples;
    std::uint64_t now = 0;
    const int count = *rc::gen::inRange(2, 150);
    for (int i = 0; i < count; ++i)
    {
        if (*rc::gen::inRange(0, 10) == 0)
        {
            curve.Enable(false);
            clock.AdvanceTicks(*rc::gen::inRange<std::uint64_t>(0, 5000));
            curve.Enable(true);
        }
        const auto step = *rc::gen::inRange<std::uint64_t>(1, 300);
        const float value = static_cast<float>(*rc::gen::inRange(-800, 800)) / 8.0F;
        param.SetValue(value);
        clock.AdvanceTicks(step);
        timer.Tick();
        now += step;
        samples.push_back({static_cast<double>(now) / 1024.0, static_cast<double>(value)});
    }

    const double newest = samples.back().time;
    // The ring has at least what the duration needs; how much more it keeps of the past is its own affair.
    const auto room = static_cast<std::size_t>(curve.GetValue().GetCapacity());
    RC_ASSERT(room >= static_cast<std::size_t>(samplesWanted));
    if (samples.size() > room)
    {
        samples.erase(samples.begin(), samples.end() - static_cast<std::ptrdiff_t>(room));
    }
    const double span = newest - samples.front().time;
    for (int i = 1; i <= 200; ++i)
    {
        const double offset = -std::floor(span * 1.1 * 2048.0 * i / 200.0 + 1.0) / 2048.0;
        const double wanted = Interpolate(samples, newest + offset, -5.0);
        const auto found = static_cast<double>(curve.GetValue()(static_cast<float>(offset)));
        RC_ASSERT(std::abs(found - wanted) <= 1e-3);
    }
    RC_ASSERT(static_cast<double>(curve.GetValue()(0.0F)) == samples.back().value);
}
