// The editor of the module as it ships, without a screen, with the factory skin: the time from its opening to
// its first picture, the memory that it adds, and the share of one core that it takes at fifty refreshes a
// second, beside the same with its painting switched off.

#include "Host/Audio/CBuffers.h"
#include "Support/CLoadedPlugin.h"

#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <chrono>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

using namespace Host;
using Benchmarks::CLoadedPlugin;
using Clock = std::chrono::steady_clock;

constexpr int Channels = CLoadedPlugin::channels;
constexpr double SampleRate = CLoadedPlugin::sampleRate;
constexpr int Block = 480;
constexpr int Width = 1000;
constexpr int Height = 600;

enum ESignal
{
    Noise,
    Silence
};

/// User and system time of a thread or of the process.
double CpuSeconds(int who)
{
    rusage usage = {};
    getrusage(who, &usage);
    const auto seconds = [](const timeval& time)
    { return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double ResidentMegabytes()
{
    std::ifstream file("/proc/self/statm");
    double total = 0.0;
    double resident = 0.0;
    file >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

double SecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Feeds the instance in real time from a thread of its own, as a host does.
class CAudio
{
public:
    CAudio(CHostInstance& instance_, ESignal signal)
        : instance(instance_),
          inputs(Channels, static_cast<int>(SampleRate)),
          outputs(Channels, Block)
    {
        std::mt19937 random(1);
        std::uniform_real_distribution<float> uniform(-1.0F, 1.0F);
        for (int channel = 0; channel < Channels; ++channel)
        {
            std::generate_n(inputs.Get()[channel], static_cast<int>(SampleRate),
                            [&] { return signal == Noise ? uniform(random) : 0.0F; });
        }
        thread = std::thread([this] { Run(); });
    }
    CAudio(const CAudio&) = delete;
    CAudio& operator=(const CAudio&) = delete;
    ~CAudio()
    {
        done = true;
        thread.join();
    }

    double GetCpuSeconds() const { return cpu; }

private:
    void Run()
    {
        const auto period =
            std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(Block / SampleRate));
        auto next = Clock::now();
        int position = 0;
        while (!done)
        {
            const float* const block[] = {inputs.Get()[0] + position, inputs.Get()[1] + position};
            instance.Process(block, outputs.Get(), Block);
            position = (position + Block) % static_cast<int>(SampleRate);
            cpu = CpuSeconds(RUSAGE_THREAD);
            next += period;
            std::this_thread::sleep_until(next);
        }
    }

    CHostInstance& instance;
    CBuffers inputs;
    CBuffers outputs;
    std::atomic<double> cpu = 0.0;
    std::atomic<bool> done = false;
    std::thread thread;
};

/// Once for the first editor of the process, then many times.
void Open(benchmark::State& state)
{
    const CLoadedPlugin& plugin = CLoadedPlugin::GetInstance();
    if (!plugin.IsReady(state))
    {
        return;
    }
    std::vector<double> times;
    double megabytes = 0.0;
    for (auto turn : state)
    {
        std::string error;
        const double before = ResidentMegabytes();
        const auto start = Clock::now();
        const auto editor = plugin.OpenToTheFirstPicture(error);
        times.push_back(SecondsSince(start));
        state.SetIterationTime(times.back());
        if (editor == nullptr)
        {
            state.SkipWithError(error.c_str());
            return;
        }
        megabytes = std::max(megabytes, ResidentMegabytes() - before);
    }
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    state.counters["median ms"] = *middle * 1e3;
    state.counters["worst ms"] = *std::max_element(times.begin(), times.end()) * 1e3;
    state.counters["most MB added"] = megabytes;
}

/// Whether the first channel's trace is in it, in the factory skin.
bool HasTrace(const Mirel::Graphics::CSimple2DRegion& region)
{
    constexpr Mirel::Graphics::CPoint inTrace(460, 160);
    for (int i = 0; i < region.GetRectCount(); ++i)
    {
        if (region.GetRect(i).Contains(inTrace))
        {
            return true;
        }
    }
    return false;
}

struct CLoad
{
    double pumpPercent = 0.0;
    double othersPercent = 0.0; ///< All threads but the pump's and the audio's.
    double framesPerSecond = 0.0;
};

CLoad Measure(CHostEditor& editor, const CAudio& audio, bool isPainted, int milliseconds)
{
    constexpr int settleMilliseconds = 1500; // the second that is shown, and more
    Mirel::GUI::COffscreenWindow* window = &CLoadedPlugin::GetInstance().GetWindow();
    window->Show(isPainted);
    editor.WakeFor(settleMilliseconds);
    window->TakePresented();

    const double audioBefore = audio.GetCpuSeconds();
    const double allBefore = CpuSeconds(RUSAGE_SELF);
    const double pumpBefore = CpuSeconds(RUSAGE_THREAD);
    const auto start = Clock::now();
    int frames = 0;
    while (SecondsSince(start) * 1e3 < milliseconds)
    {
        constexpr int longestWait = 100;
        pollfd descriptor = {editor.GetDescriptor(), POLLIN, 0};
        poll(&descriptor, 1, longestWait);
        editor.Wake();
        frames += HasTrace(window->TakePresented()) ? 1 : 0;
    }
    const double seconds = SecondsSince(start);
    const double pump = CpuSeconds(RUSAGE_THREAD) - pumpBefore;
    const double all = CpuSeconds(RUSAGE_SELF) - allBefore;
    const double ofAudio = audio.GetCpuSeconds() - audioBefore;
    return {100.0 * pump / seconds, 100.0 * std::max(0.0, all - pump - ofAudio) / seconds, frames / seconds};
}

/// range(0): signal.
void Run(benchmark::State& state)
{
    const CLoadedPlugin& plugin = CLoadedPlugin::GetInstance();
    if (!plugin.IsReady(state))
    {
        return;
    }
    constexpr int measuredMilliseconds = 5000;
    std::string error;
    const auto editor = plugin.OpenToTheFirstPicture(error);
    if (editor == nullptr)
    {
        state.SkipWithError(error.c_str());
        return;
    }
    editor->SetSize(Width, Height);
    const CAudio audio(*plugin.Get(), static_cast<ESignal>(state.range(0)));
    for (auto turn : state)
    {
        const CLoad unpainted = Measure(*editor, audio, false, measuredMilliseconds);
        const CLoad painted = Measure(*editor, audio, true, measuredMilliseconds);
        state.SetIterationTime(measuredMilliseconds * 1e-3);
        state.counters["% of a core"] = painted.pumpPercent;
        state.counters["% unpainted"] = unpainted.pumpPercent;
        state.counters["% other threads"] = painted.othersPercent;
        state.counters["frames/s"] = painted.framesPerSecond;
        if (painted.framesPerSecond > 0.0)
        {
            state.counters["frames/s of a whole core"] =
                painted.framesPerSecond * 100.0 / painted.pumpPercent;
        }
    }
}

BENCHMARK(Open)->Name("OpenCold")->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Open)->Name("OpenWarm")->Iterations(30)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Run)->Arg(Noise)->Arg(Silence)->ArgName("signal")->Iterations(1)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
