#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Audio/Plugin/CConstMIDICCMessageTimerProxy.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/EventCounter.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

using namespace Mirel::Audio::Plugin;

namespace
{

TEST(CMIDICCMessage, StartsOnTheFirstChannel)
{
    const CMIDICCMessage message;
    EXPECT_EQ(message.GetChannel(), 1);
    EXPECT_EQ(message.GetNumber(), 0);
    EXPECT_EQ(message.GetValue(), 0);
}

TEST(CMIDICCMessage, KeepsTheEndsOfAllRanges)
{
    CMIDICCMessage message;
    for (const CMIDICCMessage::CSnapshot& each :
         {CMIDICCMessage::CSnapshot{16, 127, 127}, CMIDICCMessage::CSnapshot{1, 0, 0},
          CMIDICCMessage::CSnapshot{16, 0, 127}, CMIDICCMessage::CSnapshot{1, 127, 0}})
    {
        message.Set(each);
        EXPECT_EQ(message.Get(), each);
    }
}

TEST(CMIDICCMessage, ASnapshotNeverMixesTwoMessages)
{
    CMIDICCMessage message;
    std::atomic<bool> stop = false;
    std::thread writer(
        [&]
        {
            for (int i = 0; !stop; i = (i + 1) % 16)
            {
                message.Set({i + 1, i, i});
            }
        });
    for (int i = 0; i < 20000; ++i)
    {
        const CMIDICCMessage::CSnapshot seen = message.Get();
        ASSERT_EQ(seen.channel, seen.number + 1);
        ASSERT_EQ(seen.number, seen.value);
    }
    stop = true;
    writer.join();
}

TEST(CConstMIDICCMessageTimerProxy, FollowsAtTheTickAndNotBefore)
{
    CMIDICCMessage message;
    Tests::CFakeTimerProvider timer;
    const CConstMIDICCMessageTimerProxy proxy(message, timer, 20);
    Tests::CEventCounter changes(proxy.GetValueChangedEventProvider());
    message.Set({2, 3, 4});
    EXPECT_EQ(proxy.GetChannel(), 1);
    EXPECT_EQ(changes.Take(), 0);
    timer.Tick();
    EXPECT_EQ(proxy.GetChannel(), 2);
    EXPECT_EQ(proxy.GetNumber(), 3);
    EXPECT_EQ(proxy.GetValue(), 4);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CConstMIDICCMessageTimerProxy, FiresOnlyForAnotherMessage)
{
    CMIDICCMessage message;
    Tests::CFakeTimerProvider timer;
    const CConstMIDICCMessageTimerProxy proxy(message, timer, 20);
    Tests::CEventCounter changes(proxy.GetValueChangedEventProvider());
    message.Set({2, 3, 4});
    message.Set({2, 3, 5});
    timer.Tick(3);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(proxy.GetValue(), 5);
}

TEST(CConstMIDICCMessageTimerProxy, StartsWithWhatIsThereAndEndsItsTimer)
{
    CMIDICCMessage message;
    message.Set({9, 8, 7});
    Tests::CFakeTimerProvider timer;
    {
        const CConstMIDICCMessageTimerProxy proxy(message, timer, 20);
        EXPECT_EQ(proxy.GetChannel(), 9);
    }
    EXPECT_EQ(timer.trace, "+20-");
}

} // namespace
