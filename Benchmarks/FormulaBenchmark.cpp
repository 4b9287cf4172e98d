// Compiled formulas, evaluated as a curve view does it, beside the same expressions in C++; times are those
// of a node, that is of a number, a name, an operator or a call. What compiling takes stands at the end.

#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/SkinEngine/Formula/CBinaryFunctionFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <numbers>

using namespace Mirel::Math;
using namespace Mirel::SkinEngine;
using namespace Mirel::Math::FunctionsLibrary;

namespace
{

constexpr int pixels = 20000;

/// A name is one node over its identifier.
int CountNodes(const CFormulaNode& node)
{
    int count = 1;
    if (node.type != EFormulaToken::Parameter)
    {
        for (const CFormulaNode& child : node.children)
        {
            count += CountNodes(child);
        }
    }
    return count;
}

/// Sums over x from -1 to 1; the function is called as a view calls it, without being known.
template <class F>
[[gnu::noinline]] float SumOver(const F& function)
{
    float sum = 0.0f;
    for (int i = 0; i < pixels; ++i)
    {
        sum += function(static_cast<float>(i) * (2.0f / pixels) - 1.0f);
    }
    return sum;
}

/// `curve` stands for a function of the model, which is the cosine here.
template <class F>
void Compete(benchmark::State& state, const char* text, const F& plain)
{
    const auto formula = CompileParametrizedFunction(text, "x");
    formula->GetParameters().SetConstant("gain", 0.75f);
    formula->GetParameters().SetFunction("curve", &SharedFunction<&Cos>(), false);
    const std::unique_ptr<IFunction> clone(formula->Clone());
    const IFunction& function = *clone;
    const int nodes = CountNodes(*ParseFormula(text));
    state.counters["nodes"] = nodes;
    Benchmarks::CContest contest(state, static_cast<double>(pixels) * nodes);
    contest.Add("ours", [&function] { benchmark::DoNotOptimize(SumOver(function)); });
    contest.Add("C++", [&plain] { benchmark::DoNotOptimize(SumOver(plain)); });
    contest.Run();
}

void Arithmetic(benchmark::State& state)
{
    Compete(state, "(x * 2 - 0.5) * (x + 3) / (1 + x * x) - 4 * x",
            [](float x) { return (x * 2.0f - 0.5f) * (x + 3.0f) / (1.0f + x * x) - 4.0f * x; });
}
BENCHMARK(Arithmetic)->UseManualTime();

void Comparisons(benchmark::State& state)
{
    Compete(state, "x > 0 and x < 0.5 or not (x >= -0.25) and x != 1",
            [](float x)
            {
                return Or(And(GreaterThan(x, 0.0f), LowerThan(x, 0.5f)),
                          And(Not(GreaterThanEqual(x, -0.25f)), NotEqual(x, 1.0f)));
            });
}
BENCHMARK(Comparisons)->UseManualTime();

void Clamp(benchmark::State& state)
{
    Compete(state, "min(1, max(0, abs(x) * 3 - 0.5))",
            [](float x) { return Min(1.0f, Max(0.0f, Abs(x) * 3.0f - 0.5f)); });
}
BENCHMARK(Clamp)->UseManualTime();

void Waves(benchmark::State& state)
{
    Compete(state, "sin(x * 2 * pi) + cos(x * pi) / 3",
            [](float x)
            {
                constexpr float pi = std::numbers::pi_v<float>;
                return Sin(x * 2.0f * pi) + Cos(x * pi) / 3.0f;
            });
}
BENCHMARK(Waves)->UseManualTime();

void NamedObjects(benchmark::State& state)
{
    Compete(state, "gain * curve(x + gain) - 1", [](float x) { return 0.75f * Cos(x + 0.75f) - 1.0f; });
}
BENCHMARK(NamedObjects)->UseManualTime();

void LongSum(benchmark::State& state)
{
    Compete(state, "x+1+x+2+x+3+x+4+x+5+x+6+x+7+x+8+x+9+x+10",
            [](float x)
            {
                float sum = x + 1.0f;
                for (int i = 2; i <= 10; ++i)
                {
                    sum = sum + x + static_cast<float>(i);
                }
                return sum;
            });
}
BENCHMARK(LongSum)->UseManualTime();

void Surface(benchmark::State& state)
{
    const char* const text = "(x - y) * (x + y) + 2 * x * y";
    const auto function = CBinaryFunctionFormulaBuilder("x", "y").Compile(text);
    const int nodes = CountNodes(*ParseFormula(text));
    state.counters["nodes"] = nodes;
    Benchmarks::CContest contest(state, static_cast<double>(pixels) * nodes);
    contest.Add("ours",
                [&function] {
                    benchmark::DoNotOptimize(SumOver([&function](float x) { return (*function)(x, 0.5f); }));
                });
    contest.Add("C++",
                []
                {
                    const auto plain = [](float x, float y) { return (x - y) * (x + y) + 2.0f * x * y; };
                    benchmark::DoNotOptimize(SumOver([&plain](float x) { return plain(x, 0.5f); }));
                });
    contest.Run();
}
BENCHMARK(Surface)->UseManualTime();

void Compile(benchmark::State& state)
{
    while (state.KeepRunning())
    {
        benchmark::DoNotOptimize(CompileFunction("min(1, max(0, abs(x) * 3 - 0.5))", "x"));
    }
}
BENCHMARK(Compile);

} // namespace

BENCHMARK_MAIN();
