#include "Mirel/System/CBaseEvent.h"

#include <cerrno>

namespace Mirel::System
{

namespace
{
constexpr int millisecondsPerSecond = 1000;
constexpr long nanosecondsPerSecond = 1000000000;
constexpr long nanosecondsPerMillisecond = 1000000;
constexpr long nanosecondsPerMicrosecond = 1000;
} // namespace

timespec DeadlineAfter(const timeval& now, int milliseconds)
{
    timespec deadline{};
    deadline.tv_sec = now.tv_sec + milliseconds / millisecondsPerSecond;
    deadline.tv_nsec = now.tv_usec * nanosecondsPerMicrosecond +
                       (milliseconds % millisecondsPerSecond) * nanosecondsPerMillisecond;
    if (deadline.tv_nsec >= nanosecondsPerSecond)
    {
        deadline.tv_nsec -= nanosecondsPerSecond;
        ++deadline.tv_sec;
    }
    return deadline;
}

CBaseEvent::~CBaseEvent()
{
    pthread_cond_destroy(&condition);
    pthread_mutex_destroy(&mutex);
}

bool CBaseEvent::IsSet() const
{
    const CMutexGuard guard(mutex);
    return set;
}

bool CBaseEvent::Block(int timeoutMs, int nanoseconds)
{
    if (timeoutMs < 0)
    {
        return pthread_cond_wait(&condition, &mutex) == 0;
    }
    timeval now{};
    gettimeofday(&now, nullptr);
    timespec deadline = DeadlineAfter(now, timeoutMs);
    deadline.tv_nsec += nanoseconds;
    if (deadline.tv_nsec >= nanosecondsPerSecond)
    {
        deadline.tv_nsec -= nanosecondsPerSecond;
        ++deadline.tv_sec;
    }
    const int result = pthread_cond_timedwait(&condition, &mutex, &deadline);
    return result == 0 || result == ETIMEDOUT;
}

} // namespace Mirel::System
