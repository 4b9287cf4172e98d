#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/System/CThread.h"

#include <memory>

namespace Mirel::System
{

/// A thread that executes a command once. An owned command lives until both the thread has run it and this
/// object is gone.
class CCommandThread : public CThread
{
public:
    CCommandThread(Core::ICommand* command_, bool owned, bool startNow);

    void Start() override;

private:
    using Command = Core::TOwnership<Core::ICommand>;

    static void* Run(void* shared);

    std::shared_ptr<Command> command;
};

} // namespace Mirel::System
