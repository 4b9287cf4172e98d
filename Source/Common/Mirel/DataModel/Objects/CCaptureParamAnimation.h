#pragma once

#include "Mirel/Core/CEnable.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/CRefreshTimer.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/System/CPreciseCPUWatch.h"

namespace Mirel::DataModel::Objects
{

/// Sweeps a parameter from its minimum to its maximum, again and again, each sweep in the same time.
///
/// Disabled it is paused, as it is at first: the parameter stays where it is, and the sweep goes on from its
/// place later. Without a parameter, a timer or a duration above 0 nothing moves. GUI thread only.
class CCaptureParamAnimation : public virtual Core::IEnable, public virtual Core::IRefreshTime
{
public:
    /// The provider and the clock are not owned and must outlive the animation. The provider may be null.
    explicit CCaptureParamAnimation(
        System::ITimerProvider* timerProvider = nullptr,
        const System::ITickSource& tickSource = System::CMonotonicTickSource::GetInstance());
    CCaptureParamAnimation(const CCaptureParamAnimation&) = delete;
    CCaptureParamAnimation& operator=(const CCaptureParamAnimation&) = delete;

    void SetTimerProvider(System::ITimerProvider* timerProvider) { timer.SetProvider(timerProvider); }

    ICaptureParam* GetParam() const { return param; }

    /// Not owned; null for none. Begins a sweep.
    void SetParam(ICaptureParam* newParam);

    double GetDuration() const { return durationMs; }

    /// Of one sweep, in milliseconds. The sweep under way keeps its place.
    void SetDuration(double milliseconds);

    int GetRefreshTime() const override { return timer.GetPeriod(); }
    void SetRefreshTime(int milliseconds) override { timer.SetPeriod(milliseconds); }

    bool IsEnabled() const override { return enabled.IsEnabled(); }
    Core::IEventProvider& GetEnableChangedEventProvider() const override
    {
        return enabled.GetEnableChangedEventProvider();
    }
    void Enable(bool enable) override;

private:
    void Tick();
    void AdvancePosition();

    ICaptureParam* param = nullptr;
    double durationMs = 0.0;
    double position = 0.0; ///< Of the sweep, from 0 up to 1, when the stopwatch was started.
    System::CPreciseCPUWatch stopwatch;
    Core::CEnable enabled{false};
    Core::TCommand<CCaptureParamAnimation> tick{this, &CCaptureParamAnimation::Tick};
    CRefreshTimer timer{tick};
};

} // namespace Mirel::DataModel::Objects
