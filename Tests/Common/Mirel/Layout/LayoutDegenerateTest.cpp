// Sizes that make no sense, and listeners that change the tree under the layout: nothing here may fault, and
// what stands in the end must be laid out.

#include "Common/Mirel/Layout/LayoutRig.h"
#include "Common/Mirel/Layout/LayoutTree.h"
#include "Mirel/Layout/CLayoutScope.h"
#include "Support/CFunctionCommand.h"

#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <list>
#include <memory>
#include <random>
#include <rapidcheck/gtest.h>
#include <set>
#include <vector>

using namespace Mirel::Layout;
using namespace Tests;

namespace
{

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr float infinity = std::numeric_limits<float>::infinity();

int ExtremeNumber(std::mt19937& random)
{
    constexpr int numbers[] = {lowest, lowest + 1, -1, 0, 1, 7, highest - 1, highest};
    return numbers[random() % std::size(numbers)];
}

float ExtremeFactor(std::mt19937& random)
{
    constexpr float factors[] = {-1.0F, 0.0F, 1e-30F, 0.5F, 1e30F, infinity, -infinity};
    return factors[random() % std::size(factors)];
}

TPair<int> ExtremePair(std::mt19937& random)
{
    return {ExtremeNumber(random), ExtremeNumber(random)};
}

void MakeExtreme(CNode& node, std::mt19937& random)
{
    node.size = ExtremePair(random);
    node.margin = ExtremePair(random);
    node.spacing = ExtremePair(random);
    node.position = ExtremePair(random);
    node.ratio = {ExtremeFactor(random), ExtremeFactor(random)};
    node.flex = ExtremeFactor(random);
    for (CNode::CRow& row : node.rows)
    {
        row.ratio = ExtremeFactor(random);
        row.fixed = ExtremeNumber(random);
    }
}

/// All cells of a tree that live, so that listeners can pick from them.
struct CPopulation
{
    std::set<CBox*> boxes;
    std::set<CGroupLayoutCell*> groups;
    std::list<CFunctionCommand> listeners;
    std::mt19937 random;
    int budget = 200; ///< Changes that listeners may still make.
};

template <class T>
T* PickFrom(const std::set<T*>& cells, std::mt19937& random)
{
    return cells.empty() ? nullptr
                         : *std::next(cells.begin(), static_cast<std::ptrdiff_t>(random() % cells.size()));
}

class CCountedBox : public CBox
{
public:
    explicit CCountedBox(CPopulation& population_)
        : CBox({static_cast<int>(population_.random() % 50), 10}),
          population(population_)
    {
        population.boxes.insert(this);
    }
    CCountedBox(const CCountedBox&) = delete;
    CCountedBox& operator=(const CCountedBox&) = delete;
    ~CCountedBox() override { population.boxes.erase(this); }

private:
    CPopulation& population;
};

class CCountedGroup : public CGroupLayoutCell
{
public:
    explicit CCountedGroup(CPopulation& population_)
        : CGroupLayoutCell(static_cast<ELayoutType>(population_.random() % 3)),
          population(population_)
    {
        population.groups.insert(this);
    }
    CCountedGroup(const CCountedGroup&) = delete;
    CCountedGroup& operator=(const CCountedGroup&) = delete;
    ~CCountedGroup() override { population.groups.erase(this); }

private:
    CPopulation& population;
};

void ChangeSomething(CPopulation& population);

void Grow(CPopulation& population, CGroupLayoutCell& group)
{
    std::unique_ptr<CLayoutCell> cell;
    if (population.random() % 2 == 0)
    {
        cell = std::make_unique<CCountedBox>(population);
    }
    else
    {
        cell = std::make_unique<CCountedGroup>(population);
    }
    // A listener may remove the group itself at once: what was added then goes no earlier than the scope
    // ends.
    const CLayoutScope scope;
    CLayoutCell* added = cell.get();
    CLayoutOptions* options =
        group.AddCell(cell.release(), WithFlex(static_cast<float>(population.random() % 3)), true);
    if (options == nullptr)
    {
        return; // A listener removed it already.
    }
    CFunctionCommand& listener = population.listeners.emplace_back([&] { ChangeSomething(population); });
    added->GetSizeChangedEvent().Connect(listener);
    options->GetChangedEvent().Connect(listener);
    options->SetFlex(3.0F);
}

void ChangeSomething(CPopulation& population)
{
    if (population.budget <= 0)
    {
        return;
    }
    --population.budget;
    CGroupLayoutCell* group = PickFrom(population.groups, population.random);
    CBox* box = PickFrom(population.boxes, population.random);
    switch (population.random() % 8)
    {
    case 0:
        if (group->GetParent() != nullptr)
        {
            group->GetParent()->RemoveCell(group, true);
        }
        break;
    case 1:
        if (box != nullptr && box->GetParent() != nullptr)
        {
            box->GetParent()->RemoveCell(box, true);
        }
        break;
    case 2:
        if (population.random() % 4 == 0)
        {
            group->Clear();
        }
        break;
    case 3:
        group->SetDisplayed(!group->IsDisplayed());
        break;
    case 4:
        if (box != nullptr)
        {
            box->SetContent({static_cast<int>(population.random() % 90), 5});
        }
        break;
    case 5:
        group->SetAutoUpdate(population.random() % 4 != 0);
        break;
    default:
        Grow(population, *group);
        break;
    }
}

} // namespace

RC_GTEST_PROP(LayoutDegenerate, ExtremeNumbersNeverFault, (std::uint32_t seed))
{
    std::mt19937 random(seed);
    const auto root = RandomTree(100, random);
    for (CNode* node : NodesOf(*root))
    {
        MakeExtreme(*node, random);
    }
    CLiveTree live(*root);
    for (int change = 0; change < 20; ++change)
    {
        live.ChangeAtRandom(*root, random);
    }
}

RC_GTEST_PROP(LayoutDegenerate, ListenersMayChangeTheTreeUnderTheLayout, (std::uint32_t seed))
{
    CPopulation population;
    population.random.seed(seed);
    {
        CCountedGroup root(population);
        root.SetAutoSize(false);
        root.SetFixedSize({300, 300});
        root.SetAutoUpdate(true);
        for (int change = 0; change < 100; ++change)
        {
            ChangeSomething(population);
        }
    }
    RC_ASSERT(population.groups.empty());
    RC_ASSERT(population.boxes.empty());
}

TEST(LayoutDegenerate, SumsBeyondTheNumbersStopAtTheirEnds)
{
    CGroupLayoutCell row(ELayoutType::Row, 0, highest, lowest);
    AddBox(row, {highest, 10});
    AddBox(row, {highest, 10});
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({highest, 0}));

    CTableLayoutCell table(0, 0, highest, highest);
    table.AddRow(CLayoutOptions::noRatio, CTableLayoutCell::noHeight);
    AddBox(table, {highest, highest});
    LayOut(table);
    EXPECT_EQ(table.GetSize(), CSize({highest, highest}));
}

TEST(LayoutDegenerate, NegativeSizesAreSizesLikeOthers)
{
    CGroupLayoutCell row(ELayoutType::Row, 5);
    AddBox(row, {-10, -10});
    CBox& behind = AddBox(row, {20, 8}, WithAlign(EAlign::Begin, EAlign::Begin));
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({15, 8}));
    EXPECT_EQ(behind.GetPosition(), CPoint({-5, 0}));
}

TEST(LayoutDegenerate, CellsShareARoomOfNothing)
{
    CGroupLayoutCell row(ELayoutType::Row, 0, 10, 0);
    CBox& first = AddBox(row, {0, 0}, WithFlex(1.0F));
    CBox& half = AddBox(row, {0, 0}, WithRatios(0.5F, 0.5F));
    LayOutIn(row, {0, 0});
    EXPECT_EQ(half.GetSize(), CSize({-10, 0}));
    EXPECT_EQ(first.GetSize(), CSize({-10, 0})); // Margins of 20 and the ratio's -10 leave that.
}

TEST(LayoutDegenerate, ListenerMayRemoveTheCellThatItHears)
{
    int deaths = 0;
    CGroupLayoutCell row;
    auto* box = std::make_unique<CBox>(CSize{10, 10}, &deaths).release();
    row.AddCell(box, {}, true);
    CBox& other = AddBox(row, {20, 10});
    row.SetAutoUpdate(true);
    CFunctionCommand remove(
        [&]
        {
            row.RemoveCell(box, true);
            EXPECT_EQ(deaths, 0); // Its event is still under way.
        });
    box->GetSizeChangedEvent().Connect(remove);
    box->SetContent({30, 30});
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(row.GetSize(), CSize({20, 10}));
    EXPECT_EQ(other.GetPosition(), CPoint({0, 0}));
}

TEST(LayoutDegenerate, ListenerMayRemoveAGroupAroundTheCell)
{
    int deaths = 0;
    CGroupLayoutCell root;
    auto* inner = std::make_unique<CGroupLayoutCell>().release();
    root.AddCell(inner, {}, true);
    auto* box = std::make_unique<CBox>(CSize{10, 10}, &deaths).release();
    inner->AddCell(box, {}, true);
    root.SetAutoUpdate(true);
    CFunctionCommand remove([&] { root.RemoveCell(inner, true); });
    box->GetSizeChangedEvent().Connect(remove);
    box->SetContent({30, 30});
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(root.GetSize(), CSize({0, 0}));
}

TEST(LayoutDegenerate, ListenerMayRemoveTheCellWhoseOptionsChange)
{
    int deaths = 0;
    CGroupLayoutCell row;
    auto* box = std::make_unique<CBox>(CSize{10, 10}, &deaths).release();
    CLayoutOptions* options = row.AddCell(box, {}, true);
    ASSERT_NE(options, nullptr);
    CFunctionCommand remove([&] { row.RemoveCell(box, true); });
    options->GetChangedEvent().Connect(remove);
    options->SetFlex(1.0F);
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(row.GetCurrentCell(), nullptr);
}

TEST(LayoutDegenerate, ListenerMayRemoveTheCellThatIsBeingAdded)
{
    int deaths = 0;
    CGroupLayoutCell row;
    row.SetAutoUpdate(true);
    auto* box = std::make_unique<CBox>(CSize{10, 10}, &deaths).release();
    CFunctionCommand remove([&] { row.RemoveCell(box, true); });
    row.GetSizeChangedEvent().Connect(remove);
    EXPECT_EQ(row.AddCell(box, {}, true), nullptr);
    EXPECT_EQ(deaths, 1);
}

TEST(LayoutDegenerate, ListenerMayClearATableThatIsBeingArranged)
{
    int deaths = 0;
    CTableLayoutCell table;
    table.AddRow(0.5F, CTableLayoutCell::noHeight);
    auto* box = std::make_unique<CBox>(CSize{10, 10}, &deaths).release();
    table.AddCell(box, WithRatios(1.0F, 1.0F), true);
    AddBox(table, {10, 10});
    table.AddRow(0.5F, CTableLayoutCell::noHeight);
    AddBox(table, {10, 10});
    CFunctionCommand clear([&] { table.Clear(); });
    box->GetSizeChangedEvent().Connect(clear);
    LayOutIn(table, {100, 100});
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(table.GetRowCount(), 0);
}

TEST(LayoutDegenerate, ListenerMayTakeTheCellThatIsDetached)
{
    CGroupLayoutCell from;
    CGroupLayoutCell to;
    CBox box({10, 10});
    from.AddCell(&box, {}, false);
    from.SetAutoUpdate(true);
    CFunctionCommand take([&] { to.AddCell(&box, {}, false); });
    from.GetSizeChangedEvent().Connect(take);
    box.Detach();
    EXPECT_EQ(box.GetParent(), &to);
}

TEST(LayoutDegenerate, ChangeByAListenerIsLaidOutLast)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& first = AddBox(row, {10, 10}, WithFlex(1.0F));
    CBox& second = AddBox(row, {10, 10}, WithFlex(1.0F));
    row.SetAutoSize(false);
    bool done = false;
    CFunctionCommand hide(
        [&]
        {
            if (!done)
            {
                done = true;
                second.SetDisplayed(false);
            }
        });
    row.SetAutoUpdate(true);
    first.GetSizeChangedEvent().Connect(hide);
    row.SetFixedSize({100, 10});
    EXPECT_EQ(first.GetSize().width, 100);
    EXPECT_EQ(second.GetPosition(), CPoint({0, 0}));
}
