#pragma once

#include "Mirel/System/CCriticalSection.h"

namespace Mirel::System
{

/// Holds a critical section for the length of a scope if nobody else held it at the start. For a thread that
/// must not wait. Does not own the section.
class CAutoTryLock
{
public:
    explicit CAutoTryLock(CCriticalSection& section_) : section(section_), locked(section.TryLock()) {}
    CAutoTryLock(const CAutoTryLock&) = delete;
    CAutoTryLock& operator=(const CAutoTryLock&) = delete;

    ~CAutoTryLock()
    {
        if (locked)
        {
            section.Unlock();
        }
    }

    bool IsLocked() const { return locked; }

private:
    CCriticalSection& section;
    bool locked;
};

} // namespace Mirel::System
