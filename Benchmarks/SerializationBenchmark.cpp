// A data object of 1,000 entries in each of its forms, beside a plain map from text to text with the same
// entries in the same run: filled and read with ready-made texts, without any conversion. The ratio is how
// many times longer the data object takes.

#include "Mirel/Serialization/CIniDataObject.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <unordered_map>
#include <vector>

namespace
{

using namespace Mirel::Serialization;

constexpr int entries = 1000;

const std::vector<std::string>& Keys()
{
    static const std::vector<std::string> keys = []
    {
        std::vector<std::string> made;
        made.reserve(entries);
        for (int i = 0; i < entries; ++i)
        {
            made.push_back("parameter" + std::to_string(i));
        }
        return made;
    }();
    return keys;
}

/// Seconds that the work takes.
template <class Work>
double Timed(Work work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void FillMap(std::unordered_map<std::string, std::string>& map)
{
    for (const std::string& key : Keys())
    {
        map.insert_or_assign(key, "0.10000000149");
    }
}

void Fill(IWriteDataStream& stream)
{
    for (const std::string& key : Keys())
    {
        benchmark::DoNotOptimize(stream.Write(key.c_str(), 0.1F));
    }
}

void Report(benchmark::State& state, double ours, double reference)
{
    state.counters["ratio"] = ours / reference;
    state.counters["ns/entry"] = ours * 1e9 / (static_cast<double>(state.iterations()) * entries);
}

/// Writes into a new object, made by make, beside a new map.
template <class Make>
void Write(benchmark::State& state, Make make)
{
    double ours = 0.0;
    double reference = 0.0;
    for (auto _ : state)
    {
        auto object = make();
        const double seconds = Timed([&] { Fill(*object); });
        state.SetIterationTime(seconds);
        ours += seconds;
        std::unordered_map<std::string, std::string> map;
        reference += Timed([&] { FillMap(map); });
        benchmark::DoNotOptimize(map);
    }
    Report(state, ours, reference);
}

/// Reads every key of a filled object, made by make, beside finding it in a map.
template <class Make>
void Read(benchmark::State& state, Make make)
{
    auto object = make();
    Fill(*object);
    std::unordered_map<std::string, std::string> map;
    FillMap(map);
    double ours = 0.0;
    double reference = 0.0;
    for (auto _ : state)
    {
        float sum = 0.0F;
        const double seconds = Timed(
            [&]
            {
                for (const std::string& key : Keys())
                {
                    float value = 0.0F;
                    object->Read(key.c_str(), value);
                    sum += value;
                }
            });
        benchmark::DoNotOptimize(sum);
        state.SetIterationTime(seconds);
        ours += seconds;
        reference += Timed(
            [&]
            {
                for (const std::string& key : Keys())
                {
                    benchmark::DoNotOptimize(map.find(key)->second.data());
                }
            });
    }
    Report(state, ours, reference);
}

/// Saves a filled object to text and loads it, beside a copy of the map.
template <class Make>
void SaveAndLoad(benchmark::State& state, Make make)
{
    auto object = make();
    Fill(*object);
    std::unordered_map<std::string, std::string> map;
    FillMap(map);
    double ours = 0.0;
    double reference = 0.0;
    for (auto _ : state)
    {
        auto loaded = make();
        const double seconds = Timed(
            [&]
            {
                std::string text;
                object->SaveToText(text);
                loaded->LoadFromMemory(text.data(), text.size());
            });
        state.SetIterationTime(seconds);
        ours += seconds;
        reference += Timed(
            [&]
            {
                std::unordered_map<std::string, std::string> copy = map;
                benchmark::DoNotOptimize(copy);
            });
    }
    Report(state, ours, reference);
}

const auto memory = [] { return std::make_unique<CMemDataObject>(); };
const auto elements = [] { return std::make_unique<CXmlDataObject>("Root", CXmlMode::Elements); };
const auto namedElements = [] { return std::make_unique<CXmlDataObject>("Root", CXmlMode::NamedElements); };
const auto attributes = [] { return std::make_unique<CXmlDataObject>("Root", CXmlMode::Attributes); };
const auto ini = [] { return std::make_unique<CIniDataObject>(); };

BENCHMARK_CAPTURE(Write, memory, memory)->UseManualTime();
BENCHMARK_CAPTURE(Write, xml_elements, elements)->UseManualTime();
BENCHMARK_CAPTURE(Write, xml_named_elements, namedElements)->UseManualTime();
BENCHMARK_CAPTURE(Write, xml_attributes, attributes)->UseManualTime();
BENCHMARK_CAPTURE(Write, ini, ini)->UseManualTime();
BENCHMARK_CAPTURE(Read, memory, memory)->UseManualTime();
BENCHMARK_CAPTURE(Read, xml_elements, elements)->UseManualTime();
BENCHMARK_CAPTURE(Read, xml_named_elements, namedElements)->UseManualTime();
BENCHMARK_CAPTURE(Read, xml_attributes, attributes)->UseManualTime();
BENCHMARK_CAPTURE(Read, ini, ini)->UseManualTime();
BENCHMARK_CAPTURE(SaveAndLoad, xml_elements, elements)->UseManualTime();
BENCHMARK_CAPTURE(SaveAndLoad, ini, ini)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
