// The oscilloscope's sample loop and trigger search beside the plain loops that say what they do, and beside
// a copy of as many bytes as the rings take up.

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Plugins/Oscilloscope/COscilloscope.h"
#include "Plugins/Oscilloscope/TriggerSearch.h"
#include "Support/Contest.h"
#include "Support/LiteralScope.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <memory>
#include <numbers>
#include <random>
#include <vector>

using namespace Mirel::Audio::DSP;
using namespace PluginsFilters;

namespace
{

enum ESignal
{
    Noise,
    Sine,
    Constant,
};

std::vector<float> MakeSignal(int kind, double sampleRate, std::size_t count)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<float> uniform(-1.0f, 1.0f);
    std::vector<float> signal(count, 0.25f);
    for (std::size_t i = 0; i < count && kind != Constant; ++i)
    {
        const double phase = 2.0 * std::numbers::pi * 440.0 * static_cast<double>(i) / sampleRate;
        signal[i] = kind == Noise ? uniform(random) : static_cast<float>(0.8 * std::sin(phase));
    }
    return signal;
}

/// The floor: as many bytes as the oscilloscope keeps of each sample, copied to where it keeps them, which is
/// 4 into the delay line, 4 into the waveform and 1 into the history of the histogram.
class CRingCopies
{
public:
    explicit CRingCopies(std::size_t sampleRate)
        : delayLine(std::bit_ceil(sampleRate * 3 / 10)),
          waveform(sampleRate),
          history(std::bit_ceil(sampleRate))
    {
    }

    void Copy(const float* samples, std::size_t count)
    {
        std::memcpy(delayLine.data() + Place(delayLine, count), samples, count * sizeof(float));
        std::memcpy(waveform.data() + Place(waveform, count), samples, count * sizeof(float));
        std::memcpy(history.data() + Place(history, count), samples, count);
        written += count;
        benchmark::ClobberMemory();
    }

private:
    template <class T>
    std::size_t Place(const std::vector<T>& ring, std::size_t count) const
    {
        return written % (ring.size() - count);
    }

    std::vector<float> delayLine;
    std::vector<float> waveform;
    std::vector<char> history;
    std::size_t written = 0;
};

/// range(0): signal, range(1): sample rate, range(2): block.
void Process(benchmark::State& state)
{
    const auto sampleRate = static_cast<double>(state.range(1));
    const int block = static_cast<int>(state.range(2));
    // A host hands over the same few buffers again and again, fresh in the cache.
    constexpr int samples = 4096;
    const int blocks = samples / block;
    auto signal = MakeSignal(static_cast<int>(state.range(0)), sampleRate, samples);

    COscilloscope scope;
    bool ok = true;
    scope.Init(sampleRate, ok);
    auto literal = std::make_unique<Tests::CLiteralScope>(sampleRate);
    CRingCopies copies(static_cast<std::size_t>(sampleRate));

    std::vector<CAudioStream> streams;
    streams.reserve(static_cast<std::size_t>(blocks));
    for (int i = 0; i < blocks; ++i)
    {
        streams.emplace_back(signal.data(), i * block, block, 1);
    }
    CEmptyStreams outputs(0, block);
    const auto runScope = [&]
    {
        for (CAudioStream& stream : streams)
        {
            CAudioStreamToStreams inputs(&stream);
            scope.Process({&inputs, &outputs, block, nullptr, nullptr});
        }
    };
    for (int i = 0; i < 64; ++i)
    {
        runScope(); // fill a second: the steady state has values that leave
        literal->Process(signal.data(), static_cast<int>(signal.size()));
    }

    Benchmarks::CContest contest(state, blocks * block);
    contest.Add("ours", runScope);
    contest.Add("literal",
                [&]
                {
                    for (int i = 0; i < blocks; ++i)
                    {
                        literal->Process(signal.data() + std::ptrdiff_t{i} * block, block);
                    }
                });
    contest.Add("memcpy",
                [&]
                {
                    for (int i = 0; i < blocks; ++i)
                    {
                        copies.Copy(signal.data() + std::ptrdiff_t{i} * block,
                                    static_cast<std::size_t>(block));
                    }
                });
    contest.Run();
    state.counters["ours/memcpy"] = 1.0 / state.counters["memcpy/ours"];
}

/// A second of signal below the level: the whole ring is walked. range(0): direction, 0 up, 1 down.
void TriggerSearchWithoutCrossing(benchmark::State& state)
{
    const auto direction = static_cast<ETriggerDirection>(state.range(0));
    const auto signal = MakeSignal(Sine, 48000.0, 48000);
    const int writePos = 12345;
    int found = 0;
    Benchmarks::CContest contest(state, 48000.0);
    contest.Add("ours",
                [&]
                {
                    found = FindTrigger(signal, writePos, 0.9f, direction);
                    benchmark::DoNotOptimize(found);
                });
    contest.Add("literal",
                [&]
                {
                    found =
                        Tests::LiteralTrigger(signal, writePos, 0.9f, direction == ETriggerDirection::Down);
                    benchmark::DoNotOptimize(found);
                });
    contest.Run();
}

} // namespace

BENCHMARK(Process)
    ->ArgsProduct({{Noise, Sine, Constant}, {48000, 192000}, {64, 512, 4096}})
    ->ArgNames({"signal", "rate", "block"})
    ->UseManualTime();
BENCHMARK(TriggerSearchWithoutCrossing)->Arg(0)->Arg(1)->ArgName("down")->UseManualTime();

BENCHMARK_MAIN();
