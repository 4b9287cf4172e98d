#pragma once

#include "Mirel/Core/IDirty.h"

#include <atomic>

namespace Mirel::Core
{

/// A plain flag, clean at first. It may be set on the audio thread and read on another: it orders nothing but
/// itself, so what it stands for must be handed over by other means.
class CDirty : public virtual IDirty
{
public:
    explicit CDirty(bool dirty_ = false) : dirty(dirty_) {}
    CDirty(const CDirty& other) : CDirty(other.IsDirty()) {}

    CDirty& operator=(const CDirty& other)
    {
        dirty.store(other.IsDirty(), std::memory_order_relaxed);
        return *this;
    }

    ~CDirty() override = default;

    bool IsDirty() const override { return dirty.load(std::memory_order_relaxed); }
    void SetDirty(bool newDirty) override { dirty.store(newDirty, std::memory_order_relaxed); }

private:
    std::atomic<bool> dirty;
};

} // namespace Mirel::Core
