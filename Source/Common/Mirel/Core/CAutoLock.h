#pragma once

#include "Mirel/Core/ILock.h"

namespace Mirel::Core
{

/// Holds a lock for the length of a scope. Does not own it.
class CAutoLock
{
public:
    explicit CAutoLock(ILock& lock_) : lock(lock_) { lock.Lock(); }
    CAutoLock(const CAutoLock&) = delete;
    CAutoLock& operator=(const CAutoLock&) = delete;
    virtual ~CAutoLock() { lock.Unlock(); }

private:
    ILock& lock;
};

} // namespace Mirel::Core
