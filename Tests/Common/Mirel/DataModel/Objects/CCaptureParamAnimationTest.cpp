#include "Mirel/DataModel/Objects/CCaptureParamAnimation.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CManualTickSource.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CRangeParam;

namespace
{

/// A sweep of 100 ms from 10 to 20 on a clock of its own, paused.
class CCaptureParamAnimationTest : public testing::Test
{
protected:
    CCaptureParamAnimationTest()
    {
        animation.SetParam(&param);
        animation.SetDuration(100.0);
    }

    void Pass(int milliseconds)
    {
        clock.AdvanceMilliseconds(milliseconds);
        timer.Tick();
    }

    CRangeParam param{10.0f, 20.0f};
    Tests::CManualTickSource clock;
    Tests::CFakeTimerProvider timer;
    CCaptureParamAnimation animation{&timer, clock};
};

} // namespace

TEST_F(CCaptureParamAnimationTest, BeginsPaused)
{
    EXPECT_FALSE(animation.IsEnabled());
    EXPECT_TRUE(timer.periods.empty());
}

TEST_F(CCaptureParamAnimationTest, SweepsFromMinimumToMaximumAgainAndAgain)
{
    param.SetValue(15.0f);
    animation.Enable(true);
    Pass(0);
    EXPECT_FLOAT_EQ(param.GetValue(), 10.0f);
    Pass(25);
    EXPECT_FLOAT_EQ(param.GetValue(), 12.5f);
    Pass(50);
    EXPECT_FLOAT_EQ(param.GetValue(), 17.5f);
    Pass(50);
    EXPECT_FLOAT_EQ(param.GetValue(), 12.5f);
    Pass(1050);
    EXPECT_FLOAT_EQ(param.GetValue(), 17.5f);
}

TEST_F(CCaptureParamAnimationTest, APauseKeepsThePlace)
{
    animation.Enable(true);
    Pass(40);
    clock.AdvanceMilliseconds(10);
    animation.Enable(false);
    EXPECT_TRUE(timer.periods.empty());
    Pass(1000);
    EXPECT_FLOAT_EQ(param.GetValue(), 14.0f);
    animation.Enable(true);
    Pass(20);
    EXPECT_FLOAT_EQ(param.GetValue(), 17.0f);
}

TEST_F(CCaptureParamAnimationTest, AnotherDurationKeepsThePlace)
{
    animation.Enable(true);
    Pass(50);
    animation.SetDuration(1000.0);
    EXPECT_EQ(animation.GetDuration(), 1000.0);
    Pass(100);
    EXPECT_FLOAT_EQ(param.GetValue(), 16.0f);
}

TEST_F(CCaptureParamAnimationTest, AnotherParameterBeginsASweep)
{
    CRangeParam other(0.0f, 1.0f);
    animation.Enable(true);
    Pass(50);
    animation.SetParam(&other);
    EXPECT_EQ(animation.GetParam(), &other);
    Pass(10);
    EXPECT_FLOAT_EQ(other.GetValue(), 0.1f);
    EXPECT_FLOAT_EQ(param.GetValue(), 15.0f);
    animation.SetParam(nullptr);
    Pass(10);
    EXPECT_FLOAT_EQ(other.GetValue(), 0.1f);
}

TEST_F(CCaptureParamAnimationTest, WithoutADurationNothingMoves)
{
    animation.Enable(true);
    CEventCounter sets(param.GetSetEventProvider());
    for (const double duration : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
    {
        animation.SetDuration(0.0);
        animation.SetDuration(duration);
        Pass(50);
    }
    EXPECT_EQ(sets.Take(), 0);
}

TEST_F(CCaptureParamAnimationTest, ThePeriodIsThatOfItsTimer)
{
    CEventCounter switches(animation.GetEnableChangedEventProvider());
    EXPECT_EQ(animation.GetRefreshTime(), 50);
    animation.Enable(true);
    animation.SetRefreshTime(20);
    animation.Enable(true);
    animation.SetTimerProvider(nullptr);
    EXPECT_EQ(timer.trace, "+50-+20-");
    EXPECT_EQ(switches.Take(), 1);
}

TEST(CCaptureParamAnimation, DestructionEndsTheTimer)
{
    Tests::CFakeTimerProvider timer;
    {
        CCaptureParamAnimation animation(&timer);
        animation.Enable(true);
        timer.Tick();
    }
    EXPECT_TRUE(timer.periods.empty());
}
