#pragma once

#include <ctime>

namespace Tests
{

/// Seconds of processor time that the calling thread has used, which other work on the machine does not
/// change.
inline double ThreadSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    constexpr double nanosecond = 1e-9;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * nanosecond;
}

} // namespace Tests
