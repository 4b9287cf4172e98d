#include "Mirel/System/CThreadedTimer.h"
#include "Support/CFunctionCommand.h"
#include "Support/CManualTickSource.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace Mirel;
using namespace Mirel::System;
using Tests::CFunctionCommand;
using Tests::WaitUntil;

namespace
{

/// Counts what is posted from the ticking thread and keeps it unrun.
class CCountingInvoker : public IThreadInvoker
{
public:
    bool Invoke(Core::ICommand* command, bool owned) override { return InvokeAsync(command, owned); }
    bool InvokeAsync(Core::ICommand* command, bool owned) override
    {
        loop.InvokeAsync(command, owned);
        ++posted;
        return true;
    }
    CMessageLoop loop; ///< stands still until a test starts it
    std::atomic<int> posted = 0;
};

} // namespace

TEST(CThreadedTimer, RunsCommandsOnTheTargetThreadAgainAndAgain)
{
    CMessageLoop target;
    target.Start();
    std::atomic<int> runs = 0;
    std::atomic<bool> onTarget = true;
    CFunctionCommand command(
        [&]
        {
            onTarget = onTarget && target.IsCurrent();
            ++runs;
        });
    CThreadedTimer timer(&target, true);
    timer.AddTimer(10, &command);

    EXPECT_TRUE(WaitUntil([&] { return runs >= 3; }));
    EXPECT_TRUE(onTarget);

    CFunctionCommand remove(
        [&]
        {
            Core::ICommand* pointer = &command;
            timer.RemoveTimer(pointer, false);
        });
    target.Invoke(&remove, false);
    const int last = runs;
    CFunctionCommand nothing([] {});
    target.Invoke(&nothing, false);
    EXPECT_EQ(runs, last);
}

TEST(CThreadedTimer, CreatedDisabledDoesNotTickUntilItIsEnabled)
{
    CCountingInvoker target;
    CFunctionCommand command([] {});
    Tests::CManualTickSource clock;
    CThreadedTimer timer(&target, false, clock);
    EXPECT_FALSE(timer.IsEnabled());
    timer.AddTimer(10, &command);
    clock.AdvanceMilliseconds(1000);
    EXPECT_EQ(target.posted, 0);

    timer.Enable(true);
    EXPECT_TRUE(WaitUntil([&] { return target.posted == 1; }));
}

TEST(CThreadedTimer, DisablingStopsTheTicksBeforeItReturns)
{
    CCountingInvoker target;
    CFunctionCommand command([] {});
    CThreadedTimer timer(&target, true);
    timer.AddTimer(10, &command);
    EXPECT_TRUE(WaitUntil([&] { return target.posted >= 1; }));

    timer.Enable(false);
    const int last = target.posted;
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_EQ(target.posted, last);
}

TEST(CThreadedTimer, ReportsEachChangeOfItsSwitchOnce)
{
    CCountingInvoker target;
    CThreadedTimer timer(&target, true);
    std::string trace;
    CFunctionCommand listener([&] { trace += timer.IsEnabled() ? '1' : '0'; });
    timer.GetEnableChangedEventProvider().Connect(listener);

    for (const bool state : {true, false, false, true, false})
    {
        timer.Enable(state);
    }

    EXPECT_EQ(trace, "010");
}

TEST(CThreadedTimer, CallsInFlightFindNothingAfterItsEnd)
{
    CCountingInvoker target;
    int runs = 0;
    CFunctionCommand command([&] { ++runs; });
    {
        CThreadedTimer timer(&target, true);
        timer.AddTimer(10, &command);
        EXPECT_TRUE(WaitUntil([&] { return target.posted >= 1; }));
    }
    target.loop.Start();
    CFunctionCommand nothing([] {});
    target.loop.Invoke(&nothing, false);

    EXPECT_EQ(runs, 0);
}

TEST(CThreadedTimer, TimersComeAndGoWhileItTicks)
{
    CMessageLoop target;
    target.Start();
    std::atomic<int> runs = 0;
    {
        CThreadedTimer timer(&target, true);
        CFunctionCommand churn(
            [&]
            {
                for (int i = 0; i < 100; ++i)
                {
                    Core::ICommand* command = new CFunctionCommand([&] { ++runs; });
                    timer.AddTimer(10 + i % 30, command);
                    timer.AddTimer(20, command);
                    timer.RemoveTimer(command, true);
                }
            });
        CFunctionCommand steady([&] { ++runs; });
        CFunctionCommand add([&] { timer.AddTimer(10, &steady); });
        CFunctionCommand remove(
            [&]
            {
                Core::ICommand* pointer = &steady;
                timer.RemoveTimer(pointer, false);
            });
        target.Invoke(&add, false);
        for (int i = 0; i < 5; ++i)
        {
            target.Invoke(&churn, false);
        }
        EXPECT_TRUE(WaitUntil([&] { return runs >= 2; }));
        target.Invoke(&remove, false);
    }
}
