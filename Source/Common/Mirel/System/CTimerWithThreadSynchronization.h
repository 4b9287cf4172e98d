#pragma once

#include "Mirel/System/IThreadInvoker.h"
#include "Mirel/System/ITimerProvider.h"

#include <memory>

namespace Mirel::System
{

/// Timers that tick on one thread and run their commands on another, with back-pressure: a timer whose
/// command has been posted and has not run yet skips up to 16 ticks before it posts again.
///
/// Timers are added and removed on the target thread, which makes removal final: a call in flight finds the
/// timer gone and does nothing, also when this object itself is gone by then.
class CTimerWithThreadSynchronization : public virtual ITimerProvider
{
public:
    /// Neither is owned; both must outlive this object.
    CTimerWithThreadSynchronization(ITimerProvider* ticking, IThreadInvoker* target);
    CTimerWithThreadSynchronization(const CTimerWithThreadSynchronization&) = delete;
    CTimerWithThreadSynchronization& operator=(const CTimerWithThreadSynchronization&) = delete;
    ~CTimerWithThreadSynchronization() override;

    /// Null is ignored.
    void AddTimer(int periodMs, Core::ICommand* command) override;
    void RemoveTimer(Core::ICommand*& command, bool destroyCommand) override;

private:
    class CThreadSyncCommandAdapter;
    class CTimers;
    class CRunCommand;

    std::shared_ptr<CTimers> timers;
};

} // namespace Mirel::System
