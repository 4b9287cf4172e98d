#pragma once

#include "Mirel/Core/IEventProvider.h"
#include "Mirel/Core/TListenerList.h"

namespace Mirel::Core
{

/// Delivers to its listeners in the caller's thread. No lock: one thread only, as a rule the GUI thread.
///
/// A delivery started from inside a listener skips the listeners that are active and calls the others, so
/// that no listener is active twice at once. A listener connected during a delivery is reached by it; any
/// listener, the active one included, may be disconnected during a delivery. Delivery allocates nothing. An
/// exception of a listener passes through and leaves that listener marked active: it is skipped from then on.
class CEventProvider : public virtual IEventProvider, public virtual INotify
{
public:
    CEventProvider() = default;
    CEventProvider(const CEventProvider&) = delete;
    CEventProvider& operator=(const CEventProvider&) = delete;

    void Connect(ICommand* command) override;
    void Connect(ICommand& command) override;
    void Disconnect(ICommand*& command, bool destroyCommand) override;
    void Disconnect(ICommand* command) override;
    void Notify() const override;

private:
    mutable TListenerList<ICommand> listeners;
};

} // namespace Mirel::Core
