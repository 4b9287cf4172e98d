#include "Mirel/System/CCommandThread.h"

namespace Mirel::System
{

CCommandThread::CCommandThread(Core::ICommand* command_, bool owned, bool startNow)
    : CThread(&CCommandThread::Run, nullptr, false),
      command(std::make_shared<Command>(command_, owned))
{
    if (startNow)
    {
        CCommandThread::Start();
    }
}

void CCommandThread::Start()
{
    auto shared = std::make_unique<std::shared_ptr<Command>>(command);
    if (Launch(shared.get()))
    {
        shared.release(); // NOLINT(bugprone-unused-return-value): the thread has it now
    }
}

void* CCommandThread::Run(void* shared)
{
    const std::unique_ptr<std::shared_ptr<Command>> command(static_cast<std::shared_ptr<Command>*>(shared));
    if (**command)
    {
        (**command)->Execute();
    }
    return nullptr;
}

} // namespace Mirel::System
