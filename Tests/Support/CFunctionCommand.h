#pragma once

#include "Mirel/Core/ICommand.h"

#include <functional>
#include <utility>

namespace Tests
{

/// A listener made from a lambda. With a count given, adds one to it when it dies.
class CFunctionCommand : public Mirel::Core::ICommand
{
public:
    explicit CFunctionCommand(std::function<void()> body_, int* deaths_ = nullptr)
        : body(std::move(body_)),
          deaths(deaths_)
    {
    }
    CFunctionCommand(const CFunctionCommand&) = delete;
    CFunctionCommand& operator=(const CFunctionCommand&) = delete;

    ~CFunctionCommand() override
    {
        if (deaths != nullptr)
        {
            ++*deaths;
        }
    }

    void Execute() override { body(); }

private:
    std::function<void()> body;
    int* deaths;
};

} // namespace Tests
