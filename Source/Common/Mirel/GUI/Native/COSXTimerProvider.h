#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/System/ITimerProvider.h"

#include <unordered_map>

namespace Mirel::GUI
{

/// Timers on the native run loop. GUI thread only. Removes its timers at its end.
class COSXTimerProvider : public virtual System::ITimerProvider
{
public:
    /// The loop is not owned and must outlive this object. Without one there are no timers.
    explicit COSXTimerProvider(CNativeRunLoop* loop_) : loop(loop_) {}
    COSXTimerProvider(const COSXTimerProvider&) = delete;
    COSXTimerProvider& operator=(const COSXTimerProvider&) = delete;
    ~COSXTimerProvider() override;

    void AddTimer(int periodMs, Core::ICommand* command) override;
    void RemoveTimer(Core::ICommand*& command, bool destroyCommand) override;

private:
    void Remove(Core::ICommand* command);

    CNativeRunLoop* loop;
    std::unordered_map<Core::ICommand*, CNativeRunLoop::TimerId> timers;
};

} // namespace Mirel::GUI
