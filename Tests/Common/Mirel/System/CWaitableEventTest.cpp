#include "Mirel/System/CWaitableEvent.h"
#include "Mirel/System/CPreciseCPUWatch.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

using namespace Mirel::System;

TEST(CWaitableEvent, WaitTakesTheMark)
{
    CWaitableEvent event(true);
    EXPECT_TRUE(event.IsSet());

    EXPECT_TRUE(event.Wait(-1));
    EXPECT_FALSE(event.IsSet());

    event.Set();
    event.Set();
    EXPECT_TRUE(event.Wait(60000));
    EXPECT_FALSE(event.IsSet());
}

TEST(CWaitableEvent, WaitThatTimesOutGivesTrueAndTakesItsTime)
{
    CWaitableEvent event(false);
    CPreciseCPUWatch watch;
    watch.Start();

    EXPECT_TRUE(event.Wait(20));

    EXPECT_GE(watch.GetElapsedMilliseconds(), 15.0);
    EXPECT_FALSE(event.IsSet());
}

TEST(CWaitableEvent, SetDuringATimedWaitEndsItAndLeavesTheMark)
{
    CWaitableEvent event(false);
    Tests::CThreadState state;
    bool result = false;
    std::thread waiter(
        [&]
        {
            state.AboutToWait();
            result = event.Wait(60000);
        });
    ASSERT_TRUE(state.WaitUntilAsleep());

    event.Set();
    waiter.join();

    EXPECT_TRUE(result);
    EXPECT_TRUE(event.IsSet());
    EXPECT_TRUE(event.Wait(-1));
    EXPECT_FALSE(event.IsSet());
}

TEST(CWaitableEvent, SetDuringAnUnboundedWaitEndsItAndTakesTheMark)
{
    CWaitableEvent event(false);
    Tests::CThreadState state;
    std::thread waiter(
        [&]
        {
            state.AboutToWait();
            event.Wait(-1);
        });
    ASSERT_TRUE(state.WaitUntilAsleep());

    event.Set();
    waiter.join();

    EXPECT_FALSE(event.IsSet());
}

TEST(CWaitableEvent, SetWakesOneWaiter)
{
    CWaitableEvent event(false);
    Tests::CThreadState states[2];
    std::atomic<int> woken = 0;
    const auto wait = [&](int index)
    {
        states[index].AboutToWait();
        event.Wait(-1);
        ++woken;
    };
    std::thread first(wait, 0);
    std::thread second(wait, 1);
    EXPECT_TRUE(states[0].WaitUntilAsleep());
    EXPECT_TRUE(states[1].WaitUntilAsleep());

    event.Set();
    EXPECT_TRUE(
        Tests::WaitUntil([&] { return woken == 1 && (states[0].IsAsleep() || states[1].IsAsleep()); }));
    EXPECT_EQ(woken, 1);

    event.Set();
    first.join();
    second.join();
    EXPECT_EQ(woken, 2);
}
