// Evaluation of functions as a curve view does it, a value per pixel: tables beside reads of a plain array, a
// tree of ten nodes beside the same expression in C++.

#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/CSweptCurvesFunction.h"
#include "Mirel/Math/CSweptValues.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TCircularLUTFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Support/Contest.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstddef>
#include <memory>
#include <random>
#include <utility>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::Math;

namespace
{

using CLinear = TLookupTable<float, TLinearInterpolator<float, float>>;
using CNearest = TLookupTable<float, TNearestInterpolator<float, float>>;
using CSpline = TLookupTable<float, TConstrainedSplineInterpolator<float, float>>;

constexpr int tableSize = 4096;
constexpr int pixels = 20000;

/// Sums the function over evenly spaced x, called through its interface.
template <class F>
[[gnu::noinline]] float SumOver(const F& function, float xMin, float xMax)
{
    float sum = 0.0f;
    const float step = (xMax - xMin) / static_cast<float>(pixels);
    for (int i = 0; i < pixels; ++i)
    {
        sum += function(xMin + static_cast<float>(i) * step);
    }
    return sum;
}

std::vector<float> Wave(int size)
{
    std::vector<float> wave(static_cast<std::size_t>(size));
    for (std::size_t i = 0; i < wave.size(); ++i)
    {
        wave[i] = std::sin(static_cast<float>(i) * 0.05f);
    }
    return wave;
}

/// A signal without two equal slopes in a row: nothing about it can be foreseen.
std::vector<float> Noise(int size)
{
    std::minstd_rand random;
    std::uniform_real_distribution<float> amplitude(-1.0f, 1.0f);
    std::vector<float> noise(static_cast<std::size_t>(size));
    std::generate(noise.begin(), noise.end(), [&] { return amplitude(random); });
    return noise;
}

/// A plain array behind the interface of functions: what the call itself costs.
class CArrayFunction : public CConstantFunction
{
public:
    explicit CArrayFunction(std::vector<float> values_) : values(std::move(values_)) {}

    float operator()(float x) const override
    {
        return values[static_cast<std::size_t>(x * static_cast<float>(tableSize - 1))];
    }

private:
    std::vector<float> values;
};

/// The floor: x to an index of a plain array.
void AddPlainRead(Benchmarks::CContest& contest, const std::vector<float>& values)
{
    contest.Add("array",
                [&values]
                {
                    const float* value = values.data();
                    const auto read = [value](float x)
                    { return value[static_cast<std::ptrdiff_t>(x * static_cast<float>(tableSize - 1))]; };
                    benchmark::DoNotOptimize(SumOver(read, 0.0f, 1.0f));
                });
}

void RunAgainstArray(benchmark::State& state, const IFunction& function)
{
    const std::vector<float> values = Wave(tableSize);
    Benchmarks::CContest contest(state, pixels);
    contest.Add("ours", [&function] { benchmark::DoNotOptimize(SumOver(function, 0.0f, 1.0f)); });
    AddPlainRead(contest, values);
    const CArrayFunction called(values);
    contest.Add("called array", [&called]
                { benchmark::DoNotOptimize(SumOver(static_cast<const IFunction&>(called), 0.0f, 1.0f)); });
    contest.Run();
}

template <class L>
void Table(benchmark::State& state)
{
    L table(0.0f, 1.0f, tableSize);
    const std::vector<float> values = Wave(tableSize);
    std::copy(values.begin(), values.end(), table.GetPositions());
    RunAgainstArray(state, TLUTFunction<L>(std::move(table)));
}
BENCHMARK_TEMPLATE(Table, CNearest)->UseManualTime();
BENCHMARK_TEMPLATE(Table, CLinear)->UseManualTime();
BENCHMARK_TEMPLATE(Table, CSpline)->UseManualTime();

void Ring(benchmark::State& state)
{
    TCircularLUTFunction<CSpline> ring(0.0f, 1.0f);
    ring.SetSize(tableSize);
    ring.Write(Noise(tableSize + tableSize / 3));
    ring.SetWindow(ring.GetWritePos(), ring.GetWritePos());
    RunAgainstArray(state, ring);
}
BENCHMARK(Ring)->UseManualTime();

using CHolder = TFunctionHolder<IFunction>;

CHolder Number(float value)
{
    return {new CConstantFunction(value), true};
}

CHolder Variable()
{
    return {&SharedFunction<&FunctionsLibrary::Identity>(), false};
}

template <float (*F)(float, float)>
CHolder Combine(CHolder left, CHolder right)
{
    return {new CFunctionsCombination(std::move(left), std::move(right), {&SharedBinaryFunction<F>(), false}),
            true};
}

template <float (*F)(float)>
CHolder Apply(const CHolder& inner)
{
    auto composition = std::make_unique<CFunctionsComposition>();
    composition->Add(inner->Clone(), true);
    composition->Add(&SharedFunction<F>(), false);
    return {composition.release(), true};
}

/// Ten nodes, as a formula builds them: abs(x * 2 - 0.5) * (x + 3) < x.
void Formula(benchmark::State& state)
{
    using namespace FunctionsLibrary;
    const CHolder tree = Combine<&LowerThan>(
        Combine<&Product>(
            Apply<&Abs>(Combine<&Difference>(Combine<&Product>(Variable(), Number(2.0f)), Number(0.5f))),
            Combine<&Sum>(Variable(), Number(3.0f))),
        Variable());
    Benchmarks::CContest contest(state, pixels);
    contest.Add("ours", [&tree] { benchmark::DoNotOptimize(SumOver(*tree, 0.0f, 1.0f)); });
    contest.Add("C++",
                []
                {
                    const auto expression = [](float x)
                    { return LowerThan(Abs(x * 2.0f - 0.5f) * (x + 3.0f), x); };
                    benchmark::DoNotOptimize(SumOver(expression, 0.0f, 1.0f));
                });
    contest.Run();
}
BENCHMARK(Formula)->UseManualTime();

/// A history of a minute at 20 samples a second, full.
void History(benchmark::State& state)
{
    constexpr int samples = 1024;
    constexpr float period = 0.05f;
    CSweptValues history;
    history.SetCapacity(samples);
    const std::vector<float> values = Wave(samples * 3 / 2);
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        history.Add(static_cast<float>(i) * period, values[i]);
    }
    const std::vector<float> plain = Wave(tableSize);
    Benchmarks::CContest contest(state, pixels);
    contest.Add("ours", [&history]
                { benchmark::DoNotOptimize(SumOver(static_cast<const IFunction&>(history), -51.0f, 0.0f)); });
    AddPlainRead(contest, plain);
    contest.Run();
}
BENCHMARK(History)->UseManualTime();

void HistoryOfCurves(benchmark::State& state)
{
    constexpr int samples = 64;
    constexpr float period = 0.05f;
    CSweptCurvesFunction history;
    history.SetCapacity(samples);
    CLinear table(0.0f, 1.0f, tableSize);
    for (int i = 0; i < samples; ++i)
    {
        history.Add(static_cast<float>(i) * period, TLUTFunction<CLinear>(table));
    }
    const auto row = [&history](float offset)
    { return static_cast<const IBinaryFunction&>(history)(offset, 0.3f); };
    const std::vector<float> plain = Wave(tableSize);
    Benchmarks::CContest contest(state, pixels);
    contest.Add("ours", [&row] { benchmark::DoNotOptimize(SumOver(row, -3.0f, 0.0f)); });
    AddPlainRead(contest, plain);
    contest.Run();
}
BENCHMARK(HistoryOfCurves)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
