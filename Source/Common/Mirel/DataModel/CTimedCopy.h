#pragma once

#include "Mirel/Core/CEnable.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/CRefreshTimer.h"

namespace Mirel::DataModel
{

/// Base of what is a copy of something else and is brought up to date by a timer. Disabled it stands still.
/// As with every timer, a listener of a tick neither enables, disables nor destroys the copy, nor changes its
/// refresh time. The thread of the timer only.
class CTimedCopy : public virtual Core::IRefreshTime, public virtual Core::IEnable
{
public:
    CTimedCopy(const CTimedCopy&) = delete;
    CTimedCopy& operator=(const CTimedCopy&) = delete;

    int GetRefreshTime() const override { return timer.GetPeriod(); }
    void SetRefreshTime(int milliseconds) override { timer.SetPeriod(milliseconds); }

    bool IsEnabled() const override { return enabled.IsEnabled(); }
    Core::IEventProvider& GetEnableChangedEventProvider() const override
    {
        return enabled.GetEnableChangedEventProvider();
    }

    void Enable(bool enable) override
    {
        if (enable)
        {
            timer.Start();
        }
        else
        {
            timer.Stop();
        }
        enabled.Enable(enable);
    }

    /// What each tick does.
    virtual void Refresh() = 0;

protected:
    CTimedCopy() = default;

    /// For the end of the constructor. The provider is not owned and must outlive the copy; without one
    /// nothing ticks.
    void StartTimer(System::ITimerProvider* provider)
    {
        timer.SetProvider(provider);
        timer.Start();
    }

private:
    Core::CEnable enabled;
    Core::TCommand<CTimedCopy> tick{this, &CTimedCopy::Refresh};
    CRefreshTimer timer{tick};
};

} // namespace Mirel::DataModel
