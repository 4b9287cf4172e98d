#include "Mirel/System/CEvent.h"
#include "Mirel/System/CPreciseCPUWatch.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

using namespace Mirel::System;

TEST(CEvent, DeadlineOfATimedWaitCarriesIntoTheSeconds)
{
    const struct
    {
        timeval now;
        int milliseconds;
        timespec deadline;
    } cases[] = {
        {{5, 0}, 0, {5, 0}},         {{5, 7}, 1, {5, 1007000}},
        {{5, 0}, 1000, {6, 0}},      {{5, 999999}, 0, {5, 999999000}},
        {{5, 999000}, 1, {6, 0}},    {{5, 999999}, 1, {6, 999000}},
        {{5, 500000}, 1500, {7, 0}}, {{5, 999999}, 3999, {9, 998999000}},
    };
    for (const auto& c : cases)
    {
        const timespec deadline = DeadlineAfter(c.now, c.milliseconds);
        EXPECT_EQ(deadline.tv_sec, c.deadline.tv_sec) << c.now.tv_usec << " us + " << c.milliseconds << " ms";
        EXPECT_EQ(deadline.tv_nsec, c.deadline.tv_nsec)
            << c.now.tv_usec << " us + " << c.milliseconds << " ms";
    }
}

TEST(CEvent, StaysSetUntilItIsReset)
{
    CEvent event(true);
    EXPECT_TRUE(event.Wait(-1));
    EXPECT_TRUE(event.Wait(-1));
    EXPECT_TRUE(event.IsSet());

    event.Reset();
    EXPECT_FALSE(event.IsSet());

    event.Set();
    EXPECT_TRUE(event.Wait(-1));
    EXPECT_TRUE(event.IsSet());
}

TEST(CEvent, WaitThatTimesOutGivesTrueAsWell)
{
    CEvent event(false);
    CPreciseCPUWatch watch;
    watch.Start();

    EXPECT_TRUE(event.Wait(20));

    EXPECT_GE(watch.GetElapsedMilliseconds(), 15.0);
    EXPECT_FALSE(event.IsSet());
    EXPECT_TRUE(event.Wait(0));
}

TEST(CEvent, SetWakesAllWaiters)
{
    CEvent event(false);
    Tests::CThreadState states[2];
    std::atomic<int> woken = 0;
    const auto wait = [&](int index, int timeoutMs)
    {
        states[index].AboutToWait();
        event.Wait(timeoutMs);
        ++woken;
    };
    std::thread unbounded(wait, 0, -1);
    std::thread timed(wait, 1, 60000);
    EXPECT_TRUE(states[0].WaitUntilAsleep());
    EXPECT_TRUE(states[1].WaitUntilAsleep());
    EXPECT_EQ(woken, 0);

    event.Set();
    unbounded.join();
    timed.join();

    EXPECT_EQ(woken, 2);
    EXPECT_TRUE(event.IsSet());
}
