#include "Mirel/System/CTimerSerializer.h"
#include "Mirel/System/CMessageLoop.h"
#include "Support/AllocationCounter.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <numeric>
#include <rapidcheck/gtest.h>
#include <string>
#include <thread>
#include <vector>

using namespace Mirel;
using namespace Mirel::System;
using Tests::CFakeTimerProvider;
using Tests::CFunctionCommand;

namespace
{

class CTimerSerializerTest : public testing::Test
{
protected:
    void Remove(Core::ICommand& command)
    {
        Core::ICommand* pointer = &command;
        serializer.RemoveTimer(pointer, false);
    }

    CFakeTimerProvider timer;
    CTimerSerializer serializer{&timer};
    std::string trace;
    CFunctionCommand a{[this] { trace += 'a'; }};
    CFunctionCommand b{[this] { trace += 'b'; }};
};

} // namespace

TEST_F(CTimerSerializerTest, PeriodsAreRoundedUpToMultiplesOfTen)
{
    const struct
    {
        int period;
        int rounded;
    } cases[] = {{-5, 10}, {0, 10},  {1, 10},  {9, 10},     {10, 10},
                 {11, 20}, {25, 30}, {40, 40}, {999, 1000}, {std::numeric_limits<int>::max(), 2147483640}};
    for (const auto& c : cases)
    {
        CFakeTimerProvider provider;
        CTimerSerializer single(&provider);
        single.AddTimer(c.period, &a);
        EXPECT_EQ(single.GetBasePeriod(), c.rounded) << c.period;
        EXPECT_EQ(provider.periods.begin()->second, c.rounded) << c.period;
    }
}

TEST_F(CTimerSerializerTest, TwentyFiveAndFortyFireOnEveryThirdAndFourthTickOfTen)
{
    serializer.AddTimer(25, &a);
    serializer.AddTimer(40, &b);
    EXPECT_EQ(serializer.GetBasePeriod(), 10);

    for (int tick = 1; tick <= 12; ++tick)
    {
        trace += std::to_string(tick);
        timer.Tick();
    }

    EXPECT_EQ(trace, "123a4b56a78b9a101112ab");
}

TEST_F(CTimerSerializerTest, OneTimerOfTheProviderServesAll)
{
    serializer.AddTimer(30, &a);
    serializer.AddTimer(20, &b);

    ASSERT_EQ(timer.periods.size(), 1U);
    EXPECT_EQ(timer.periods.begin()->first, &serializer);
    EXPECT_EQ(timer.periods.begin()->second, 10);
}

TEST_F(CTimerSerializerTest, RestartsOnlyWhenTheBasePeriodChanges)
{
    serializer.AddTimer(40, &a);
    EXPECT_EQ(timer.trace, "-+40");

    serializer.AddTimer(80, &b);
    EXPECT_EQ(timer.trace, "-+40");

    serializer.AddTimer(60, &b);
    EXPECT_EQ(timer.trace, "-+40-+20");

    Remove(b); // the entry of 80
    EXPECT_EQ(timer.trace, "-+40-+20");

    Remove(b);
    EXPECT_EQ(timer.trace, "-+40-+20-+40");
}

TEST_F(CTimerSerializerTest, RestartReportsOffAndOn)
{
    std::string events;
    CFunctionCommand listener([&] { events += serializer.IsEnabled() ? '1' : '0'; });
    serializer.GetEnableChangedEventProvider().Connect(listener);

    serializer.AddTimer(40, &a);

    EXPECT_EQ(events, "01");
}

TEST_F(CTimerSerializerTest, RemovingTheLastEntryLetsTheNextOneSetThePeriodAlone)
{
    serializer.AddTimer(30, &a);
    Remove(a);
    EXPECT_EQ(serializer.GetBasePeriod(), -1);
    EXPECT_TRUE(timer.periods.empty());
    EXPECT_TRUE(serializer.IsEnabled());

    serializer.AddTimer(50, &b);

    EXPECT_EQ(serializer.GetBasePeriod(), 50);
    EXPECT_EQ(timer.periods.begin()->second, 50);
}

TEST_F(CTimerSerializerTest, RemovalOfAStrangerChangesNothingButDestroysItIfAsked)
{
    serializer.AddTimer(30, &a);
    int deaths = 0;
    Core::ICommand* stranger = new CFunctionCommand([] {}, &deaths);

    serializer.RemoveTimer(stranger, true);

    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(stranger, nullptr);
    EXPECT_EQ(timer.trace, "-+30");
}

TEST_F(CTimerSerializerTest, SameCommandMayStandTwiceAndRemovalTakesTheFirst)
{
    serializer.AddTimer(10, &a);
    serializer.AddTimer(20, &a);
    timer.Tick(2);
    EXPECT_EQ(trace, "aaa");

    trace.clear();
    Remove(a);
    EXPECT_EQ(serializer.GetBasePeriod(), 20);
    timer.Tick();
    EXPECT_EQ(trace, "a");
}

TEST_F(CTimerSerializerTest, DestroyingRemovalLeavesNoEntryOfTheCommand)
{
    int deaths = 0;
    Core::ICommand* command = new CFunctionCommand([this] { trace += 'x'; }, &deaths);
    serializer.AddTimer(10, command);
    serializer.AddTimer(20, command);
    serializer.AddTimer(30, &a);

    serializer.RemoveTimer(command, true);

    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(command, nullptr);
    timer.Tick();
    EXPECT_EQ(trace, "a");
}

TEST_F(CTimerSerializerTest, OvershootIsDropped)
{
    serializer.AddTimer(20, &a); // base 20
    timer.Tick();
    EXPECT_EQ(trace, "a");
    serializer.AddTimer(30, &b); // base 10
    timer.Tick();                // a 10, b 10
    Remove(b);                   // base 20 again
    timer.Tick();                // a 30: fires, and starts from 0, not from 10
    EXPECT_EQ(trace, "aa");
    serializer.AddTimer(30, &b); // base 10
    timer.Tick();
    EXPECT_EQ(trace, "aa");
    timer.Tick();
    EXPECT_EQ(trace, "aaa");
}

TEST_F(CTimerSerializerTest, DisabledTakesItselfOffAndKeepsElapsedTimes)
{
    serializer.AddTimer(30, &a);
    serializer.AddTimer(10, &b);
    timer.Tick(2);
    timer.trace.clear();

    serializer.Enable(false);
    EXPECT_EQ(timer.trace, "-");
    EXPECT_FALSE(serializer.IsEnabled());
    serializer.Enable(false);
    EXPECT_EQ(timer.trace, "-");

    serializer.Enable(true);
    EXPECT_EQ(timer.trace, "-+10");
    trace.clear();
    timer.Tick();
    EXPECT_EQ(trace, "ab");
}

TEST_F(CTimerSerializerTest, EntriesAddedWhileDisabledWaitForTheSwitch)
{
    serializer.Enable(false);
    serializer.AddTimer(30, &a);
    EXPECT_TRUE(timer.periods.empty());
    EXPECT_EQ(serializer.GetBasePeriod(), 30);

    serializer.Enable(true);
    EXPECT_EQ(timer.periods.begin()->second, 30);
}

TEST_F(CTimerSerializerTest, EnableWithoutEntriesReportsAndAddsNothing)
{
    int events = 0;
    CFunctionCommand listener([&] { ++events; });
    serializer.GetEnableChangedEventProvider().Connect(listener);

    serializer.Enable(false);
    serializer.Enable(true);

    EXPECT_EQ(events, 2);
    EXPECT_EQ(timer.trace, "--");
}

TEST_F(CTimerSerializerTest, ResetLetsAllPeriodsBeginAnew)
{
    serializer.AddTimer(30, &a);
    serializer.AddTimer(10, &b);
    timer.Tick(2);
    trace.clear();

    serializer.ResetElapsedTimes();
    timer.Tick(2);
    EXPECT_EQ(trace, "bb");
    timer.Tick();
    EXPECT_EQ(trace, "bbab");
}

TEST_F(CTimerSerializerTest, CommandMayRemoveALaterEntryAndAddOneThatCountsFromTheNextTick)
{
    CFunctionCommand added([this] { trace += 'n'; });
    CFunctionCommand busy(
        [&]
        {
            trace += '.';
            Remove(b);
            serializer.AddTimer(10, &added);
        });
    serializer.AddTimer(10, &busy);
    serializer.AddTimer(10, &b);

    timer.Tick();
    EXPECT_EQ(trace, ".");

    Remove(busy);
    timer.Tick();
    EXPECT_EQ(trace, ".n");
}

TEST_F(CTimerSerializerTest, CommandThatRemovesItselfDoesNotCrash)
{
    CFunctionCommand once(
        [&]
        {
            trace += 'o';
            Remove(once);
        });
    serializer.AddTimer(10, &once);
    serializer.AddTimer(10, &a);

    timer.Tick(2);

    EXPECT_EQ(trace, "oaa");
}

TEST_F(CTimerSerializerTest, CommandMayRemoveAllEntries)
{
    CFunctionCommand last(
        [&]
        {
            trace += 'l';
            Remove(a);
            Remove(last);
        });
    serializer.AddTimer(10, &last);
    serializer.AddTimer(10, &a);

    timer.Tick();

    EXPECT_EQ(trace, "l");
    EXPECT_EQ(serializer.GetBasePeriod(), -1);
    serializer.Execute(); // a tick that was under way
    EXPECT_EQ(trace, "l");
}

TEST_F(CTimerSerializerTest, CommandThatLetsTicksThroughMayBeRemovedMeanwhile)
{
    int depth = 0;
    CFunctionCommand modal(
        [&]
        {
            trace += '(';
            if (++depth == 1)
            {
                timer.Tick(); // runs itself once more, then a
                Remove(modal);
            }
            trace += ')';
        });
    serializer.AddTimer(10, &modal);
    serializer.AddTimer(10, &a);

    timer.Tick();
    EXPECT_EQ(trace, "(()a)a");
}

TEST_F(CTimerSerializerTest, NullCommandIsIgnored)
{
    serializer.AddTimer(10, nullptr);
    Core::ICommand* none = nullptr;
    serializer.RemoveTimer(none, true);

    EXPECT_EQ(timer.trace, "");
}

TEST(CTimerSerializer, TakesItselfOffTheProviderAtItsEnd)
{
    CFakeTimerProvider timer;
    CFunctionCommand command([] {});
    {
        CTimerSerializer serializer(&timer);
        serializer.AddTimer(10, &command);
        EXPECT_EQ(timer.periods.size(), 1U);
    }
    EXPECT_TRUE(timer.periods.empty());
}

TEST(CTimerSerializer, TicksAllocateNothing)
{
    CFakeTimerProvider timer;
    CTimerSerializer serializer(&timer);
    int runs = 0;
    CFunctionCommand command([&] { ++runs; });
    serializer.AddTimer(10, &command);

    const Tests::CAllocationCounter counter;
    serializer.Execute();

    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_EQ(runs, 1);
}

// The second computation knows nothing of elapsed times: an entry with rounded period p and base g fires at
// every tick whose number is a multiple of p / g.
RC_GTEST_PROP(CTimerSerializer, EntriesFireAtMultiplesOfTheirRoundedPeriods, ())
{
    const auto periods = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(-10, 200)));
    CFakeTimerProvider timer;
    CTimerSerializer serializer(&timer);
    std::vector<int> runs(periods.size());
    std::vector<int> rounded;
    std::vector<std::unique_ptr<CFunctionCommand>> commands;
    int base = 0;
    for (std::size_t i = 0; i < periods.size(); ++i)
    {
        int period = 10;
        while (period < periods[i])
        {
            period += 10;
        }
        rounded.push_back(period);
        base = std::gcd(base, period);
        commands.push_back(std::make_unique<CFunctionCommand>([&runs, i] { ++runs[i]; }));
        serializer.AddTimer(periods[i], commands.back().get());
    }
    RC_ASSERT(serializer.GetBasePeriod() == base);

    constexpr int ticks = 50;
    timer.Tick(ticks);

    for (std::size_t i = 0; i < periods.size(); ++i)
    {
        RC_ASSERT(runs[i] == ticks * base / rounded[i]);
    }
}

TEST(CTimerSerializer, OtherThreadsMayAddAndRemoveWhileALoopTicks)
{
    CMessageLoop loop;
    CTimerSerializer& serializer = loop.GetTimerSerializer();
    loop.Start();
    std::atomic<int> ticks = 0;
    CFunctionCommand steady([&] { ++ticks; });
    serializer.AddTimer(10, &steady);
    const auto work = [&](int period)
    {
        for (int i = 0; i < 100; ++i)
        {
            Core::ICommand* command = new CFunctionCommand([&] { ++ticks; });
            serializer.AddTimer(period, command);
            std::this_thread::yield();
            serializer.RemoveTimer(command, true);
        }
    };
    std::thread first(work, 20);
    std::thread second(work, 35);
    first.join();
    second.join();
    EXPECT_EQ(serializer.GetBasePeriod(), 10);
    const int before = ticks;
    EXPECT_TRUE(Tests::WaitUntil([&] { return ticks > before; }));

    Core::ICommand* command = &steady;
    serializer.RemoveTimer(command, false);
}

TEST(CTimerSerializer, RemovalWaitsForTheCommandThatAnotherThreadIsRunning)
{
    CFakeTimerProvider timer;
    CTimerSerializer serializer(&timer);
    Tests::CThreadState remover;
    std::atomic<bool> ticking = false;
    std::atomic<bool> go = false;
    std::atomic<bool> ended = false;
    CFunctionCommand slow(
        [&]
        {
            ticking = true;
            Tests::WaitUntil([&] { return go.load(); });
            ended = true;
        });
    serializer.AddTimer(10, &slow);
    std::thread ticker([&] { serializer.Execute(); });
    EXPECT_TRUE(Tests::WaitUntil([&] { return ticking.load(); }));
    bool endedBeforeReturn = false;
    std::thread removing(
        [&]
        {
            remover.AboutToWait();
            Core::ICommand* command = &slow;
            serializer.RemoveTimer(command, false);
            endedBeforeReturn = ended;
        });
    EXPECT_TRUE(remover.WaitUntilAsleep());

    go = true;
    removing.join();
    ticker.join();

    EXPECT_TRUE(endedBeforeReturn);
}
