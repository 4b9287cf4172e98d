#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/System/CCriticalSection.h"

namespace Mirel::System
{

/// An event provider for several threads. Delivers with its lock held, so a listener must not wait for a
/// thread that may itself be connecting to or notifying the same provider. The lock is recursive: a listener
/// may connect, disconnect and notify here.
class CMTEventProvider : public Core::CEventProvider
{
public:
    void Connect(Core::ICommand* command) override;
    void Connect(Core::ICommand& command) override;
    void Disconnect(Core::ICommand*& command, bool destroyCommand) override;
    void Disconnect(Core::ICommand* command) override;
    void Notify() const override;

private:
    mutable CCriticalSection section;
};

} // namespace Mirel::System
