#include "Mirel/GUI/Native/COSXThreadInvoker.h"
#include "Mirel/System/CThreadedTimer.h"
#include "Support/CFunctionCommand.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <string>
#include <thread>

using namespace Mirel;
using Mirel::GUI::CNativeRunLoop;
using Mirel::GUI::COSXThreadInvoker;
using Tests::CFunctionCommand;

TEST(COSXThreadInvoker, PostedCommandRunsOnTheGuiThreadInALaterPassAndIsDestroyed)
{
    CNativeRunLoop loop;
    COSXThreadInvoker invoker(&loop);
    std::string trace;
    int deaths = 0;
    CFunctionCommand borrowed([&] { trace += 'b'; }, &deaths);

    EXPECT_TRUE(invoker.InvokeAsync(new CFunctionCommand([&] { trace += 'a'; }, &deaths), true));
    EXPECT_TRUE(invoker.InvokeAsync(&borrowed, false));
    EXPECT_EQ(trace, "");
    loop.OnIdle();

    EXPECT_EQ(trace, "ab");
    EXPECT_EQ(deaths, 1);
}

TEST(COSXThreadInvoker, InvokeOnTheGuiThreadRunsAtOnce)
{
    CNativeRunLoop loop;
    COSXThreadInvoker invoker(&loop);
    int runs = 0;
    int deaths = 0;

    EXPECT_TRUE(invoker.Invoke(new CFunctionCommand([&] { ++runs; }, &deaths), true));

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(deaths, 1);
}

TEST(COSXThreadInvoker, InvokeFromAnotherThreadWaitsForTheEnd)
{
    CNativeRunLoop loop;
    COSXThreadInvoker invoker(&loop);
    bool onGui = false;
    bool seen = false;
    std::atomic<bool> returned = false;
    std::thread other(
        [&]
        {
            CFunctionCommand command([&] { onGui = loop.IsCurrent(); });
            invoker.Invoke(&command, false);
            seen = onGui;
            returned = true;
        });
    loop.RunUntil([&] { return onGui; });
    other.join();

    EXPECT_TRUE(seen);
    EXPECT_TRUE(returned);
}

TEST(COSXThreadInvoker, WithoutALoopNothingIsTakenAndOwnedCommandsAreDestroyed)
{
    COSXThreadInvoker invoker(nullptr);
    int runs = 0;
    int deaths = 0;
    CFunctionCommand borrowed([&] { ++runs; }, &deaths);

    EXPECT_FALSE(invoker.Invoke(new CFunctionCommand([&] { ++runs; }, &deaths), true));
    EXPECT_FALSE(invoker.InvokeAsync(new CFunctionCommand([&] { ++runs; }, &deaths), true));
    EXPECT_FALSE(invoker.InvokeAsync(&borrowed, false));
    EXPECT_FALSE(invoker.Invoke(nullptr, true));

    EXPECT_EQ(runs, 0);
    EXPECT_EQ(deaths, 2);
}

TEST(COSXThreadInvoker, NullCommandIsNotTaken)
{
    CNativeRunLoop loop;
    COSXThreadInvoker invoker(&loop);

    EXPECT_FALSE(invoker.Invoke(nullptr, true));
    EXPECT_FALSE(invoker.InvokeAsync(nullptr, true));
    EXPECT_FALSE(loop.Pump(0));
}

TEST(COSXThreadInvoker, LateCallbacksDoNothingAfterItsEnd)
{
    CNativeRunLoop loop;
    int runs = 0;
    int deaths = 0;
    {
        COSXThreadInvoker invoker(&loop);
        invoker.InvokeAsync(new CFunctionCommand([&] { ++runs; }, &deaths), true);
    }
    EXPECT_EQ(deaths, 1);
    loop.OnIdle();

    EXPECT_EQ(runs, 0);
}

TEST(COSXThreadInvoker, CommandMayDestroyTheInvoker)
{
    CNativeRunLoop loop;
    auto invoker = std::make_unique<COSXThreadInvoker>(&loop);
    std::string trace;
    invoker->InvokeAsync(new CFunctionCommand(
                             [&]
                             {
                                 invoker.reset();
                                 trace += 'a';
                             }),
                         true);
    invoker->InvokeAsync(new CFunctionCommand([&] { trace += 'b'; }), true);

    loop.OnIdle();

    EXPECT_EQ(trace, "a");
}

TEST(COSXThreadInvoker, WaitingThreadGoesOnWhenTheLoopDropsItsCall)
{
    auto loop = std::make_unique<CNativeRunLoop>();
    COSXThreadInvoker invoker(loop.get());
    Tests::CThreadState state;
    std::atomic<int> runs = 0;
    std::thread other(
        [&]
        {
            CFunctionCommand command([&] { ++runs; });
            state.AboutToWait();
            invoker.Invoke(&command, false);
        });
    pollfd posted{loop->GetDescriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&posted, 1, 10000), 1);
    EXPECT_TRUE(state.WaitUntilAsleep());

    loop.reset();
    other.join();

    EXPECT_EQ(runs, 0);
}

TEST(COSXThreadInvoker, TimersOfAThreadRunTheirCommandsOnTheGuiThread)
{
    CNativeRunLoop loop;
    COSXThreadInvoker invoker(&loop);
    int runs = 0;
    bool onGui = true;
    CFunctionCommand command(
        [&]
        {
            ++runs;
            onGui = onGui && loop.IsCurrent();
        });
    System::CThreadedTimer timer(&invoker, true);
    timer.AddTimer(10, &command);

    loop.RunUntil([&] { return runs >= 3; });

    EXPECT_TRUE(onGui);
    Core::ICommand* pointer = &command;
    timer.RemoveTimer(pointer, false);
    const int last = runs;
    loop.OnIdle();
    EXPECT_EQ(runs, last);
}

TEST(COSXThreadInvoker, ManyThreadsPostAndWait)
{
    CNativeRunLoop loop;
    COSXThreadInvoker invoker(&loop);
    int runs = 0; // GUI thread only
    const auto work = [&]
    {
        for (int i = 0; i < 100; ++i)
        {
            CFunctionCommand count([&] { ++runs; });
            invoker.InvokeAsync(new CFunctionCommand([&] { ++runs; }), true);
            invoker.Invoke(&count, false);
        }
    };
    std::thread first(work);
    std::thread second(work);
    loop.RunUntil([&] { return runs == 400; });
    first.join();
    second.join();

    EXPECT_EQ(runs, 400);
}
