// What a paint of a 1000 x 250 graph of one second costs, in each form that the graph has, beside a plain
// fill of one column a pixel from the lowest to the highest of its samples, which is the least that such a
// picture takes. At 50 paints a second, 200 microseconds are one hundredth of a core.

#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveGridViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CXYCurvesGraphics.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Mirel/GUI/ILightWidgetHost.h"
#include "Mirel/Graphics/CColorDrawer.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CSimple2DRegion.h"
#include "Mirel/Math/TCircularLUTFunction.h"
#include "Support/Contest.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using Mirel::DataModel::Controls::CCurveViewer;
using Mirel::DataModel::Objects::CCaptureCurve;
using Mirel::DataModel::Objects::CCurveInfo;
using Mirel::DataModel::Objects::CParamInfo;

namespace
{

constexpr int width = 1000;
constexpr int height = 250;
constexpr int samples = 48000;
constexpr int kindReal = 2;

using CTable =
    Math::TCircularLUTFunction<Core::TLookupTable<float, Core::TConstrainedSplineInterpolator<float, float>>>;

enum ESignal
{
    SignalSilence,
    SignalTone, ///< Five periods.
    SignalNoise
};

enum EPath
{
    PathCurve,
    PathCurveWhole,
    PathCurveVertical,
    PathBars,
    PathBarsWhole,
    PathMinMax,
    PathMinMaxWhole,
    PathXYCurve,
    PathXYDots
};

std::vector<float> MakeSignal(ESignal signal)
{
    std::vector<float> values(samples, 0.0F);
    std::minstd_rand engine(1);
    std::uniform_real_distribution<float> noise(-1.0F, 1.0F);
    for (int i = 0; signal != SignalSilence && i < samples; ++i)
    {
        values[static_cast<std::size_t>(i)] =
            signal == SignalNoise ? noise(engine) : 0.9F * std::sin(static_cast<float>(i) * 6.5e-4F);
    }
    return values;
}

struct CColumn
{
    int top;
    int bottom;
};

/// The rows that the samples of each column reach.
std::vector<CColumn> GetColumns(const std::vector<float>& values)
{
    constexpr int perColumn = samples / width;
    const auto toRow = [](float value)
    { return static_cast<int>((0.5F - 0.5F * value) * static_cast<float>(height - 1)); };
    std::vector<CColumn> columns;
    for (auto at = values.begin(); at != values.end(); at += perColumn)
    {
        const auto [low, high] = std::minmax_element(at, at + perColumn);
        columns.push_back({toRow(*high), toRow(*low)});
    }
    return columns;
}

void FillColumns(Graphics::CDIBBitmap& bitmap, const std::vector<CColumn>& columns)
{
    constexpr std::uint32_t colour = 0xff5adc78U;
    std::uint8_t* const pixels = bitmap.GetData();
    for (int x = 0; x < width; ++x)
    {
        const auto [top, bottom] = columns[static_cast<std::size_t>(x)];
        for (int y = top; y <= bottom; ++y)
        {
            std::memcpy(pixels + (std::int64_t{y} * width + x) * 4, &colour, 4);
        }
    }
}

void PaintGraph(benchmark::State& state)
{
    const auto path = static_cast<EPath>(state.range(0));
    const std::vector<float> values = MakeSignal(static_cast<ESignal>(state.range(1)));
    const std::vector<CColumn> columns = GetColumns(values);
    CTable table(0.0F, 1.0F);
    table.SetSize(samples);
    table.Write(values);
    CCaptureCurve curve(CCurveInfo(CParamInfo(kindReal, 0.0F, 1.0F, 0.0F, "Time", "s", ""),
                                   CParamInfo(kindReal, -1.0F, 1.0F, 0.0F, "Amplitude", "", ""), "", ""));
    curve.SetValue(table);
    CCurveViewer viewer(curve);
    CCurveGraphics graph(viewer);
    CXYCurvesGraphics figure(viewer, viewer);
    const bool whole = path == PathCurveWhole || path == PathBarsWhole || path == PathMinMaxWhole;
    graph.SetAntiAlias(!whole);
    graph.SetSize({width, height});
    figure.SetSize({width, height});
    figure.SetGraphStyle(path == PathXYCurve ? CXYCurvesGraphics::GraphStyleCurve
                                             : CXYCurvesGraphics::GraphStyleDots);
    viewer.SetVertical(path == PathCurveVertical);
    if (path == PathBars || path == PathBarsWhole)
    {
        graph.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    }
    if (path == PathMinMax || path == PathMinMaxWhole)
    {
        graph.SetMinMaxMode(true);
        graph.SetSampleRate(static_cast<float>(samples) / width);
    }
    Graphics::IGraphics& painted = path == PathXYCurve || path == PathXYDots
                                       ? static_cast<Graphics::IGraphics&>(figure)
                                       : static_cast<Graphics::IGraphics&>(graph);
    Graphics::CDIBBitmap bitmap(32, {width, height});
    const auto surface = bitmap.CreateSurface();

    Benchmarks::CContest contest(state, width);
    contest.Add("graph", [&] { painted.Draw(*surface, nullptr); });
    contest.Add("fill", [&] { FillColumns(bitmap, columns); });
    contest.Run();
}

void Arguments(benchmark::internal::Benchmark* benchmark)
{
    for (int path = PathCurve; path <= PathXYDots; ++path)
    {
        for (int signal = SignalSilence; signal <= SignalNoise; ++signal)
        {
            benchmark->Args({path, signal});
        }
    }
}

/// Keeps what is to be painted again.
class CHost : public GUI::ILightWidgetHost
{
public:
    void InvalidateLight(const Graphics::CRect& rect) override { dirty.Union(rect); }
    bool IsLightVisible() const override { return true; }
    GUI::CWidget* GetHostWidget() override { return nullptr; }
    void OnLightHidden(GUI::CLightWidget& /*widget*/) override {}
    void OnLightRemoved(GUI::CLightWidget& /*widget*/) override {}
    void OnLightDestroyed(GUI::CLightWidget& /*widget*/) override {}
    void OnLightCursorChanged(GUI::CLightWidget& /*widget*/) override {}
    void SetLightFocus(GUI::CLightWidget* /*widget*/) override {}
    bool CaptureLightMouse(GUI::CLightWidget& /*widget*/) override { return false; }
    void ReleaseLightMouse(GUI::CLightWidget& /*widget*/) override {}

    Graphics::CSimple2DRegion dirty;
};

/// One channel of an editor: a trace and a histogram on their grids.
struct CChannel
{
    CChannel(const Math::IFunction& trace_, const Math::IFunction& bins_, int y, GUI::CLightWidget& root)
        : trace(CCurveInfo(CParamInfo(kindReal, 0.0F, 1.0F, 0.0F, "Time", "s", ""),
                           CParamInfo(kindReal, -1.0F, 1.0F, 0.0F, "Amplitude", "", ""), "", "")),
          bins(CCurveInfo(CParamInfo(kindReal, -1.0F, 1.0F, 0.0F, "Amplitude", "", ""),
                          CParamInfo(kindReal, 0.0F, 1.0F, 0.0F, "Share", "", ""), "", "")),
          grid(trace, &root),
          graph(trace, &root),
          histogram(bins, &root)
    {
        trace.SetValue(trace_);
        bins.SetValue(bins_);
        constexpr int bars = 120;
        for (GUI::CLightWidget* widget :
             {static_cast<GUI::CLightWidget*>(&grid), static_cast<GUI::CLightWidget*>(&graph)})
        {
            widget->Move({0, y});
            widget->SetSize({width, height});
        }
        grid.GetXViewer().SetPositionsCount(11);
        grid.GetYViewer().SetPositionsCount(5);
        grid.GetGridGraphics().SetXSubdivisionsCount(4);
        histogram.GetViewer().SetVertical(true);
        histogram.GetCurveGraphics().SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
        histogram.Move({width - bars, y});
        histogram.SetSize({bars, height});
    }

    CCaptureCurve trace;
    CCaptureCurve bins;
    CGUICurveGridViewer grid;
    CGUICurveViewer graph;
    CGUICurveViewer histogram;
};

/// A frame of an editor of 1000 x 600 with both channels changed, as the host's window would ask for it. 20
/// milliseconds are the whole of a core at 50 frames a second.
void PaintEditor(benchmark::State& state)
{
    CTable table(0.0F, 1.0F);
    table.SetSize(samples);
    table.Write(MakeSignal(static_cast<ESignal>(state.range(0))));
    CTable bins(-1.0F, 1.0F);
    bins.SetSize(height);
    bins.Write(std::vector<float>(height, 0.5F));
    GUI::CLightWidget root(nullptr, new Graphics::CColorDrawer({16, 20, 26}), true);
    CHost host;
    root.SetHost(&host);
    root.SetSize({1000, 600});
    CChannel left(table, bins, 30, root);
    CChannel right(table, bins, 320, root);
    Graphics::CDIBBitmap bitmap(32, {1000, 600});
    const auto surface = bitmap.CreateSurface();
    const auto paint = [&]
    {
        root.GetRecursiveGraphics().Draw(*surface, &host.dirty);
        host.dirty = Graphics::CSimple2DRegion();
    };
    paint();

    Benchmarks::CContest contest(state, 1.0);
    contest.Add("frame",
                [&]
                {
                    for (CChannel* channel : {&left, &right})
                    {
                        channel->trace.NotifyChanged();
                        channel->bins.NotifyChanged();
                    }
                    paint();
                });
    contest.Add("unchanged", paint);
    contest.Add("clear", [&] { bitmap.Clear(); });
    contest.Run();
    state.counters["% of a core"] = state.counters["ns/item"] * 50.0 / 1e9 * 100.0;
    root.SetHost(nullptr);
}

} // namespace

BENCHMARK(PaintEditor)
    ->ArgName("signal")
    ->DenseRange(SignalSilence, SignalNoise)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(PaintGraph)
    ->ArgNames({"path", "signal"})
    ->Apply(Arguments)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
