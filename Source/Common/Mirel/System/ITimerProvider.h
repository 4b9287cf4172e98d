#pragma once

#include "Mirel/Core/ICommand.h"

namespace Mirel::System
{

/// Runs commands periodically. The command identifies the timer and must live until it is removed. A timer
/// does not remove itself in its own tick; it defers that (TAsyncCommand).
class ITimerProvider
{
public:
    /// The command is not owned. To add a command again changes its period.
    virtual void AddTimer(int periodMs, Core::ICommand* command) = 0;

    /// Afterwards the command does not run any more. With destroyCommand also destroys the command, known or
    /// not, and nulls the caller's pointer.
    virtual void RemoveTimer(Core::ICommand*& command, bool destroyCommand) = 0;

    virtual ~ITimerProvider() = default;
};

/// The end of every RemoveTimer.
inline void DestroyTimerCommand(Core::ICommand*& command, bool destroyCommand)
{
    if (destroyCommand)
    {
        delete command;
        command = nullptr;
    }
}

} // namespace Mirel::System
