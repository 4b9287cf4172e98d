#include "Mirel/System/CAttachableTimerProvider.h"

#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>

namespace Mirel::System
{
namespace
{

using Tests::CFakeTimerProvider;
using Tests::CFunctionCommand;

TEST(CAttachableTimerProvider, TicksOnlyWhileSomebodyDrivesIt)
{
    int ticks = 0;
    CFunctionCommand command([&ticks] { ++ticks; });
    CFakeTimerProvider driver;
    CAttachableTimerProvider timers;
    timers.AddTimer(20, &command);
    driver.Tick();
    EXPECT_EQ(ticks, 0);
    timers.Attach(&driver);
    driver.Tick();
    EXPECT_EQ(ticks, 1);
    timers.Attach(nullptr);
    driver.Tick();
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(driver.trace, "+20-");
}

TEST(CAttachableTimerProvider, MovesItsTimersFromOneDriverToTheNext)
{
    CFunctionCommand command([] {});
    CFakeTimerProvider first;
    CFakeTimerProvider second;
    CAttachableTimerProvider timers;
    timers.Attach(&first);
    timers.AddTimer(20, &command);
    timers.AddTimer(30, &command);
    timers.Attach(&second);
    timers.Attach(&second);
    EXPECT_EQ(first.trace, "+20+30-");
    EXPECT_EQ(second.trace, "+30");
}

TEST(CAttachableTimerProvider, ARemovedTimerIsNotRegisteredAnew)
{
    CFunctionCommand command([] {});
    Core::ICommand* removed = &command;
    CFakeTimerProvider driver;
    CAttachableTimerProvider timers;
    timers.AddTimer(20, &command);
    timers.RemoveTimer(removed, false);
    EXPECT_EQ(removed, &command);
    timers.Attach(&driver);
    EXPECT_EQ(driver.trace, "");
    timers.AddTimer(20, &command);
    timers.RemoveTimer(removed, false);
    EXPECT_EQ(driver.trace, "+20-");
}

TEST(CAttachableTimerProvider, DestroysCommandsWhenAskedTo)
{
    int deaths = 0;
    CFakeTimerProvider driver;
    CAttachableTimerProvider timers;
    for (ITimerProvider* each :
         {static_cast<ITimerProvider*>(nullptr), static_cast<ITimerProvider*>(&driver)})
    {
        timers.Attach(each);
        Core::ICommand* command = new CFunctionCommand([] {}, &deaths);
        timers.AddTimer(20, command);
        timers.RemoveTimer(command, true);
        EXPECT_EQ(command, nullptr);
    }
    EXPECT_EQ(deaths, 2);
}

TEST(CAttachableTimerProvider, TakesItsTimersBackAtItsEnd)
{
    CFunctionCommand command([] {});
    CFakeTimerProvider driver;
    {
        CAttachableTimerProvider timers;
        timers.Attach(&driver);
        timers.AddTimer(20, &command);
    }
    EXPECT_EQ(driver.trace, "+20-");
}

} // namespace
} // namespace Mirel::System
