#pragma once

#include "Mirel/System/ITimerProvider.h"

#include <unordered_map>

namespace Mirel::System
{

/// Timers that tick only while there is somebody to drive them: keeps what is registered, and passes it on to
/// another provider as soon as one is attached. For objects that are built before, and outlive, what drives
/// them, as the objects of a model do the editor. One thread at a time; not called from a tick.
class CAttachableTimerProvider : public ITimerProvider
{
public:
    CAttachableTimerProvider() = default;
    CAttachableTimerProvider(const CAttachableTimerProvider&) = delete;
    CAttachableTimerProvider& operator=(const CAttachableTimerProvider&) = delete;

    /// Takes its timers from the provider.
    ~CAttachableTimerProvider() override;

    /// Not owned, and must be replaced before it goes away; null for none. Registers all timers anew.
    void Attach(ITimerProvider* newProvider);

    void AddTimer(int periodMs, Core::ICommand* command) override;
    void RemoveTimer(Core::ICommand*& command, bool destroyCommand) override;

private:
    ITimerProvider* provider = nullptr;
    std::unordered_map<Core::ICommand*, int> periods;
};

} // namespace Mirel::System
