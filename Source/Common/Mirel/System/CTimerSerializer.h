#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/IEnable.h"
#include "Mirel/System/CMTEventProvider.h"
#include "Mirel/System/ITimerProvider.h"

#include <condition_variable>
#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <thread>

namespace Mirel::System
{

/// Merges many timers into one timer of an underlying provider. Periods are rounded up to multiples of 10 ms,
/// 10 ms at least; the underlying timer runs at their greatest common divisor. A timer that comes late is not
/// made up.
///
/// One thread ticks; any thread adds and removes, and commands run with no lock held. What a command adds
/// counts from the next tick on.
class CTimerSerializer : public virtual ITimerProvider,
                         public virtual Core::IEnable,
                         public virtual Core::ICommand
{
public:
    /// The underlying provider is not owned and must outlive this object. Enabled at first.
    explicit CTimerSerializer(ITimerProvider* timer_) : timer(timer_) {}
    CTimerSerializer(const CTimerSerializer&) = delete;
    CTimerSerializer& operator=(const CTimerSerializer&) = delete;
    ~CTimerSerializer() override;

    /// A command may stand here more than once, each with its own period. Null is ignored.
    void AddTimer(int periodMs, Core::ICommand* command) override;

    /// Removes the first entry of the command; all of them if the command is to be destroyed. Waits for the
    /// end of the command if another thread is executing it.
    void RemoveTimer(Core::ICommand*& command, bool destroyCommand) override;

    /// Switches the underlying timer. Elapsed times are kept.
    void Enable(bool enable) override;
    bool IsEnabled() const override;
    Core::IEventProvider& GetEnableChangedEventProvider() const override { return enableChanged; }

    /// The tick, for the underlying provider to call.
    void Execute() override;

    /// Lets all periods begin anew.
    void ResetElapsedTimes();

    /// The period of the underlying timer in ms; -1 without entries.
    int GetBasePeriod() const;

private:
    struct SEntry
    {
        Core::ICommand* command; ///< null once removed
        std::int64_t elapsedMs;
        int periodMs;
        int executions = 0; ///< more than one if the command lets ticks through
        std::thread::id executor;
    };

    bool RemoveFirst(const Core::ICommand* command);
    void UpdateBasePeriod();
    void Restart();
    void Register();

    mutable std::mutex mutex; ///< over all that follows
    std::condition_variable executed;
    std::list<std::shared_ptr<SEntry>> entries;
    int ticksUnderWay = 0; ///< while there are any, removed entries stay in the list
    int basePeriodMs = -1;
    ITimerProvider* timer;
    bool enabled = true;
    bool registering = false; ///< a thread is talking to the underlying provider
    bool registerAgain = false;
    mutable CMTEventProvider enableChanged;
};

} // namespace Mirel::System
