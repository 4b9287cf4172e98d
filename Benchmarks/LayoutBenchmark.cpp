// A full layout, size pass and arrange pass, of a skin's worth of cells, beside a plain walk over the same
// cells that reads and writes a size and a position for each; and the layout after one cell changed, beside a
// full one.

#include "Mirel/Layout/CGroupLayoutCell.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <cstddef>
#include <deque>
#include <memory>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::Layout;

namespace
{

constexpr std::size_t cellCount = 1000;
constexpr std::size_t childCount = 6;

class CBox : public CLayoutCell
{
public:
    CBox() { SetSize({10, 10}); }
    void Clear() override {}
    void Arrange(const CPoint& point) override { StorePosition(point); }
};

/// What the walk visits in place of a cell.
struct CPlainCell
{
    CSize size = {10, 10};
    CPoint position;
    std::vector<CPlainCell*> children;
};

/// A tree of groups of six, rows and columns in turn, and the same tree of plain cells.
class CTree
{
public:
    explicit CTree(float flex)
    {
        options.SetFlex(flex);
        std::deque<CGroupLayoutCell*> open = {&root};
        std::deque<CPlainCell*> plainOpen = {&plain.emplace_back()};
        while (plain.size() < cellCount)
        {
            for (std::size_t i = 0; i < childCount && plain.size() < cellCount; ++i)
            {
                plainOpen.front()->children.push_back(&plain.emplace_back());
                // The leaves are the cells whose turn to be filled would never come.
                if (plain.size() <= cellCount / childCount + 1)
                {
                    open.push_back(AddGroup(*open.front()));
                    plainOpen.push_back(&plain.back());
                }
                else
                {
                    lastBox = Add(*open.front(), std::make_unique<CBox>());
                }
            }
            open.pop_front();
            plainOpen.pop_front();
        }
        root.SetAutoSize(false);
        root.SetAutoUpdate(true);
    }

    void LayOut()
    {
        // Every group is marked by the size that it is given, so that both passes reach every cell.
        width ^= 64;
        for (CGroupLayoutCell* group : groups)
        {
            group->SetSize({width, 0});
        }
        root.SetFixedSize({width, 1000});
    }

    /// The deepest cell grows or shrinks.
    void ChangeOne()
    {
        lastBox->SetSize({lastBox->GetSize().width ^ 1, 10});
        lastBox->GetParent()->Update();
    }

    static void Walk(CPlainCell& cell, CPoint point)
    {
        cell.position = point;
        for (CPlainCell* child : cell.children)
        {
            Walk(*child, point);
            point.x += child->size.width;
            cell.size.height = child->size.height;
        }
        cell.size.width = point.x - cell.position.x;
    }

    CPlainCell& GetPlain() { return plain.front(); }

private:
    CGroupLayoutCell* AddGroup(CGroupLayoutCell& parent)
    {
        const ELayoutType type =
            parent.GetLayoutType() == ELayoutType::Row ? ELayoutType::Column : ELayoutType::Row;
        auto group = std::make_unique<CGroupLayoutCell>(type, 2, 3, 3);
        groups.push_back(group.get());
        return static_cast<CGroupLayoutCell*>(Add(parent, std::move(group)));
    }

    CLayoutCell* Add(CGroupLayoutCell& parent, std::unique_ptr<CLayoutCell> cell)
    {
        CLayoutCell* added = cell.release();
        parent.AddCell(added, options, true);
        return added;
    }

    CLayoutOptions options;
    CGroupLayoutCell root;
    std::vector<CGroupLayoutCell*> groups;
    std::deque<CPlainCell> plain;
    CLayoutCell* lastBox = nullptr;
    int width = 4000;
};

void FullLayout(benchmark::State& state)
{
    CTree tree(static_cast<float>(state.range(0)));
    Benchmarks::CContest contest(state, static_cast<double>(cellCount));
    contest.Add("layout", [&] { tree.LayOut(); });
    contest.Add("walk",
                [&]
                {
                    CTree::Walk(tree.GetPlain(), {});
                    benchmark::DoNotOptimize(tree.GetPlain().size);
                });
    contest.Run();
}

void LayoutAfterOneChange(benchmark::State& state)
{
    CTree tree(static_cast<float>(state.range(0)));
    tree.LayOut();
    Benchmarks::CContest contest(state, 1.0);
    contest.Add("one change", [&] { tree.ChangeOne(); });
    contest.Add("full layout", [&] { tree.LayOut(); });
    contest.Run();
}

} // namespace

BENCHMARK(FullLayout)->ArgName("flex")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(LayoutAfterOneChange)
    ->ArgName("flex")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
