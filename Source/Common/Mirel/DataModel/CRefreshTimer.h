#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/System/ITimerProvider.h"

namespace Mirel::DataModel
{

/// The period of objects that follow time, until told otherwise.
constexpr int defaultRefreshTimeMs = 50;

/// The timer of one object: runs a command of the object each period, from Start to Stop or to the end of
/// this object. As with every timer, the command itself calls neither SetPeriod nor Stop. GUI thread only.
class CRefreshTimer
{
public:
    /// The command is not owned and must outlive this object.
    explicit CRefreshTimer(Core::ICommand& command_) : command(command_) {}
    CRefreshTimer(const CRefreshTimer&) = delete;
    CRefreshTimer& operator=(const CRefreshTimer&) = delete;
    ~CRefreshTimer() { Stop(); }

    System::ITimerProvider* GetProvider() const { return provider; }

    /// Not owned; without one nothing ticks. Must outlive its use here.
    void SetProvider(System::ITimerProvider* newProvider)
    {
        if (provider != newProvider)
        {
            Unregister();
            provider = newProvider;
            Register();
        }
    }

    /// In milliseconds.
    int GetPeriod() const { return periodMs; }

    void SetPeriod(int milliseconds)
    {
        if (periodMs != milliseconds)
        {
            Unregister();
            periodMs = milliseconds;
            Register();
        }
    }

    void Start()
    {
        if (!started)
        {
            started = true;
            Register();
        }
    }

    void Stop()
    {
        if (started)
        {
            Unregister();
            started = false;
        }
    }

private:
    void Register()
    {
        if (started && provider != nullptr)
        {
            provider->AddTimer(periodMs, &command);
        }
    }

    void Unregister()
    {
        if (started && provider != nullptr)
        {
            Core::ICommand* removed = &command;
            provider->RemoveTimer(removed, false);
        }
    }

    Core::ICommand& command;
    System::ITimerProvider* provider = nullptr;
    int periodMs = defaultRefreshTimeMs;
    bool started = false;
};

} // namespace Mirel::DataModel
