#pragma once

#include <cstddef>

namespace Tests
{

/// Counts the allocations of the calling thread while it lives: global new in all its forms. What real-time
/// code must not do. Under the sanitizers, which bring their own allocator, the count works the same way.
class CAllocationCounter
{
public:
    CAllocationCounter();

    /// Allocations of this thread since construction.
    std::size_t GetCount() const;

private:
    std::size_t start;
};

} // namespace Tests
