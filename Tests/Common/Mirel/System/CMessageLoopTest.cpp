#include "Mirel/System/CMessageLoop.h"
#include "Mirel/System/TAsyncCommand.h"
#include "Support/CFunctionCommand.h"
#include "Support/CManualTickSource.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

using namespace Mirel;
using namespace Mirel::System;
using Tests::CFunctionCommand;
using Tests::CManualTickSource;
using Tests::WaitUntil;

namespace
{

/// A loop on a clock that stands still.
class CMessageLoopTest : public testing::Test
{
protected:
    void Post(std::function<void()> body)
    {
        EXPECT_TRUE(loop.InvokeAsync(new CFunctionCommand(std::move(body)), true));
    }

    void Invoke(std::function<void()> body)
    {
        EXPECT_TRUE(loop.Invoke(new CFunctionCommand(std::move(body)), true));
    }

    /// Returns when all has run that was posted before, and up to four timers that are due by now. The scan
    /// for due timers looks at the clock; from then on a due timer runs after each request.
    void Settle()
    {
        std::uint64_t reads = 0;
        Invoke([&] { reads = clock.GetReads(); });
        EXPECT_TRUE(WaitUntil([&] { return clock.GetReads() > reads; }));
        for (int i = 0; i < 5; ++i)
        {
            Invoke([] {});
        }
    }

    CManualTickSource clock;
    CMessageLoop loop{clock};
};

class CCounter
{
public:
    void Count() { ++count; }
    int count = 0;
};

} // namespace

TEST_F(CMessageLoopTest, IsCreatedStoppedAndMayStartAndStopAnyNumberOfTimes)
{
    EXPECT_FALSE(loop.IsStarted());
    loop.Stop();
    for (int i = 0; i < 3; ++i)
    {
        loop.Start();
        loop.Start();
        EXPECT_TRUE(loop.IsStarted());
        loop.Stop();
        loop.Stop();
        EXPECT_FALSE(loop.IsStarted());
    }
}

TEST_F(CMessageLoopTest, InvokeRunsOnTheLoopsThreadAndWaitsForTheEnd)
{
    loop.Start();
    std::thread::id id;
    bool current = false;

    Invoke(
        [&]
        {
            id = std::this_thread::get_id();
            current = loop.IsCurrent();
        });

    EXPECT_NE(id, std::this_thread::get_id());
    EXPECT_TRUE(current);
    EXPECT_FALSE(loop.IsCurrent());
}

TEST_F(CMessageLoopTest, InvokeOnTheLoopsOwnThreadRunsAtOnce)
{
    loop.Start();
    std::string trace;
    int deaths = 0;

    Invoke(
        [&]
        {
            trace += '(';
            EXPECT_TRUE(loop.Invoke(new CFunctionCommand([&] { trace += 'i'; }, &deaths), true));
            EXPECT_EQ(deaths, 1);
            trace += ')';
        });

    EXPECT_EQ(trace, "(i)");
}

TEST_F(CMessageLoopTest, OwnedCommandsAreDestroyedAndBorrowedOnesAreNot)
{
    loop.Start();
    int ownedDeaths = 0;
    int borrowedDeaths = 0;
    int runs = 0;
    CFunctionCommand borrowed([&] { ++runs; }, &borrowedDeaths);

    loop.Invoke(new CFunctionCommand([&] { ++runs; }, &ownedDeaths), true);
    loop.InvokeAsync(new CFunctionCommand([&] { ++runs; }, &ownedDeaths), true);
    loop.Invoke(&borrowed, false);
    loop.InvokeAsync(&borrowed, false);
    Settle();
    loop.Stop();

    EXPECT_EQ(runs, 4);
    EXPECT_EQ(ownedDeaths, 2);
    EXPECT_EQ(borrowedDeaths, 0);
}

TEST_F(CMessageLoopTest, NullCommandsAreNotTaken)
{
    EXPECT_FALSE(loop.Invoke(nullptr, true));
    EXPECT_FALSE(loop.InvokeAsync(nullptr, true));
    loop.AddTimer(10, nullptr);
    loop.Start();
    Settle();
}

TEST_F(CMessageLoopTest, RequestsRunInTheOrderOfPosting)
{
    std::string trace;
    for (const char c : std::string("abcdef"))
    {
        Post([&trace, c] { trace += c; });
    }
    loop.Start();
    Settle();

    EXPECT_EQ(trace, "abcdef");
}

TEST_F(CMessageLoopTest, InvokeAsyncDoesNotWait)
{
    loop.Start();
    CEvent go(false);
    std::atomic<bool> ended = false;

    Post(
        [&]
        {
            go.Wait(10000);
            ended = true;
        });

    EXPECT_FALSE(ended);
    go.Set();
    Settle();
    EXPECT_TRUE(ended);
}

TEST_F(CMessageLoopTest, RequestsOfAStoppedLoopRunWhenItStartsAgain)
{
    std::atomic<int> runs = 0;
    loop.Start();
    loop.Stop();
    Post([&] { ++runs; });
    EXPECT_EQ(runs, 0);

    loop.Start();

    EXPECT_TRUE(WaitUntil([&] { return runs == 1; }));
}

TEST_F(CMessageLoopTest, RequestsThatAStopLeftBehindRunAtTheNextStart)
{
    std::atomic<int> runs = 0;
    Post([&] { loop.Stop(); });
    Post([&] { ++runs; });
    loop.Start();
    EXPECT_TRUE(WaitUntil([&] { return !loop.IsStarted(); }));
    EXPECT_EQ(runs, 0);

    loop.Start();

    EXPECT_TRUE(WaitUntil([&] { return runs == 1; }));
}

TEST_F(CMessageLoopTest, StopFromInsideDoesNotWaitAndEndsTheLoopAfterTheCommand)
{
    loop.Start();
    bool stillInside = false;
    Invoke(
        [&]
        {
            loop.Stop();
            stillInside = loop.IsStarted();
        });
    EXPECT_TRUE(stillInside);

    EXPECT_TRUE(WaitUntil([&] { return !loop.IsStarted(); }));
}

TEST_F(CMessageLoopTest, StartFromInsideTakesAStopBack)
{
    loop.Start();
    Invoke(
        [&]
        {
            loop.Stop();
            loop.Start();
        });
    Settle();

    EXPECT_TRUE(loop.IsStarted());
}

TEST_F(CMessageLoopTest, OwnedRequestsThatNeverRanAreDestroyedWithTheLoop)
{
    int deaths = 0;
    int runs = 0;
    {
        CMessageLoop other;
        other.InvokeAsync(new CFunctionCommand([&] { ++runs; }, &deaths), true);
    }
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(runs, 0);
}

TEST_F(CMessageLoopTest, RequestsAndDueTimersAlternateOneByOne)
{
    std::string trace;
    std::atomic<int> steps = 0;
    const auto request = [&]
    {
        trace += 'R';
        ++steps;
    };
    const auto tick = [&]
    {
        trace += 'T';
        if (++steps == 1)
        {
            Post(request);
            Post(request);
            Post(request);
        }
    };
    CFunctionCommand timers[3] = {CFunctionCommand(tick), CFunctionCommand(tick), CFunctionCommand(tick)};
    for (auto& timer : timers)
    {
        loop.AddTimer(10, &timer);
    }
    clock.AdvanceMilliseconds(10);

    loop.Start();
    EXPECT_TRUE(WaitUntil([&] { return steps == 6; }));
    loop.Stop();

    EXPECT_EQ(trace, "TRTRTR");
}

TEST_F(CMessageLoopTest, TimerTicksOncePerPeriodOnTheLoopsThread)
{
    int runs = 0;
    bool current = true;
    CFunctionCommand timer(
        [&]
        {
            ++runs;
            current = current && loop.IsCurrent();
        });
    loop.Start();
    loop.AddTimer(20, &timer);
    Settle();
    for (int period = 1; period <= 5; ++period)
    {
        clock.AdvanceMilliseconds(19);
        Settle();
        clock.AdvanceMilliseconds(1);
        Settle();
        Invoke([&] { EXPECT_EQ(runs, period); });
    }
    loop.Stop();
    EXPECT_TRUE(current);
}

TEST_F(CMessageLoopTest, AddingATimerAgainChangesItsPeriodAndRestartsIt)
{
    std::atomic<int> runs = 0;
    CFunctionCommand timer([&] { ++runs; });
    loop.Start();
    loop.AddTimer(20, &timer);
    clock.AdvanceMilliseconds(15);
    loop.AddTimer(50, &timer);

    clock.AdvanceMilliseconds(49);
    Settle();
    EXPECT_EQ(runs, 0);

    clock.AdvanceMilliseconds(1);
    Settle();
    EXPECT_EQ(runs, 1);
}

TEST_F(CMessageLoopTest, RemovedTimerTicksNoMoreAndIsDestroyedIfAsked)
{
    std::atomic<int> runs = 0;
    int deaths = 0;
    Core::ICommand* timer = new CFunctionCommand([&] { ++runs; }, &deaths);
    loop.Start();
    loop.AddTimer(10, timer);
    clock.AdvanceMilliseconds(10);
    Settle();
    EXPECT_EQ(runs, 1);

    Core::ICommand* kept = timer;
    loop.RemoveTimer(kept, false);
    clock.AdvanceMilliseconds(10);
    Settle();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(kept, timer);
    EXPECT_EQ(deaths, 0);

    loop.RemoveTimer(timer, true);
    EXPECT_EQ(timer, nullptr);
    EXPECT_EQ(deaths, 1);
}

TEST_F(CMessageLoopTest, TimerEndsItselfByAnAsynchronousCommand)
{
    struct SOwner
    {
        void Tick()
        {
            ++ticks;
            endLater.Execute();
        }
        void End()
        {
            Core::ICommand* timer = &tick;
            loop.RemoveTimer(timer, false);
        }
        CMessageLoop& loop;
        std::atomic<int> ticks = 0;
        Core::TCommand<SOwner> tick{this, &SOwner::Tick};
        TAsyncCommand<SOwner> endLater{&loop, this, &SOwner::End};
    } owner{loop};
    loop.Start();
    loop.AddTimer(10, &owner.tick);
    for (int i = 0; i < 3; ++i)
    {
        clock.AdvanceMilliseconds(10);
        Settle();
    }

    EXPECT_EQ(owner.ticks, 1);
}

TEST_F(CMessageLoopTest, TimersSurviveAStop)
{
    std::atomic<int> runs = 0;
    CFunctionCommand timer([&] { ++runs; });
    loop.AddTimer(10, &timer);
    loop.Start();
    loop.Stop();
    clock.AdvanceMilliseconds(10);

    loop.Start();

    EXPECT_TRUE(WaitUntil([&] { return runs == 1; }));
}

TEST_F(CMessageLoopTest, OffersMergedTimersOverItself)
{
    std::atomic<int> fast = 0;
    std::atomic<int> slow = 0;
    CFunctionCommand a([&] { ++fast; });
    CFunctionCommand b([&] { ++slow; });
    loop.Start();
    loop.GetTimerSerializer().AddTimer(15, &a); // 20
    loop.GetTimerSerializer().AddTimer(40, &b);
    for (int i = 0; i < 4; ++i)
    {
        clock.AdvanceMilliseconds(20);
        Settle();
    }
    loop.Stop();

    EXPECT_EQ(fast, 4);
    EXPECT_EQ(slow, 2);
    for (Core::ICommand* command : {static_cast<Core::ICommand*>(&a), static_cast<Core::ICommand*>(&b)})
    {
        loop.GetTimerSerializer().RemoveTimer(command, false);
    }
}

TEST(TAsyncCommand, PostsTheCallAndReturns)
{
    CMessageLoop loop;
    CCounter counter;
    TAsyncCommand<CCounter> command(&loop, &counter, &CCounter::Count);

    command.Execute();
    EXPECT_EQ(counter.count, 0); // the loop stands still

    loop.Start();
    CFunctionCommand nothing([] {});
    loop.Invoke(&nothing, false);
    EXPECT_EQ(counter.count, 1);
}

TEST(CMessageLoop, TicksByTheRealClock)
{
    CMessageLoop loop;
    CPreciseCPUWatch watch;
    CEvent enough(false);
    std::atomic<int> runs = 0;
    CFunctionCommand timer(
        [&]
        {
            if (++runs == 4)
            {
                enough.Set();
            }
        });
    loop.Start();
    watch.Start();
    loop.AddTimer(5, &timer);
    EXPECT_TRUE(WaitUntil([&] { return enough.IsSet(); }));

    EXPECT_GE(watch.GetElapsedMilliseconds(), 20.0); // no period is ever shorter than asked for
    Core::ICommand* command = &timer;
    loop.RemoveTimer(command, false);
}

TEST(CMessageLoop, ManyThreadsMayPostInvokeAndUseTimersAtOnce)
{
    CMessageLoop loop;
    loop.Start();
    int runs = 0; // touched on the loop's thread only
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t)
    {
        threads.emplace_back(
            [&]
            {
                for (int i = 0; i < 50; ++i)
                {
                    CFunctionCommand count([&] { ++runs; });
                    loop.InvokeAsync(new CFunctionCommand([&] { ++runs; }), true);
                    loop.Invoke(&count, false);
                    Core::ICommand* timer = new CFunctionCommand([] {});
                    loop.AddTimer(i % 3, timer);
                    loop.RemoveTimer(timer, true);
                }
            });
    }
    for (auto& thread : threads)
    {
        thread.join();
    }
    int seen = 0;
    CFunctionCommand look([&] { seen = runs; });
    loop.Invoke(&look, false);

    EXPECT_EQ(seen, 400);
}
