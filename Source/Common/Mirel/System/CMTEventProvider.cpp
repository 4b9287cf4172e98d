#include "Mirel/System/CMTEventProvider.h"

#include "Mirel/Core/CAutoLock.h"

namespace Mirel::System
{

using Core::CAutoLock;

void CMTEventProvider::Connect(Core::ICommand* command)
{
    const CAutoLock guard(section);
    CEventProvider::Connect(command);
}

void CMTEventProvider::Connect(Core::ICommand& command)
{
    const CAutoLock guard(section);
    CEventProvider::Connect(command);
}

void CMTEventProvider::Disconnect(Core::ICommand*& command, bool destroyCommand)
{
    const CAutoLock guard(section);
    CEventProvider::Disconnect(command, destroyCommand);
}

void CMTEventProvider::Disconnect(Core::ICommand* command)
{
    const CAutoLock guard(section);
    CEventProvider::Disconnect(command);
}

void CMTEventProvider::Notify() const
{
    const CAutoLock guard(section);
    CEventProvider::Notify();
}

} // namespace Mirel::System
