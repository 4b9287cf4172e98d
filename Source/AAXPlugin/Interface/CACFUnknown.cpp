#include "AAXPlugin/Interface/CACFUnknown.h"

namespace
{

std::atomic<std::int32_t> liveCount = 0;

} // namespace

CACFUnknown::CACFUnknown()
{
    liveCount.fetch_add(1, std::memory_order_relaxed);
}

CACFUnknown::~CACFUnknown()
{
    // Release: who sees the count fall may unload the code, so nothing of the object may come after it.
    liveCount.fetch_sub(1, std::memory_order_release);
}

std::int32_t CACFUnknown::GetLiveCount()
{
    return liveCount.load(std::memory_order_acquire);
}

std::uint32_t CACFUnknown::IncrementReferences()
{
    return references.fetch_add(1, std::memory_order_relaxed) + 1;
}

std::uint32_t CACFUnknown::DecrementReferences()
{
    const std::uint32_t left = references.fetch_sub(1, std::memory_order_acq_rel) - 1;
    if (left == 0)
    {
        delete this;
    }
    return left;
}
