#include "Mirel/System/CThreadInvokerSerializer.h"
#include "Mirel/System/CMessageLoop.h"
#include "Support/CFakeThreadInvoker.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <string>
#include <thread>

using namespace Mirel;
using namespace Mirel::System;
using Tests::CFakeThreadInvoker;
using Tests::CFakeTimerProvider;
using Tests::CFunctionCommand;

namespace
{

class CThreadInvokerSerializerTest : public testing::Test
{
protected:
    void Post(std::function<void()> body)
    {
        EXPECT_TRUE(serializer.InvokeAsync(new CFunctionCommand(std::move(body), &deaths), true));
    }

    CFakeTimerProvider timer;
    CFakeThreadInvoker target;
    int deaths = 0;
    std::string trace;
    CThreadInvokerSerializer serializer{&timer, &target, 50};
};

} // namespace

TEST_F(CThreadInvokerSerializerTest, InvokeGoesStraightToTheTarget)
{
    EXPECT_TRUE(serializer.Invoke(new CFunctionCommand([this] { trace += 'i'; }, &deaths), true));

    EXPECT_EQ(target.invoked, 1);
    EXPECT_EQ(trace, "i");
    EXPECT_EQ(deaths, 1);
}

TEST_F(CThreadInvokerSerializerTest, PostedCommandsWaitForTheTickAndRunInOrderAndAreDestroyed)
{
    serializer.Start();
    EXPECT_EQ(timer.trace, "+50");
    Post([this] { trace += 'a'; });
    Post([this] { trace += 'b'; });
    EXPECT_EQ(trace, "");
    EXPECT_EQ(target.posted, 0);

    timer.Tick();

    EXPECT_EQ(trace, "ab");
    EXPECT_EQ(deaths, 2);
    timer.Tick();
    EXPECT_EQ(trace, "ab");
}

TEST_F(CThreadInvokerSerializerTest, BorrowedCommandIsRunAndKept)
{
    serializer.Start();
    CFunctionCommand borrowed([this] { trace += 'b'; }, &deaths);
    serializer.InvokeAsync(&borrowed, false);

    timer.Tick();

    EXPECT_EQ(trace, "b");
    EXPECT_EQ(deaths, 0);
}

TEST_F(CThreadInvokerSerializerTest, NullIsTakenAndSkipped)
{
    serializer.Start();
    EXPECT_TRUE(serializer.InvokeAsync(nullptr, true));
    Post([this] { trace += 'a'; });

    timer.Tick();

    EXPECT_EQ(trace, "a");
}

TEST_F(CThreadInvokerSerializerTest, CommandsPostedByACommandRunInTheSameDrain)
{
    serializer.Start();
    Post(
        [this]
        {
            trace += 'a';
            Post([this] { trace += 'b'; });
        });

    timer.Tick();

    EXPECT_EQ(trace, "ab");
}

TEST_F(CThreadInvokerSerializerTest, StoppedDrainKeepsCommands)
{
    Post([this] { trace += 'a'; });
    serializer.Execute();
    EXPECT_EQ(trace, "");

    serializer.Start();
    serializer.Stop();
    EXPECT_EQ(timer.trace, "+50-");
    serializer.Execute();
    EXPECT_EQ(trace, "");
    EXPECT_EQ(deaths, 0);

    serializer.Start();
    timer.Tick();
    EXPECT_EQ(trace, "a");
}

TEST_F(CThreadInvokerSerializerTest, SecondStartAndSecondStopDoNothing)
{
    serializer.Start();
    serializer.Start();
    EXPECT_EQ(timer.trace, "+50");

    serializer.Stop();
    serializer.Stop();
    EXPECT_EQ(timer.trace, "+50-");
}

TEST_F(CThreadInvokerSerializerTest, StopFromACommandEndsTheDrainAfterIt)
{
    serializer.Start();
    Post(
        [this]
        {
            trace += 'a';
            serializer.Stop();
        });
    Post([this] { trace += 'b'; });

    timer.Tick();
    EXPECT_EQ(trace, "a");

    serializer.Start();
    timer.Tick();
    EXPECT_EQ(trace, "ab");
}

TEST_F(CThreadInvokerSerializerTest, ClearDestroysCommandsUnrun)
{
    Post([this] { trace += 'a'; });
    Post([this] { trace += 'b'; });

    serializer.Clear();

    EXPECT_EQ(deaths, 2);
    serializer.Start();
    timer.Tick();
    EXPECT_EQ(trace, "");
}

TEST_F(CThreadInvokerSerializerTest, RefreshTimeRestartsTheTimerOnlyOnAChangeWhileRunning)
{
    EXPECT_EQ(serializer.GetRefreshTime(), 50);
    serializer.SetRefreshTime(40);
    EXPECT_EQ(timer.trace, "");

    serializer.Start();
    EXPECT_EQ(timer.trace, "+40");
    serializer.SetRefreshTime(40);
    EXPECT_EQ(timer.trace, "+40");
    serializer.SetRefreshTime(20);
    EXPECT_EQ(timer.trace, "+40-+20");
    EXPECT_EQ(serializer.GetRefreshTime(), 20);
}

TEST(CThreadInvokerSerializer, EndsItsTimerAndDropsItsCommandsAtItsEnd)
{
    CFakeTimerProvider timer;
    CFakeThreadInvoker target;
    int deaths = 0;
    int runs = 0;
    {
        CThreadInvokerSerializer serializer(&timer, &target, 50);
        serializer.Start();
        serializer.InvokeAsync(new CFunctionCommand([&] { ++runs; }, &deaths), true);
    }
    EXPECT_TRUE(timer.periods.empty());
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(runs, 0);
}

TEST(CThreadInvokerSerializer, ManyThreadsPostWhileALoopDrains)
{
    CMessageLoop loop;
    loop.Start();
    CThreadInvokerSerializer serializer(&loop, &loop, 1);
    serializer.Start();
    std::atomic<int> runs = 0;
    const auto work = [&]
    {
        for (int i = 0; i < 200; ++i)
        {
            serializer.InvokeAsync(new CFunctionCommand([&] { ++runs; }), true);
        }
    };
    std::thread first(work);
    std::thread second(work);
    first.join();
    second.join();

    EXPECT_TRUE(Tests::WaitUntil([&] { return runs == 400; }));
    serializer.Clear();
    serializer.Stop();
}
