#pragma once

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/ParamsVariations.h"
#include "Mirel/Audio/Plugin/COutputCaptures.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include <array>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

namespace Tests
{

/// The filter that an instance runs, its captures, and what a host shell does at the end of each block.
class CHandoverRig
{
public:
    enum EParam
    {
        StereoMode,
        ViewMode,
        Sync,
        Delay,
        TriggerValue,
        TriggerDirection,
        paramCount,
    };

    explicit CHandoverRig(double sampleRate, double refreshRate = 0.0)
    {
        filter->GetOutputDataSync()->SetRefreshRate(refreshRate);
        Init(sampleRate);
    }

    /// While no audio runs.
    void Init(double sampleRate)
    {
        bool ok = false;
        filter->Init(sampleRate, ok);
        EXPECT_TRUE(ok);
        captures.Prepare(*filter);
    }

    void Set(EParam param, float value)
    {
        values[0].SetValue(param, value);
        hasNewValues = true;
    }

    /// Runs a block and the refresh. True if something was published.
    bool Process(std::vector<float>& left, std::vector<float>& right)
    {
        const int count = static_cast<int>(left.size());
        std::array<Mirel::Audio::DSP::CAudioStream, 2> streams{
            Mirel::Audio::DSP::CAudioStream(left.data(), 0, count, 1),
            Mirel::Audio::DSP::CAudioStream(right.data(), 0, count, 1)};
        Mirel::Audio::DSP::CAudioStreams inputs(streams.data(), 2);
        Mirel::Audio::DSP::CAudioStreams outputs(nullptr, 0);
        filter->Process({&inputs, &outputs, count, TakeNewValues(), nullptr});
        return Refresh();
    }

    bool Process(std::vector<float> both) { return Process(both, both); }

    bool Silence(int count)
    {
        Mirel::Audio::DSP::CAudioStreams outputs(nullptr, 0);
        filter->ProcessSilence({nullptr, &outputs, count, TakeNewValues(), nullptr});
        return Refresh();
    }

    float Read(int curve, float x) const
    {
        float y = -100.0f;
        captures.GetCurves()[curve].Read([&](const Mirel::Math::IFunction& function) { y = function(x); });
        return y;
    }

    std::unique_ptr<Mirel::Audio::DSP::IFilter> filter = PluginsFilters::CreateTopLevelFilter();
    Mirel::Audio::Plugin::COutputCaptures captures{*filter};
    std::function<void()> beforePublication; ///< May be empty.

private:
    const Mirel::Audio::DSP::IConstParamsVariations* TakeNewValues()
    {
        const bool taken = hasNewValues;
        hasNewValues = false;
        return taken ? &values : nullptr;
    }

    bool Refresh()
    {
        Mirel::Audio::DSP::IOutputDataSync& sync = *filter->GetOutputDataSync();
        if (!sync.IsOutputDue())
        {
            return false;
        }
        filter->UpdateOutputs();
        if (beforePublication)
        {
            beforePublication();
        }
        if (!captures.Publish(*filter))
        {
            return false;
        }
        sync.Reset();
        return true;
    }

    static Mirel::Audio::DSP::CDynamicParamsVariations MakeValues()
    {
        Mirel::Audio::DSP::CDynamicParamsVariations made(paramCount);
        made.Resize(1);
        return made;
    }

    Mirel::Audio::DSP::CDynamicParamsVariations values = MakeValues();
    bool hasNewValues = false;
};

/// Holds a lock on a thread of its own for as long as it lives.
class CLockHolder
{
public:
    explicit CLockHolder(Mirel::Core::ILock& lock)
        : thread(
              [this, &lock]
              {
                  lock.Lock();
                  held.set_value();
                  released.get_future().wait();
                  lock.Unlock();
              })
    {
        held.get_future().wait();
    }

    CLockHolder(const CLockHolder&) = delete;
    CLockHolder& operator=(const CLockHolder&) = delete;

    ~CLockHolder()
    {
        released.set_value();
        thread.join();
    }

private:
    std::promise<void> held;
    std::promise<void> released;
    std::thread thread; // last: it uses the others
};

} // namespace Tests
