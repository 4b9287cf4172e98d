#pragma once

#include "Mirel/Core/ILock.h"

#include <mutex>

namespace Mirel::System
{

/// The one kind of lock of the system: recursive, so the same thread may lock it again.
class CCriticalSection : public virtual Core::ILock
{
public:
    void Lock() override { mutex.lock(); }
    void Unlock() override { mutex.unlock(); }

    /// Locks if nobody else holds it and says whether it did. For a thread that must not wait.
    bool TryLock() { return mutex.try_lock(); }

private:
    std::recursive_mutex mutex;
};

} // namespace Mirel::System
