#include "Mirel/Core/CEventProvider.h"

namespace Mirel::Core
{

void CEventProvider::Connect(ICommand* command)
{
    listeners.Connect(command);
}

void CEventProvider::Connect(ICommand& command)
{
    Connect(&command);
}

void CEventProvider::Disconnect(ICommand*& command, bool destroyCommand)
{
    DisconnectAndDestroy(*this, command, destroyCommand);
}

void CEventProvider::Disconnect(ICommand* command)
{
    listeners.Disconnect(command);
}

void CEventProvider::Notify() const
{
    listeners.Deliver([](ICommand& command) { command.Execute(); });
}

} // namespace Mirel::Core
