#include "Mirel/Layout/CContentLayoutCell.h"

#include "Common/Mirel/Layout/LayoutRig.h"

#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Layout;
using namespace Tests;

namespace
{

/// A widget that notes in order what the layout does to it, and may report its resizing as widgets do.
class CFakeWidget : public ILayoutContent
{
public:
    explicit CFakeWidget(const CSize& size_) : size(size_) {}

    CSize GetSize() const override { return size; }

    void SetSize(const CSize& newSize) override
    {
        calls += "size ";
        if (size != newSize)
        {
            size = newSize;
            if (reports != nullptr)
            {
                reports->Update();
            }
        }
    }

    void Move(const CPoint& newPosition) override
    {
        calls += "move ";
        position = newPosition;
    }

    void Show(bool newShown) override
    {
        calls += "show ";
        shown = newShown;
    }

    CSize size;
    CPoint position;
    bool shown = false;
    std::string calls;
    CLayoutCell* reports = nullptr;
};

} // namespace

TEST(CContentLayoutCell, TakesTheSizeOfTheWidget)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    EXPECT_FALSE(cell.GetAutoWidth());
    EXPECT_FALSE(cell.GetAutoHeight());
    AddBox(cell, {100, 100});
    cell.UpdateSize();
    EXPECT_EQ(cell.GetSize(), CSize({30, 20}));

    cell.SetAutoHeight(true);
    cell.UpdateSize();
    EXPECT_EQ(cell.GetSize(), CSize({30, 100}));
}

TEST(CContentLayoutCell, SizeOnceFixedStaysExplicit)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    cell.UpdateSize();
    cell.SetFixedSize({30, 20}); // The value that it has already.
    widget.size = {70, 80};
    cell.Update();
    cell.UpdateSize();
    EXPECT_EQ(cell.GetSize(), CSize({30, 20}));
}

TEST(CContentLayoutCell, ShowsMovesAndSizesTheWidgetInThisOrder)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    cell.SetPosition({5, 6});
    EXPECT_EQ(widget.calls, "show move size ");
    EXPECT_TRUE(widget.shown);
    EXPECT_EQ(widget.position, CPoint({5, 6}));
    EXPECT_EQ(cell.GetPosition(), CPoint({5, 6}));
}

TEST(CContentLayoutCell, CellsStandInTheWidgetsOwnCoordinates)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget, ELayoutType::Row, 0, 4, 0);
    CBox& box = AddBox(cell, {10, 10}, WithAlign(EAlign::Center, EAlign::Begin));
    cell.SetPosition({500, 600});
    EXPECT_EQ(box.GetPosition(), CPoint({4, 0}));
    cell.SetAutoUpdate(true);
    cell.SetHMargin(6);
    EXPECT_EQ(box.GetPosition(), CPoint({6, 0}));
    EXPECT_EQ(widget.position, CPoint({500, 600}));
}

TEST(CContentLayoutCell, WidgetIsShownIfTheCellIsVisibleAndShown)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    CGroupLayoutCell row;
    row.AddCell(&cell, {}, false);
    row.SetAutoUpdate(true);
    EXPECT_TRUE(widget.shown);

    cell.SetShown(false);
    EXPECT_FALSE(cell.IsShown());
    EXPECT_FALSE(widget.shown);
    EXPECT_EQ(row.GetSize(), CSize({30, 20})); // It keeps its room.
    cell.SetDisplayed(false);
    EXPECT_EQ(row.GetSize(), CSize({0, 0}));
    cell.SetShown(true);
    EXPECT_FALSE(widget.shown);
    cell.SetDisplayed(true);
    EXPECT_TRUE(widget.shown);
    row.SetDisplayed(false);
    EXPECT_FALSE(widget.shown);
}

TEST(CContentLayoutCell, StretchedWidgetShrinksAgain)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    CGroupLayoutCell row(ELayoutType::Row);
    row.AddCell(&cell, WithFlex(1.0F), false);
    row.SetAutoSize(false);
    row.SetFixedSize({100, 20});
    row.SetAutoUpdate(true);
    EXPECT_EQ(widget.size, CSize({100, 20}));
    row.SetAutoSize(true);
    EXPECT_EQ(row.GetSize(), CSize({30, 20}));
    EXPECT_EQ(widget.size, CSize({30, 20}));
}

TEST(CContentLayoutCell, WidgetThatReportsItsResizingIsNotTakenByItsWord)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    widget.reports = &cell;
    CGroupLayoutCell row(ELayoutType::Row);
    row.AddCell(&cell, WithFlex(1.0F), false);
    row.SetAutoSize(false);
    row.SetFixedSize({100, 20});
    row.SetPosition({7, 8});
    row.SetAutoUpdate(true);
    EXPECT_EQ(widget.size, CSize({100, 20}));
    row.SetFixedSize({60, 20});
    EXPECT_EQ(widget.size, CSize({60, 20}));
    row.SetPosition({9, 10});
    EXPECT_EQ(widget.position, CPoint({9, 10}));
    row.SetAutoSize(true);
    EXPECT_EQ(widget.size, CSize({30, 20}));
}

TEST(CContentLayoutCell, WidgetsOwnChangeOfSizeReachesTheGroup)
{
    CFakeWidget widget({30, 20});
    CContentLayoutCell cell(widget);
    CGroupLayoutCell row(ELayoutType::Row);
    row.AddCell(&cell, {}, false);
    row.SetAutoUpdate(true);
    widget.size = {50, 60};
    cell.Update();
    EXPECT_EQ(row.GetSize(), CSize({50, 60}));
}
