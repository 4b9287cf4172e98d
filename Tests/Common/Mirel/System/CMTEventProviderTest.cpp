#include "Mirel/System/CMTEventProvider.h"
#include "Support/CFunctionCommand.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <string>
#include <thread>

using namespace Mirel::Core;
using Mirel::System::CMTEventProvider;
using Tests::CFunctionCommand;

TEST(CMTEventProvider, ListenerMayConnectDisconnectAndNotifyFromTheDelivery)
{
    CMTEventProvider provider;
    std::string trace;
    CFunctionCommand late([&] { trace += 'l'; });
    CFunctionCommand b([&] { trace += 'b'; });
    bool nested = false;
    CFunctionCommand a(
        [&]
        {
            trace += 'a';
            if (!std::exchange(nested, true))
            {
                provider.Connect(late);
                provider.Disconnect(&b);
                static_cast<INotify&>(provider).Notify();
            }
        });
    provider.Connect(a);
    provider.Connect(&b);

    provider.Notify();

    EXPECT_EQ(trace, "all"); // late: once in the inner delivery, once in the outer
}

TEST(CMTEventProvider, SecondThreadWaitsForTheEndOfTheDelivery)
{
    CMTEventProvider provider;
    IEventProvider& interface = provider;
    std::atomic<int> connected = 0;
    std::atomic<int> runs = 0;
    CFunctionCommand late([&] { ++runs; });
    Tests::CThreadState state;
    std::thread other;
    CFunctionCommand listener(
        [&]
        {
            other = std::thread(
                [&]
                {
                    state.AboutToWait();
                    interface.Connect(&late);
                    ++connected;
                });
            EXPECT_TRUE(state.WaitUntilAsleep());
            EXPECT_EQ(connected, 0);
        });
    interface.Connect(listener);

    provider.Notify();
    other.join();

    EXPECT_EQ(connected, 1);
    EXPECT_EQ(runs, 0);
    interface.Disconnect(&listener);
    provider.Notify();
    EXPECT_EQ(runs, 1);
}

TEST(CMTEventProvider, ThreadsMayConnectNotifyAndDisconnectAtOnce)
{
    CMTEventProvider provider;
    int runs = 0; // guarded by the provider's own lock
    const auto work = [&]
    {
        for (int i = 0; i < 300; ++i)
        {
            ICommand* command = new CFunctionCommand([&] { ++runs; });
            provider.Connect(*command);
            provider.Notify();
            provider.Disconnect(command, true);
            CFunctionCommand other([&] { ++runs; });
            provider.Connect(&other);
            provider.Disconnect(&other);
        }
    };
    std::thread first(work);
    std::thread second(work);
    first.join();
    second.join();

    EXPECT_GE(runs, 600); // each delivery reaches at least its own listener
}
