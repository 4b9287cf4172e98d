// Delivery of an event to its listeners, beside a loop over plain functions that do the same.

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

using namespace Mirel::Core;
using Clock = std::chrono::steady_clock;

namespace
{

constexpr std::int64_t callsPerBatch = 20000;

class CCounter
{
public:
    void Count() { benchmark::DoNotOptimize(++count); }

private:
    std::uint64_t count = 0;
};

double Seconds(Clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

template <class Body>
double MeasureBatch(std::int64_t repetitions, const Body& body)
{
    const auto start = Clock::now();
    for (std::int64_t i = 0; i < repetitions; ++i)
    {
        body();
    }
    return Seconds(Clock::now() - start);
}

void Delivery(benchmark::State& state)
{
    const std::int64_t listeners = state.range(0);
    const std::int64_t repetitions = callsPerBatch / listeners;
    CCounter counter;
    CEventProvider provider;
    std::vector<TCommand<CCounter>> commands(static_cast<std::size_t>(listeners),
                                             TCommand<CCounter>(&counter, &CCounter::Count));
    std::vector<std::function<void()>> functions;
    for (auto& command : commands)
    {
        provider.Connect(command);
        functions.emplace_back([&counter] { counter.Count(); });
    }

    double ours = 0.0;
    double plain = 0.0;
    for ([[maybe_unused]] auto _ : state)
    {
        const double batch = MeasureBatch(repetitions, [&] { provider.Notify(); });
        plain += MeasureBatch(repetitions,
                              [&]
                              {
                                  for (const auto& function : functions)
                                  {
                                      function();
                                  }
                              });
        ours += batch;
        state.SetIterationTime(batch);
    }

    const double calls = static_cast<double>(state.iterations() * repetitions * listeners);
    constexpr double nanoseconds = 1e9;
    state.counters["ns_per_listener"] = ours / calls * nanoseconds;
    state.counters["plain_ns_per_listener"] = plain / calls * nanoseconds;
    state.counters["ratio"] = ours / plain;
}

} // namespace

BENCHMARK(Delivery)->Arg(1)->Arg(10)->Arg(1000)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
