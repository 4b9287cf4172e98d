#include "Mirel/DataModel/Objects/CCaptureParamAnimation.h"

#include "Mirel/DataModel/Objects/LinkTransformation.h"

#include <cmath>

namespace Mirel::DataModel::Objects
{

CCaptureParamAnimation::CCaptureParamAnimation(System::ITimerProvider* timerProvider,
                                               const System::ITickSource& tickSource)
    : stopwatch(tickSource)
{
    timer.SetProvider(timerProvider);
}

void CCaptureParamAnimation::SetParam(ICaptureParam* newParam)
{
    if (param != newParam)
    {
        param = newParam;
        position = 0.0;
        stopwatch.Start();
    }
}

void CCaptureParamAnimation::SetDuration(double milliseconds)
{
    if (durationMs < milliseconds || durationMs > milliseconds)
    {
        AdvancePosition();
        durationMs = milliseconds;
    }
}

void CCaptureParamAnimation::Enable(bool enable)
{
    if (enable == IsEnabled())
    {
        return;
    }
    if (enable)
    {
        stopwatch.Start();
        timer.Start();
    }
    else
    {
        timer.Stop();
        AdvancePosition();
    }
    enabled.Enable(enable);
}

void CCaptureParamAnimation::Tick()
{
    AdvancePosition();
    if (param != nullptr && durationMs > 0.0)
    {
        param->SetValue(Denormalize(static_cast<float>(position), GetRange(param->GetInfo())));
    }
}

void CCaptureParamAnimation::AdvancePosition()
{
    if (IsEnabled() && durationMs > 0.0)
    {
        position = std::fmod(position + stopwatch.GetElapsedMilliseconds() / durationMs, 1.0);
    }
    stopwatch.Start();
}

} // namespace Mirel::DataModel::Objects
