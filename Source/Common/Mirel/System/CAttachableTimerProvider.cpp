#include "Mirel/System/CAttachableTimerProvider.h"

namespace Mirel::System
{

CAttachableTimerProvider::~CAttachableTimerProvider()
{
    Attach(nullptr);
}

void CAttachableTimerProvider::Attach(ITimerProvider* newProvider)
{
    if (provider == newProvider)
    {
        return;
    }
    for (const auto& [command, periodMs] : periods)
    {
        Core::ICommand* moved = command;
        if (provider != nullptr)
        {
            provider->RemoveTimer(moved, false);
        }
        if (newProvider != nullptr)
        {
            newProvider->AddTimer(periodMs, moved);
        }
    }
    provider = newProvider;
}

void CAttachableTimerProvider::AddTimer(int periodMs, Core::ICommand* command)
{
    periods[command] = periodMs;
    if (provider != nullptr)
    {
        provider->AddTimer(periodMs, command);
    }
}

void CAttachableTimerProvider::RemoveTimer(Core::ICommand*& command, bool destroyCommand)
{
    periods.erase(command);
    if (provider != nullptr)
    {
        provider->RemoveTimer(command, destroyCommand);
    }
    else
    {
        DestroyTimerCommand(command, destroyCommand);
    }
}

} // namespace Mirel::System
