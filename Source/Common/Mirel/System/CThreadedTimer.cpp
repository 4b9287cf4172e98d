#include "Mirel/System/CThreadedTimer.h"

namespace Mirel::System
{

CThreadedTimer::CThreadedTimer(IThreadInvoker* target, bool enabled_, const ITickSource& source)
    : loop(source),
      timers(&loop.GetTimerSerializer(), target),
      enabled(enabled_)
{
    if (enabled)
    {
        loop.Start();
    }
}

void CThreadedTimer::AddTimer(int periodMs, Core::ICommand* command)
{
    timers.AddTimer(periodMs, command);
}

void CThreadedTimer::RemoveTimer(Core::ICommand*& command, bool destroyCommand)
{
    timers.RemoveTimer(command, destroyCommand);
}

void CThreadedTimer::Enable(bool enable)
{
    if (enable == enabled)
    {
        return;
    }
    enabled = enable;
    if (enabled)
    {
        loop.Start();
    }
    else
    {
        loop.Stop();
    }
    enableChanged.Notify();
}

} // namespace Mirel::System
