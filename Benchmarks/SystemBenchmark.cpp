// Time from InvokeAsync to the start of the command on a message loop that sleeps, beside a bare thread that
// waits for a condition variable.

#include "Mirel/Core/ICommand.h"
#include "Mirel/System/CMessageLoop.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

using namespace Mirel;
using Clock = std::chrono::steady_clock;

namespace
{

constexpr int samplesPerPass = 2000;
constexpr auto timeToFallAsleep = std::chrono::microseconds(100);

/// When a wake-up arrived.
class CArrival : public Core::ICommand
{
public:
    void Execute() override
    {
        const auto now = Clock::now();
        const std::lock_guard guard(mutex);
        time = now;
        arrived = true;
        condition.notify_one();
    }

    Clock::time_point Wait()
    {
        std::unique_lock guard(mutex);
        condition.wait(guard, [&] { return arrived; });
        arrived = false;
        return time;
    }

private:
    std::mutex mutex;
    std::condition_variable condition;
    Clock::time_point time;
    bool arrived = false;
};

/// The least that can wake a thread.
class CBareThread
{
public:
    explicit CBareThread(CArrival& arrival_) : arrival(arrival_), thread([this] { Run(); }) {}
    CBareThread(const CBareThread&) = delete;
    CBareThread& operator=(const CBareThread&) = delete;
    ~CBareThread()
    {
        Set(EState::End);
        thread.join();
    }
    void Wake() { Set(EState::Woken); }

private:
    enum class EState
    {
        Waiting,
        Woken,
        End
    };

    void Set(EState newState)
    {
        const std::lock_guard guard(mutex);
        state = newState;
        condition.notify_one();
    }

    void Run()
    {
        std::unique_lock guard(mutex);
        while (true)
        {
            condition.wait(guard, [&] { return state != EState::Waiting; });
            if (state == EState::End)
            {
                return;
            }
            state = EState::Waiting;
            arrival.Execute();
        }
    }

    CArrival& arrival;
    std::mutex mutex;
    std::condition_variable condition;
    EState state = EState::Waiting;
    std::thread thread;
};

double Measure(CArrival& arrival, const std::function<void()>& wake)
{
    std::this_thread::sleep_for(timeToFallAsleep);
    const auto start = Clock::now();
    wake();
    return std::chrono::duration<double, std::micro>(arrival.Wait() - start).count();
}

double Quantile(std::vector<double>& sorted, double part)
{
    return sorted[static_cast<std::size_t>(static_cast<double>(sorted.size() - 1) * part)];
}

void WakeUpLatency(benchmark::State& state)
{
    CArrival arrival;
    CBareThread bare(arrival);
    System::CMessageLoop loop;
    loop.Start();
    std::vector<double> ours;
    std::vector<double> floor;
    for ([[maybe_unused]] auto _ : state)
    {
        for (int i = 0; i < samplesPerPass; ++i)
        {
            ours.push_back(Measure(arrival, [&] { loop.InvokeAsync(&arrival, false); }));
            floor.push_back(Measure(arrival, [&] { bare.Wake(); }));
        }
    }
    std::sort(ours.begin(), ours.end());
    std::sort(floor.begin(), floor.end());
    constexpr double median = 0.5;
    constexpr double tail = 0.99;
    state.counters["median_us"] = Quantile(ours, median);
    state.counters["p99_us"] = Quantile(ours, tail);
    state.counters["bare_median_us"] = Quantile(floor, median);
    state.counters["bare_p99_us"] = Quantile(floor, tail);
    state.counters["ratio"] = Quantile(ours, median) / Quantile(floor, median);
}

} // namespace

BENCHMARK(WakeUpLatency)->Iterations(5)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
