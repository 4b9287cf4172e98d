#include "Mirel/Core/CDirty.h"

#include <gtest/gtest.h>
#include <thread>

using namespace Mirel::Core;

TEST(CDirty, IsCleanAtFirstAndKeepsWhatIsSet)
{
    CDirty dirty;
    IDirty& interface = dirty;
    EXPECT_FALSE(interface.IsDirty());

    interface.SetDirty(true);
    EXPECT_TRUE(interface.IsDirty());

    interface.SetDirty(false);
    EXPECT_FALSE(interface.IsDirty());
}

TEST(CDirty, CopyTakesTheStateAndIsIndependent)
{
    CDirty first(true);
    CDirty second(first);
    CDirty third;
    third = first;

    first.SetDirty(false);

    EXPECT_TRUE(second.IsDirty());
    EXPECT_TRUE(third.IsDirty());
}

TEST(CDirty, MarkSetOnOneThreadArrivesOnAnother)
{
    CDirty dirty;
    std::thread audio([&] { dirty.SetDirty(true); });

    while (!dirty.IsDirty())
    {
        std::this_thread::yield();
    }
    audio.join();

    EXPECT_TRUE(dirty.IsDirty());
}
