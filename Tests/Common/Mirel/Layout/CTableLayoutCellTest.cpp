#include "Mirel/Layout/CTableLayoutCell.h"

#include "Common/Mirel/Layout/LayoutRig.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::Layout;
using namespace Tests;

namespace
{

constexpr float noRatio = CLayoutOptions::noRatio;
constexpr int noHeight = CTableLayoutCell::noHeight;

CSize NaturalSize(CTableLayoutCell& table)
{
    table.ComputeNaturalSize(true);
    return table.GetNaturalSize();
}

} // namespace

TEST(CTableLayoutCell, ColumnsTakeTheWidestCellAndRowsTheHighest)
{
    CTableLayoutCell table(5, 7, 2, 3);
    table.AddRow(noRatio, noHeight);
    AddBox(table, {10, 20});
    AddBox(table, {30, 5});
    table.AddRow(noRatio, noHeight);
    AddBox(table, {40, 6});
    EXPECT_EQ(table.GetRowCount(), 2);
    EXPECT_EQ(table.GetColumnCount(), 2);
    EXPECT_EQ(NaturalSize(table), CSize({2 + 40 + 5 + 30 + 2, 3 + 20 + 7 + 6 + 3}));
}

TEST(CTableLayoutCell, EmptyTableLacksASpacing)
{
    CTableLayoutCell table(5, 7, 10, 20);
    EXPECT_EQ(NaturalSize(table), CSize({-5 + 20, -7 + 40}));
    table.AddRow(noRatio, noHeight);
    EXPECT_EQ(NaturalSize(table), CSize({-5 + 20, 40}));
}

TEST(CTableLayoutCell, CellsStandInTheirBoxesByTheirAlignment)
{
    CTableLayoutCell table(5, 7, 2, 3);
    table.AddRow(noRatio, noHeight);
    AddBox(table, {40, 20});
    AddBox(table, {31, 21});
    table.AddRow(noRatio, noHeight);
    CBox& begin = AddBox(table, {10, 6}, WithAlign(EAlign::Begin, EAlign::Begin));
    CBox& end = AddBox(table, {10, 6}, WithAlign(EAlign::End, EAlign::End));
    AddBox(table, {1, 11});
    table.AddRow(noRatio, noHeight);
    CBox& center = AddBox(table, {9, 4});
    LayOut(table, {100, 200});

    const int secondRow = 200 + 3 + 21 + 7;
    EXPECT_EQ(begin.GetPosition(), CPoint({102, secondRow}));
    EXPECT_EQ(end.GetPosition(), CPoint({102 + 40 + 5 + 21, secondRow + 5}));
    EXPECT_EQ(center.GetPosition(), CPoint({102 + 15, secondRow + 11 + 7}));
}

TEST(CTableLayoutCell, FixedHeightOverridesTheCells)
{
    CTableLayoutCell table(0, 7, 0, 3);
    table.AddRow(noRatio, 10);
    CBox& high = AddBox(table, {10, 30});
    table.AddRow(noRatio, noHeight);
    CBox& below = AddBox(table, {10, 8});
    EXPECT_EQ(NaturalSize(table).height, 3 + 10 + 7 + 8 + 3);
    table.ComputeNaturalSize(false);
    EXPECT_EQ(table.GetNaturalSize().height, 3 + 10 + 7 + 8 + 3);
    LayOut(table);
    EXPECT_EQ(high.GetPosition().y, 3 - 10);
    EXPECT_EQ(below.GetPosition().y, 20);
}

TEST(CTableLayoutCell, RowWithARatioTakesItsShareOfTheInnerHeight)
{
    CTableLayoutCell table(0, 7, 0, 3);
    table.AddRow(0.25F, noHeight);
    CBox& shared = AddBox(table, {10, 30});
    table.AddRow(noRatio, noHeight);
    CBox& below = AddBox(table, {10, 8});
    EXPECT_EQ(NaturalSize(table).height, 3 + 0 + 7 + 8 + 3);

    LayOutIn(table, {10, 106 + 1});
    EXPECT_EQ(table.GetNaturalSize().height, 3 + 25 + 7 + 8 + 3);
    EXPECT_EQ(shared.GetPosition().y, 3 - 2);
    EXPECT_EQ(below.GetPosition().y, 3 + 25 + 7);

    // Without recursion the computed height stands; with it the row counts as nothing.
    table.ComputeNaturalSize(false);
    EXPECT_EQ(table.GetNaturalSize().height, 46);
    EXPECT_EQ(NaturalSize(table).height, 21);
}

TEST(CTableLayoutCell, FixedHeightWinsOverARatio)
{
    CTableLayoutCell table;
    table.AddRow(0.5F, 12);
    AddBox(table, {10, 30});
    EXPECT_EQ(NaturalSize(table).height, 12);
    LayOutIn(table, {10, 100});
    EXPECT_EQ(table.GetNaturalSize().height, 12);
}

TEST(CTableLayoutCell, CellRatiosAreOfTheTablesWidthAndTheRowsHeight)
{
    CTableLayoutCell table(5, 0, 10, 3);
    table.AddRow(noRatio, noHeight);
    CBox& shared = AddBox(table, {90, 90}, WithRatios(0.5F, 0.25F));
    CBox& plain = AddBox(table, {20, 41}, WithAlign(EAlign::Begin, EAlign::Begin));
    EXPECT_EQ(NaturalSize(table), CSize({10 + 0 + 5 + 20 + 10, 3 + 41 + 3}));

    LayOutIn(table, {121, 47});
    EXPECT_EQ(shared.GetSize(), CSize({50, 10})); // 101 / 2 and 41 / 4, truncated.
    EXPECT_EQ(plain.GetPosition(), CPoint({10 + 50 + 5, 3}));
    EXPECT_EQ(table.GetNaturalSize(), CSize({10 + 50 + 5 + 20 + 10, 47}));
}

TEST(CTableLayoutCell, InternalAlignmentMovesTheTable)
{
    CTableLayoutCell table(0, 0, 4, 6);
    table.AddRow(noRatio, noHeight);
    CBox& box = AddBox(table, {20, 10});
    table.SetInternalAlign(EAlign::Center, EAlign::End);
    LayOutIn(table, {28 + 9, 22 + 9}, {100, 200});
    EXPECT_EQ(box.GetPosition(), CPoint({100 + 4 + 4, 200 + 6 + 9}));
    table.SetInternalAlign(EAlign::End, EAlign::Center);
    LayOut(table, {100, 200});
    EXPECT_EQ(box.GetPosition(), CPoint({100 + 4 + 9, 200 + 6 + 4}));
}

TEST(CTableLayoutCell, HiddenCellsTakeNoColumn)
{
    CTableLayoutCell table(5, 0, 2, 3);
    table.AddRow(noRatio, noHeight);
    CBox& hidden = AddBox(table, {50, 50});
    CBox& shown = AddBox(table, {20, 10});
    hidden.SetDisplayed(false);
    LayOut(table, {100, 200});
    EXPECT_EQ(hidden.GetPosition(), CPoint({0, 0}));
    EXPECT_EQ(hidden.GetSize(), CSize({50, 50}));
    EXPECT_EQ(shown.GetPosition(), CPoint({102, 203}));
    // The row keeps its two columns, the last of which is empty.
    EXPECT_EQ(table.GetSize(), CSize({2 + 20 + 5 + 0 + 2, 16}));
}

TEST(CTableLayoutCell, WeightsAndPositionsHaveNoEffect)
{
    CTableLayoutCell table;
    table.AddRow(noRatio, noHeight);
    CLayoutOptions options = WithFlex(1.0F);
    options.SetHPosition(33);
    options.SetVPosition(44);
    CBox& box = AddBox(table, {20, 10}, options);
    LayOutIn(table, {100, 100});
    EXPECT_EQ(box.GetPosition(), CPoint({0, 0}));
    EXPECT_EQ(box.GetSize(), CSize({20, 10}));
}

TEST(CTableLayoutCell, TableShrinksWithItsCells)
{
    CTableLayoutCell table;
    table.AddRow(noRatio, noHeight);
    CBox& box = AddBox(table, {20, 30});
    table.SetAutoUpdate(true);
    ASSERT_EQ(table.GetSize(), CSize({20, 30}));
    box.SetContent({5, 6});
    EXPECT_EQ(table.GetSize(), CSize({5, 6}));
}

TEST(CTableLayoutCell, TableWithoutARowTakesNoCell)
{
    CTableLayoutCell table;
    CBox box({1, 1});
    EXPECT_EQ(table.AddCell(&box, {}, false), nullptr);
    EXPECT_FALSE(box.HasParent());
    EXPECT_EQ(table.GetCurrentCell(), nullptr);
    table.AddRow(noRatio, noHeight);
    EXPECT_EQ(table.AddCell(nullptr, {}, false), nullptr);
    EXPECT_EQ(table.AddCell(&table, {}, false), nullptr);
    EXPECT_EQ(table.GetColumnCount(), 0);
}

TEST(CTableLayoutCell, RowsFollowTheCurrentOne)
{
    CTableLayoutCell table;
    CTableLayoutCell::CRow* first = table.AddRow(noRatio, noHeight);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(&first->GetTable(), &table);
    CBox& a = AddBox(table, {10, 10});
    table.AddRow(0.5F, 30);
    CBox& c = AddBox(table, {10, 10});
    table.SetInsertionPoint(&a);
    CBox& a2 = AddBox(table, {10, 10});
    CTableLayoutCell::CRow* second = table.AddRow(noRatio, noHeight);
    CBox& b = AddBox(table, {10, 10});
    EXPECT_EQ(table.GetCurrentCell(), &b);
    table.SetInsertionPoint(nullptr);
    CBox& a0 = AddBox(table, {10, 10});
    LayOut(table);

    EXPECT_EQ(a0.GetPosition(), CPoint({0, 0}));
    EXPECT_EQ(a.GetPosition(), CPoint({10, 0}));
    EXPECT_EQ(a2.GetPosition(), CPoint({20, 0}));
    EXPECT_EQ(b.GetPosition(), CPoint({0, 10}));
    EXPECT_EQ(c.GetPosition(), CPoint({0, 20 + 10}));
    EXPECT_EQ(first->GetColumnCount(), 3);
    EXPECT_EQ(second->GetColumnCount(), 1);
    EXPECT_EQ(second->GetHeightRatio(), noRatio);
    EXPECT_EQ(second->GetFixedHeight(), noHeight);
}

TEST(CTableLayoutCell, AnyRowCanBeMadeTheCurrentOne)
{
    CTableLayoutCell table;
    CTableLayoutCell::CRow* top = table.AddRow(noRatio, noHeight);
    CBox& a = AddBox(table, {10, 10});
    table.AddRow(noRatio, noHeight);
    CBox& d = AddBox(table, {10, 10});
    table.SetCurrentRow(top);
    CBox& a0 = AddBox(table, {10, 10});
    table.AddRow(noRatio, noHeight);
    CBox& c = AddBox(table, {10, 10});
    table.SetCurrentRow(nullptr);
    CTableLayoutCell::CRow* first = table.AddRow(noRatio, noHeight);
    CBox& head = AddBox(table, {10, 10});
    CTableLayoutCell other;
    table.SetCurrentRow(other.AddRow(noRatio, noHeight));
    AddBox(table, {10, 10});
    LayOut(table);

    EXPECT_EQ(head.GetPosition(), CPoint({0, 0}));
    EXPECT_EQ(first->GetColumnCount(), 2);
    EXPECT_EQ(a0.GetPosition(), CPoint({0, 10}));
    EXPECT_EQ(a.GetPosition(), CPoint({10, 10}));
    EXPECT_EQ(c.GetPosition(), CPoint({0, 20}));
    EXPECT_EQ(d.GetPosition(), CPoint({0, 30}));
}

TEST(CTableLayoutCell, ARowThatLosesACellAndGoesInOneWalkIsGone)
{
    CTableLayoutCell table;
    table.SetAutoSize(false);
    CLayoutOptions half;
    half.SetWidthRatio(0.5F);
    table.AddRow(noRatio, noHeight);
    CBox stays({10, 10});
    table.AddCell(&stays, half, false);
    CTableLayoutCell::CRow* goes = table.AddRow(noRatio, noHeight);
    CBox lost({10, 10});
    table.AddCell(&lost, {}, false);
    table.AddCell(std::make_unique<CBox>(CSize{10, 10}).release(), {}, true);
    CFunctionCommand removal(
        [&]
        {
            lost.Detach();
            table.RemoveRow(goes, true);
        });
    stays.GetSizeChangedEvent().Connect(removal);
    table.SetFixedSize({100, 100});
    LayOut(table);
    EXPECT_EQ(stays.GetSize().width, 50);
    stays.GetSizeChangedEvent().Disconnect(&removal);
    EXPECT_EQ(table.GetRowCount(), 1);
    EXPECT_EQ(table.GetColumnCount(), 1);
    EXPECT_FALSE(lost.HasParent());
}

TEST(CTableLayoutCell, RemovedRowTakesItsCellsAndColumnsAlong)
{
    int deaths = 0;
    CTableLayoutCell table(1, 1);
    CTableLayoutCell::CRow* wide = table.AddRow(noRatio, noHeight);
    CBox borrowed({10, 10}, &deaths);
    table.AddCell(&borrowed, {}, false);
    table.AddCell(std::make_unique<CBox>(CSize{10, 10}, &deaths).release(), {}, true);
    table.AddRow(noRatio, noHeight);
    CBox& left = AddBox(table, {10, 10});
    table.RemoveRow(wide, true);
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(borrowed.HasParent());
    EXPECT_EQ(table.GetRowCount(), 1);
    EXPECT_EQ(table.GetColumnCount(), 1);
    EXPECT_EQ(NaturalSize(table), CSize({10, 10}));
    EXPECT_EQ(table.GetCurrentCell(), &left);

    CTableLayoutCell other;
    table.RemoveRow(other.AddRow(noRatio, noHeight), true);
    table.RemoveRow(nullptr, true);
    EXPECT_EQ(table.GetRowCount(), 1);
    EXPECT_EQ(other.GetRowCount(), 1);
}

TEST(CTableLayoutCell, RowRemovedWithoutDestroyingGivesItsCellsBack)
{
    int deaths = 0;
    CTableLayoutCell table;
    auto box = std::make_unique<CBox>(CSize{10, 10}, &deaths);
    CTableLayoutCell::CRow* row = table.AddRow(noRatio, noHeight);
    table.AddCell(box.get(), {}, true);
    table.RemoveRow(row, false);
    EXPECT_EQ(deaths, 0);
    EXPECT_FALSE(box->HasParent());
    EXPECT_EQ(table.AddCell(box.get(), {}, false), nullptr);
}

TEST(CTableLayoutCell, RemovedCellCanTakeAColumnAlong)
{
    int deaths = 0;
    CTableLayoutCell table(1, 1);
    table.AddRow(noRatio, noHeight);
    CBox& first = AddBox(table, {10, 10});
    auto* second = std::make_unique<CBox>(CSize{10, 10}, &deaths).release();
    table.AddCell(second, {}, true);
    table.AddRow(noRatio, noHeight);
    AddBox(table, {10, 10});
    table.RemoveCell(second, true);
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(table.GetColumnCount(), 1);
    first.Detach(); // Owned until now.
    std::unique_ptr<CLayoutCell> detached(&first);
    EXPECT_EQ(table.GetColumnCount(), 1);
    EXPECT_EQ(NaturalSize(table), CSize({10, 0 + 1 + 10}));
}

TEST(CTableLayoutCell, ArrangingGivesUpBetweenAChangeOfTheRowsAndTheSizePass)
{
    CTableLayoutCell table;
    table.AddRow(noRatio, noHeight);
    CBox& box = AddBox(table, {10, 10});
    LayOut(table);
    const int arranged = box.arranged;
    table.AddRow(noRatio, noHeight);
    table.Arrange({50, 60});
    EXPECT_EQ(table.GetPosition(), CPoint({50, 60}));
    EXPECT_EQ(box.arranged, arranged);
    table.UpdateSize();
    table.Arrange({50, 60});
    EXPECT_EQ(box.GetPosition(), CPoint({50, 60}));
}

TEST(CTableLayoutCell, ClearLeavesAnEmptyTable)
{
    int deaths = 0;
    CTableLayoutCell table;
    table.AddRow(noRatio, noHeight);
    table.AddCell(std::make_unique<CBox>(CSize{10, 10}, &deaths).release(), {}, true);
    table.Clear();
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(table.GetRowCount(), 0);
    EXPECT_EQ(table.GetColumnCount(), 0);
    LayOut(table);
    EXPECT_EQ(table.GetSize(), CSize({0, 0}));
}

TEST(CTableLayoutCell, ArrangingAgainDoesNotGrowARow)
{
    CTableLayoutCell table;
    table.AddRow(noRatio, noHeight);
    AddBox(table, {10, 10});
    CBox& doubled = AddBox(table, {10, 10}, WithRatios(noRatio, 2.0F));
    LayOut(table);
    EXPECT_EQ(doubled.GetSize().height, 20);
    table.Arrange({0, 0});
    table.Arrange({0, 0});
    EXPECT_EQ(doubled.GetSize().height, 20);
}

TEST(CTableLayoutCell, SpacingsUpdateOnAChange)
{
    CTableLayoutCell table(1, 1);
    for (int row = 0; row < 2; ++row)
    {
        table.AddRow(noRatio, noHeight);
        AddBox(table, {10, 10});
        AddBox(table, {10, 10});
    }
    table.SetAutoUpdate(true);
    table.SetHSpacing(4);
    EXPECT_EQ(table.GetSize(), CSize({24, 21}));
    table.SetVSpacing(5);
    EXPECT_EQ(table.GetSize(), CSize({24, 25}));
    EXPECT_EQ(table.GetHSpacing(), 4);
    EXPECT_EQ(table.GetVSpacing(), 5);
}
