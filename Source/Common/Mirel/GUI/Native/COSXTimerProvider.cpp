#include "Mirel/GUI/Native/COSXTimerProvider.h"

namespace Mirel::GUI
{

COSXTimerProvider::~COSXTimerProvider()
{
    for (const auto& [command, id] : timers)
    {
        loop->RemoveTimer(id);
    }
}

void COSXTimerProvider::AddTimer(int periodMs, Core::ICommand* command)
{
    if (loop == nullptr || command == nullptr)
    {
        return;
    }
    Remove(command);
    timers[command] = loop->AddTimer(periodMs, [command] { command->Execute(); });
}

void COSXTimerProvider::RemoveTimer(Core::ICommand*& command, bool destroyCommand)
{
    Remove(command);
    System::DestroyTimerCommand(command, destroyCommand);
}

void COSXTimerProvider::Remove(Core::ICommand* command)
{
    const auto place = timers.find(command);
    if (place != timers.end())
    {
        loop->RemoveTimer(place->second);
        timers.erase(place);
    }
}

} // namespace Mirel::GUI
