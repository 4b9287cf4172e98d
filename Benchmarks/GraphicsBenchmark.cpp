// What a frame with two traces costs, of one device pixel and of two: a fill, and polylines of a point or two
// a pixel column, of the least and greatest value of each, or of one signal against another. Beside it the
// same lines stroked one by one by the drawing library, and as a floor the same fill with one upright run of
// pixels a column. How far the two pictures are apart is told along. Then what an image costs: a frame of a
// strip beside the bare copy of its rows. And what a label costs, drawn and measured, beside a layout of the
// text library made for each.

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Support/Contest.h"
#include "TraceFrames.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cairo.h>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <pango/pangocairo.h>
#include <string>
#include <vector>

using namespace Mirel::Graphics;

namespace
{

constexpr int width = 1000;
constexpr int height = 600;
constexpr CColor ground = {20, 24, 32};
constexpr CColor pen = {90, 220, 120};

/// Where the two traces begin.
constexpr int traceTops[] = {20, 320};

void FillGround(CDrawSurface& surface)
{
    surface.SetFillColor(ground);
    surface.FillRect({0, 0, width, height});
}

void PaintOurs(CDrawSurface& surface, const Benchmarks::CTrace& trace)
{
    FillGround(surface);
    surface.SetPenColor(pen);
    for (const int top : traceTops)
    {
        surface.Translate({0, top});
        surface.DrawPolylineF(trace.points.data(), static_cast<int>(trace.points.size()));
        surface.Translate({0, -top});
    }
}

void PaintByLibrary(CDrawSurface& surface, const Benchmarks::CTrace& trace)
{
    FillGround(surface);
    cairo_t* context = surface.GetNativeContext();
    cairo_set_source_rgb(context, ToUnit(pen.r), ToUnit(pen.g), ToUnit(pen.b));
    for (const int top : traceTops)
    {
        for (std::size_t i = 1; i < trace.points.size(); ++i)
        {
            const CPointF a = trace.points[i - 1];
            const CPointF b = trace.points[i];
            cairo_move_to(context, static_cast<double>(a.x) + 0.5, static_cast<double>(a.y) + 0.5 + top);
            cairo_line_to(context, static_cast<double>(b.x) + 0.5, static_cast<double>(b.y) + 0.5 + top);
            cairo_stroke(context);
        }
    }
}

void PaintFloor(CDIBBitmap& bitmap, CDrawSurface& surface, const Benchmarks::CTrace& trace, int scale)
{
    FillGround(surface);
    const std::uint32_t pixel = 0xff000000U | pen.Pack();
    const std::ptrdiff_t stride = std::ptrdiff_t{width} * scale * 4;
    for (const int top : traceTops)
    {
        for (int x = 0; x < width * scale; ++x)
        {
            const auto column = static_cast<std::size_t>(x / scale);
            // Without values in between, the run reaches to the one before.
            const int before = trace.lowest[column == 0 ? 0 : column - 1];
            const int from = std::min(trace.highest[column], before);
            const int to = std::max(trace.lowest[column], before);
            std::uint8_t* at = bitmap.GetData() + (from + top) * scale * stride + std::ptrdiff_t{x} * 4;
            for (int y = from * scale; y < (to + 1) * scale; ++y, at += stride)
            {
                std::memcpy(at, &pixel, sizeof(pixel));
            }
        }
    }
}

/// The greatest and the mean difference of the bytes of two pictures.
void TellDifference(benchmark::State& state, const CDIBBitmap& a, const CDIBBitmap& b)
{
    int greatest = 0;
    double sum = 0.0;
    const CSize size = a.GetContext()->GetSize();
    const int bytes = size.width * size.height * 4;
    for (int i = 0; i < bytes; ++i)
    {
        const int difference = std::abs(int{a.GetData()[i]} - int{b.GetData()[i]});
        greatest = std::max(greatest, difference);
        sum += difference;
    }
    state.counters["greatest difference"] = greatest;
    state.counters["mean difference"] = sum / bytes;
}

void TraceFrame(benchmark::State& state)
{
    const Benchmarks::CTrace trace = Benchmarks::MakeTrace(static_cast<Benchmarks::ESignal>(state.range(0)),
                                                           static_cast<Benchmarks::EForm>(state.range(1)));
    const int scale = static_cast<int>(state.range(2));
    const CSize size = {width * scale, height * scale};
    CDIBBitmap ours(32, size);
    CDIBBitmap theirs(32, size);
    CDIBBitmap floor(32, size);
    const auto ourSurface = ours.CreateSurface();
    const auto theirSurface = theirs.CreateSurface();
    const auto floorSurface = floor.CreateSurface();
    for (CDrawSurface* surface : {ourSurface.get(), theirSurface.get(), floorSurface.get()})
    {
        surface->Scale(scale);
    }

    Benchmarks::CContest contest(state, 1.0);
    contest.Add("frame", [&] { PaintOurs(*ourSurface, trace); });
    contest.Add("library", [&] { PaintByLibrary(*theirSurface, trace); });
    contest.Add("floor", [&] { PaintFloor(floor, *floorSurface, trace, scale); });
    contest.Run();
    TellDifference(state, ours, theirs);
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
                        std::memcpy(bitmap.GetData() + (std::int64_t{y} * width + 50) * 4,
                                    strip.GetData() + std::int64_t{y} * side * 4,
                                    static_cast<std::size_t>(side) * 4);
                    }
                });
    contest.Run();
}

/// The labels of a ruler.
constexpr int labels = 11;

std::string MakeLabel(int index)
{
    return std::to_string(10 * index - 60) + ".0 dB";
}

/// What the text library takes without a layout kept: as it comes, with its own map of the system's fonts.
PangoLayout* MakeRawLayout(PangoContext* context, const PangoFontDescription* font, const std::string& text)
{
    PangoLayout* layout = pango_layout_new(context);
    pango_layout_set_font_description(layout, font);
    pango_layout_set_text(layout, text.c_str(), -1);
    return layout;
}

void Labels(benchmark::State& state)
{
    const bool drawn = state.range(0) != 0;
    CFontManager fonts(GetFontsFolder(DATA_FOLDER));
    CFontDescription description;
    description.height = 11;
    CDIBBitmap bitmap(32, {width, height});
    const auto surface = bitmap.CreateSurface();
    surface->SetFont(fonts.GetFont(description));
    surface->SetPenColor(pen);
    cairo_t* context = surface->GetNativeContext();
    PangoFontMap* map = pango_cairo_font_map_new();
    PangoContext* raw = pango_font_map_create_context(map);
    PangoFontDescription* font = pango_font_description_new();
    pango_font_description_set_family(font, "DejaVu Sans");
    pango_font_description_set_absolute_size(font, 11.0 * PANGO_SCALE);

    Benchmarks::CContest contest(state, labels);
    contest.Add("labels",
                [&]
                {
                    for (int i = 0; i < labels; ++i)
                    {
                        const std::string text = MakeLabel(i);
                        benchmark::DoNotOptimize(surface->GetTextExtent(text.c_str()));
                        if (drawn)
                        {
                            surface->DrawText(text.c_str(), {10, 40 * i});
                        }
                    }
                });
    contest.Add("library",
                [&]
                {
                    for (int i = 0; i < labels; ++i)
                    {
                        PangoLayout* layout = MakeRawLayout(raw, font, MakeLabel(i));
                        int extent = 0;
                        pango_layout_get_pixel_size(layout, &extent, nullptr);
                        benchmark::DoNotOptimize(extent);
                        if (drawn)
                        {
                            cairo_move_to(context, 10, 40 * i);
                            pango_cairo_show_layout(context, layout);
                        }
                        g_object_unref(layout);
                    }
                });
    contest.Run();
    pango_font_description_free(font);
    g_object_unref(raw);
    g_object_unref(map);
}

} // namespace

BENCHMARK(TraceFrame)
    ->ArgNames({"signal", "form", "scale"})
    ->ArgsProduct({{0, 1, 2}, {0, 1, 2}, {1, 2}})
    ->Args({0, 3, 1})
    ->Args({0, 3, 2})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Frame)->ArgName("side")->Arg(32)->Arg(128)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(Labels)->ArgName("drawn")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
