#pragma once

#include <sys/resource.h>

namespace Tests
{

/// Seconds that the calling thread has computed, outside of the kernel. What else runs on the machine changes
/// it little; the kernel's part, such as handing out pages, it changes tenfold.
inline double ThreadSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_THREAD, &usage);
    constexpr double microsecond = 1e-6;
    return static_cast<double>(usage.ru_utime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec) * microsecond;
}

} // namespace Tests
