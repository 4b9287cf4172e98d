// What a trace costs on screen: DrawPolylineF of one point a pixel column beside the same lines stroked one
// by one by the drawing library, and beside a clearing of the bitmap, which every paint pays anyway. And what
// an image costs: a frame of a strip beside the bare copy of its rows.

#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <vector>

using namespace Mirel::Graphics;

namespace
{

constexpr int width = 1200;
constexpr int height = 400;

/// periods over the width; the more, the longer the lines.
std::vector<CPointF> Trace(double periods)
{
    constexpr double turn = 6.283185307179586;
    std::vector<CPointF> points;
    for (int x = 0; x < width; ++x)
    {
        const double y = height / 2.0 * (1.0 - 0.9 * std::sin(turn * periods * x / width));
        points.push_back({static_cast<float>(x), static_cast<float>(y)});
    }
    return points;
}

void Polyline(benchmark::State& state)
{
    const std::vector<CPointF> points = Trace(static_cast<double>(state.range(0)));
    CDIBBitmap bitmap(32, {width, height});
    const auto surface = bitmap.CreateSurface();
    surface->SetPenColor({90, 220, 120});

    Benchmarks::CContest contest(state, width);
    contest.Add("polyline", [&] { surface->DrawPolylineF(points.data(), width); });
    contest.Add("library",
                [&]
                {
                    for (std::size_t i = 1; i < points.size(); ++i)
                    {
                        surface->DrawLineF(points[i - 1], points[i]);
                    }
                });
    contest.Add("clear", [&] { bitmap.Clear(); });
    contest.Run();
}

void Frame(benchmark::State& state)
{
    const int side = static_cast<int>(state.range(0));
    constexpr int frames = 64;
    const CDIBBitmap strip(32, {side, side * frames});
    const auto image = strip.CreateImage();
    CDIBBitmap bitmap(32, {width, height});
    const auto surface = bitmap.CreateSurface();

    Benchmarks::CContest contest(state, static_cast<double>(side) * side);
    contest.Add("frame", [&] { surface->DrawImage(*image, {0, side * 3}, {50, 50}, {side, side}); });
    contest.Add("copy",
                [&]
                {
                    for (int y = 0; y < side; ++y)
                    {
                        std::memcpy(bitmap.GetData() + (y * width + 50) * 4, strip.GetData() + y * side * 4,
                                    static_cast<std::size_t>(side) * 4);
                    }
                });
    contest.Run();
}

} // namespace

BENCHMARK(Polyline)->ArgName("periods")->Arg(1)->Arg(5)->Arg(50)->UseManualTime()->Unit(
    benchmark::kMicrosecond);
BENCHMARK(Frame)->ArgName("side")->Arg(32)->Arg(128)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
