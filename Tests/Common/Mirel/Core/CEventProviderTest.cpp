#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Mirel::Core;
using Tests::CFunctionCommand;

TEST(CEventProvider, NotifyWithoutListenersDoesNothing)
{
    const CEventProvider provider;

    provider.Notify();
}

TEST(CEventProvider, ListenersRunInOrderOfConnection)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand a([&] { trace += 'a'; });
    CFunctionCommand b([&] { trace += 'b'; });
    provider.Connect(b);
    provider.Connect(&a);

    provider.Notify();

    EXPECT_EQ(trace, "ba");
}

TEST(CEventProvider, ManyListenersAreServedAndLostLikeFew)
{
    constexpr int many = 300;
    CEventProvider provider;
    std::vector<int> trace;
    std::vector<std::unique_ptr<CFunctionCommand>> listeners;
    for (int i = 0; i < many; ++i)
    {
        listeners.push_back(std::make_unique<CFunctionCommand>([&trace, i] { trace.push_back(i); }));
        provider.Connect(listeners.back().get());
    }
    provider.Connect(listeners[7].get()); // twice
    CFunctionCommand self(
        [&]
        {
            trace.push_back(-1);
            provider.Disconnect(&self);
            provider.Disconnect(listeners[8].get());
        });
    provider.Connect(self);
    std::vector<int> expected;
    for (int i = 0; i < many; ++i)
    {
        if (i % 2 == 0 && i != 8)
        {
            expected.push_back(i);
        }
        else if (i != 8 && i != 7)
        {
            provider.Disconnect(listeners[static_cast<std::size_t>(i)].get());
        }
    }
    provider.Disconnect(listeners[7].get());

    provider.Notify();
    trace.clear();
    provider.Connect(listeners[8].get());
    provider.Notify();

    expected.push_back(8);
    EXPECT_EQ(trace, expected);
}

TEST(CEventProvider, CommandConnectedTwiceRunsTwiceAndOneDisconnectRemovesBoth)
{
    CEventProvider provider;
    int runs = 0;
    CFunctionCommand command([&] { ++runs; });
    provider.Connect(command);
    provider.Connect(command);

    provider.Notify();
    EXPECT_EQ(runs, 2);

    provider.Disconnect(&command);
    provider.Notify();
    EXPECT_EQ(runs, 2);
}

TEST(CEventProvider, DisconnectKeepsTheOthersInTheirOrder)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand a([&] { trace += 'a'; });
    CFunctionCommand b([&] { trace += 'b'; });
    CFunctionCommand c([&] { trace += 'c'; });
    for (auto* command : {&a, &b, &c, &b, &a})
    {
        provider.Connect(command);
    }

    provider.Disconnect(&b);
    provider.Notify();

    EXPECT_EQ(trace, "aca");
}

TEST(CEventProvider, DisconnectOfAStrangerChangesNothing)
{
    CEventProvider provider;
    int runs = 0;
    int deaths = 0;
    CFunctionCommand listener([&] { ++runs; });
    CFunctionCommand stranger([] {}, &deaths);
    provider.Connect(listener);

    provider.Disconnect(&stranger);
    provider.Notify();

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(deaths, 0);
}

TEST(CEventProvider, DestroyingDisconnectDestroysTheCommandAndNullsThePointer)
{
    CEventProvider provider;
    int deaths = 0;
    ICommand* command = new CFunctionCommand([] {}, &deaths);
    provider.Connect(command);
    provider.Connect(command);

    provider.Disconnect(command, true);
    provider.Notify();

    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(command, nullptr);
}

TEST(CEventProvider, DestroyingDisconnectDestroysAStrangerAllTheSame)
{
    CEventProvider provider;
    int deaths = 0;
    ICommand* command = new CFunctionCommand([] {}, &deaths);

    provider.Disconnect(command, true);

    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(command, nullptr);
}

TEST(CEventProvider, TwoArgumentDisconnectWithoutDestructionKeepsCommandAndPointer)
{
    CEventProvider provider;
    int runs = 0;
    int deaths = 0;
    CFunctionCommand listener([&] { ++runs; }, &deaths);
    ICommand* command = &listener;
    provider.Connect(command);

    provider.Disconnect(command, false);
    provider.Notify();

    EXPECT_EQ(runs, 0);
    EXPECT_EQ(deaths, 0);
    EXPECT_EQ(command, &listener);
}

TEST(CEventProvider, DisconnectOfNullDoesNothing)
{
    CEventProvider provider;
    int runs = 0;
    CFunctionCommand listener([&] { ++runs; });
    provider.Connect(listener);
    ICommand* none = nullptr;

    provider.Disconnect(none, true);
    provider.Disconnect(none, false);
    provider.Notify();

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(none, nullptr);
}

TEST(CEventProvider, NullListenerIsNotConnected)
{
    CEventProvider provider;
    ICommand* none = nullptr;

    provider.Connect(none);
    provider.Notify();
}

TEST(CEventProvider, ProviderNeverDestroysItsListeners)
{
    int deaths = 0;
    CFunctionCommand listener([] {}, &deaths);
    {
        CEventProvider provider;
        provider.Connect(listener);
    }
    EXPECT_EQ(deaths, 0);
}

TEST(CEventProvider, ListenerThatNotifiesAgainIsNotActiveTwiceAndLaterOnesRunTwice)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand a(
        [&]
        {
            trace += 'a';
            provider.Notify();
            trace += '.';
        });
    CFunctionCommand b([&] { trace += 'b'; });
    provider.Connect(a);
    provider.Connect(b);

    provider.Notify();

    EXPECT_EQ(trace, "ab.b");
}

TEST(CEventProvider, EveryOuterListenerIsSkippedByAnInnerDelivery)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand a(
        [&]
        {
            trace += "(a";
            provider.Notify();
            trace += ')';
        });
    CFunctionCommand b(
        [&]
        {
            trace += "(b";
            provider.Notify();
            trace += ')';
        });
    CFunctionCommand c([&] { trace += 'c'; });
    provider.Connect(a);
    provider.Connect(b);
    provider.Connect(c);

    provider.Notify();

    // a: inner walk calls b (whose inner walk calls c) and c; then the outer walk calls b, whose inner walk
    // calls a (whose inner walk calls c) and c; then c.
    EXPECT_EQ(trace, "(a(bc)c)(b(ac)c)c");
}

TEST(CEventProvider, ListenerConnectedDuringADeliveryIsReachedByIt)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand late([&] { trace += 'l'; });
    bool connected = false;
    CFunctionCommand a(
        [&]
        {
            trace += 'a';
            if (!std::exchange(connected, true))
            {
                provider.Connect(late);
            }
        });
    provider.Connect(a);

    provider.Notify();

    EXPECT_EQ(trace, "al");
}

TEST(CEventProvider, ListenerMayRemoveTheNextOne)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand b([&] { trace += 'b'; });
    CFunctionCommand c([&] { trace += 'c'; });
    CFunctionCommand a(
        [&]
        {
            trace += 'a';
            provider.Disconnect(&b);
        });
    provider.Connect(a);
    provider.Connect(b);
    provider.Connect(c);

    provider.Notify();

    EXPECT_EQ(trace, "ac");
}

TEST(CEventProvider, ListenerMayRemoveAnEarlierOneAndTheLastOne)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand a([&] { trace += 'a'; });
    CFunctionCommand c([&] { trace += 'c'; });
    CFunctionCommand b(
        [&]
        {
            trace += 'b';
            provider.Disconnect(&a);
            provider.Disconnect(&c);
        });
    provider.Connect(a);
    provider.Connect(b);
    provider.Connect(c);

    provider.Notify();
    provider.Notify();

    EXPECT_EQ(trace, "abb");
}

TEST(CEventProvider, ListenerThatRemovesItselfIsSafeAndTheNextStillRuns)
{
    CEventProvider provider;
    std::string trace;
    std::unique_ptr<CFunctionCommand> a;
    a = std::make_unique<CFunctionCommand>(
        [&]
        {
            trace += 'a';
            provider.Disconnect(a.get());
        });
    CFunctionCommand b([&] { trace += 'b'; });
    provider.Connect(*a);
    provider.Connect(b);

    provider.Notify();
    provider.Notify();

    EXPECT_EQ(trace, "abb");
}

TEST(CEventProvider, OuterListenerRemovedByAnInnerDeliveryDoesNotRunAgain)
{
    CEventProvider provider;
    std::string trace;
    bool nested = false;
    CFunctionCommand a(
        [&]
        {
            trace += 'a';
            if (!std::exchange(nested, true))
            {
                provider.Notify();
            }
        });
    CFunctionCommand b(
        [&]
        {
            trace += 'b';
            provider.Disconnect(&a);
        });
    provider.Connect(a);
    provider.Connect(b);

    provider.Notify();
    provider.Notify();

    EXPECT_EQ(trace, "abbb");
}

TEST(CEventProvider, ListenerThatThrewIsSkippedFromThenOn)
{
    CEventProvider provider;
    std::string trace;
    CFunctionCommand a(
        [&]
        {
            trace += 'a';
            throw std::runtime_error("listener");
        });
    CFunctionCommand b([&] { trace += 'b'; });
    provider.Connect(a);
    provider.Connect(b);

    EXPECT_THROW(provider.Notify(), std::runtime_error);
    EXPECT_EQ(trace, "a");

    provider.Notify();
    EXPECT_EQ(trace, "ab");
}

TEST(CEventProvider, ChainedProviderDeliversAtItsPlaceInTheList)
{
    CEventProvider first;
    CEventProvider second;
    std::string trace;
    CFunctionCommand a([&] { trace += 'a'; });
    CFunctionCommand b([&] { trace += 'b'; });
    CFunctionCommand inner([&] { trace += 'i'; });
    TConstCommand<INotify> chain(&second, &INotify::Notify);
    second.Connect(inner);
    first.Connect(a);
    first.Connect(chain);
    first.Connect(b);

    first.Notify();

    EXPECT_EQ(trace, "aib");
}

TEST(CEventProvider, ReferenceFormGoesThroughAnOverrideOfThePointerForm)
{
    class CCounting : public CEventProvider
    {
    public:
        using CEventProvider::Connect;
        void Connect(ICommand* command) override
        {
            ++connections;
            CEventProvider::Connect(command);
        }
        int connections = 0;
    };
    CCounting provider;
    CFunctionCommand command([] {});

    static_cast<IEventProvider&>(provider).Connect(command);

    EXPECT_EQ(provider.connections, 1);
}

TEST(CEventProvider, DeliveryAllocatesNothing)
{
    CEventProvider provider;
    int runs = 0;
    CFunctionCommand command([&] { ++runs; });
    for (int i = 0; i < 100; ++i)
    {
        provider.Connect(command);
    }

    const Tests::CAllocationCounter counter;
    provider.Notify();

    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_EQ(runs, 100);
}

TEST(CEventProvider, ConnectAllocatesOneItem)
{
    CEventProvider provider;
    CFunctionCommand command([] {});

    const Tests::CAllocationCounter counter;
    provider.Connect(command);

    EXPECT_EQ(counter.GetCount(), 1U);
}

// A plain array of numbers is the model: connecting appends, disconnecting removes all equal ones.
RC_GTEST_PROP(CEventProvider, DeliversWhatAnArrayOfConnectionsWouldHold, ())
{
    CEventProvider provider;
    std::vector<int> model;
    std::vector<int> trace;
    std::vector<std::unique_ptr<CFunctionCommand>> commands;
    commands.reserve(4);
    for (int i = 0; i < 4; ++i)
    {
        commands.push_back(std::make_unique<CFunctionCommand>([&trace, i] { trace.push_back(i); }));
    }

    const auto steps = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 8));
    for (const int step : steps)
    {
        auto* command = commands[static_cast<std::size_t>(step % 4)].get();
        if (step < 4)
        {
            provider.Connect(command);
            model.push_back(step);
        }
        else
        {
            provider.Disconnect(command);
            std::erase(model, step - 4);
        }
    }
    provider.Notify();

    RC_ASSERT(trace == model);
}
