// The repaint of a window of 500 light widgets when one of them changes, beside a repaint of them all; and
// the same all, beside plain fills of as many rectangles.

#include "Common/Mirel/GUI/GUIRig.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

using namespace Mirel::GUI;
using namespace Tests;

namespace
{

constexpr int columns = 25;
constexpr int rows = 20;
constexpr int cellSide = 32;
constexpr int groupCount = 5;

/// An editor-like tree: groups of rows, filled with small widgets.
class CEditor
{
public:
    explicit CEditor(bool buffered)
    {
        for (int group = 0; group < groupCount; ++group)
        {
            auto parent = std::make_unique<CLightWidget>();
            parent->SetSize({columns * cellSide, rows / groupCount * cellSide});
            parent->Move({0, group * (rows / groupCount) * cellSide});
            rig.root->AddChild(parent.get());
            for (int i = 0; i < columns * rows / groupCount; ++i)
            {
                auto* const fill = new CFill({cellSide - 2, cellSide - 2}, {90, 120, 150});
                auto widget = std::make_unique<CLightWidget>(parent.get(), fill, true);
                widget->Move({i % columns * cellSide + 1, i / columns * cellSide + 1});
                fills.push_back(fill);
                widgets.push_back(std::move(widget));
            }
            parent->SetBuffered(buffered);
            groups.push_back(std::move(parent));
        }
        rig.platform.Pump();
    }

    void ChangeOne()
    {
        fills[next]->SetColor({static_cast<std::uint8_t>(++color), 120, 150});
        next = (next + 37) % fills.size();
        rig.platform.Pump();
    }

    void ChangeAll()
    {
        rig.root->Invalidate();
        rig.platform.Pump();
    }

    void FillPlainly()
    {
        const auto surface = plain.CreateSurface();
        surface->SetFillColor({90, 120, 150});
        for (int i = 0; i < columns * rows; ++i)
        {
            surface->FillRect(
                {i % columns * cellSide + 1, i / columns * cellSide + 1, cellSide - 2, cellSide - 2});
        }
    }

private:
    CLightRig rig{{columns * cellSide, rows* cellSide}};
    std::vector<std::unique_ptr<CLightWidget>> groups;
    std::vector<std::unique_ptr<CLightWidget>> widgets;
    std::vector<CFill*> fills;
    Mirel::Graphics::CDIBBitmap plain{32, {columns * cellSide, rows* cellSide}};
    std::size_t next = 0;
    int color = 0;
};

void RepaintOfOne(benchmark::State& state)
{
    CEditor editor(false);
    Benchmarks::CContest contest(state, 1.0);
    contest.Add("one", [&] { editor.ChangeOne(); });
    contest.Add("all", [&] { editor.ChangeAll(); });
    contest.Run();
}

void RepaintOfOneInABufferedGroup(benchmark::State& state)
{
    CEditor editor(true);
    Benchmarks::CContest contest(state, 1.0);
    contest.Add("one", [&] { editor.ChangeOne(); });
    contest.Add("all", [&] { editor.ChangeAll(); });
    contest.Run();
}

void RepaintOfAll(benchmark::State& state)
{
    CEditor editor(false);
    Benchmarks::CContest contest(state, 1.0);
    contest.Add("all", [&] { editor.ChangeAll(); });
    contest.Add("plain fills", [&] { editor.FillPlainly(); });
    contest.Run();
}

BENCHMARK(RepaintOfOne)->UseManualTime();
BENCHMARK(RepaintOfOneInABufferedGroup)->UseManualTime();
BENCHMARK(RepaintOfAll)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
