#include "Mirel/System/CWaitableEvent.h"

namespace Mirel::System
{

void CWaitableEvent::Set()
{
    const CMutexGuard guard(mutex);
    set = true;
    pthread_cond_signal(&condition);
}

bool CWaitableEvent::Wait(int timeoutMs, int nanoseconds)
{
    const CMutexGuard guard(mutex);
    if (set)
    {
        set = false;
        return true;
    }
    const bool woken = Block(timeoutMs, nanoseconds);
    if (timeoutMs < 0)
    {
        set = false;
    }
    return woken;
}

} // namespace Mirel::System
