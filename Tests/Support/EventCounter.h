#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/IEventProvider.h"

namespace Tests
{

/// Counts the events of a provider while it lives. The provider must outlive it.
class CEventCounter : public Mirel::Core::ICommand
{
public:
    explicit CEventCounter(Mirel::Core::IEventProvider& provider_) : provider(provider_)
    {
        provider.Connect(this);
    }

    CEventCounter(const CEventCounter&) = delete;
    CEventCounter& operator=(const CEventCounter&) = delete;
    ~CEventCounter() override { provider.Disconnect(this); }

    void Execute() override { ++count; }

    /// Events since construction or the last call.
    int Take()
    {
        const int taken = count;
        count = 0;
        return taken;
    }

private:
    Mirel::Core::IEventProvider& provider;
    int count = 0;
};

} // namespace Tests
