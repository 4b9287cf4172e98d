#pragma once

#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/DataModel/CRefreshTimer.h"
#include "Mirel/DataModel/TBaseCaptureObjectLink.h"
#include "Mirel/System/CPreciseCPUWatch.h"

#include <algorithm>
#include <utility>

namespace Mirel::DataModel
{

/// A link that lets its target glide to the source's value over a time. The derived class knows the way from
/// one value to the other. While it glides it holds the target in a capture. GUI thread only.
///
/// A change of the source during a glide begins another from where the target is. Without a timer provider
/// only glides of no duration happen, at once.
template <class TConst, class T>
class TCaptureObjectTimeLink : public TBaseCaptureObjectLink<TConst, T>, public virtual Core::IRefreshTime
{
public:
    /// The provider and the clock are not owned and must outlive the link. The provider may be null.
    explicit TCaptureObjectTimeLink(
        System::ITimerProvider* timerProvider = nullptr,
        const System::ITickSource& tickSource = System::CMonotonicTickSource::GetInstance())
        : stopwatch(tickSource)
    {
        timer.SetProvider(timerProvider);
    }

    ~TCaptureObjectTimeLink() override
    {
        if (captured && !this->HasForwardedCapture())
        {
            this->GetTarget()->EndCapture();
        }
    }

    void SetTimerProvider(System::ITimerProvider* timerProvider) { timer.SetProvider(timerProvider); }

    double GetDuration() const { return durationMs; }

    /// In milliseconds; 0, the duration at first, or less lets the target jump. Holds for a glide under way.
    void SetDuration(double milliseconds)
    {
        if (durationMs < milliseconds || durationMs > milliseconds)
        {
            durationMs = milliseconds;
            this->NotifyChanged();
        }
    }

    int GetRefreshTime() const override { return timer.GetPeriod(); }

    void SetRefreshTime(int milliseconds) override
    {
        if (timer.GetPeriod() != milliseconds)
        {
            timer.SetPeriod(milliseconds);
            this->NotifyChanged();
        }
    }

    /// Whether a glide is under way.
    bool IsRunning() const { return running; }

    /// Begins a glide if the target is not where it should be.
    void Update() override
    {
        T* target = this->GetTarget();
        if (!this->IsConnected() || target == nullptr || (TakesTime() && timer.GetProvider() == nullptr))
        {
            return;
        }
        if (!Prepare(*this->GetSource(), *target))
        {
            Finish();
            return;
        }
        stopwatch.Start();
        running = true;
        ++glides;
        const Core::CLifeToken::CWatch watch(this->GetLife());
        if (!target->IsCaptured())
        {
            captured = true;
            target->BeginCapture();
        }
        if (watch.IsAlive() && !TakesTime())
        {
            Tick();
        }
    }

protected:
    /// Notes the ends of a glide from the target's value to the source's. False if there is no way to go.
    virtual bool Prepare(const TConst& source, const T& target) = 0;

    /// Takes the target to a fraction of the way, from 0 to 1. True if it had arrived already.
    virtual bool Step(T& target, double fraction) = 0;

    void OnConnected() override { timer.Start(); }

    void OnDisconnected() override
    {
        timer.Stop();
        Finish();
    }

    void ForwardEndCapture() override
    {
        if (running)
        {
            captured = true; // The glide keeps the capture to its end.
        }
        else
        {
            this->GetTarget()->EndCapture();
        }
    }

private:
    bool TakesTime() const { return durationMs > 0.0; }

    void Tick()
    {
        if (!running)
        {
            return;
        }
        const double fraction =
            TakesTime() ? std::min(1.0, stopwatch.GetElapsedMilliseconds() / durationMs) : 1.0;
        const Core::CLifeToken::CWatch watch(this->GetLife());
        const unsigned present = glides;
        const bool arrived = Step(*this->GetTarget(), fraction);
        // Who listens to the target may have begun another glide.
        if (watch.IsAlive() && running && glides == present && (arrived || fraction >= 1.0))
        {
            Finish();
        }
    }

    void Finish()
    {
        running = false;
        stopwatch.Stop();
        if (std::exchange(captured, false) && !this->HasForwardedCapture())
        {
            this->GetTarget()->EndCapture();
        }
    }

    double durationMs = 0.0;
    System::CPreciseCPUWatch stopwatch;
    bool running = false;
    unsigned glides = 0;   ///< Begun so far.
    bool captured = false; ///< The target is captured for the sake of the glide.
    Core::TCommand<TCaptureObjectTimeLink> tick{this, &TCaptureObjectTimeLink::Tick};
    CRefreshTimer timer{tick};
};

} // namespace Mirel::DataModel
