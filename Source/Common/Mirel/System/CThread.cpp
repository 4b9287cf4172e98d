#include "Mirel/System/CThread.h"

#include "Mirel/Core/CAutoLock.h"

namespace Mirel::System
{

CThread::CThread(Entry entry_, void* argument_, bool startNow) : argument(argument_), entry(entry_)
{
    if (startNow)
    {
        Launch(argument);
    }
}

CThread::~CThread()
{
    if (handle != 0)
    {
        pthread_detach(handle);
    }
}

void CThread::Start()
{
    Launch(argument);
}

bool CThread::Launch(void* launchArgument)
{
    const Core::CAutoLock guard(section);
    if (handle != 0)
    {
        return false;
    }
    if (pthread_create(&handle, nullptr, entry, launchArgument) != 0)
    {
        handle = 0;
        return false;
    }
    return true;
}

void CThread::Cancel()
{
    const Core::CAutoLock guard(section);
    if (handle != 0)
    {
        pthread_cancel(handle);
    }
}

bool CThread::IsCurrent() const
{
    const Core::CAutoLock guard(section);
    return handle != 0 && pthread_equal(handle, pthread_self()) != 0;
}

bool CThread::Join(int timeoutMs)
{
    if (timeoutMs != -1 || IsCurrent())
    {
        return false;
    }
    const Core::CAutoLock oneAtATime(joinSection);
    section.Lock();
    const pthread_t joined = handle;
    section.Unlock(); // the thread may ask who it is while it is waited for
    if (joined == 0 || pthread_join(joined, nullptr) != 0)
    {
        return false;
    }
    const Core::CAutoLock guard(section);
    handle = 0;
    return true;
}

} // namespace Mirel::System
