// What a pixel of a curve graph costs: CCurveViewer::GetValue beside the bare evaluation of the same curve
// with one multiplication and one sum for each axis, which is the least that two mappings can be.

#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/DataModel/Controls/CCurveViewer.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>
#include <utility>

using namespace Mirel;
using Mirel::DataModel::Controls::CCurveViewer;
using Mirel::DataModel::Objects::CCaptureCurve;
using Mirel::DataModel::Objects::CCurveInfo;
using Mirel::DataModel::Objects::CParamInfo;

namespace
{

constexpr int pixels = 1000;
constexpr int paints = 100; ///< For one reading of the clock.
constexpr float seconds = 1.0F;
constexpr int kindReal = 2;

using SplineTable = Core::TLookupTable<float, Core::TConstrainedSplineInterpolator<float, float>>;

/// One second of a tone, as the scope's trace is.
std::unique_ptr<const Math::IFunction> Tone()
{
    constexpr int samples = 44100;
    SplineTable table(0.0F, seconds, samples);
    for (int i = 0; i < samples; ++i)
    {
        table.GetPositions()[i] = std::sin(static_cast<float>(i) * 0.06F);
    }
    return std::make_unique<Math::TLUTFunction<SplineTable>>(std::move(table));
}

std::unique_ptr<const Math::IFunction> Constant()
{
    return std::make_unique<Math::CConstantFunction>(0.5F);
}

enum ECurve
{
    CurveConstant,
    CurveTone
};

enum EAxes
{
    AxesStraight,
    AxesHeld, ///< Straight, with the curve held by the viewer.
    AxesStepped,
    AxesCurved, ///< Two response curves, which the floor does not have.
};

void Configure(CCurveViewer& viewer, EAxes axes)
{
    constexpr int stops = 501;
    viewer.SetAccessMode(axes == AxesHeld);
    for (auto* axis : {&viewer.GetXViewer(), &viewer.GetYViewer()})
    {
        axis->SetZoom(2.0F);
        axis->SetOffset(0.5F);
        if (axes == AxesStepped)
        {
            axis->SetPositionsCount(stops);
        }
        if (axes == AxesCurved)
        {
            axis->SetResponseCurve(&Math::SharedFunction<&Math::FunctionsLibrary::Square>(),
                                   &Math::SharedFunction<&Math::FunctionsLibrary::SquareRoot>(), false);
        }
    }
}

template <class Pixel>
void Paint(const Pixel& pixel)
{
    for (int paint = 0; paint < paints; ++paint)
    {
        for (int i = 0; i < pixels; ++i)
        {
            benchmark::DoNotOptimize(pixel(static_cast<float>(i) * (1.0F / pixels)));
        }
    }
}

void CurveViewerGetValue(benchmark::State& state)
{
    const CParamInfo time(kindReal, 0.0F, seconds, 0.0F, "Time", "s", "");
    const CParamInfo amplitude(kindReal, -1.0F, 1.0F, 0.0F, "Amplitude", "", "");
    CCaptureCurve curve(CCurveInfo(time, amplitude, "Trace", ""));
    const auto function = state.range(0) == CurveTone ? Tone() : Constant();
    curve.SetValue(*function);
    CCurveViewer viewer(curve);
    Configure(viewer, static_cast<EAxes>(state.range(1)));

    // The floor may know the curve, but not what it is.
    const Math::IFunction* bare = &curve.GetValue();
    benchmark::DoNotOptimize(bare);
    float factors[2] = {0.5F, 1.0F};
    float terms[2] = {0.25F, 0.0F};
    benchmark::DoNotOptimize(factors);
    benchmark::DoNotOptimize(terms);

    Benchmarks::CContest contest(state, static_cast<double>(pixels) * paints);
    contest.Add("viewer", [&] { Paint([&](float x) { return viewer.GetValue(x, false); }); });
    contest.Add(
        "floor",
        [&] { Paint([&](float x) { return (*bare)(x * factors[0] + terms[0]) * factors[1] + terms[1]; }); });
    contest.Run();
}

} // namespace

BENCHMARK(CurveViewerGetValue)
    ->ArgNames({"curve", "axes"})
    ->Args({CurveConstant, AxesStraight})
    ->Args({CurveConstant, AxesHeld})
    ->Args({CurveTone, AxesStraight})
    ->Args({CurveTone, AxesHeld})
    ->Args({CurveTone, AxesStepped})
    ->Args({CurveTone, AxesCurved})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
