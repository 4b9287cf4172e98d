#include "Mirel/Layout/CGroupLayoutCell.h"

#include "Common/Mirel/Layout/LayoutRig.h"
#include "Support/AllocationCounter.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::Layout;
using namespace Tests;

namespace
{

CSize NaturalSize(CGroupLayoutCell& group)
{
    group.ComputeNaturalSize(true);
    return group.GetNaturalSize();
}

CLayoutOptions AtX(int x)
{
    CLayoutOptions options;
    options.SetHPosition(x);
    return options;
}

CLayoutOptions AtY(int y)
{
    CLayoutOptions options;
    options.SetVPosition(y);
    return options;
}

} // namespace

TEST(CGroupLayoutCell, EmptyGroupsHaveTheirOddNaturalSizes)
{
    CGroupLayoutCell row(ELayoutType::Row, 5, 7, 11);
    CGroupLayoutCell column(ELayoutType::Column, 5, 7, 11);
    CGroupLayoutCell stack(ELayoutType::LayerStack, 5, 7, 11);
    EXPECT_EQ(NaturalSize(row), CSize({14, 0}));
    EXPECT_EQ(NaturalSize(column), CSize({0, 22}));
    EXPECT_EQ(NaturalSize(stack), CSize({0, 0}));
}

TEST(CGroupLayoutCell, GroupsOfHiddenCellsAreLikeEmptyOnes)
{
    for (const ELayoutType type : {ELayoutType::Row, ELayoutType::Column, ELayoutType::LayerStack})
    {
        CGroupLayoutCell empty(type, 5, 7, 11);
        CGroupLayoutCell hidden(type, 5, 7, 11);
        AddBox(hidden, {30, 20}).SetDisplayed(false);
        AddBox(hidden, {40, 50}).SetDisplayed(false);
        EXPECT_EQ(NaturalSize(hidden), NaturalSize(empty));
    }
}

TEST(CGroupLayoutCell, RowAddsWidthsSpacingsAndMargins)
{
    CGroupLayoutCell row(ELayoutType::Row, 5, 7, 11);
    AddBox(row, {30, 20});
    AddBox(row, {40, 50});
    EXPECT_EQ(NaturalSize(row), CSize({7 + 30 + 5 + 40 + 7, 11 + 50 + 11}));
    AddBox(row, {90, 90}).SetDisplayed(false);
    EXPECT_EQ(NaturalSize(row), CSize({89, 72}));
}

TEST(CGroupLayoutCell, ColumnAddsHeightsSpacingsAndMargins)
{
    CGroupLayoutCell column(ELayoutType::Column, 5, 7, 11);
    AddBox(column, {30, 20});
    AddBox(column, {40, 50});
    EXPECT_EQ(NaturalSize(column), CSize({7 + 40 + 7, 11 + 20 + 5 + 50 + 11}));
}

TEST(CGroupLayoutCell, StackTakesTheLargestLayerOnEachAxis)
{
    CGroupLayoutCell stack(ELayoutType::LayerStack, 5, 7, 11);
    AddBox(stack, {30, 60});
    AddBox(stack, {40, 50});
    EXPECT_EQ(NaturalSize(stack), CSize({40 + 14, 60 + 22}));
    AddBox(stack, {10, 10}, AtX(100));
    AddBox(stack, {10, 10}, AtY(200));
    EXPECT_EQ(NaturalSize(stack), CSize({100 + 7 + 10, 200 + 11 + 10}));
}

TEST(CGroupLayoutCell, PositionOnTheMainAxisRestartsTheFlow)
{
    CGroupLayoutCell row(ELayoutType::Row, 5, 7, 11);
    AddBox(row, {300, 20});
    CBox& absolute = AddBox(row, {40, 50}, AtX(100));
    EXPECT_EQ(NaturalSize(row), CSize({100 + 40 + 7, 72}));

    CBox& behind = AddBox(row, {10, 10});
    EXPECT_EQ(NaturalSize(row), CSize({100 + 40 + 5 + 10 + 7, 72}));
    LayOut(row, {1000, 0});
    EXPECT_EQ(absolute.GetPosition().x, 1100);
    EXPECT_EQ(behind.GetPosition().x, 1145);

    CGroupLayoutCell column(ELayoutType::Column, 5, 7, 11);
    AddBox(column, {20, 300});
    CBox& low = AddBox(column, {50, 40}, AtY(100));
    CBox& lower = AddBox(column, {10, 10});
    EXPECT_EQ(NaturalSize(column), CSize({64, 100 + 40 + 5 + 10 + 11}));
    LayOut(column, {0, 1000});
    EXPECT_EQ(low.GetPosition().y, 1100);
    EXPECT_EQ(lower.GetPosition().y, 1145);
}

TEST(CGroupLayoutCell, PositionOnTheCrossAxisReplacesOneMargin)
{
    CGroupLayoutCell row(ELayoutType::Row, 0, 7, 11);
    CBox& box = AddBox(row, {30, 20}, AtY(100));
    EXPECT_EQ(NaturalSize(row), CSize({44, 100 + 11 + 20}));
    LayOut(row, {0, 1000});
    EXPECT_EQ(box.GetPosition(), CPoint({7, 1100}));

    CGroupLayoutCell column(ELayoutType::Column, 0, 7, 11);
    CBox& right = AddBox(column, {30, 20}, AtX(100));
    EXPECT_EQ(NaturalSize(column), CSize({100 + 7 + 30, 42}));
    LayOut(column, {1000, 0});
    EXPECT_EQ(right.GetPosition(), CPoint({1100, 11}));
}

TEST(CGroupLayoutCell, RatioCountsAsNothingInTheSizePassAndAsItStandsWithoutIt)
{
    CGroupLayoutCell row(ELayoutType::Row, 5, 7, 11);
    AddBox(row, {30, 20}, WithRatios(0.5F, -1.0F));
    AddBox(row, {40, 90}, WithRatios(-1.0F, 0.0F));
    EXPECT_EQ(NaturalSize(row), CSize({7 + 0 + 5 + 40 + 7, 20 + 22}));
    row.ComputeNaturalSize(false);
    EXPECT_EQ(row.GetNaturalSize(), CSize({7 + 30 + 5 + 40 + 7, 90 + 22}));
}

TEST(CGroupLayoutCell, RatioIsOfTheInnerExtentAndLeavesTheSpacingIn)
{
    CGroupLayoutCell row(ELayoutType::Row, 9, 10, 3);
    CBox& half = AddBox(row, {1, 1}, WithRatios(0.5F, 0.5F));
    AddBox(row, {4, 4});
    LayOutIn(row, {120, 47});
    EXPECT_EQ(half.GetSize(), CSize({50, 20})); // 100 / 2; 41 / 2, truncated.

    CGroupLayoutCell stack(ELayoutType::LayerStack, 9, 10, 3);
    CBox& layer = AddBox(stack, {1, 1}, WithRatios(0.25F, 1.0F));
    LayOutIn(stack, {120, 46});
    EXPECT_EQ(layer.GetSize(), CSize({25, 40}));
    EXPECT_EQ(layer.GetPosition(), CPoint({(120 - 25) / 2, 3}));
}

TEST(CGroupLayoutCell, ThreeEqualWeightsShareAHundredPixels)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& first = AddBox(row, {10, 5}, WithFlex(1.0F));
    CBox& second = AddBox(row, {20, 5}, WithFlex(1.0F));
    CBox& third = AddBox(row, {30, 5}, WithFlex(1.0F));
    LayOutIn(row, {160, 5});
    EXPECT_EQ(first.GetSize().width, 10 + 33);
    EXPECT_EQ(second.GetSize().width, 20 + 34);
    EXPECT_EQ(third.GetSize().width, 30 + 33);
    EXPECT_EQ(second.GetPosition().x, 43);
    EXPECT_EQ(third.GetPosition().x, 97);
    EXPECT_EQ(row.GetNaturalSize().width, 160);

    CGroupLayoutCell column(ELayoutType::Column);
    CBox& top = AddBox(column, {5, 10}, WithFlex(1.0F));
    CBox& bottom = AddBox(column, {5, 20}, WithFlex(3.0F));
    LayOutIn(column, {5, 130});
    EXPECT_EQ(top.GetSize(), CSize({5, 35}));
    EXPECT_EQ(bottom.GetSize(), CSize({5, 95}));
    EXPECT_EQ(bottom.GetPosition(), CPoint({0, 35}));
}

TEST(CGroupLayoutCell, MissingPixelsShrinkCellsWithWeight)
{
    CGroupLayoutCell row(ELayoutType::Row, 4, 3, 0);
    CBox& soft = AddBox(row, {50, 5}, WithFlex(1.0F));
    CBox& hard = AddBox(row, {50, 5});
    LayOutIn(row, {80, 5}); // 110 natural.
    EXPECT_EQ(soft.GetSize().width, 20);
    EXPECT_EQ(hard.GetSize().width, 50);
    EXPECT_EQ(hard.GetPosition().x, 3 + 20 + 4);
}

TEST(CGroupLayoutCell, RatiosComeBeforeTheWeights)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& share = AddBox(row, {7, 5}, WithRatios(0.5F, -1.0F));
    CBox& rest = AddBox(row, {7, 5}, WithFlex(1.0F));
    LayOutIn(row, {100, 5});
    EXPECT_EQ(share.GetSize().width, 50);
    EXPECT_EQ(rest.GetSize().width, 50);
    EXPECT_EQ(rest.GetPosition().x, 50);
}

TEST(CGroupLayoutCell, NothingIsSharedWhereNothingIsLeft)
{
    CGroupLayoutCell row(ELayoutType::Row, 4, 3, 2);
    CBox& box = AddBox(row, {50, 5}, WithFlex(1.0F));
    LayOut(row);
    CEventCounter events(box.GetSizeChangedEvent());
    LayOutIn(row, {56, 90});
    EXPECT_EQ(events.Take(), 0);
    EXPECT_EQ(box.GetSize(), CSize({50, 5}));
}

TEST(CGroupLayoutCell, WeightsThatAddUpToNothingShareNothing)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& plus = AddBox(row, {50, 5}, WithFlex(2.0F));
    CBox& minus = AddBox(row, {50, 5}, WithFlex(-2.0F));
    LayOutIn(row, {300, 5});
    EXPECT_EQ(plus.GetSize().width, 50);
    EXPECT_EQ(minus.GetSize().width, 50);
}

TEST(CGroupLayoutCell, StackIgnoresWeights)
{
    CGroupLayoutCell stack(ELayoutType::LayerStack);
    CBox& box = AddBox(stack, {50, 5}, WithFlex(1.0F));
    LayOutIn(stack, {300, 50});
    EXPECT_EQ(box.GetSize(), CSize({50, 5}));
}

TEST(CGroupLayoutCell, HiddenCellsTakeNoWeight)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& shown = AddBox(row, {10, 5}, WithFlex(1.0F));
    CBox& hidden = AddBox(row, {10, 5}, WithFlex(1.0F));
    hidden.SetDisplayed(false);
    LayOutIn(row, {100, 5});
    EXPECT_EQ(shown.GetSize().width, 100);
    EXPECT_EQ(hidden.GetSize().width, 10);
}

TEST(CGroupLayoutCell, InternalAlignmentMovesTheContentOfALargerGroup)
{
    struct CCase
    {
        EAlign align;
        int begin;
    };
    for (const CCase& c : {CCase{EAlign::Begin, 0}, CCase{EAlign::Center, 7}, CCase{EAlign::End, 15}})
    {
        CGroupLayoutCell row(ELayoutType::Row, 5, 3, 2);
        CBox& first = AddBox(row, {30, 10});
        CBox& second = AddBox(row, {40, 10});
        row.SetInternalAlign(c.align, EAlign::End); // The other axis has no part in a row.
        LayOutIn(row, {81 + 15, 50}, {100, 200});
        EXPECT_EQ(first.GetPosition(), CPoint({100 + 3 + c.begin, 220}));
        EXPECT_EQ(second.GetPosition(), CPoint({100 + 38 + c.begin, 220}));

        CGroupLayoutCell column(ELayoutType::Column, 5, 3, 2);
        CBox& top = AddBox(column, {10, 30});
        CBox& bottom = AddBox(column, {10, 40});
        column.SetInternalAlign(EAlign::End, c.align);
        LayOutIn(column, {50, 79 + 15}, {100, 200});
        EXPECT_EQ(top.GetPosition(), CPoint({120, 200 + 2 + c.begin}));
        EXPECT_EQ(bottom.GetPosition(), CPoint({120, 200 + 37 + c.begin}));
    }
}

TEST(CGroupLayoutCell, InternalAlignmentOfATooSmallGroupIsNegative)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& box = AddBox(row, {45, 10});
    row.SetInternalHAlign(EAlign::Center);
    LayOutIn(row, {40, 10});
    EXPECT_EQ(box.GetPosition().x, -2);
    row.SetInternalHAlign(EAlign::End);
    LayOut(row);
    EXPECT_EQ(box.GetPosition().x, -5);
}

TEST(CGroupLayoutCell, StackIgnoresInternalAlignment)
{
    CGroupLayoutCell stack(ELayoutType::LayerStack);
    CBox& box = AddBox(stack, {10, 10}, WithAlign(EAlign::Begin, EAlign::Begin));
    stack.SetInternalAlign(EAlign::End, EAlign::End);
    LayOutIn(stack, {50, 50});
    EXPECT_EQ(box.GetPosition(), CPoint({0, 0}));
}

TEST(CGroupLayoutCell, AlignmentPlacesAcrossTheFlowAndCenterIgnoresTheMargins)
{
    struct CCase
    {
        EAlign align;
        int offset; ///< Of 21 pixels in 100, with margins of 10.
    };
    for (const CCase& c : {CCase{EAlign::Begin, 10}, CCase{EAlign::Center, 39}, CCase{EAlign::End, 69}})
    {
        CGroupLayoutCell row(ELayoutType::Row, 0, 4, 10);
        CBox& inRow = AddBox(row, {5, 21}, WithAlign(EAlign::End, c.align));
        LayOutIn(row, {60, 100}, {1000, 2000});
        EXPECT_EQ(inRow.GetPosition(), CPoint({1004, 2000 + c.offset}));

        CGroupLayoutCell column(ELayoutType::Column, 0, 10, 4);
        CBox& inColumn = AddBox(column, {21, 5}, WithAlign(c.align, EAlign::End));
        LayOutIn(column, {100, 60}, {1000, 2000});
        EXPECT_EQ(inColumn.GetPosition(), CPoint({1000 + c.offset, 2004}));

        CGroupLayoutCell stack(ELayoutType::LayerStack, 0, 10, 10);
        CBox& layer = AddBox(stack, {21, 21}, WithAlign(c.align, c.align));
        LayOutIn(stack, {100, 100}, {1000, 2000});
        EXPECT_EQ(layer.GetPosition(), CPoint({1000 + c.offset, 2000 + c.offset}));
    }
}

TEST(CGroupLayoutCell, PositionedLayersStandWhereTheySay)
{
    CGroupLayoutCell stack(ELayoutType::LayerStack, 0, 10, 10);
    CBox& box = AddBox(stack, {20, 20}, AtX(3));
    CBox& other = AddBox(stack, {20, 20}, AtY(-4));
    LayOutIn(stack, {100, 100}, {1000, 2000});
    EXPECT_EQ(box.GetPosition(), CPoint({1003, 2040}));
    EXPECT_EQ(other.GetPosition(), CPoint({1040, 1996}));
}

TEST(CGroupLayoutCell, HiddenCellGoesToTheOriginInARowAndItsPlaceInAStack)
{
    CGroupLayoutCell row(ELayoutType::Row, 5, 3, 2);
    CBox& hidden = AddBox(row, {30, 10});
    CBox& shown = AddBox(row, {40, 10});
    LayOut(row, {100, 200});
    hidden.SetDisplayed(false);
    LayOut(row, {100, 200});
    EXPECT_EQ(hidden.GetPosition(), CPoint({0, 0}));
    EXPECT_EQ(hidden.GetSize(), CSize({30, 10}));
    EXPECT_EQ(shown.GetPosition(), CPoint({103, 202}));

    CGroupLayoutCell stack(ELayoutType::LayerStack);
    CBox& layer = AddBox(stack, {30, 10});
    layer.SetDisplayed(false);
    LayOutIn(stack, {50, 50}, {100, 200});
    EXPECT_EQ(layer.GetPosition(), CPoint({110, 220}));
}

TEST(CGroupLayoutCell, FixedAxesTakeTheFixedSize)
{
    CGroupLayoutCell row(ELayoutType::Row);
    AddBox(row, {30, 10});
    row.SetFixedSize({100, 200});
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({30, 10}));
    row.SetAutoWidth(false);
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({100, 10}));
    row.SetAutoSize(false);
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({100, 200}));
    row.SetAutoWidth(true);
    row.SetAutoHeight(true);
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({30, 10}));
}

TEST(CGroupLayoutCell, CellsStandInOrderOfTheInsertionPoint)
{
    CGroupLayoutCell row(ELayoutType::Row);
    EXPECT_EQ(row.GetCurrentCell(), nullptr);
    CBox& b = AddBox(row, {10, 1});
    EXPECT_EQ(row.GetCurrentCell(), &b);
    CBox& d = AddBox(row, {10, 1});
    row.SetInsertionPoint(nullptr);
    EXPECT_EQ(row.GetCurrentCell(), nullptr);
    CBox& a = AddBox(row, {10, 1});
    EXPECT_EQ(row.GetCurrentCell(), &a);
    row.SetInsertionPoint(&b);
    CBox& c = AddBox(row, {10, 1});
    row.SetInsertionPoint(&c);
    CBox& c2 = AddBox(row, {10, 1});
    LayOut(row);
    EXPECT_EQ(a.GetPosition().x, 0);
    EXPECT_EQ(b.GetPosition().x, 10);
    EXPECT_EQ(c.GetPosition().x, 20);
    EXPECT_EQ(c2.GetPosition().x, 30);
    EXPECT_EQ(d.GetPosition().x, 40);

    row.RemoveCell(&a, true);
    EXPECT_EQ(row.GetCurrentCell(), &d);
    CBox& e = AddBox(row, {10, 1});
    LayOut(row);
    EXPECT_EQ(e.GetPosition().x, 40);
}

TEST(CGroupLayoutCell, RemovalOfAStrangerOnlyMovesTheInsertionPoint)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& last = AddBox(row, {10, 1});
    row.SetAutoUpdate(true);
    row.SetInsertionPoint(nullptr);
    CBox stranger({1, 1});
    const int arranged = last.arranged;
    row.RemoveCell(&stranger, true);
    row.RemoveCell(nullptr, true);
    EXPECT_EQ(row.GetCurrentCell(), &last);
    EXPECT_EQ(last.arranged, arranged);
}

TEST(CGroupLayoutCell, AbsentCellsAndCellsAroundTheGroupAreNotTaken)
{
    CGroupLayoutCell outer;
    CGroupLayoutCell inner;
    EXPECT_EQ(outer.AddCell(nullptr, {}, true), nullptr);
    EXPECT_EQ(outer.AddCell(&outer, {}, false), nullptr);
    ASSERT_NE(outer.AddCell(&inner, {}, false), nullptr);
    EXPECT_EQ(inner.AddCell(&outer, {}, false), nullptr);
    EXPECT_FALSE(outer.HasParent());
    EXPECT_EQ(outer.GetCurrentCell(), &inner);
}

TEST(CGroupLayoutCell, OwnedCellsGoWithTheGroupAndBorrowedOnesStay)
{
    int deaths = 0;
    CBox borrowed({1, 1}, &deaths);
    {
        CGroupLayoutCell row;
        row.AddCell(std::make_unique<CBox>(CSize{1, 1}, &deaths).release(), {}, true);
        row.AddCell(&borrowed, {}, false);
    }
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(borrowed.HasParent());
}

TEST(CGroupLayoutCell, RemovalDestroysWhatIsOwnedIfAsked)
{
    int deaths = 0;
    CGroupLayoutCell row;
    auto kept = std::make_unique<CBox>(CSize{1, 1}, &deaths);
    CBox borrowed({1, 1}, &deaths);
    auto* destroyed = std::make_unique<CBox>(CSize{1, 1}, &deaths).release();
    row.AddCell(kept.get(), {}, true);
    row.AddCell(&borrowed, {}, false);
    row.AddCell(destroyed, {}, true);
    row.RemoveCell(destroyed, true);
    EXPECT_EQ(deaths, 1);
    row.RemoveCell(kept.get(), false);
    row.RemoveCell(&borrowed, true);
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(kept->HasParent());
    EXPECT_FALSE(borrowed.HasParent());
}

TEST(CGroupLayoutCell, ClearLeavesAnEmptyGroup)
{
    int deaths = 0;
    CGroupLayoutCell row;
    CBox borrowed({10, 10}, &deaths);
    row.AddCell(&borrowed, {}, false);
    row.AddCell(std::make_unique<CBox>(CSize{1, 1}, &deaths).release(), {}, true);
    LayOut(row);
    row.Clear();
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(borrowed.HasParent());
    EXPECT_EQ(row.GetCurrentCell(), nullptr);
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({0, 0}));
}

TEST(CGroupLayoutCell, CellMovesFromGroupToGroup)
{
    CGroupLayoutCell from;
    CGroupLayoutCell to;
    CBox box({10, 10});
    from.AddCell(&box, WithFlex(1.0F), false);
    LayOutIn(from, {100, 100});
    ASSERT_EQ(box.GetSize().width, 100);

    to.AddCell(&box, {}, false);
    EXPECT_EQ(box.GetParent(), &to);
    EXPECT_EQ(from.GetCurrentCell(), nullptr);
    LayOut(to);
    EXPECT_EQ(to.GetSize(), CSize({10, 10})); // What the first group gave it is forgotten.
}

TEST(CGroupLayoutCell, DestroyedCellLeavesItsGroup)
{
    CGroupLayoutCell row;
    {
        CBox box({10, 10});
        row.AddCell(&box, {}, false);
    }
    LayOut(row);
    EXPECT_EQ(row.GetSize(), CSize({0, 0}));
}

TEST(CGroupLayoutCell, ArrangingAgainDoesNotMoveAnything)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& before = AddBox(row, {10, 5}, WithFlex(1.0F));
    CBox& absolute = AddBox(row, {10, 5}, AtX(50));
    LayOutIn(row, {100, 5});
    EXPECT_EQ(before.GetSize().width, 10 + (100 - 60)); // The flow that counts begins at 50.
    EXPECT_EQ(absolute.GetPosition().x, 50);
    row.Arrange({0, 0});
    row.Arrange({0, 0});
    EXPECT_EQ(before.GetSize().width, 50);
}

TEST(CGroupLayoutCell, SharesDependOnThePresentSizeAlone)
{
    CGroupLayoutCell row(ELayoutType::Row);
    CBox& first = AddBox(row, {0, 5}, WithFlex(1.0F));
    CBox& second = AddBox(row, {0, 5}, WithFlex(1.0F));
    CBox& third = AddBox(row, {0, 5}, WithFlex(1.0F));
    for (const int width : {100, 7, 1000, 101})
    {
        LayOutIn(row, {width, 5});
    }
    // 33.67 gives 34; 33.33 gives 33 with 0.33 less 0.33 carried; the rest is 34.
    EXPECT_EQ(first.GetSize().width, 34);
    EXPECT_EQ(second.GetSize().width, 33);
    EXPECT_EQ(third.GetSize().width, 34);
}

TEST(CGroupLayoutCell, ArrangingAllocatesNothing)
{
    CGroupLayoutCell row(ELayoutType::Row, 2, 3, 4);
    AddBox(row, {10, 5}, WithFlex(1.0F));
    AddBox(row, {10, 5}, WithRatios(0.25F, 0.5F));
    LayOutIn(row, {100, 50});
    const Tests::CAllocationCounter allocations;
    row.SetSize({200, 60});
    row.Arrange({5, 6});
    EXPECT_EQ(allocations.GetCount(), 0U);
}
