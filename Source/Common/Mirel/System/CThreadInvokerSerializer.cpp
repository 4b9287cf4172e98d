#include "Mirel/System/CThreadInvokerSerializer.h"

#include "Mirel/Core/CAutoLock.h"

namespace Mirel::System
{

using Core::CAutoLock;

CThreadInvokerSerializer::CThreadInvokerSerializer(ITimerProvider* timer_, IThreadInvoker* target_,
                                                   int refreshMs_)
    : timer(timer_),
      target(target_),
      refreshMs(refreshMs_)
{
}

CThreadInvokerSerializer::~CThreadInvokerSerializer()
{
    Stop();
}

void CThreadInvokerSerializer::Start()
{
    if (running)
    {
        return; // a timer provider may keep a command twice
    }
    running = true;
    timer->AddTimer(refreshMs, this);
}

void CThreadInvokerSerializer::Stop()
{
    if (!running)
    {
        return;
    }
    running = false;
    Core::ICommand* self = this;
    timer->RemoveTimer(self, false);
}

void CThreadInvokerSerializer::Clear()
{
    const CAutoLock drain(drainLock);
    const CAutoLock list(listLock);
    // Out of the list first: the end of a command may post another one.
    const std::list<Entry> dropped = std::move(entries);
    entries.clear();
}

bool CThreadInvokerSerializer::Invoke(Core::ICommand* command, bool owned)
{
    return target->Invoke(command, owned);
}

bool CThreadInvokerSerializer::InvokeAsync(Core::ICommand* command, bool owned)
{
    const CAutoLock list(listLock);
    entries.emplace_back(command, owned);
    return true;
}

void CThreadInvokerSerializer::SetRefreshTime(int milliseconds)
{
    if (milliseconds == refreshMs)
    {
        return;
    }
    refreshMs = milliseconds;
    if (running)
    {
        Core::ICommand* self = this;
        timer->RemoveTimer(self, false);
        timer->AddTimer(refreshMs, this);
    }
}

void CThreadInvokerSerializer::Execute()
{
    const CAutoLock drain(drainLock);
    std::list<Entry> taken;
    while (running && TakeFirst(taken))
    {
        if (taken.front())
        {
            taken.front()->Execute();
        }
        taken.clear();
    }
}

bool CThreadInvokerSerializer::TakeFirst(std::list<Entry>& taken)
{
    const CAutoLock list(listLock);
    if (entries.empty())
    {
        return false;
    }
    taken.splice(taken.begin(), entries, entries.begin());
    return true;
}

} // namespace Mirel::System
