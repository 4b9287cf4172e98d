// What a change of a control costs the editor's thread, from the event of the mouse to its repainted pixels,
// in the factory skin without a screen, while the plug-in hears silence. Beside it a repaint of the whole
// editor, and as a floor a bare copy of the control's pixels. Told along is how many pixels were painted for
// one of the control.

#include "Host/Audio/CBuffers.h"
#include "Support/CLoadedPlugin.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <poll.h>

namespace
{

using Benchmarks::CLoadedPlugin;
using Mirel::Graphics::CSimple2DRegion;
using Mirel::GUI::CPoint;
using Mirel::GUI::CRect;

/// Of the thread that asks: waiting for timers does not count.
double CpuSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double Median(std::vector<double>& values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double CountPixels(const CSimple2DRegion& region)
{
    double pixels = 0.0;
    for (int i = 0; i < region.GetRectCount(); ++i)
    {
        pixels += static_cast<double>(region.GetRect(i).width) * region.GetRect(i).height;
    }
    return pixels;
}

CPoint CentreOf(const CRect& area)
{
    return {area.x + area.width / 2, area.y + area.height / 2};
}

/// The editor, the user's hand on it and the host behind it.
class CDesk
{
public:
    /// range(0): the rest before each event in milliseconds.
    explicit CDesk(benchmark::State& state) : restMilliseconds(static_cast<int>(state.range(0)))
    {
        const CLoadedPlugin& plugin = CLoadedPlugin::GetInstance();
        if (plugin.IsReady(state))
        {
            std::string error;
            editor = plugin.OpenToTheFirstPicture(error);
            if (editor == nullptr)
            {
                state.SkipWithError(error.c_str());
                return;
            }
            // Tooltips open windows too.
            window = &plugin.GetWindow();
        }
    }

    bool IsOpen() const { return editor != nullptr; }
    Mirel::GUI::COffscreenPlatform& GetHand() const { return CLoadedPlugin::GetInstance().GetPlatform(); }
    Mirel::GUI::COffscreenWindow& GetWindow() const { return *window; }

    /// Seconds from the cause until something of the area is painted anew; negative if nothing is.
    double TimePaint(const std::function<void()>& cause, const CRect& area)
    {
        Settle();
        double start = CpuSeconds();
        cause();
        double seconds = CpuSeconds() - start;
        AnswerAsHost();
        constexpr int mostWakes = 100;
        for (int i = 0; i < mostWakes; ++i)
        {
            start = CpuSeconds();
            editor->Wake();
            seconds += CpuSeconds() - start;
            painted.Union(GetWindow().TakePresented());
            CSimple2DRegion seen = painted;
            seen.Intersect(area);
            if (!seen.IsEmpty())
            {
                return seconds;
            }
            Wait();
        }
        return -1.0;
    }

    /// All pixels painted since TimePaint began, those that came in a rest after it too.
    double CountPainted()
    {
        editor->WakeFor(restMilliseconds);
        painted.Union(GetWindow().TakePresented());
        return CountPixels(painted);
    }

private:
    void Settle()
    {
        editor->WakeFor(restMilliseconds);
        GetWindow().TakePresented();
        painted = CSimple2DRegion();
    }

    void Wait() const
    {
        constexpr int longestMilliseconds = 20;
        pollfd descriptor = {editor->GetDescriptor(), POLLIN, 0};
        poll(&descriptor, 1, longestMilliseconds);
    }

    /// What was asked of the host comes back with the next block.
    void AnswerAsHost() { CLoadedPlugin::GetInstance().Get()->Process(inputs.Get(), outputs.Get(), block); }

    static constexpr int block = 64;
    Host::CBuffers inputs = Host::CBuffers(CLoadedPlugin::channels, block);
    Host::CBuffers outputs = Host::CBuffers(CLoadedPlugin::channels, block);
    int restMilliseconds;
    std::unique_ptr<Host::CHostEditor> editor;
    Mirel::GUI::COffscreenWindow* window = nullptr;
    CSimple2DRegion painted;
};

/// One step of the control causes one paint of it; the step's number counts from 0.
void Measure(benchmark::State& state, CDesk& desk, const CRect& area, const std::function<void(int)>& step)
{
    const auto skin = CLoadedPlugin::GetInstance().GetEditor().GetSkinWindow();
    const Mirel::Graphics::CBitmap& picture = desk.GetWindow().GetPicture();
    const std::size_t stride = static_cast<std::size_t>(picture.GetSize().width) * 4;
    std::vector<std::uint8_t> copy(static_cast<std::size_t>(area.width * area.height) * 4);
    std::vector<double> own;
    std::vector<double> whole;
    std::vector<double> copies;
    std::vector<double> pixels;
    int steps = 0;
    for (auto turn : state)
    {
        own.push_back(desk.TimePaint([&] { step(steps++); }, area));
        pixels.push_back(desk.CountPainted());
        whole.push_back(desk.TimePaint([&] { skin->Invalidate(); }, area));
        if (own.back() < 0.0 || whole.back() < 0.0)
        {
            state.SkipWithError("not painted");
            return;
        }
        const double start = CpuSeconds();
        const std::size_t bytes = static_cast<std::size_t>(area.width) * 4;
        for (std::size_t y = 0; y < static_cast<std::size_t>(area.height); ++y)
        {
            std::memcpy(copy.data() + y * bytes,
                        picture.GetData() + (static_cast<std::size_t>(area.y) + y) * stride +
                            static_cast<std::size_t>(area.x) * 4,
                        bytes);
        }
        benchmark::DoNotOptimize(copy.data());
        copies.push_back(CpuSeconds() - start);
        state.SetIterationTime(own.back());
    }
    const double seconds = Median(own);
    state.counters["us"] = seconds * 1e6;
    state.counters["whole us"] = Median(whole) * 1e6;
    state.counters["copy us"] = Median(copies) * 1e6;
    state.counters["whole/ours"] = Median(whole) / seconds;
    state.counters["copy/ours"] = Median(copies) / seconds;
    state.counters["painted/own pixels"] = Median(pixels) / (static_cast<double>(area.width) * area.height);
}

// Where the controls stand in the factory skin.
const CRect knob = {292, 549, 44, 44};
const CRect slider = {590, 562, 120, 18};
const CRect sliderThumb = {594, 562, 11, 18};
const CRect syncSwitch = {229, 559, 44, 24};
const CRect bypassButton = {848, 8, 72, 24};

void Drag(benchmark::State& state, const CRect& area, CPoint from, CPoint direction)
{
    CDesk desk(state);
    if (!desk.IsOpen())
    {
        return;
    }
    desk.GetHand().MovePointer(from);
    desk.GetHand().PressButton(Mirel::GUI::EMouseButton::Left);
    Measure(state, desk, area,
            [&](int step)
            {
                constexpr int reach = 40; // pixels, which change each of the controls
                const int way = step % 2 == 0 ? reach : 0;
                desk.GetHand().MovePointer({from.x + direction.x * way, from.y + direction.y * way});
            });
    desk.GetHand().ReleaseButton(Mirel::GUI::EMouseButton::Left);
}

void DragKnob(benchmark::State& state)
{
    Drag(state, knob, CentreOf(knob), {0, -1});
}

/// Of the time scale, which the traces and their rulers follow.
void DragSlider(benchmark::State& state)
{
    Drag(state, slider, CentreOf(sliderThumb), {1, 0});
}

void ClickSwitch(benchmark::State& state)
{
    CDesk desk(state);
    if (!desk.IsOpen())
    {
        return;
    }
    desk.GetHand().MovePointer(CentreOf(syncSwitch));
    Measure(state, desk, syncSwitch,
            [&](int)
            {
                desk.GetHand().Wait(1000); // Else two clicks are a double click.
                desk.GetHand().PressButton(Mirel::GUI::EMouseButton::Left);
                desk.GetHand().ReleaseButton(Mirel::GUI::EMouseButton::Left);
            });
}

/// Onto a button and away from it.
void Hover(benchmark::State& state)
{
    CDesk desk(state);
    if (!desk.IsOpen())
    {
        return;
    }
    constexpr CPoint away(740, 30);
    desk.GetHand().MovePointer(away);
    Measure(state, desk, bypassButton,
            [&](int step) { desk.GetHand().MovePointer(step % 2 == 0 ? CentreOf(bypassButton) : away); });
}

void WithAndWithoutRest(benchmark::internal::Benchmark* benchmark)
{
    constexpr int rest = 50; // more than a period of any of the editor's timers
    benchmark->ArgName("rest")->Arg(0)->Arg(rest)->Iterations(40)->UseManualTime()->Unit(
        benchmark::kMicrosecond);
}

BENCHMARK(DragKnob)->Apply(WithAndWithoutRest);
BENCHMARK(DragSlider)->Apply(WithAndWithoutRest);
BENCHMARK(ClickSwitch)->Apply(WithAndWithoutRest);
BENCHMARK(Hover)->Apply(WithAndWithoutRest);

} // namespace

BENCHMARK_MAIN();
