// The whole process callback of the module as it ships, refreshes included, beside a copy of the same audio:
// the least that a plug-in which lets audio through can cost.

#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Support/Contest.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace Host;

enum ESetup
{
    Mono,
    Stereo,
    MidSide
};

enum ESignal
{
    Noise,
    Silence, ///< Within the tail: the scopes still run.
    PastTheTail
};

constexpr double SampleRate = 48000.0;

/// Frames of one turn: less than the tail of a second, so that silence can stay within it.
constexpr int Frames = 32768;

/// Buffers of as many channels, and the pointers that a host hands over.
class CBuffers
{
public:
    CBuffers(int channels, std::size_t samples)
        : buffers(static_cast<std::size_t>(channels), std::vector<float>(samples))
    {
        for (std::vector<float>& buffer : buffers)
        {
            pointers.push_back(buffer.data());
        }
    }
    CBuffers(const CBuffers&) = delete;
    CBuffers& operator=(const CBuffers&) = delete;

    void FillWithNoise()
    {
        std::mt19937 random(1);
        std::uniform_real_distribution<float> uniform(-1.0F, 1.0F);
        for (std::vector<float>& buffer : buffers)
        {
            for (float& sample : buffer)
            {
                sample = uniform(random);
            }
        }
    }

    float* const* Get() const { return pointers.data(); }

    void CopyTo(CBuffers& other) const
    {
        for (std::size_t i = 0; i < buffers.size(); ++i)
        {
            std::memcpy(other.buffers[i].data(), buffers[i].data(), buffers[i].size() * sizeof(float));
        }
        benchmark::ClobberMemory();
    }

private:
    std::vector<std::vector<float>> buffers;
    std::vector<float*> pointers;
};

/// range(0): setup, range(1): signal, range(2): block.
void Callback(benchmark::State& state)
{
    const auto setup = static_cast<ESetup>(state.range(0));
    const auto signal = static_cast<ESignal>(state.range(1));
    const int block = static_cast<int>(state.range(2));
    const int channels = setup == Mono ? 1 : 2;

    CPluginSession session;
    std::string error;
    const bool isOpen = session.Open(SCOPE_BANK_MODULE, error);
    const std::unique_ptr<CHostInstance> instance =
        isOpen ? CHostInstance::Make(*session.GetCollection(), {channels, SampleRate}, error) : nullptr;
    if (instance == nullptr)
    {
        state.SkipWithError(error.c_str());
        return;
    }
    instance->GetParameters().SetParameterValue("P1", setup == MidSide ? 1.0 : 0.0);

    CBuffers noise(channels, static_cast<std::size_t>(block));
    CBuffers silence(channels, static_cast<std::size_t>(block));
    CBuffers outputs(channels, static_cast<std::size_t>(block));
    noise.FillWithNoise();
    const CBuffers& inputs = signal == Noise ? noise : silence;
    const auto run = [&]
    {
        if (signal == Silence)
        {
            instance->Process(noise.Get(), outputs.Get(), 1); // begins the tail anew
        }
        for (int frames = 0; frames < Frames; frames += block)
        {
            instance->Process(inputs.Get(), outputs.Get(), block);
        }
    };
    for (int i = 0; i < 4; ++i)
    {
        run(); // more than a second: the steady state
    }

    Benchmarks::CContest contest(state, Frames);
    contest.Add("ours", run);
    contest.Add("memcpy",
                [&]
                {
                    for (int frames = 0; frames < Frames; frames += block)
                    {
                        inputs.CopyTo(outputs);
                    }
                });
    contest.Run();
    state.counters["ours/memcpy"] = 1.0 / state.counters["memcpy/ours"];
}

} // namespace

BENCHMARK(Callback)
    ->ArgsProduct({{Mono, Stereo, MidSide}, {Noise, Silence, PastTheTail}, {64, 512, 4096}})
    ->ArgNames({"setup", "signal", "block"})
    ->UseManualTime();

BENCHMARK_MAIN();
