#pragma once

#include "Mirel/Core/TIArgCommand.h"

namespace Mirel::Core
{

/// A source of events that carry one argument; the rules are those of IEventProvider.
template <class A>
class TIArgEventProvider
{
public:
    virtual void Connect(TIArgCommand<A>* command) = 0;
    virtual void Connect(TIArgCommand<A>& command) = 0;
    virtual void Disconnect(TIArgCommand<A>*& command, bool destroyCommand) = 0;
    virtual void Disconnect(TIArgCommand<A>* command) = 0;
    virtual ~TIArgEventProvider() = default;
};

/// The side of such a source that fires.
template <class A>
class TIArgNotify
{
public:
    virtual void Notify(A argument) const = 0;
    virtual ~TIArgNotify() = default;
};

} // namespace Mirel::Core
