#include "Mirel/DataModel/Objects/CCaptureParamTimeLink.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"
#include "Support/CManualTickSource.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;
using Tests::CRangeParam;

namespace
{

/// A link of 100 ms between two parameters from 0 to 10, on a clock of its own.
class CCaptureParamTimeLinkTest : public testing::Test
{
protected:
    CCaptureParamTimeLinkTest()
    {
        link->SetSource(&source);
        link->SetTarget(&target);
        link->SetDuration(100.0);
        link->Enable(true);
    }

    void Pass(int milliseconds)
    {
        clock.AdvanceMilliseconds(milliseconds);
        timer.Tick();
    }

    CRangeParam source{0.0f, 20.0f};
    CRangeParam target{0.0f, 10.0f};
    Tests::CManualTickSource clock;
    Tests::CFakeTimerProvider timer;
    std::unique_ptr<CCaptureParamTimeLink> link = std::make_unique<CCaptureParamTimeLink>(&timer, clock);
};

} // namespace

TEST_F(CCaptureParamTimeLinkTest, GlidesInAStraightLine)
{
    source.SetValue(8.0f);
    EXPECT_EQ(target.GetValue(), 0.0f);
    EXPECT_TRUE(link->IsRunning());
    Pass(25);
    EXPECT_EQ(target.GetValue(), 2.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 6.0f);
    Pass(500);
    EXPECT_EQ(target.GetValue(), 8.0f);
    EXPECT_FALSE(link->IsRunning());
}

TEST_F(CCaptureParamTimeLinkTest, NothingIsWrittenOnceItHasArrived)
{
    source.SetValue(8.0f);
    Pass(100);
    CEventCounter writes(target.GetSetEventProvider());
    Pass(50);
    EXPECT_EQ(writes.Take(), 0);
    target.SetValue(3.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 3.0f);
}

TEST_F(CCaptureParamTimeLinkTest, EndsWhenAnotherHasTakenTheTargetThere)
{
    source.SetValue(8.0f);
    Pass(25);
    target.SetValue(8.0f);
    Pass(25);
    EXPECT_EQ(target.GetValue(), 8.0f);
    EXPECT_FALSE(link->IsRunning());
}

TEST_F(CCaptureParamTimeLinkTest, AChangeOfTheSourceBeginsAnewFromWhereTheTargetIs)
{
    source.SetValue(8.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 4.0f);
    source.SetValue(2.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 3.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 2.0f);
}

TEST_F(CCaptureParamTimeLinkTest, TheEndIsClampedToTheTargetsRange)
{
    source.SetValue(20.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 5.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 10.0f);
    source.SetValue(15.0f);
    EXPECT_FALSE(link->IsRunning());
}

TEST_F(CCaptureParamTimeLinkTest, ArrivesExactlyWhereRoundingWouldMissIt)
{
    CRangeParam wide(-1e8f, 1e8f, 1e8f);
    link->SetTarget(&wide);
    link->SetDuration(10.0);
    source.SetValue(1.0f);
    Pass(10);
    EXPECT_EQ(wide.GetValue(), 1.0f);
    EXPECT_FALSE(link->IsRunning());
    link->SetTarget(nullptr);
}

TEST_F(CCaptureParamTimeLinkTest, WithoutDurationItJumpsAtOnce)
{
    for (const double duration : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()})
    {
        link->SetDuration(0.0);
        link->SetDuration(duration);
        source.SetValue(0.0f);
        source.SetValue(8.0f);
        EXPECT_EQ(target.GetValue(), 8.0f) << duration;
        EXPECT_FALSE(link->IsRunning());
        EXPECT_FALSE(target.IsCaptured());
    }
}

TEST_F(CCaptureParamTimeLinkTest, ADurationThatChangesHoldsForTheGlideUnderWay)
{
    source.SetValue(8.0f);
    Pass(25);
    link->SetDuration(50.0);
    Pass(0);
    EXPECT_EQ(target.GetValue(), 4.0f);
    link->SetDuration(0.0);
    Pass(0);
    EXPECT_EQ(target.GetValue(), 8.0f);
}

TEST_F(CCaptureParamTimeLinkTest, AGlideHoldsTheTargetInACapture)
{
    CEventCounter begins(target.GetBeginCaptureEventProvider());
    source.SetValue(8.0f);
    EXPECT_TRUE(target.IsCaptured());
    Pass(50);
    source.SetValue(6.0f);
    Pass(50);
    EXPECT_TRUE(target.IsCaptured());
    Pass(50);
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
}

TEST_F(CCaptureParamTimeLinkTest, ACaptureOfAnotherOutlivesTheGlide)
{
    target.BeginCapture();
    source.SetValue(8.0f);
    Pass(100);
    EXPECT_TRUE(target.IsCaptured());
    target.EndCapture();

    // Also one that came from the source while the glide had begun its own.
    source.SetValue(2.0f);
    source.BeginCapture();
    Pass(100);
    EXPECT_TRUE(target.IsCaptured());
    source.EndCapture();
    EXPECT_FALSE(target.IsCaptured());
}

TEST_F(CCaptureParamTimeLinkTest, ACaptureThatTheSourceEndsIsKeptToTheEndOfTheGlide)
{
    source.BeginCapture();
    source.SetValue(8.0f);
    source.EndCapture();
    EXPECT_TRUE(target.IsCaptured());
    Pass(50);
    EXPECT_TRUE(target.IsCaptured());
    Pass(50);
    EXPECT_FALSE(target.IsCaptured());
}

TEST_F(CCaptureParamTimeLinkTest, DisablingStopsTheGlideAndItsTimer)
{
    source.SetValue(8.0f);
    Pass(50);
    link->Enable(false);
    EXPECT_FALSE(link->IsRunning());
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_TRUE(timer.periods.empty());
    Pass(50);
    EXPECT_EQ(target.GetValue(), 4.0f);
    link->Enable(true);
    Pass(100);
    EXPECT_EQ(target.GetValue(), 8.0f);
}

TEST_F(CCaptureParamTimeLinkTest, AnOnModifyLinkDoesNotGlideOnEnabling)
{
    link->Enable(false);
    link->SetOnModifyOnly(true);
    source.SetValue(8.0f);
    link->Enable(true);
    EXPECT_FALSE(link->IsRunning());
    source.SetValue(4.0f);
    EXPECT_TRUE(link->IsRunning());
}

TEST_F(CCaptureParamTimeLinkTest, TheRefreshTimeRegistersAnew)
{
    CEventCounter changes(link->GetChangedEventProvider());
    EXPECT_EQ(link->GetRefreshTime(), 50);
    link->SetRefreshTime(20);
    link->SetRefreshTime(20);
    EXPECT_EQ(link->GetRefreshTime(), 20);
    EXPECT_EQ(timer.trace, "+50-+20");
    link->SetDuration(100.0);
    EXPECT_EQ(changes.Take(), 1);
    link->SetDuration(50.0);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CCaptureParamTimeLinkTest, IsInertWithoutATimerOrAnObject)
{
    link->SetTimerProvider(nullptr);
    EXPECT_TRUE(timer.periods.empty());
    source.SetValue(8.0f);
    EXPECT_FALSE(link->IsRunning());
    EXPECT_FALSE(target.IsCaptured());
    link->SetTimerProvider(&timer);
    link->SetTarget(nullptr);
    source.SetValue(4.0f);
    EXPECT_FALSE(link->IsRunning());
    link->SetSource(nullptr);
    link->Update();
    EXPECT_TRUE(timer.periods.empty());
    EXPECT_EQ(target.GetValue(), 0.0f);
}

TEST_F(CCaptureParamTimeLinkTest, DestructionEndsEverything)
{
    source.SetValue(8.0f);
    link.reset();
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_TRUE(timer.periods.empty());

    link = std::make_unique<CCaptureParamTimeLink>(&timer, clock);
    link->SetSource(&source);
    link->SetTarget(&target);
    link->SetDuration(100.0);
    source.BeginCapture();
    link->Enable(true);
    EXPECT_TRUE(target.IsCaptured());
    link.reset();
    EXPECT_FALSE(target.IsCaptured());
}

TEST_F(CCaptureParamTimeLinkTest, AListenerOfTheTargetMayDestroyTheLink)
{
    for (Mirel::Core::IEventProvider* event :
         {&target.GetBeginCaptureEventProvider(), &target.GetValueChangedEventProvider(),
          &target.GetEndCaptureEventProvider()})
    {
        link = std::make_unique<CCaptureParamTimeLink>(nullptr, clock);
        link->SetSource(&source);
        link->SetTarget(&target);
        link->Enable(true);
        CFunctionCommand destroy([this] { link.reset(); });
        event->Connect(destroy);
        source.SetValue(source.GetValue() > 4.0f ? 2.0f : 8.0f);
        EXPECT_EQ(link, nullptr);
        EXPECT_FALSE(target.IsCaptured());
        event->Disconnect(&destroy);
    }
}

TEST_F(CCaptureParamTimeLinkTest, AGlideThatTheArrivalBeginsRuns)
{
    CFunctionCommand turn(
        [this]
        {
            if (target.GetValue() >= 8.0f)
            {
                source.SetValue(0.0f);
            }
        });
    target.GetValueChangedEventProvider().Connect(turn);
    source.SetValue(8.0f);
    Pass(100);
    EXPECT_TRUE(link->IsRunning());
    Pass(50);
    EXPECT_EQ(target.GetValue(), 4.0f);
    Pass(50);
    EXPECT_EQ(target.GetValue(), 0.0f);
    EXPECT_FALSE(link->IsRunning());
    EXPECT_FALSE(target.IsCaptured());
    target.GetValueChangedEventProvider().Disconnect(&turn);
}
