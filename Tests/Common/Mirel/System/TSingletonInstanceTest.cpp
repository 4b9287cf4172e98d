#include "Mirel/System/TSingletonInstance.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/CMessageLoopThread.h"
#include "Support/CFunctionCommand.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace Mirel::System;
using Tests::CFunctionCommand;

namespace
{

std::atomic<int> alive = 0;
std::atomic<int> made = 0;

class CThing
{
public:
    CThing()
    {
        ++made;
        ++alive;
    }
    CThing(const CThing&) = delete;
    CThing& operator=(const CThing&) = delete;
    ~CThing() { --alive; }
};

/// Its first end waits for a thread that takes a reference.
class CBusyEnd
{
public:
    CBusyEnd() = default;
    CBusyEnd(const CBusyEnd&) = delete;
    CBusyEnd& operator=(const CBusyEnd&) = delete;
    ~CBusyEnd()
    {
        if (!ended.exchange(true))
        {
            std::thread other([] { const TSingletonInstance<CBusyEnd, CCriticalSection> reference; });
            other.join();
        }
    }
    static std::atomic<bool> ended;
};
std::atomic<bool> CBusyEnd::ended = false;

using Reference = TSingletonInstance<CThing, CCriticalSection>;
using Background = TSingletonInstance<CMessageLoopThread, CCriticalSection>;

} // namespace

TEST(TSingletonInstance, LivesFromTheFirstReferenceToTheLast)
{
    made = 0;
    {
        const Reference first;
        EXPECT_EQ(alive, 1);
        {
            const Reference second;
            const Reference copy(first); // NOLINT(performance-unnecessary-copy-initialization)
            EXPECT_EQ(&second.Get(), &first.Get());
            EXPECT_EQ(&copy.Get(), &first.Get());
        }
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(made, 1);

    const Reference again;
    EXPECT_EQ(made, 2);
}

TEST(TSingletonInstance, ThreadsShareOneInstance)
{
    made = 0;
    const Reference keep;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t)
    {
        threads.emplace_back(
            [&]
            {
                for (int i = 0; i < 100; ++i)
                {
                    const Reference reference;
                    EXPECT_EQ(&reference.Get(), &keep.Get());
                }
            });
    }
    for (auto& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(made, 1);
}

TEST(TSingletonInstance, ThreadsMayCreateAndEndItInTurn)
{
    const auto work = []
    {
        for (int i = 0; i < 200; ++i)
        {
            const Reference reference;
        }
    };
    std::thread first(work);
    std::thread second(work);
    first.join();
    second.join();

    EXPECT_EQ(alive, 0);
}

TEST(CMessageLoopThread, RunsFromItsFirstReferenceAndEndsWithTheLast)
{
    std::thread::id id;
    CFunctionCommand command([&] { id = std::this_thread::get_id(); });
    {
        const Background loop;
        EXPECT_TRUE(loop->IsStarted());
        EXPECT_TRUE(loop->Invoke(&command, false));
        EXPECT_NE(id, std::this_thread::get_id());
    }
    id = {};
    const Background loop;
    EXPECT_TRUE(loop->Invoke(&command, false));
    EXPECT_NE(id, std::thread::id());
}

TEST(TSingletonInstance, EndMayWaitForAThreadThatTakesAReference)
{
    CBusyEnd::ended = false;
    {
        const TSingletonInstance<CBusyEnd, CCriticalSection> last;
    }
    EXPECT_TRUE(CBusyEnd::ended);
}
