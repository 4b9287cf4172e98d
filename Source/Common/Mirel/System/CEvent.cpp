#include "Mirel/System/CEvent.h"

namespace Mirel::System
{

void CEvent::Set()
{
    // Woken under the mutex: a waiter may destroy the event as soon as it can leave its wait.
    const CMutexGuard guard(mutex);
    set = true;
    pthread_cond_broadcast(&condition);
}

void CEvent::Reset()
{
    const CMutexGuard guard(mutex);
    set = false;
}

bool CEvent::Wait(int timeoutMs)
{
    const CMutexGuard guard(mutex);
    return set || Block(timeoutMs);
}

} // namespace Mirel::System
