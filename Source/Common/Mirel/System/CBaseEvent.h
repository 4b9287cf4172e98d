#pragma once

#include <ctime>
#include <pthread.h>
#include <sys/time.h>

namespace Mirel::System
{

/// The wall-clock time that lies so many milliseconds (not negative) after now.
timespec DeadlineAfter(const timeval& now, int milliseconds);

/// What the two kinds of event share: a mark that threads can wait for. Timed waits go by the wall clock.
/// No wait loops: a spurious wake ends it like any other.
class CBaseEvent
{
public:
    CBaseEvent(const CBaseEvent&) = delete;
    CBaseEvent& operator=(const CBaseEvent&) = delete;

    bool IsSet() const;

protected:
    explicit CBaseEvent(bool set_) : set(set_) {}
    ~CBaseEvent();

    /// With the mutex held: waits once, without bound if the time is negative. The nanoseconds, from 0 to a
    /// million, are added to the time. True when woken and when the time is up; false on an error of the
    /// platform.
    bool Block(int timeoutMs, int nanoseconds = 0);

    mutable pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    pthread_cond_t condition = PTHREAD_COND_INITIALIZER;
    bool set;
};

/// Holds a platform mutex for the length of a scope.
class CMutexGuard
{
public:
    explicit CMutexGuard(pthread_mutex_t& mutex_) : mutex(mutex_) { pthread_mutex_lock(&mutex); }
    CMutexGuard(const CMutexGuard&) = delete;
    CMutexGuard& operator=(const CMutexGuard&) = delete;
    ~CMutexGuard() { pthread_mutex_unlock(&mutex); }

private:
    pthread_mutex_t& mutex;
};

} // namespace Mirel::System
