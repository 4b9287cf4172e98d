#include "Mirel/System/CMonotonicTickSource.h"

#include <ctime>

namespace Mirel::System
{

namespace
{
constexpr std::uint64_t nanosecondsPerSecond = 1000000000;
} // namespace

const CMonotonicTickSource& CMonotonicTickSource::GetInstance()
{
    static const CMonotonicTickSource instance;
    return instance;
}

std::uint64_t CMonotonicTickSource::GetTicks() const
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * nanosecondsPerSecond +
           static_cast<std::uint64_t>(now.tv_nsec);
}

} // namespace Mirel::System
