#pragma once

#include "Mirel/System/ITimerProvider.h"

#include <map>
#include <string>

namespace Tests
{

/// Writes down what is asked of it, as "+period" and "-", and ticks when told to.
class CFakeTimerProvider : public Mirel::System::ITimerProvider
{
public:
    void AddTimer(int periodMs, Mirel::Core::ICommand* command) override
    {
        (trace += '+') += std::to_string(periodMs);
        periods[command] = periodMs;
    }

    void RemoveTimer(Mirel::Core::ICommand*& command, bool destroyCommand) override
    {
        trace += "-";
        periods.erase(command);
        Mirel::System::DestroyTimerCommand(command, destroyCommand);
    }

    /// One tick of every timer, whatever its period.
    void Tick(int times = 1)
    {
        for (; times > 0; --times)
        {
            const auto ticking = periods;
            for (const auto& [command, period] : ticking)
            {
                command->Execute();
            }
        }
    }

    std::map<Mirel::Core::ICommand*, int> periods;
    std::string trace;
};

} // namespace Tests
