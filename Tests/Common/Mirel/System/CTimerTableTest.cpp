#include "Mirel/System/CTimerTable.h"
#include "Mirel/System/CEvent.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/CManualTickSource.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <thread>

using namespace Mirel::System;
using Tests::CFunctionCommand;
using Tests::CManualTickSource;

namespace
{

constexpr std::uint64_t millisecond = 1000000;

class CTimerTableTest : public testing::Test
{
protected:
    /// Finds and runs what is due. Returns the scan's result.
    int Pass()
    {
        const int wait = table.Scan();
        while (table.RunFirstDue())
        {
        }
        return wait;
    }

    CManualTickSource clock;
    CTimerTable table{clock};
    int runs = 0;
    CFunctionCommand command{[this] { ++runs; }};
};

} // namespace

TEST_F(CTimerTableTest, WithoutTimersThereIsNothingToWaitFor)
{
    EXPECT_EQ(table.Scan(), -1);
    EXPECT_FALSE(table.RunFirstDue());
}

TEST_F(CTimerTableTest, TimerIsDueWhenItsPeriodHasPassedAndNotBefore)
{
    table.Add(20, &command);
    EXPECT_EQ(Pass(), 20);
    EXPECT_EQ(runs, 0);

    clock.AdvanceTicks(20 * millisecond - 1);
    EXPECT_EQ(Pass(), 0); // less than a millisecond left, rounded down
    EXPECT_EQ(runs, 0);

    clock.AdvanceTicks(1);
    EXPECT_EQ(Pass(), 0);
    EXPECT_EQ(runs, 1);
}

TEST_F(CTimerTableTest, WaitIsTheTimeToTheNextTimerRoundedDown)
{
    CFunctionCommand later([] {});
    table.Add(50, &later);
    table.Add(20, &command);
    EXPECT_EQ(table.Scan(), 20);

    clock.AdvanceTicks(millisecond / 2);
    EXPECT_EQ(table.Scan(), 19);

    clock.AdvanceTicks(10 * millisecond);
    EXPECT_EQ(table.Scan(), 9);
}

TEST_F(CTimerTableTest, TellsWhatTheRoundingTookOffTheWait)
{
    table.Add(20, &command);
    EXPECT_EQ(table.Scan(), 20);
    EXPECT_EQ(table.GetRestNanoseconds(), 0);

    clock.AdvanceTicks(250'000);
    EXPECT_EQ(table.Scan(), 19);
    EXPECT_NEAR(table.GetRestNanoseconds(), 750'000, 1);

    clock.AdvanceTicks(20 * millisecond);
    EXPECT_EQ(table.Scan(), 0);
    EXPECT_EQ(table.GetRestNanoseconds(), 0);
}

TEST_F(CTimerTableTest, NextPeriodCountsFromTheStartOfTheRunAndLateTicksAreNotMadeUp)
{
    CFunctionCommand slow(
        [this]
        {
            ++runs;
            clock.AdvanceMilliseconds(4);
        });
    table.Add(20, &slow);
    clock.AdvanceMilliseconds(75); // three periods and more
    Pass();
    EXPECT_EQ(runs, 1);

    EXPECT_EQ(table.Scan(), 16); // 4 of 20 ms went by inside the command
    clock.AdvanceMilliseconds(16);
    Pass();
    EXPECT_EQ(runs, 2);
}

TEST_F(CTimerTableTest, TimeBetweenTheScanAndTheRunDoesNotCount)
{
    table.Add(20, &command);
    clock.AdvanceMilliseconds(20);
    table.Scan();
    clock.AdvanceMilliseconds(15);
    EXPECT_TRUE(table.RunFirstDue());

    EXPECT_EQ(table.Scan(), 20);
}

TEST_F(CTimerTableTest, ScanFindsATimerDueOnlyOnce)
{
    table.Add(20, &command);
    clock.AdvanceMilliseconds(20);
    EXPECT_EQ(table.Scan(), 0);
    EXPECT_EQ(table.Scan(), 0);

    EXPECT_TRUE(table.RunFirstDue());
    EXPECT_FALSE(table.RunFirstDue());
    EXPECT_EQ(runs, 1);
}

TEST_F(CTimerTableTest, AddingAgainChangesThePeriodAndRestarts)
{
    table.Add(20, &command);
    clock.AdvanceMilliseconds(15);
    table.Add(30, &command);
    EXPECT_EQ(table.Scan(), 30);

    clock.AdvanceMilliseconds(29);
    Pass();
    EXPECT_EQ(runs, 0);
    clock.AdvanceMilliseconds(1);
    Pass();
    EXPECT_EQ(runs, 1);
}

TEST_F(CTimerTableTest, AddingAgainTakesATimerThatIsDueBack)
{
    table.Add(20, &command);
    clock.AdvanceMilliseconds(20);
    table.Scan();

    table.Add(20, &command);

    EXPECT_FALSE(table.RunFirstDue());
    EXPECT_EQ(table.Scan(), 20);
}

TEST_F(CTimerTableTest, RemovedTimerDoesNotRunEvenIfItIsDue)
{
    table.Add(20, &command);
    clock.AdvanceMilliseconds(20);
    table.Scan();

    table.Remove(&command);

    EXPECT_FALSE(table.RunFirstDue());
    EXPECT_EQ(table.Scan(), -1);
    EXPECT_EQ(runs, 0);
}

TEST_F(CTimerTableTest, RemovalOfAStrangerDoesNothing)
{
    table.Add(20, &command);
    CFunctionCommand stranger([] {});

    table.Remove(&stranger);
    table.Remove(nullptr);

    EXPECT_EQ(table.Scan(), 20);
}

TEST_F(CTimerTableTest, PeriodOfZeroOrLessIsDueAtEveryScan)
{
    for (const int period : {0, -7})
    {
        runs = 0;
        table.Add(period, &command);
        EXPECT_EQ(Pass(), 0);
        EXPECT_EQ(Pass(), 0);
        EXPECT_EQ(runs, 2);
    }
}

TEST_F(CTimerTableTest, LongestPeriodFitsTheWait)
{
    table.Add(std::numeric_limits<int>::max(), &command);

    EXPECT_EQ(table.Scan(), std::numeric_limits<int>::max());
}

TEST_F(CTimerTableTest, PeriodsFollowTheRateOfTheCounter)
{
    CManualTickSource coarse({125, 3}); // 24000 ticks a millisecond
    CTimerTable other(coarse);
    other.Add(10, &command);
    EXPECT_EQ(other.Scan(), 10);

    coarse.AdvanceTicks(239999);
    other.Scan();
    EXPECT_FALSE(other.RunFirstDue());

    coarse.AdvanceTicks(1);
    other.Scan();
    EXPECT_TRUE(other.RunFirstDue());
}

TEST_F(CTimerTableTest, CommandMayRemoveAnyTimerAddNewOnesAndChangeItsOwnPeriod)
{
    CFunctionCommand added([] {});
    CFunctionCommand busy(
        [&]
        {
            table.Remove(&command);
            table.Add(5, &added);
            table.Add(40, &busy);
        });
    table.Add(20, &command);
    clock.AdvanceMilliseconds(1);
    table.Add(10, &busy);
    clock.AdvanceMilliseconds(10);

    Pass();
    EXPECT_EQ(table.Scan(), 5);
    table.Remove(&added);
    EXPECT_EQ(table.Scan(), 40);
    EXPECT_EQ(runs, 0);
}

TEST_F(CTimerTableTest, CommandThatRemovesItselfDoesNotCrash)
{
    auto self = std::make_unique<CFunctionCommand>([] {});
    auto* address = self.get();
    self = std::make_unique<CFunctionCommand>(
        [&]
        {
            ++runs;
            table.Remove(address);
        });
    address = self.get();
    table.Add(10, address);
    clock.AdvanceMilliseconds(10);

    Pass();
    clock.AdvanceMilliseconds(10);
    Pass();

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(table.Scan(), -1);
}

TEST_F(CTimerTableTest, TicksAllocateNothing)
{
    table.Add(10, &command);
    clock.AdvanceMilliseconds(10);
    Pass(); // the first one finds the list of due timers empty

    clock.AdvanceMilliseconds(10);
    const Tests::CAllocationCounter counter;
    Pass();

    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_EQ(runs, 2);
}

TEST_F(CTimerTableTest, RemovalWaitsForATickThatRunsOnAnotherThreadWhichMayUseTheTable)
{
    Tests::CThreadState remover;
    CEvent ticking(false);
    CEvent go(false);
    std::atomic<bool> ended = false;
    CFunctionCommand other([] {});
    CFunctionCommand slow(
        [&]
        {
            ticking.Set();
            go.Wait(10000);
            table.Add(10, &other); // would wait for ever if the remover held the table
            ended = true;
        });
    table.Add(10, &slow);
    clock.AdvanceMilliseconds(10);
    std::thread ticker([&] { Pass(); });
    ticking.Wait(10000);
    bool endedBeforeReturn = false;
    std::thread removing(
        [&]
        {
            remover.AboutToWait();
            table.Remove(&slow);
            endedBeforeReturn = ended;
        });
    EXPECT_TRUE(remover.WaitUntilAsleep());
    EXPECT_FALSE(ended);

    go.Set();
    removing.join();
    ticker.join();

    EXPECT_TRUE(endedBeforeReturn);
}
