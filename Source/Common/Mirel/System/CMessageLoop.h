#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/System/CCommandThread.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/CEvent.h"
#include "Mirel/System/CTimerSerializer.h"
#include "Mirel/System/CTimerTable.h"
#include "Mirel/System/CWaitableEvent.h"
#include "Mirel/System/IThreadInvoker.h"
#include "Mirel/System/ITimerProvider.h"

#include <atomic>
#include <list>
#include <pthread.h>

namespace Mirel::System
{

/// A thread that runs posted commands and timers. Requests run in the order of posting; requests and due
/// timers alternate one by one, so that neither starves the other. Commands run with no lock of the loop
/// held.
///
/// All operations may be called on any thread, on the loop's own too, except that the loop must not be
/// destroyed on its own thread. Created stopped.
class CMessageLoop : public virtual IThreadInvoker, public virtual ITimerProvider
{
public:
    /// Timers run by the given counter, which must outlive the loop.
    explicit CMessageLoop(const ITickSource& source = CMonotonicTickSource::GetInstance());
    CMessageLoop(const CMessageLoop&) = delete;
    CMessageLoop& operator=(const CMessageLoop&) = delete;

    /// Stops. Requests that have not run are dropped; those that are owned are destroyed.
    ~CMessageLoop() override;

    /// Returns when the thread is in its loop. Without effect on a loop that runs.
    void Start();

    /// Waits for the end of the thread, unless called on the thread itself: then the loop ends after the
    /// command that called. Requests and timers are kept for the next start.
    void Stop();

    bool IsStarted() const { return started; }
    bool IsCurrent() const;

    /// On the loop's own thread the command runs at once. On another, on a stopped loop, waits for its start.
    /// A null command is not taken.
    bool Invoke(Core::ICommand* command, bool owned) override;

    /// On a stopped loop the command waits for the start.
    bool InvokeAsync(Core::ICommand* command, bool owned) override;

    void AddTimer(int periodMs, Core::ICommand* command) override;

    /// Waits for a running tick to end, unless called from it.
    void RemoveTimer(Core::ICommand*& command, bool destroyCommand) override;

    /// The same loop with coarse timers, merged into one.
    CTimerSerializer& GetTimerSerializer() { return serializer; }

private:
    struct SRequest
    {
        Core::TOwnership<Core::ICommand> command;
        CEvent* done; ///< null if nobody waits
    };

    void Run();
    void RunPending();
    bool RunFirstRequest();
    void Post(Core::ICommand* command, bool owned, CEvent* done);

    CCriticalSection requestLock;
    std::list<SRequest> requests;
    CTimerTable timers;
    std::atomic<bool> run = false;
    std::atomic<bool> started = false;
    CWaitableEvent wake{false};
    CEvent running{false};
    Core::TCommand<CMessageLoop> runCommand;
    CCommandThread thread;
    CCriticalSection startStopLock; ///< never taken on the loop's own thread
    int waitMs = -1;                ///< of the loop's thread
    CTimerSerializer serializer;
    std::atomic<pthread_t> threadId = 0;
};

} // namespace Mirel::System
