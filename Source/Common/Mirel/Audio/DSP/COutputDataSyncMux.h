#pragma once

#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Audio/DSP/IOutputDataSync.h"

#include <algorithm>

namespace Mirel::Audio::DSP
{

/// The refresh clocks of two filters as one. Either filter may have none.
class COutputDataSyncMux : public IOutputDataSync
{
public:
    COutputDataSyncMux(IFilter& first_, IFilter& second_) : first(first_), second(second_) {}

    /// Whether either filter has a clock.
    bool HasClock() const
    {
        return first.GetOutputDataSync() != nullptr || second.GetOutputDataSync() != nullptr;
    }

    /// True if either is due.
    bool IsOutputDue() const override { return IsDue(first) || IsDue(second); }

    void Reset() override
    {
        ForEach([](IOutputDataSync& sync) { sync.Reset(); });
    }

    void SetRefreshRate(double hertz) override
    {
        ForEach([hertz](IOutputDataSync& sync) { sync.SetRefreshRate(hertz); });
    }

    /// The larger of the two rates; 0 without clocks.
    double GetRefreshRate() const override { return std::max({0.0, RateOf(first), RateOf(second)}); }

private:
    static bool IsDue(IFilter& filter)
    {
        const IOutputDataSync* sync = filter.GetOutputDataSync();
        return sync != nullptr && sync->IsOutputDue();
    }

    static double RateOf(IFilter& filter)
    {
        const IOutputDataSync* sync = filter.GetOutputDataSync();
        return sync == nullptr ? 0.0 : sync->GetRefreshRate();
    }

    template <class Action>
    void ForEach(Action action)
    {
        for (IFilter* filter : {&first, &second})
        {
            if (IOutputDataSync* sync = filter->GetOutputDataSync())
            {
                action(*sync);
            }
        }
    }

    IFilter& first;
    IFilter& second;
};

} // namespace Mirel::Audio::DSP
