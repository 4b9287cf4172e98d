#include "Mirel/GUI/Native/COSXTimerProvider.h"
#include "Mirel/System/CTimerSerializer.h"
#include "Support/CFunctionCommand.h"
#include "Support/CManualTickSource.h"

#include <gtest/gtest.h>
#include <string>

using namespace Mirel;
using Mirel::GUI::CNativeRunLoop;
using Mirel::GUI::COSXTimerProvider;
using Tests::CFunctionCommand;

namespace
{

class COSXTimerProviderTest : public testing::Test
{
protected:
    void PumpAfter(int milliseconds)
    {
        clock.AdvanceMilliseconds(milliseconds);
        loop.OnIdle();
    }

    void Remove(Core::ICommand& removed)
    {
        Core::ICommand* pointer = &removed;
        provider.RemoveTimer(pointer, false);
    }

    Tests::CManualTickSource clock;
    CNativeRunLoop loop{clock};
    COSXTimerProvider provider{&loop};
    int runs = 0;
    CFunctionCommand command{[this] { ++runs; }};
};

} // namespace

TEST_F(COSXTimerProviderTest, CommandRunsEachPeriodFromOnePeriodOn)
{
    provider.AddTimer(20, &command);
    PumpAfter(19);
    EXPECT_EQ(runs, 0);
    PumpAfter(1);
    EXPECT_EQ(runs, 1);
    PumpAfter(20);
    EXPECT_EQ(runs, 2);
}

TEST_F(COSXTimerProviderTest, AddingAgainReplacesTheTimer)
{
    provider.AddTimer(20, &command);
    PumpAfter(10);
    provider.AddTimer(30, &command);
    PumpAfter(29);
    EXPECT_EQ(runs, 0);
    PumpAfter(1);
    EXPECT_EQ(runs, 1);
}

TEST_F(COSXTimerProviderTest, RemovedTimerRunsNoMoreAndIsDestroyedIfAsked)
{
    int deaths = 0;
    Core::ICommand* mortal = new CFunctionCommand([this] { ++runs; }, &deaths);
    Core::ICommand* stranger = new CFunctionCommand([] {}, &deaths);
    provider.AddTimer(20, &command);
    provider.AddTimer(20, mortal);

    Remove(command);
    provider.RemoveTimer(mortal, true);
    provider.RemoveTimer(stranger, true);
    PumpAfter(100);

    EXPECT_EQ(runs, 0);
    EXPECT_EQ(deaths, 2);
    EXPECT_EQ(mortal, nullptr);
    EXPECT_EQ(stranger, nullptr);
}

TEST_F(COSXTimerProviderTest, CommandMayRemoveItselfAndAddItselfAgain)
{
    CFunctionCommand busy(
        [&]
        {
            ++runs;
            Remove(busy);
            if (runs == 1)
            {
                provider.AddTimer(50, &busy);
            }
        });
    provider.AddTimer(10, &busy);
    PumpAfter(10);
    EXPECT_EQ(runs, 1);
    PumpAfter(49);
    EXPECT_EQ(runs, 1);
    PumpAfter(1);
    EXPECT_EQ(runs, 2);
    PumpAfter(100);
    EXPECT_EQ(runs, 2);
}

TEST_F(COSXTimerProviderTest, TakesItsTimersOffTheLoopAtItsEnd)
{
    {
        COSXTimerProvider other(&loop);
        other.AddTimer(10, &command);
    }
    PumpAfter(10);

    EXPECT_EQ(runs, 0);
}

TEST_F(COSXTimerProviderTest, WithoutALoopOrACommandThereIsNoTimer)
{
    COSXTimerProvider none(nullptr);
    none.AddTimer(10, &command);
    Core::ICommand* pointer = &command;
    none.RemoveTimer(pointer, false);
    provider.AddTimer(10, nullptr);
    PumpAfter(10);

    EXPECT_EQ(runs, 0);
}

TEST_F(COSXTimerProviderTest, DrivesMergedTimers)
{
    System::CTimerSerializer serializer(&provider);
    std::string trace;
    CFunctionCommand a([&] { trace += 'a'; });
    CFunctionCommand b([&] { trace += 'b'; });
    serializer.AddTimer(20, &a);
    serializer.AddTimer(30, &b);
    for (int i = 0; i < 6; ++i)
    {
        PumpAfter(10);
    }

    EXPECT_EQ(trace, "abaab");
}
