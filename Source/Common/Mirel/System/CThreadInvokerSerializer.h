#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/IThreadInvoker.h"
#include "Mirel/System/ITimerProvider.h"

#include <atomic>
#include <list>

namespace Mirel::System
{

/// Merges posted commands into one drain per refresh period, on the thread of a timer. Created stopped.
///
/// Any thread posts; one thread starts, stops and sets the refresh time. Commands run with the drain lock
/// held and the list free: a command may post more, which run in the same drain.
class CThreadInvokerSerializer : public virtual IThreadInvoker,
                                 public virtual Core::IRefreshTime,
                                 public virtual Core::ICommand
{
public:
    /// The timer ticks on the thread where the commands are to run; the target invokes there at once. Neither
    /// is owned; both must outlive this object.
    CThreadInvokerSerializer(ITimerProvider* timer_, IThreadInvoker* target_, int refreshMs_);
    CThreadInvokerSerializer(const CThreadInvokerSerializer&) = delete;
    CThreadInvokerSerializer& operator=(const CThreadInvokerSerializer&) = delete;

    /// Stops. Commands that have not run are dropped; those that are owned are destroyed.
    ~CThreadInvokerSerializer() override;

    /// Without effect when started already.
    void Start();

    /// Commands that have not run wait for the next start.
    void Stop();

    /// Drops all commands that have not run. Waits for a drain under way on another thread.
    void Clear();

    /// Goes straight to the target.
    bool Invoke(Core::ICommand* command, bool owned) override;

    /// Always taken. Wakes nobody: the command waits for the next tick. Null is taken and skipped.
    bool InvokeAsync(Core::ICommand* command, bool owned) override;

    int GetRefreshTime() const override { return refreshMs; }
    void SetRefreshTime(int milliseconds) override;

    /// The tick, for the timer to call.
    void Execute() override;

private:
    using Entry = Core::TOwnership<Core::ICommand>;

    /// Moves the first queued entry into the given empty list. False if there is none.
    bool TakeFirst(std::list<Entry>& taken);

    std::list<Entry> entries;
    ITimerProvider* timer;
    IThreadInvoker* target;
    CCriticalSection listLock; ///< taken after the drain lock, if both
    CCriticalSection drainLock;
    int refreshMs;
    std::atomic<bool> running = false;
};

} // namespace Mirel::System
