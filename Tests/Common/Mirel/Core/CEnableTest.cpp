#include "Mirel/Core/CEnable.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Core;
using Tests::CFunctionCommand;

TEST(CEnable, ListenersSeeTheNewStateAndOnlyChangesAreReported)
{
    CEnable enable;
    IEnable& interface = enable;
    std::string trace;
    CFunctionCommand listener([&] { trace += interface.IsEnabled() ? '1' : '0'; });
    interface.GetEnableChangedEventProvider().Connect(listener);
    EXPECT_TRUE(interface.IsEnabled());

    for (const bool state : {true, false, false, true})
    {
        interface.Enable(state);
    }

    EXPECT_EQ(trace, "01");
}

TEST(CEnable, MayStartDisabled)
{
    EXPECT_FALSE(CEnable(false).IsEnabled());
}
