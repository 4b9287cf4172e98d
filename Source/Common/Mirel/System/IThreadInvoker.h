#pragma once

#include "Mirel/Core/ICommand.h"

namespace Mirel::System
{

/// Runs commands on a certain thread. Any thread may call. An owned command is destroyed after it ran, and
/// also when it was not taken.
class IThreadInvoker
{
public:
    /// Runs the command there and waits for it. True when the command was taken.
    virtual bool Invoke(Core::ICommand* command, bool owned) = 0;

    /// Has the command run there and does not wait. True when the command was taken.
    virtual bool InvokeAsync(Core::ICommand* command, bool owned) = 0;

    virtual ~IThreadInvoker() = default;
};

} // namespace Mirel::System
