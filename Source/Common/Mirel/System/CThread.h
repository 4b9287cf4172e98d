#pragma once

#include "Mirel/System/CCriticalSection.h"

#include <pthread.h>

namespace Mirel::System
{

/// A thread of the platform, with its default attributes, that runs an entry function with an argument.
/// Neither ended nor waited for by the destructor: what the entry function uses must live until it returns.
class CThread
{
public:
    using Entry = void* (*)(void*);

    CThread(Entry entry_, void* argument_, bool startNow);
    CThread(const CThread&) = delete;
    CThread& operator=(const CThread&) = delete;
    virtual ~CThread();

    /// Does nothing for a thread that was started and not yet joined. After a join it starts anew.
    virtual void Start();

    /// Asks the platform to end the thread at its next cancellation point. The stack is unwound.
    virtual void Cancel();

    /// Whether the caller runs on this thread.
    virtual bool IsCurrent() const;

    /// Waits for the end of the thread if the time is -1, the only wait provided; any other time returns at
    /// once. True when the thread has been waited for; false if it was not: not asked to, not started, or
    /// called on the thread itself.
    virtual bool Join(int timeoutMs);

protected:
    /// Starts the thread with another argument. False if it runs already or cannot be created.
    bool Launch(void* launchArgument);

private:
    pthread_t handle = 0;
    void* argument;
    Entry entry;
    mutable CCriticalSection section; ///< over the handle
    CCriticalSection joinSection;     ///< one waiter at a time
};

} // namespace Mirel::System
