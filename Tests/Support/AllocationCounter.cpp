#include "Support/AllocationCounter.h"

#include <cstdlib>
#include <new>

namespace
{

thread_local std::size_t allocations = 0;

void* Allocate(std::size_t size, std::size_t alignment)
{
    ++allocations;
    const std::size_t rounded = (size + alignment - 1) / alignment * alignment;
    void* block = std::aligned_alloc(alignment, rounded == 0 ? alignment : rounded);
    if (block == nullptr)
    {
        throw std::bad_alloc();
    }
    return block;
}

} // namespace

void* operator new(std::size_t size)
{
    return Allocate(size, alignof(std::max_align_t));
}

void* operator new[](std::size_t size)
{
    return Allocate(size, alignof(std::max_align_t));
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return Allocate(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return Allocate(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::align_val_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::align_val_t) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t, std::align_val_t) noexcept
{
    std::free(block);
}

namespace Tests
{

CAllocationCounter::CAllocationCounter() : start(allocations) {}

std::size_t CAllocationCounter::GetCount() const
{
    return allocations - start;
}

} // namespace Tests
