#pragma once

#include "Mirel/Core/ICommand.h"

namespace Mirel::Core
{

/// A source of events: holds listeners and calls them synchronously, in the order of connection.
/// Listeners are never owned; a listener must be disconnected before it dies.
class IEventProvider
{
public:
    /// Adds a listener at the end. The same command may be connected again: one call per connection.
    virtual void Connect(ICommand* command) = 0;

    /// The first form for a reference.
    virtual void Connect(ICommand& command) = 0;

    /// Removes every connection of the command; with destroyCommand also destroys the command and nulls the
    /// caller's pointer. A null pointer does nothing.
    virtual void Disconnect(ICommand*& command, bool destroyCommand) = 0;

    /// Removes every connection of the command and leaves the command alone.
    virtual void Disconnect(ICommand* command) = 0;

    virtual ~IEventProvider() = default;
};

/// The side of an event provider that fires.
class INotify
{
public:
    virtual void Notify() const = 0;
    virtual ~INotify() = default;
};

} // namespace Mirel::Core
