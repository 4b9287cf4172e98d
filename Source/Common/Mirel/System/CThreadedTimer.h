#pragma once

#include "Mirel/Core/IEnable.h"
#include "Mirel/System/CMTEventProvider.h"
#include "Mirel/System/CMessageLoop.h"
#include "Mirel/System/CTimerWithThreadSynchronization.h"

namespace Mirel::System
{

/// Timers that tick on a thread of their own and run their commands on a target thread, merged and with
/// back-pressure. Belongs to the target thread; the switch starts and stops the ticking thread.
class CThreadedTimer : public virtual ITimerProvider, public virtual Core::IEnable
{
public:
    /// Neither the target nor the counter is owned; both must outlive this object.
    CThreadedTimer(IThreadInvoker* target, bool enabled_,
                   const ITickSource& source = CMonotonicTickSource::GetInstance());

    void AddTimer(int periodMs, Core::ICommand* command) override;
    void RemoveTimer(Core::ICommand*& command, bool destroyCommand) override;

    /// To switch off waits for the end of the ticking thread.
    void Enable(bool enable) override;
    bool IsEnabled() const override { return enabled; }
    Core::IEventProvider& GetEnableChangedEventProvider() const override { return enableChanged; }

private:
    CMessageLoop loop;
    CTimerWithThreadSynchronization timers;
    bool enabled;
    mutable CMTEventProvider enableChanged;
};

} // namespace Mirel::System
