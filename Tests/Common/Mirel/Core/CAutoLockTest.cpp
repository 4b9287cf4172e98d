#include "Mirel/Core/CAutoLock.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

using namespace Mirel::Core;

namespace
{

class CTracedLock : public ILock
{
public:
    void Lock() override { trace += 'L'; }
    void Unlock() override { trace += 'U'; }
    std::string trace;
};

} // namespace

TEST(CAutoLock, LocksForTheLengthOfItsScope)
{
    CTracedLock lock;
    {
        const CAutoLock guard(lock);
        EXPECT_EQ(lock.trace, "L");
    }
    EXPECT_EQ(lock.trace, "LU");
}

TEST(CAutoLock, UnlocksWhenAnExceptionLeavesTheScope)
{
    CTracedLock lock;

    EXPECT_THROW(
        {
            const CAutoLock guard(lock);
            throw std::runtime_error("inside");
        },
        std::runtime_error);

    EXPECT_EQ(lock.trace, "LU");
}
