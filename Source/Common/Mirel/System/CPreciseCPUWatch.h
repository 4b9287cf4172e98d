#pragma once

#include "Mirel/System/CMonotonicTickSource.h"

namespace Mirel::System
{

/// A stopwatch over a tick counter, which must outlive it. One thread at a time.
class CPreciseCPUWatch
{
public:
    explicit CPreciseCPUWatch(const ITickSource& source_ = CMonotonicTickSource::GetInstance())
        : source(&source_),
          rate(source_.GetRate())
    {
    }

    /// Starts from zero, running or not.
    void Start()
    {
        start = source->GetTicks();
        running = true;
    }

    /// Keeps the time elapsed until now.
    void Stop()
    {
        stop = source->GetTicks();
        running = false;
    }

    /// Stands still at zero.
    void Reset()
    {
        start = stop = source->GetTicks();
        running = false;
    }

    bool IsRunning() const { return running; }

    /// Since the start until now, or until the stop.
    std::uint64_t GetElapsedTicks() const { return (running ? source->GetTicks() : stop) - start; }
    double GetElapsedMilliseconds() const { return rate.GetMilliseconds(GetElapsedTicks()); }
    STickRate GetRate() const { return rate; }

private:
    const ITickSource* source;
    std::uint64_t start = 0;
    std::uint64_t stop = 0;
    bool running = false;
    STickRate rate;
};

} // namespace Mirel::System
