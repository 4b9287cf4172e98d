#include "Mirel/DataModel/GUIWidgets/CGridGraphics.h"

#include "CRecordingSurface.h"
#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Common/Mirel/Graphics/Canvas.h"
#include "Common/Mirel/Graphics/Changes.h"
#include "Mirel/DataModel/GUIWidgets/GridLines.h"
#include "Support/AllocationCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using DataModel::Controls::CParamViewerConfig;
using Graphics::CRect;
using Tests::CCanvas;
using Tests::CChanges;
using Tests::CRecordingSurface;
using Tests::Real;

namespace
{

struct CLine
{
    EGridLine kind;
    int pixel;
    bool operator==(const CLine&) const = default;
};

std::vector<CLine> GetLines(const CGridAxis& axis)
{
    std::vector<CLine> lines;
    ForEachGridLine(axis, [&](EGridLine kind, int pixel) { lines.push_back({kind, pixel}); });
    return lines;
}

std::vector<int> PixelsOf(EGridLine kind, const CGridAxis& axis)
{
    std::vector<int> pixels;
    for (const CLine& line : GetLines(axis))
    {
        if (line.kind == kind)
        {
            pixels.push_back(line.pixel);
        }
    }
    return pixels;
}

using Pixels = std::vector<int>;

/// A grid over two axes of reals, x from -1 to 1 and y from 0 to 1.
struct CGrid
{
    explicit CGrid(Core::CSize size = {101, 51})
        : xInfo(Real(-1.0F, 1.0F)),
          yInfo(Real(0.0F, 1.0F)),
          x(xInfo),
          y(yInfo),
          graphics(x, y)
    {
        graphics.SetSize(size);
        graphics.SetPen({{0, 255, 0}, 1});
        graphics.SetSubdivisionPen({{0, 0, 255}, 2});
        graphics.SetOriginPen({{255, 0, 0}, 3});
    }

    std::vector<CRecordingSurface::COperation> Record()
    {
        CRecordingSurface surface;
        graphics.Draw(surface, nullptr);
        return surface.operations;
    }

    DataModel::Objects::CParamInfo xInfo;
    DataModel::Objects::CParamInfo yInfo;
    CParamViewerConfig x;
    CParamViewerConfig y;
    CGridGraphics graphics;
};

} // namespace

TEST(GridLines, RunOutwardFromTheOriginWhichComesLast)
{
    const CGridAxis axis = {5.0F, 0.5F, 0, 101};
    const std::vector<CLine> expected = {{EGridLine::Major, 75},
                                         {EGridLine::Major, 100},
                                         {EGridLine::Major, 25},
                                         {EGridLine::Major, 0},
                                         {EGridLine::Origin, 50}};
    EXPECT_EQ(GetLines(axis), expected);
}

TEST(GridLines, SubdivisionsStandBetweenTheLinesAndComeBeforeThem)
{
    const CGridAxis axis = {3.0F, 0.0F, 1, 101};
    const std::vector<CLine> expected = {{EGridLine::Subdivision, 25},
                                         {EGridLine::Major, 50},
                                         {EGridLine::Subdivision, 75},
                                         {EGridLine::Major, 100},
                                         {EGridLine::Origin, 0}};
    EXPECT_EQ(GetLines(axis), expected);
}

TEST(GridLines, SubdivisionsBehindTheLastLineFillTheRest)
{
    // Lines 40 apart from 30: 70 is the last to the right, with room for 80, 90 and 100. The line to the left
    // would be -10, which cutting off makes -9, and the subdivisions count from there.
    const CGridAxis axis = {3.5F, 0.3F, 3, 101};
    EXPECT_EQ(PixelsOf(EGridLine::Major, axis), Pixels{70});
    EXPECT_EQ(PixelsOf(EGridLine::Subdivision, axis), (Pixels{60, 50, 40, 100, 90, 80, 1, 11, 21}));
}

TEST(GridLines, NoSubdivisionsForACountOfNone)
{
    EXPECT_TRUE(PixelsOf(EGridLine::Subdivision, {11.0F, 0.5F, 0, 101}).empty());
    EXPECT_TRUE(PixelsOf(EGridLine::Subdivision, {11.0F, 0.5F, -3, 101}).empty());
}

TEST(GridLines, TwoPositionsAreOneLineAtEachEnd)
{
    EXPECT_EQ(PixelsOf(EGridLine::Major, {2.0F, 0.0F, 0, 101}), Pixels{100});
    EXPECT_EQ(PixelsOf(EGridLine::Origin, {2.0F, 0.0F, 0, 101}), Pixels{0});
    EXPECT_EQ(PixelsOf(EGridLine::Major, {2.0F, 1.0F, 0, 101}), Pixels{0});
}

TEST(GridLines, OriginOutsideOfTheViewStillGivesTheLines)
{
    EXPECT_EQ(PixelsOf(EGridLine::Major, {5.0F, -0.4F, 0, 101}), (Pixels{10, 35, 60, 85}));
    EXPECT_TRUE(PixelsOf(EGridLine::Origin, {5.0F, -0.4F, 0, 101}).empty());
    EXPECT_EQ(PixelsOf(EGridLine::Major, {5.0F, 1.4F, 0, 101}), (Pixels{90, 65, 40, 15}));
    // Half a step, 12.5 pixels, is 13 of them.
    EXPECT_EQ(PixelsOf(EGridLine::Subdivision, {5.0F, -0.4F, 1, 101}), (Pixels{22, 47, 72, 97}));
}

TEST(GridLines, OriginFarOutsideGivesTheLinesWithoutCountingThere)
{
    const Pixels lines = PixelsOf(EGridLine::Major, {11.0F, -50000.0F, 0, 101});
    ASSERT_GE(lines.size(), 10U);
    EXPECT_LE(lines.size(), 11U);
    for (std::size_t i = 1; i < lines.size(); ++i)
    {
        EXPECT_NEAR(lines[i] - lines[i - 1], 10, 1);
    }
    EXPECT_GE(PixelsOf(EGridLine::Major, {11.0F, 50000.0F, 0, 101}).size(), 10U);
}

TEST(GridLines, NoLinesForOnePositionOrLess)
{
    for (const float positions : {1.0F, 0.5F, 0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()})
    {
        EXPECT_TRUE(GetLines({positions, 0.5F, 2, 101}).empty()) << positions;
    }
    EXPECT_TRUE(GetLines({5.0F, std::numeric_limits<float>::quiet_NaN(), 2, 101}).empty());
    EXPECT_TRUE(GetLines({5.0F, 0.5F, 2, 0}).empty());
}

TEST(GridLines, SinglePixelHasTheOriginAlone)
{
    EXPECT_EQ(GetLines({5.0F, 0.5F, 3, 1}), (std::vector<CLine>{{EGridLine::Origin, 0}}));
}

TEST(GridLines, EndForAnyNumbers)
{
    for (const float positions : {1.0000001F, 3e9F, std::numeric_limits<float>::infinity()})
    {
        for (const float origin : {0.5F, -3e38F, 3e38F, -1e9F, 1e9F, 1e6F})
        {
            for (const int subdivisions : {0, 2147483647})
            {
                for (const int length : {2, 10000, 2147483647})
                {
                    EXPECT_LE(GetLines({positions, origin, subdivisions, length}).size(),
                              2U * CLimits::maxGridLines);
                }
            }
        }
    }
}

/// The lines in double precision, each by itself.
RC_GTEST_PROP(GridLines, StandAtWholeStepsFromTheOrigin, ())
{
    const int positions = *rc::gen::inRange(2, 30);
    const int length = *rc::gen::inRange(2, 600);
    const double origin = *rc::gen::inRange(-100, 200) / 100.0;
    const int subdivisions = *rc::gen::inRange(0, 5);
    const CGridAxis axis = {static_cast<float>(positions), static_cast<float>(origin), subdivisions, length};
    const Pixels major = PixelsOf(EGridLine::Major, axis);
    const Pixels minor = PixelsOf(EGridLine::Subdivision, axis);
    for (int k = -100; k <= 100; ++k)
    {
        const double place = (origin + k / (positions - 1.0)) * (length - 1.0);
        const bool seen = place > 0.01 && place < length - 1.01;
        if (k != 0 && seen)
        {
            RC_ASSERT(std::any_of(major.begin(), major.end(),
                                  [&](int pixel) { return std::fabs(pixel - place) <= 0.51; }));
        }
        for (int s = 1; s <= subdivisions; ++s)
        {
            const double part = place + s / (subdivisions + 1.0) / (positions - 1.0) * (length - 1.0);
            if (part > 1.01 && part < length - 2.01)
            {
                // Two roundings, and one of a line left of the view goes toward it.
                RC_ASSERT(std::any_of(minor.begin(), minor.end(),
                                      [&](int pixel) { return std::fabs(pixel - part) <= 2.02; }));
            }
        }
    }
    for (const CLine& line : GetLines(axis))
    {
        RC_ASSERT(line.pixel >= 0 && line.pixel < length);
    }
}

TEST(CGridGraphics, LinesGoThroughTheWholeAreaAndRowsCountFromTheBottom)
{
    CGrid grid;
    grid.x.SetPositionsCount(3);
    grid.y.SetPositionsCount(3);
    const auto operations = grid.Record();
    ASSERT_EQ(operations.size(), 6U); // 100, 0, 50 across; 25, 0 and at last row 50 down
    const auto expectLine = [&](std::size_t i, CRect ends, Graphics::CColor color)
    {
        EXPECT_EQ(operations[i].points[0].x, static_cast<float>(ends.x)) << i;
        EXPECT_EQ(operations[i].points[0].y, static_cast<float>(ends.y)) << i;
        EXPECT_EQ(operations[i].points[1].x, static_cast<float>(ends.width)) << i;
        EXPECT_EQ(operations[i].points[1].y, static_cast<float>(ends.height)) << i;
        EXPECT_EQ(operations[i].color, color) << i;
    };
    const Graphics::CColor major = {0, 255, 0};
    const Graphics::CColor origin = {255, 0, 0};
    expectLine(0, {100, 0, 100, 50}, major);
    expectLine(1, {0, 0, 0, 50}, major);
    expectLine(2, {50, 0, 50, 50}, origin);
    expectLine(3, {0, 25, 100, 25}, major);
    expectLine(4, {0, 0, 100, 0}, major);
    expectLine(5, {0, 50, 100, 50}, origin);
}

TEST(CGridGraphics, OriginLineCoversTheOthers)
{
    CGrid grid({11, 11});
    grid.x.SetPositionsCount(3);
    grid.y.SetPositionsCount(3);
    CCanvas canvas(11, 11);
    grid.graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.At(5, 3), 0xffff0000U);
    EXPECT_EQ(canvas.At(3, 5), 0xff00ff00U);
    EXPECT_EQ(canvas.At(3, 10), 0xffff0000U);
    EXPECT_EQ(canvas.At(3, 3), 0U);
}

TEST(CGridGraphics, AxisWithoutStopsHasALineAtEachPixel)
{
    CGrid grid({21, 11});
    grid.graphics.SetYLines(false);
    CCanvas canvas(21, 11);
    grid.graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 21 * 11);
}

TEST(CGridGraphics, AxisThatIsSwitchedOffHasNoLines)
{
    CGrid grid;
    grid.x.SetPositionsCount(3);
    grid.y.SetPositionsCount(5);
    grid.graphics.SetXLines(false);
    EXPECT_EQ(grid.Record().size(), 5U);
    grid.graphics.SetYLines(false);
    EXPECT_TRUE(grid.Record().empty());
}

TEST(CGridGraphics, ZoomedAxisHasTheLinesOfItsWindow)
{
    // The window shows 0 to 1 of -1 to 1: stops at 0, 0.2, ... of 11.
    CGrid grid;
    grid.graphics.SetYLines(false);
    grid.x.SetPositionsCount(11);
    grid.x.SetZoom(2.0F);
    grid.x.SetOffset(1.0F);
    std::vector<float> at;
    for (const auto& operation : grid.Record())
    {
        at.push_back(operation.points[0].x);
    }
    EXPECT_EQ(at, (std::vector<float>{20.0F, 40.0F, 60.0F, 80.0F, 100.0F, 0.0F}));
}

TEST(CGridGraphics, AxisThatHasNoZeroBeginsAtItsEnd)
{
    const auto info = Real(1.0F, 100.0F);
    const auto none = Real(0.0F, 1.0F);
    CParamViewerConfig log(info);
    log.SetLogScale(true);
    log.SetPositionsCount(3);
    const CParamViewerConfig y(none);
    CGridGraphics graphics(log, y);
    graphics.SetSize({101, 10});
    graphics.SetYLines(false);
    CRecordingSurface surface;
    graphics.Draw(surface, nullptr);
    ASSERT_EQ(surface.operations.size(), 3U);
    EXPECT_EQ(surface.operations[0].points[0].x, 50.0F);
    EXPECT_EQ(surface.operations[2].points[0].x, 0.0F);
}

TEST(CGridGraphics, NoAreaDrawsNothing)
{
    for (const Core::CSize size :
         {Core::CSize{0, 0}, Core::CSize{0, 5}, Core::CSize{5, 0}, Core::CSize{-1, 5}})
    {
        EXPECT_TRUE(CGrid(size).Record().empty());
    }
}

TEST(CGridGraphics, RangesWithoutLengthEnd)
{
    const auto info = Real(2.0F, 2.0F);
    CParamViewerConfig x(info);
    x.SetPositionsCount(5);
    CGridGraphics graphics(x, x);
    graphics.SetSize({50, 50});
    graphics.SetXSubdivisionsCount(3);
    CCanvas canvas(50, 50);
    graphics.Draw(*canvas, nullptr);
    EXPECT_GT(canvas.CountPainted(), 0);
}

TEST(CGridGraphics, StateOfTheSurfaceIsRestored)
{
    CGrid grid({11, 11});
    CCanvas canvas(11, 11);
    canvas->SetPenColor({1, 2, 3});
    grid.graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas->GetPenColor(), (Graphics::CColor{1, 2, 3}));
    EXPECT_TRUE(canvas->GetTextNoClip());
}

TEST(CGridGraphics, EveryChangeIsToldOnceWithTheWholeArea)
{
    CGrid grid;
    const CChanges changes(grid.graphics);
    std::size_t told = 0;
    const auto expectOne = [&](auto set)
    {
        set();
        ASSERT_EQ(changes.areas.size(), ++told);
        EXPECT_EQ(changes.areas.back(), CRect(0, 0, 101, 51));
        set();
        EXPECT_EQ(changes.areas.size(), told);
    };
    expectOne([&] { grid.graphics.SetPen({{1, 1, 1}, 1}); });
    expectOne([&] { grid.graphics.SetSubdivisionPen({{1, 1, 1}, 1}); });
    expectOne([&] { grid.graphics.SetOriginPen({{1, 1, 1}, 1}); });
    expectOne([&] { grid.graphics.SetOriginPen({{1, 1, 1}, 4}); });
    expectOne([&] { grid.graphics.SetXSubdivisionsCount(2); });
    expectOne([&] { grid.graphics.SetYSubdivisionsCount(2); });
    expectOne([&] { grid.graphics.SetXLines(false); });
    expectOne([&] { grid.graphics.SetYLines(false); });
    expectOne([&] { grid.x.SetPositionsCount(9); });
    expectOne([&] { grid.y.SetZoom(2.0F); });
    expectOne([&] { grid.xInfo.SetMax(2.0F); });
}

TEST(CGridGraphics, ExtraPixelsFollowTheZoom)
{
    CGrid grid;
    grid.x.SetZoom(2.0F);
    grid.y.SetZoom(1.5F);
    EXPECT_EQ(grid.graphics.GetExtraPixels().GetX(), 101);
    EXPECT_EQ(grid.graphics.GetExtraPixels().GetY(), 26);
}
