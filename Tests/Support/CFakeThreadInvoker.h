#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/System/IThreadInvoker.h"

#include <deque>
#include <utility>

namespace Tests
{

/// Keeps posted commands until told to run them; invokes at once.
class CFakeThreadInvoker : public Mirel::System::IThreadInvoker
{
public:
    bool Invoke(Mirel::Core::ICommand* command, bool owned) override
    {
        ++invoked;
        const Mirel::Core::TOwnership<Mirel::Core::ICommand> holder(command, owned);
        holder->Execute();
        return true;
    }

    bool InvokeAsync(Mirel::Core::ICommand* command, bool owned) override
    {
        ++posted;
        queue.emplace_back(command, owned);
        return true;
    }

    void RunAll()
    {
        while (!queue.empty())
        {
            const auto holder = std::move(queue.front());
            queue.pop_front();
            holder->Execute();
        }
    }

    int invoked = 0;
    int posted = 0;
    std::deque<Mirel::Core::TOwnership<Mirel::Core::ICommand>> queue;
};

} // namespace Tests
