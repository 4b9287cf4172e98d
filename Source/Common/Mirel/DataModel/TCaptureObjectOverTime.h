#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CEnable.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/CRefreshTimer.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/System/CPreciseCPUWatch.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace Mirel::DataModel
{

/// The length of a history until told otherwise.
constexpr float defaultHistoryMs = 5000.0f;

/// The history of an observable object as an observable function, sampled by a timer: its first argument is
/// the time in seconds, 0 at the newest sample and negative in the past. Source is the interface of the
/// object, Result that of the function, C the class of the function's description and History the function.
///
/// Disabled it is paused: no ticks, and its time stands still, so that the history goes on without a gap. The
/// source is not owned; before it goes away it is replaced by another or by null. As with every timer, a
/// listener of a tick does not pause the history, change its refresh time or destroy it. GUI thread only.
template <class Source, class Result, class C, class History>
class TCaptureObjectOverTime : public virtual Result,
                               public Core::CCapture,
                               public virtual Core::IRefreshTime,
                               public virtual Core::IEnable
{
public:
    TCaptureObjectOverTime(const TCaptureObjectOverTime&) = delete;
    TCaptureObjectOverTime& operator=(const TCaptureObjectOverTime&) = delete;

    const Source* GetSource() const { return source; }

    /// Null for none. Forgets the history and takes over the description of the source, which it follows.
    void SetSource(const Source* newSource)
    {
        if (source == newSource)
        {
            return;
        }
        sourceInfo.reset();
        source = newSource;
        history.Clear();
        SetDefault(nullptr);
        if (source != nullptr)
        {
            sourceInfo.emplace(&source->GetInfo().GetChangedEventProvider(), &sourceInfoChanged);
            TakeSourceInfo();
        }
        NotifyChanged();
    }

    float GetDuration() const { return durationMs; }

    /// In milliseconds. Keeps the newest samples that fit.
    void SetDuration(float milliseconds)
    {
        if (durationMs < milliseconds || durationMs > milliseconds)
        {
            durationMs = milliseconds;
            ApplyDuration();
            NotifyChanged();
        }
    }

    /// The samples that the duration needs at the refresh time. The history keeps as many at least: its ring
    /// has the next power of two.
    int GetCapacity() const
    {
        const float samples = GetSeconds() * 1000.0f / static_cast<float>(std::max(timer.GetPeriod(), 1));
        return samples < static_cast<float>(maxCapacity) ? static_cast<int>(samples) : maxCapacity;
    }

    int GetRefreshTime() const override { return timer.GetPeriod(); }

    void SetRefreshTime(int milliseconds) override
    {
        if (timer.GetPeriod() != milliseconds)
        {
            timer.SetPeriod(milliseconds);
            history.SetCapacity(GetCapacity());
        }
    }

    void SetTimerProvider(System::ITimerProvider* timerProvider) { timer.SetProvider(timerProvider); }

    bool IsEnabled() const override { return running.IsEnabled(); }
    Core::IEventProvider& GetEnableChangedEventProvider() const override
    {
        return running.GetEnableChangedEventProvider();
    }

    void Enable(bool enable) override
    {
        if (enable == IsEnabled())
        {
            return;
        }
        if (enable)
        {
            Run();
        }
        else
        {
            timer.Stop();
            stopwatch.Stop();
            ticksBefore += stopwatch.GetElapsedTicks();
        }
        running.Enable(enable);
    }

    Core::IEventProvider& GetValueChangedEventProvider() const override { return GetChangedEventProvider(); }

    /// Changes with every tick.
    const History& GetValue() const override { return history; }

    const C& GetInfo() const override { return info; }
    C& GetInfo() { return info; }

protected:
    /// Running. Provider and clock are not owned and must outlive the history; the provider may be null. The
    /// history keeps at most maxCapacity samples, whatever the duration.
    TCaptureObjectOverTime(System::ITimerProvider* timerProvider, const System::ITickSource& tickSource,
                           int maxCapacity_)
        : maxCapacity(maxCapacity_),
          stopwatch(tickSource)
    {
        ApplyDuration();
        timer.SetProvider(timerProvider);
        Run();
    }

    History& GetHistory() { return history; }

    /// Gives the history the value of the description where it has no samples; 0 without a description.
    virtual void SetDefault(const typename Source::Info* description) = 0;

    /// Copies what the function's description has of the source's.
    virtual void CopyInfo(const typename Source::Info& description) = 0;

private:
    /// Where stamps become too coarse for samples that are milliseconds apart: they are floats.
    static constexpr float longestTime = 1024.0f;

    float GetSeconds() const { return durationMs > 0.0f ? durationMs * 0.001f : 0.0f; }

    void ApplyDuration()
    {
        const float seconds = GetSeconds();
        history.SetDuration(seconds);
        history.SetCapacity(GetCapacity());
        info.GetXInfo().CopyFrom(
            Objects::CParamInfo(Objects::ValueKindReal, -seconds, 0.0f, 0.0f, "time", "s", ""));
    }

    void Run()
    {
        stopwatch.Start();
        timer.Start();
    }

    void Tick()
    {
        if (!IsEnabled() || source == nullptr)
        {
            return;
        }
        history.Add(TakeTime(), source->GetValue());
        NotifyChanged();
    }

    /// In seconds; the pauses do not count.
    float TakeTime()
    {
        const std::uint64_t ticks = ticksBefore + stopwatch.GetElapsedTicks() - zeroTicks;
        const auto time = static_cast<float>(stopwatch.GetRate().GetMilliseconds(ticks) * 0.001);
        if (time < longestTime)
        {
            return time;
        }
        history.MoveTimes(-time);
        zeroTicks += ticks;
        return 0.0f;
    }

    void TakeSourceInfo()
    {
        SetDefault(&source->GetInfo());
        CopyInfo(source->GetInfo());
    }

    void OnSourceInfoChanged()
    {
        TakeSourceInfo();
        NotifyChanged();
    }

    const int maxCapacity;
    const Source* source = nullptr;
    History history;
    C info;
    float durationMs = defaultHistoryMs;
    Core::CEnable running;
    System::CPreciseCPUWatch stopwatch;
    std::uint64_t ticksBefore = 0; ///< Up to the last pause.
    std::uint64_t zeroTicks = 0;   ///< Where the samples' time begins.
    Core::TCommand<TCaptureObjectOverTime> tick{this, &TCaptureObjectOverTime::Tick};
    Core::TCommand<TCaptureObjectOverTime> sourceInfoChanged{this,
                                                             &TCaptureObjectOverTime::OnSourceInfoChanged};
    std::optional<CoreUtilities::CCallbackHelper> sourceInfo;
    CRefreshTimer timer{tick};
};

} // namespace Mirel::DataModel
