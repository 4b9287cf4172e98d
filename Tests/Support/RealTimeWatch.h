#pragma once

#include <cstddef>
#include <string>

namespace Tests
{

/// Watches the calling thread while it lives: counts its calls of what real-time code must not do. That is to
/// allocate and free memory, wait for a lock, a condition or the clock, and open, read, write and close
/// files. To try a lock is allowed. The calls of every library loaded into the program are seen. One at a
/// time on a thread, and only in a program that is linked with RealTimeWatch.cpp by itself: it puts its own
/// functions before the C library's. Under the sanitizers, which do the same, nothing is seen.
class CRealTimeWatch
{
public:
    CRealTimeWatch();
    CRealTimeWatch(const CRealTimeWatch&) = delete;
    CRealTimeWatch& operator=(const CRealTimeWatch&) = delete;
    ~CRealTimeWatch();

    /// Whether anything can be seen.
    static bool IsAvailable();

    /// Forbidden calls of this thread since construction.
    std::size_t GetCount() const;

    /// The name of the first function called; empty if there was none.
    std::string GetFirst() const;
};

} // namespace Tests
