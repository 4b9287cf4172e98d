#pragma once

#include <cstddef>
#include <new>
#include <vector>

namespace Mirel::Core
{

/// A cache line of the processors that this runs on, in bytes.
inline constexpr std::size_t cacheLineSize = 64;

/// Allocates whole cache lines: blocks of samples that start on one are copied without touching two at a
/// time.
template <class T>
class TAlignedAllocator
{
public:
    using value_type = T;

    TAlignedAllocator() = default;

    template <class U>
    explicit TAlignedAllocator(const TAlignedAllocator<U>&)
    {
    }

    T* allocate(std::size_t count)
    {
        return static_cast<T*>(::operator new (count * sizeof(T), std::align_val_t{cacheLineSize}));
    }

    void deallocate(T* block, std::size_t) { ::operator delete (block, std::align_val_t{cacheLineSize}); }

    bool operator==(const TAlignedAllocator&) const = default;
};

template <class T>
using TAlignedVector = std::vector<T, TAlignedAllocator<T>>;

} // namespace Mirel::Core
