#include "Mirel/System/CCriticalSection.h"
#include "Mirel/Core/CAutoLock.h"

#include <gtest/gtest.h>
#include <thread>

using namespace Mirel;
using System::CCriticalSection;

TEST(CCriticalSection, SameThreadMayLockAgain)
{
    CCriticalSection section;
    const Core::CAutoLock outer(section);
    const Core::CAutoLock inner(section);

    EXPECT_TRUE(section.TryLock());
    section.Unlock();
}

TEST(CCriticalSection, AnotherThreadGetsItOnlyAfterTheLastUnlock)
{
    CCriticalSection section;
    const auto isFree = [&]
    {
        bool locked = false;
        std::thread other(
            [&]
            {
                locked = section.TryLock();
                if (locked)
                {
                    section.Unlock();
                }
            });
        other.join();
        return locked;
    };
    section.Lock();
    section.Lock();
    EXPECT_FALSE(isFree());

    section.Unlock();
    EXPECT_FALSE(isFree());

    section.Unlock();
    EXPECT_TRUE(isFree());
}

TEST(CCriticalSection, KeepsTwoThreadsApart)
{
    CCriticalSection section;
    int count = 0;
    const auto work = [&]
    {
        for (int i = 0; i < 10000; ++i)
        {
            const Core::CAutoLock guard(section);
            ++count;
        }
    };
    std::thread other(work);
    work();
    other.join();

    EXPECT_EQ(count, 20000);
}
