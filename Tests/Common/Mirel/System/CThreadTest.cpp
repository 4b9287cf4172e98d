#include "Mirel/System/CThread.h"
#include "Mirel/System/CCommandThread.h"
#include "Mirel/System/CEvent.h"
#include "Support/CFunctionCommand.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::System;
using Tests::CFunctionCommand;

namespace
{

void* CallFunction(void* function)
{
    (*static_cast<std::function<void()>*>(function))();
    return nullptr;
}

/// Sets an event when it dies.
class CSignalAtEnd : public Mirel::Core::ICommand
{
public:
    CSignalAtEnd(CEvent& begun_, CEvent& go_, CEvent& dead_) : begun(begun_), go(go_), dead(dead_) {}
    ~CSignalAtEnd() override { dead.Set(); }
    CSignalAtEnd(const CSignalAtEnd&) = delete;
    CSignalAtEnd& operator=(const CSignalAtEnd&) = delete;
    void Execute() override
    {
        begun.Set();
        go.Wait(-1);
    }

private:
    CEvent& begun;
    CEvent& go;
    CEvent& dead;
};

} // namespace

TEST(CThread, RunsItsEntryFunctionWithTheArgumentOnceStarted)
{
    std::atomic<int> runs = 0;
    std::function<void()> body = [&] { ++runs; };
    CThread thread(&CallFunction, &body, false);
    EXPECT_EQ(runs, 0);

    thread.Start();
    EXPECT_TRUE(thread.Join(-1));

    EXPECT_EQ(runs, 1);
}

TEST(CThread, MayStartAtConstruction)
{
    std::atomic<int> runs = 0;
    std::function<void()> body = [&] { ++runs; };

    CThread thread(&CallFunction, &body, true);
    thread.Join(-1);

    EXPECT_EQ(runs, 1);
}

TEST(CThread, StartsAgainAfterAJoinAndNotBefore)
{
    std::atomic<int> runs = 0;
    std::function<void()> body = [&] { ++runs; };
    CThread thread(&CallFunction, &body, true);
    thread.Start();
    thread.Join(-1);
    EXPECT_EQ(runs, 1);

    thread.Start();
    thread.Join(-1);
    EXPECT_EQ(runs, 2);
}

TEST(CThread, JoinWithATimeReturnsAtOnce)
{
    CEvent go(false);
    std::atomic<bool> ended = false;
    std::function<void()> body = [&]
    {
        go.Wait(-1);
        ended = true;
    };
    CThread thread(&CallFunction, &body, true);

    for (const int timeoutMs : {5000, 0, -2})
    {
        EXPECT_FALSE(thread.Join(timeoutMs));
    }
    EXPECT_FALSE(ended);

    go.Set();
    EXPECT_TRUE(thread.Join(-1));
    EXPECT_TRUE(ended);
}

TEST(CThread, JoinOfAThreadNeverStartedOrAlreadyJoinedReturnsAtOnce)
{
    std::function<void()> body = [] {};
    CThread thread(&CallFunction, &body, false);
    EXPECT_FALSE(thread.Join(-1));

    thread.Start();
    EXPECT_TRUE(thread.Join(-1));
    EXPECT_FALSE(thread.Join(-1));
}

TEST(CThread, KnowsWhetherTheCallerIsItself)
{
    std::unique_ptr<CThread> thread;
    bool inside = false;
    bool joined = true;
    std::function<void()> body = [&]
    {
        inside = thread->IsCurrent();
        joined = thread->Join(-1);
    };
    thread = std::make_unique<CThread>(&CallFunction, &body, false);
    EXPECT_FALSE(thread->IsCurrent());

    thread->Start();
    EXPECT_FALSE(thread->IsCurrent());
    thread->Join(-1);

    EXPECT_TRUE(inside);
    EXPECT_FALSE(joined); // a thread does not wait for itself
}

TEST(CThread, CancelEndsTheThreadAtItsWaitAndUnwindsItsStack)
{
    Tests::CThreadState state;
    std::atomic<bool> passed = false;
    auto token = std::make_shared<int>(0);
    std::function<void()> body = [&]
    {
        const std::shared_ptr<int> onTheStack = token; // NOLINT(performance-unnecessary-copy-initialization)
        state.AboutToWait();
        timespec hour{3600, 0};
        nanosleep(&hour, nullptr);
        passed = true;
    };
    CThread thread(&CallFunction, &body, true);
    ASSERT_TRUE(state.WaitUntilAsleep());

    thread.Cancel();
    thread.Join(-1);

    EXPECT_FALSE(passed);
    EXPECT_EQ(token.use_count(), 1);
}

TEST(CThread, CancelOfAThreadThatDoesNotRunDoesNothing)
{
    std::function<void()> body = [] {};
    CThread thread(&CallFunction, &body, false);
    thread.Cancel();

    thread.Start();
    thread.Join(-1);
    thread.Cancel();
}

TEST(CCommandThread, ExecutesItsCommandOncePerStart)
{
    std::atomic<int> runs = 0;
    int deaths = 0;
    CFunctionCommand command([&] { ++runs; }, &deaths);
    {
        CCommandThread thread(&command, false, true);
        thread.Join(-1);
        EXPECT_EQ(runs, 1);
        thread.Start();
        thread.Join(-1);
    }
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(deaths, 0);
}

TEST(CCommandThread, DestroysAnOwnedCommandEvenIfItNeverRan)
{
    int deaths = 0;
    int runs = 0;
    {
        const CCommandThread thread(new CFunctionCommand([&] { ++runs; }, &deaths), true, false);
    }
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(runs, 0);
}

TEST(CCommandThread, OwnedCommandOutlivesTheThreadObjectWhileItRuns)
{
    CEvent begun(false);
    CEvent go(false);
    CEvent dead(false);
    {
        const CCommandThread thread(new CSignalAtEnd(begun, go, dead), true, true);
        begun.Wait(10000);
    }
    EXPECT_FALSE(dead.IsSet());

    go.Set();

    EXPECT_TRUE(Tests::WaitUntil([&] { return dead.IsSet(); }));
}
