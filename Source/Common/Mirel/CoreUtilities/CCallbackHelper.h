#pragma once

#include "Mirel/Core/IEventProvider.h"

#include <utility>

namespace Mirel::CoreUtilities
{

/// A connection that ends with its owner: connects a command to a provider for as long as this object lives.
/// Owns neither; both must outlive it. Stands after the data that the command touches, so that it goes first.
class CCallbackHelper
{
public:
    CCallbackHelper(Core::IEventProvider* provider_, Core::ICommand* command_)
        : provider(provider_),
          command(command_)
    {
        if (provider != nullptr)
        {
            provider->Connect(command);
        }
    }

    CCallbackHelper(CCallbackHelper&& other) noexcept
        : provider(std::exchange(other.provider, nullptr)),
          command(other.command)
    {
    }

    CCallbackHelper& operator=(CCallbackHelper&& other) noexcept
    {
        if (this != &other)
        {
            Disconnect();
            provider = std::exchange(other.provider, nullptr);
            command = other.command;
        }
        return *this;
    }

    ~CCallbackHelper() { Disconnect(); }

private:
    void Disconnect()
    {
        if (provider != nullptr)
        {
            provider->Disconnect(command);
        }
    }

    Core::IEventProvider* provider;
    Core::ICommand* command;
};

} // namespace Mirel::CoreUtilities
