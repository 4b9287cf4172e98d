#pragma once

#include "Mirel/Core/TIArgEventProvider.h"
#include "Mirel/Core/TListenerList.h"

namespace Mirel::Core
{

/// CEventProvider with one argument: same rules of delivery, one thread only.
template <class A>
class TArgEventProvider : public virtual TIArgEventProvider<A>, public virtual TIArgNotify<A>
{
public:
    TArgEventProvider() = default;
    TArgEventProvider(const TArgEventProvider&) = delete;
    TArgEventProvider& operator=(const TArgEventProvider&) = delete;

    void Connect(TIArgCommand<A>* command) override { listeners.Connect(command); }
    void Connect(TIArgCommand<A>& command) override { Connect(&command); }

    void Disconnect(TIArgCommand<A>*& command, bool destroyCommand) override
    {
        DisconnectAndDestroy(*this, command, destroyCommand);
    }

    void Disconnect(TIArgCommand<A>* command) override { listeners.Disconnect(command); }

    void Notify(A argument) const override
    {
        listeners.Deliver([&](TIArgCommand<A>& command) { command.Execute(argument); });
    }

private:
    mutable TListenerList<TIArgCommand<A>> listeners;
};

} // namespace Mirel::Core
