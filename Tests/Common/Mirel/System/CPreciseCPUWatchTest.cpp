#include "Mirel/System/CPreciseCPUWatch.h"
#include "Support/CManualTickSource.h"

#include <gtest/gtest.h>

using namespace Mirel::System;
using Tests::CManualTickSource;

TEST(CPreciseCPUWatch, CountsFromTheStartAndKeepsTheTimeAtTheStop)
{
    CManualTickSource clock;
    CPreciseCPUWatch watch(clock);
    EXPECT_FALSE(watch.IsRunning());
    EXPECT_EQ(watch.GetElapsedTicks(), 0U);

    clock.AdvanceTicks(5);
    watch.Start();
    clock.AdvanceTicks(7);
    EXPECT_TRUE(watch.IsRunning());
    EXPECT_EQ(watch.GetElapsedTicks(), 7U);

    watch.Stop();
    clock.AdvanceTicks(100);
    EXPECT_FALSE(watch.IsRunning());
    EXPECT_EQ(watch.GetElapsedTicks(), 7U);

    watch.Start();
    EXPECT_EQ(watch.GetElapsedTicks(), 0U);
    clock.AdvanceTicks(2);
    watch.Reset();
    clock.AdvanceTicks(2);
    EXPECT_EQ(watch.GetElapsedTicks(), 0U);
}

TEST(CPreciseCPUWatch, ConvertsByTheRateOfItsCounter)
{
    // One tick is 125 / 3 ns: 24000 ticks are one millisecond.
    CManualTickSource clock({125, 3});
    CPreciseCPUWatch watch(clock);
    watch.Start();
    clock.AdvanceTicks(60000);

    EXPECT_DOUBLE_EQ(watch.GetElapsedMilliseconds(), 2.5);
    EXPECT_EQ(clock.GetRate().GetTicks(10), 240000U);
    EXPECT_EQ(clock.GetRate().GetTicks(0), 0U);
    EXPECT_EQ(clock.GetRate().GetTicks(-5), 0U);
}

TEST(CPreciseCPUWatch, DefaultCounterNeverRunsBackwards)
{
    const ITickSource& clock = CMonotonicTickSource::GetInstance();
    std::uint64_t last = clock.GetTicks();
    for (int i = 0; i < 1000; ++i)
    {
        const std::uint64_t now = clock.GetTicks();
        EXPECT_GE(now, last);
        last = now;
    }
}
