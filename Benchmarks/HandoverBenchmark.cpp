// The hand-over of both channels' curves from the audio thread to its readers, beside a plain deep copy of
// the same curves under the same lock. Both are measured at each of 10,000 refreshes in turn, so that they
// see the same data and the same machine.

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/Plugin/COutputCaptures.h"
#include "Mirel/Core/CAutoLock.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace Mirel;
using namespace Mirel::Audio::DSP;
using Mirel::Audio::Plugin::COutputCaptures;

namespace
{

constexpr int refreshes = 10000;
constexpr double refreshRate = 50.0;

std::vector<float> MakeNoise(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> uniform(-1.0f, 1.0f);
    std::vector<float> noise(count);
    std::generate(noise.begin(), noise.end(), [&] { return uniform(random); });
    return noise;
}

/// The reference: each curve that is dirty is cloned, the clone takes the place of the one before.
class CDeepCopies
{
public:
    void Publish(IFilter& filter)
    {
        const Core::CAutoLock guard(lock);
        const ICurves& curves = filter.GetOutputCurves();
        held.resize(static_cast<std::size_t>(curves.GetCount()));
        for (int i = 0; i < curves.GetCount(); ++i)
        {
            if (filter.GetOutputCurvesDirty()[i].IsDirty())
            {
                held[static_cast<std::size_t>(i)].reset(curves[i].Clone());
                filter.GetOutputCurvesDirty()[i].SetDirty(false);
            }
        }
    }

private:
    System::CCriticalSection lock;
    std::vector<std::unique_ptr<Math::IFunction>> held;
};

void SetAllDirty(IFilter& filter)
{
    for (int i = 0; i < filter.GetOutputCurvesDirty().GetCount(); ++i)
    {
        filter.GetOutputCurvesDirty()[i].SetDirty(true);
    }
}

class CTimes
{
public:
    CTimes() { seconds.reserve(refreshes); }

    template <class Action>
    void Measure(Action action)
    {
        const auto start = std::chrono::steady_clock::now();
        action();
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }

    void Sort() { std::sort(seconds.begin(), seconds.end()); }

    /// The time that so many of a thousand measurements stay below, in microseconds. After Sort.
    double Get(std::size_t permille) const
    {
        return seconds[std::min(seconds.size() * permille / 1000, seconds.size() - 1)] * 1e6;
    }

    double GetLast() const { return seconds.back(); }

private:
    std::vector<double> seconds;
};

void Report(benchmark::State& state, const std::string& name, const CTimes& times)
{
    state.counters[name + " median us"] = times.Get(500);
    state.counters[name + " p99.9 us"] = times.Get(999);
    state.counters[name + " worst us"] = times.Get(1000);
}

/// range(0): sample rate.
void HandOver(benchmark::State& state)
{
    const auto filter = PluginsFilters::CreateTopLevelFilter();
    bool ok = false;
    filter->Init(static_cast<double>(state.range(0)), ok);
    const int block = static_cast<int>(static_cast<double>(state.range(0)) / refreshRate);
    auto left = MakeNoise(static_cast<std::size_t>(block), 1);
    auto right = MakeNoise(static_cast<std::size_t>(block), 2);
    std::array<CAudioStream, 2> streams{CAudioStream(left.data(), 0, block, 1),
                                        CAudioStream(right.data(), 0, block, 1)};
    CAudioStreams inputs(streams.data(), 2);
    CAudioStreams outputs(nullptr, 0);

    COutputCaptures captures(*filter);
    captures.Prepare(*filter);
    CDeepCopies copies;
    CTimes ours;
    CTimes theirs;
    const auto refresh = [&]
    {
        filter->Process({&inputs, &outputs, block, nullptr, nullptr});
        filter->UpdateOutputs();
        ours.Measure([&] { static_cast<void>(captures.Publish(*filter)); });
        SetAllDirty(*filter);
        theirs.Measure([&] { copies.Publish(*filter); });
    };
    while (state.KeepRunning())
    {
        refresh();
        state.SetIterationTime(ours.GetLast());
    }
    ours.Sort();
    theirs.Sort();
    Report(state, "ours", ours);
    Report(state, "deep copy", theirs);
    state.counters["deep copy/ours median"] = theirs.Get(500) / ours.Get(500);
    state.counters["deep copy/ours p99.9"] = theirs.Get(999) / ours.Get(999);
}

} // namespace

BENCHMARK(HandOver)
    ->Arg(44100)
    ->Arg(48000)
    ->Arg(96000)
    ->Arg(192000)
    ->ArgName("rate")
    ->Iterations(refreshes)
    ->UseManualTime();

BENCHMARK_MAIN();
