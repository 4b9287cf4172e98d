#include "Mirel/System/CTimerWithThreadSynchronization.h"
#include "Mirel/System/CTimerSerializer.h"
#include "Support/AllocationCounter.h"
#include "Support/CFakeThreadInvoker.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel;
using namespace Mirel::System;
using Tests::CFakeThreadInvoker;
using Tests::CFakeTimerProvider;
using Tests::CFunctionCommand;

namespace
{

/// Takes commands and loses them, without allocating.
class CLosingInvoker : public IThreadInvoker
{
public:
    bool Invoke(Core::ICommand* command, bool owned) override { return InvokeAsync(command, owned); }
    bool InvokeAsync(Core::ICommand* command, bool owned) override
    {
        ++posted;
        const Core::TOwnership<Core::ICommand> lost(command, owned);
        return false;
    }
    int posted = 0;
};

class CTimerWithThreadSynchronizationTest : public testing::Test
{
protected:
    void Remove(Core::ICommand& removed)
    {
        Core::ICommand* pointer = &removed;
        timer->RemoveTimer(pointer, false);
    }

    CFakeTimerProvider ticking;
    CFakeThreadInvoker target;
    std::unique_ptr<CTimerWithThreadSynchronization> timer =
        std::make_unique<CTimerWithThreadSynchronization>(&ticking, &target);
    int runs = 0;
    CFunctionCommand command{[this] { ++runs; }};
};

} // namespace

TEST_F(CTimerWithThreadSynchronizationTest, TickPostsTheCommandWhichRunsOnTheTarget)
{
    timer->AddTimer(20, &command);
    EXPECT_EQ(ticking.trace, "+20");

    ticking.Tick();
    EXPECT_EQ(target.posted, 1);
    EXPECT_EQ(runs, 0);

    target.RunAll();
    EXPECT_EQ(runs, 1);
}

TEST_F(CTimerWithThreadSynchronizationTest, AtMostOneCallIsInFlightPerTimer)
{
    CFunctionCommand other([] {});
    timer->AddTimer(20, &command);
    timer->AddTimer(20, &other);

    ticking.Tick(5);
    EXPECT_EQ(target.posted, 2);

    target.RunAll();
    ticking.Tick();
    EXPECT_EQ(target.posted, 4);
}

TEST_F(CTimerWithThreadSynchronizationTest, CallThatNeverRunsIsPostedAgainAtTheSeventeenthTick)
{
    timer->AddTimer(20, &command);
    ticking.Tick();
    EXPECT_EQ(target.posted, 1);

    ticking.Tick(16);
    EXPECT_EQ(target.posted, 1);
    ticking.Tick();
    EXPECT_EQ(target.posted, 2);

    ticking.Tick(16);
    EXPECT_EQ(target.posted, 2);
    ticking.Tick();
    EXPECT_EQ(target.posted, 3);
}

TEST_F(CTimerWithThreadSynchronizationTest, CountOfSkippedTicksBeginsAnewWithEachPost)
{
    timer->AddTimer(20, &command);
    ticking.Tick(11); // one post, ten skipped
    target.RunAll();
    ticking.Tick();
    EXPECT_EQ(target.posted, 2);

    ticking.Tick(16);
    EXPECT_EQ(target.posted, 2);
    ticking.Tick();
    EXPECT_EQ(target.posted, 3);
}

TEST_F(CTimerWithThreadSynchronizationTest, NextTickMayPostWhileTheCommandRuns)
{
    CFunctionCommand slow([this] { ticking.Tick(); });
    timer->AddTimer(20, &slow);
    ticking.Tick();

    const auto call = std::move(target.queue.front());
    target.queue.pop_front();
    call->Execute();

    EXPECT_EQ(target.posted, 2);
}

TEST_F(CTimerWithThreadSynchronizationTest, CallInFlightOfARemovedTimerDoesNothing)
{
    timer->AddTimer(20, &command);
    ticking.Tick();

    Remove(command);
    EXPECT_TRUE(ticking.periods.empty());
    target.RunAll();

    EXPECT_EQ(runs, 0);
}

TEST_F(CTimerWithThreadSynchronizationTest, CallInFlightMayOutliveTheTimerObject)
{
    timer->AddTimer(20, &command);
    ticking.Tick();

    timer.reset();
    EXPECT_TRUE(ticking.periods.empty());
    target.RunAll();

    EXPECT_EQ(runs, 0);
}

TEST_F(CTimerWithThreadSynchronizationTest, CommandMayRemoveItselfOnTheTarget)
{
    CFunctionCommand once(
        [&]
        {
            ++runs;
            Remove(once);
        });
    timer->AddTimer(20, &once);
    ticking.Tick();
    target.RunAll();
    ticking.Tick();
    target.RunAll();

    EXPECT_EQ(runs, 1);
}

TEST_F(CTimerWithThreadSynchronizationTest, RemovalDestroysTheCommandIfAskedKnownOrNot)
{
    int deaths = 0;
    Core::ICommand* known = new CFunctionCommand([] {}, &deaths);
    Core::ICommand* stranger = new CFunctionCommand([] {}, &deaths);
    timer->AddTimer(20, known);

    timer->RemoveTimer(known, true);
    timer->RemoveTimer(stranger, true);

    EXPECT_EQ(deaths, 2);
    EXPECT_EQ(known, nullptr);
    EXPECT_EQ(stranger, nullptr);
}

TEST_F(CTimerWithThreadSynchronizationTest, NullCommandIsIgnored)
{
    timer->AddTimer(20, nullptr);
    Core::ICommand* none = nullptr;
    timer->RemoveTimer(none, true);

    EXPECT_EQ(ticking.trace, "");
}

TEST_F(CTimerWithThreadSynchronizationTest, AddingAgainChangesThePeriodOfTheOneTimer)
{
    timer->AddTimer(20, &command);
    timer->AddTimer(30, &command);

    ASSERT_EQ(ticking.periods.size(), 1U);
    EXPECT_EQ(ticking.periods.begin()->second, 30);
}

TEST_F(CTimerWithThreadSynchronizationTest, AddingAgainLeavesNoSecondEntryInASerializer)
{
    CTimerSerializer serializer(&ticking);
    CTimerWithThreadSynchronization merged(&serializer, &target);
    merged.AddTimer(20, &command);
    merged.AddTimer(40, &command);
    EXPECT_EQ(serializer.GetBasePeriod(), 40);

    Core::ICommand* pointer = &command;
    merged.RemoveTimer(pointer, false);

    EXPECT_EQ(serializer.GetBasePeriod(), -1);
}

TEST_F(CTimerWithThreadSynchronizationTest, TickAllocatesOnceForAPostAndNothingForASkip)
{
    CLosingInvoker losing;
    CTimerWithThreadSynchronization other(&ticking, &losing);
    other.AddTimer(20, &command);
    Core::ICommand* adapter = ticking.periods.begin()->first;
    {
        const Tests::CAllocationCounter counter;
        adapter->Execute();
        EXPECT_EQ(counter.GetCount(), 1U);
    }
    {
        const Tests::CAllocationCounter counter;
        adapter->Execute();
        EXPECT_EQ(counter.GetCount(), 0U);
    }
    EXPECT_EQ(losing.posted, 1);
}

TEST_F(CTimerWithThreadSynchronizationTest, LostPostIsRepeatedAtTheSeventeenthTick)
{
    CLosingInvoker losing;
    CTimerWithThreadSynchronization other(&ticking, &losing);
    other.AddTimer(20, &command);

    ticking.Tick(17);
    EXPECT_EQ(losing.posted, 1);
    ticking.Tick();
    EXPECT_EQ(losing.posted, 2);
}
