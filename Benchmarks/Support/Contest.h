#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Benchmarks
{

/// Runs a contender and its references in turn, so that all see the same machine, and reports medians in
/// nanoseconds an item and the ratios between them. The benchmark's own time is the contender's.
class CContest
{
public:
    CContest(benchmark::State& state_, double items_) : state(state_), items(items_) {}

    void Add(std::string name, std::function<void()> body)
    {
        entrants.push_back({std::move(name), std::move(body), {}});
    }

    /// The first entrant is the contender. Reports its speed against the others as "<name>/ours".
    void Run()
    {
        while (state.KeepRunning())
        {
            for (CEntrant& entrant : entrants)
            {
                const auto start = std::chrono::steady_clock::now();
                entrant.body();
                entrant.seconds.push_back(Seconds(std::chrono::steady_clock::now() - start));
            }
            state.SetIterationTime(entrants.front().seconds.back());
        }
        const double ours = Nanoseconds(entrants.front());
        state.counters["ns/item"] = ours;
        for (std::size_t i = 1; i < entrants.size(); ++i)
        {
            const double theirs = Nanoseconds(entrants[i]);
            state.counters[entrants[i].name + " ns/item"] = theirs;
            state.counters[entrants[i].name + "/ours"] = theirs / ours;
        }
    }

private:
    struct CEntrant
    {
        std::string name;
        std::function<void()> body;
        std::vector<double> seconds;
    };

    static double Seconds(std::chrono::steady_clock::duration time)
    {
        return std::chrono::duration<double>(time).count();
    }

    double Nanoseconds(CEntrant& entrant) const
    {
        const auto middle = entrant.seconds.begin() + static_cast<std::ptrdiff_t>(entrant.seconds.size() / 2);
        std::nth_element(entrant.seconds.begin(), middle, entrant.seconds.end());
        return *middle * 1e9 / items;
    }

    benchmark::State& state;
    double items;
    std::vector<CEntrant> entrants;
};

} // namespace Benchmarks
