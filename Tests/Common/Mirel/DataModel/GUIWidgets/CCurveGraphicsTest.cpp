#include "Mirel/DataModel/GUIWidgets/CCurveGraphics.h"

#include "CRecordingSurface.h"
#include "Common/Mirel/Graphics/Canvas.h"
#include "Common/Mirel/Graphics/Changes.h"
#include "CurveRig.h"
#include "Mirel/DataModel/GUIWidgets/Limits.h"
#include "Mirel/Graphics/CSimple2DRegion.h"
#include "Support/AllocationCounter.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using DataModel::Controls::CCurveViewer;
using Graphics::CRect;
using Tests::CCanvas;
using Tests::CChanges;
using Tests::CEventCounter;
using Tests::CFunctionOf;
using Tests::CRecordingSurface;
using Tests::CUnitCurve;
using Tests::Real;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// A graph over a curve of positions.
struct CGraph
{
    explicit CGraph(std::function<float(float)> code, Core::CSize size = {100, 50})
        : curve(std::move(code)),
          viewer(curve),
          graphics(viewer)
    {
        graphics.SetSize(size);
        graphics.SetColor({255, 255, 255});
    }

    std::vector<CRecordingSurface::COperation> Record()
    {
        CRecordingSurface surface;
        graphics.Draw(surface, nullptr);
        return surface.operations;
    }

    void SetBars() { graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph); }

    CUnitCurve curve;
    CCurveViewer viewer;
    CCurveGraphics graphics;
};

float Half(float /*x*/)
{
    return 0.5F;
}

float Ramp(float x)
{
    return x;
}

} // namespace

TEST(CCurveGraphics, BeginsAsAContinuousAntialiasedLine)
{
    CGraph graph(Half);
    const CCurveGraphics graphics(graph.viewer);
    EXPECT_EQ(graphics.GetSize(), Core::CSize());
    EXPECT_EQ(graphics.GetGraphStyle(), 0U);
    EXPECT_EQ(graphics.GetPenStyle(), 0U);
    EXPECT_EQ(graphics.GetSampleRate(), 1.0F);
    EXPECT_TRUE(graphics.GetAntiAlias());
    EXPECT_FALSE(graphics.GetCurveAccessMode());
    EXPECT_FALSE(graphics.GetMinMaxMode());
}

TEST(CCurveGraphics, OneSampleAPixelMakesOnePolylineThatReachesTheLastPixel)
{
    CGraph graph(Ramp);
    const auto operations = graph.Record();
    ASSERT_EQ(operations.size(), 1U);
    EXPECT_EQ(operations[0].kind, CRecordingSurface::PolylineF);
    ASSERT_EQ(operations[0].points.size(), 100U);
    EXPECT_EQ(operations[0].points.front().x, 0.0F);
    EXPECT_EQ(operations[0].points.front().y, 49.0F);
    EXPECT_EQ(operations[0].points.back().x, 99.0F);
    EXPECT_EQ(operations[0].points.back().y, 0.0F);
}

TEST(CCurveGraphics, RateBelowOneIsClosedAtTheRightEdge)
{
    CGraph graph(Ramp);
    graph.graphics.SetSampleRate(0.7F);
    const auto operations = graph.Record();
    ASSERT_EQ(operations.size(), 2U);
    ASSERT_EQ(operations[0].points.size(), 70U);
    EXPECT_LT(operations[0].points.back().x, 99.0F);
    EXPECT_NEAR(operations[0].points.back().x, 69.0F / 0.7F, 1e-3F);
    ASSERT_EQ(operations[1].points.size(), 2U);
    EXPECT_EQ(operations[1].points[0].x, operations[0].points.back().x);
    EXPECT_EQ(operations[1].points[0].y, operations[0].points.back().y);
    EXPECT_EQ(operations[1].points[1].x, 99.0F);
    EXPECT_EQ(operations[1].points[1].y, 0.0F);
}

TEST(CCurveGraphics, RateOfNothingDrawsNothing)
{
    for (const float rate : {0.0F, -1.0F, notANumber, infinity * -1.0F, 0.01F})
    {
        CGraph graph(Ramp);
        graph.graphics.SetSampleRate(0.0F);
        graph.graphics.SetSampleRate(rate);
        EXPECT_TRUE(graph.Record().empty()) << rate;
        graph.SetBars();
        EXPECT_TRUE(graph.Record().empty()) << rate;
    }
}

TEST(CCurveGraphics, CurveOfTwoPointsIsOneLineFromEdgeToEdge)
{
    CGraph graph(Ramp, {101, 11});
    graph.viewer.GetXViewer().SetPositionsCount(2);
    const auto operations = graph.Record();
    ASSERT_EQ(operations.size(), 1U);
    ASSERT_EQ(operations[0].points.size(), 2U);
    EXPECT_EQ(operations[0].points[0].x, 0.0F);
    EXPECT_EQ(operations[0].points[0].y, 10.0F);
    EXPECT_EQ(operations[0].points[1].x, 100.0F);
    EXPECT_EQ(operations[0].points[1].y, 0.0F);
}

TEST(CCurveGraphics, CurveOfOnePointDrawsNothing)
{
    CGraph graph(Ramp);
    graph.viewer.GetXViewer().SetPositionsCount(1);
    EXPECT_TRUE(graph.Record().empty());
}

TEST(CCurveGraphics, ZoomedStoppedCurveHasTheVisiblePoints)
{
    // Of 11 stops 6 are in the view.
    CGraph graph(Ramp, {101, 11});
    graph.viewer.GetXViewer().SetPositionsCount(11);
    graph.viewer.GetXViewer().SetZoom(2.0F);
    const auto operations = graph.Record();
    ASSERT_FALSE(operations.empty());
    ASSERT_EQ(operations[0].points.size(), 6U);
    EXPECT_EQ(operations[0].points[1].x, 20.0F);
    EXPECT_NEAR(operations[0].points[1].y, 10.0F - 1.0F, 1e-4F);
}

TEST(CCurveGraphics, OneAndZeroStandOnTheFirstAndTheLastRow)
{
    for (const bool antiAlias : {false, true})
    {
        CGraph top([](float) { return 1.0F; }, {10, 6});
        top.graphics.SetAntiAlias(antiAlias);
        CCanvas topCanvas(10, 6);
        top.graphics.Draw(*topCanvas, nullptr);
        CGraph bottom([](float) { return 0.0F; }, {10, 6});
        bottom.graphics.SetAntiAlias(antiAlias);
        CCanvas bottomCanvas(10, 6);
        bottom.graphics.Draw(*bottomCanvas, nullptr);
        for (int x = 0; x < 10; ++x)
        {
            for (int y = 0; y < 6; ++y)
            {
                EXPECT_EQ(topCanvas.AlphaAt(x, y) > 0, y == 0) << x << ' ' << y;
                EXPECT_EQ(bottomCanvas.AlphaAt(x, y) > 0, y == 5) << x << ' ' << y;
            }
        }
    }
}

TEST(CCurveGraphics, VerticalCurveRunsDownWithItsValuesToTheRight)
{
    CGraph graph(Ramp, {21, 11});
    graph.viewer.SetVertical(true);
    const auto operations = graph.Record();
    ASSERT_EQ(operations.size(), 1U);
    ASSERT_EQ(operations[0].points.size(), 11U);
    EXPECT_EQ(operations[0].points[0].x, 0.0F);
    EXPECT_EQ(operations[0].points[0].y, 0.0F);
    EXPECT_EQ(operations[0].points[10].x, 20.0F);
    EXPECT_EQ(operations[0].points[10].y, 10.0F);
}

TEST(CCurveGraphics, BarOnTheBaselineIsAPointNotALine)
{
    for (const bool antiAlias : {false, true})
    {
        CGraph graph([](float x) { return x < 0.5F ? 0.0F : 1.0F; }, {4, 4});
        graph.graphics.SetAntiAlias(antiAlias);
        graph.SetBars();
        CCanvas canvas(4, 4);
        graph.graphics.Draw(*canvas, nullptr);
        // A point covers half of its pixel, and so do the ends of a line.
        EXPECT_EQ(canvas.AlphaAt(0, 3), 128);
        EXPECT_EQ(canvas.AlphaAt(1, 3), 128);
        EXPECT_EQ(canvas.AlphaAt(0, 2), 0);
        EXPECT_EQ(canvas.AlphaAt(2, 3), 128);
        EXPECT_EQ(canvas.AlphaAt(2, 1), 255);
        EXPECT_EQ(canvas.AlphaAt(3, 0), 128);
        EXPECT_EQ(canvas.CountPainted(), 2 + 8);
    }
}

TEST(CCurveGraphics, BarsStandOnTheZeroOfTheAxis)
{
    DataModel::Objects::CCaptureCurve curve(
        DataModel::Objects::CCurveInfo(Real(0.0F, 1.0F), Real(-1.0F, 3.0F), "", ""));
    curve.SetValue(CFunctionOf([](float) { return 1.0F; }));
    CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({3, 41});
    graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    graphics.SetAntiAlias(false);
    CRecordingSurface surface;
    graphics.Draw(surface, nullptr);
    ASSERT_EQ(surface.operations.size(), 1U);
    ASSERT_EQ(surface.operations[0].points.size(), 6U);
    EXPECT_EQ(surface.operations[0].points[2].x, 1.0F);
    EXPECT_EQ(surface.operations[0].points[2].y, 30.0F); // -1 + a quarter of 4 is zero
    EXPECT_EQ(surface.operations[0].points[3].y, 20.0F);
}

TEST(CCurveGraphics, BarsOfALogarithmicAxisStandOnItsEnd)
{
    DataModel::Objects::CCaptureCurve curve(
        DataModel::Objects::CCurveInfo(Real(0.0F, 1.0F), Real(1.0F, 100.0F), "", ""));
    curve.SetValue(CFunctionOf([](float) { return 10.0F; }));
    CCurveViewer viewer(curve);
    viewer.GetYViewer().SetLogScale(true);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({3, 41});
    graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    graphics.SetAntiAlias(false);
    CRecordingSurface surface;
    graphics.Draw(surface, nullptr);
    ASSERT_EQ(surface.operations.size(), 1U);
    EXPECT_EQ(surface.operations[0].points[0].y, 40.0F);
    EXPECT_EQ(surface.operations[0].points[1].y, 20.0F);
}

TEST(CCurveGraphics, NumbersThatAreNoneLeaveAGap)
{
    for (const float gap : {notANumber, infinity, -infinity})
    {
        for (const bool antiAlias : {false, true})
        {
            CGraph graph([gap](float x) { return x > 0.395F && x < 0.605F ? gap : 0.5F; }, {101, 11});
            graph.graphics.SetAntiAlias(antiAlias);
            CCanvas canvas(101, 11);
            graph.graphics.Draw(*canvas, nullptr);
            EXPECT_GT(canvas.AlphaAt(38, 5), 0);
            EXPECT_GT(canvas.AlphaAt(62, 5), 0);
            EXPECT_EQ(canvas.AlphaAt(50, 5), 0);
            EXPECT_EQ(canvas.CountPainted(), 101 - 21);
            graph.SetBars();
            EXPECT_EQ(graph.Record().at(0).points.size(), 2U * (101 - 21));
        }
    }
}

TEST(CCurveGraphics, CurveWithoutANumberDrawsNothing)
{
    for (const int mode : {0, 1, 2, 3})
    {
        CGraph graph([](float) { return notANumber; });
        graph.graphics.SetAntiAlias(mode % 2 == 0);
        graph.graphics.SetMinMaxMode(mode >= 2);
        graph.graphics.SetSampleRate(mode >= 2 ? 4.0F : 1.0F);
        CCanvas canvas(100, 50);
        graph.graphics.Draw(*canvas, nullptr);
        EXPECT_EQ(canvas.CountPainted(), 0);
    }
}

TEST(CCurveGraphics, ValuesFarOutsideOfTheViewLeaveItStraightUpAndDown)
{
    for (const bool antiAlias : {false, true})
    {
        CGraph graph([](float x) { return x < 0.5F ? -3e37F : 3e37F; }, {100, 9});
        graph.graphics.SetAntiAlias(antiAlias);
        CCanvas canvas(100, 9);
        graph.graphics.Draw(*canvas, nullptr);
        int columns = 0;
        for (int x = 0; x < 100; ++x)
        {
            columns += canvas.AlphaAt(x, 4) > 0 ? 1 : 0;
        }
        EXPECT_GE(columns, 1);
        EXPECT_LE(columns, 3);
        EXPECT_GT(canvas.AlphaAt(49, 4) + canvas.AlphaAt(50, 4), 200);
    }
}

TEST(CCurveGraphics, AccessModeKeepsValuesInTheView)
{
    CGraph graph([](float x) { return 4.0F * x - 1.5F; }, {11, 11});
    EXPECT_EQ(graph.Record()[0].points[0].y, 10.0F + 15.0F);
    graph.graphics.SetCurveAccessMode(true);
    EXPECT_EQ(graph.Record()[0].points[0].y, 10.0F);
    EXPECT_EQ(graph.Record()[0].points[10].y, 0.0F);
}

TEST(CCurveGraphics, SizesWithoutRoomForALineDrawNothing)
{
    for (const Core::CSize size :
         {Core::CSize{0, 0}, Core::CSize{0, 10}, Core::CSize{10, 0}, Core::CSize{-5, 10}, Core::CSize{1, 10}})
    {
        for (const int mode : {0, 1, 2, 3, 4, 5})
        {
            CGraph graph(Half, size);
            graph.graphics.SetAntiAlias(mode % 2 == 0);
            graph.graphics.SetGraphStyle(static_cast<std::uint32_t>(mode / 2 % 2));
            graph.graphics.SetMinMaxMode(mode >= 4);
            EXPECT_TRUE(graph.Record().empty()) << size.width << ' ' << size.height << ' ' << mode;
        }
    }
}

TEST(CCurveGraphics, SinglePixelsSurviveEveryRate)
{
    for (const Core::CSize size : {Core::CSize{1, 1}, Core::CSize{1, 10}, Core::CSize{10, 1}})
    {
        for (const int mode : {0, 1, 2, 3, 4, 5, 6, 7})
        {
            CGraph graph(Half, size);
            graph.graphics.SetSampleRate(8.0F);
            graph.graphics.SetAntiAlias(mode % 2 == 0);
            graph.graphics.SetGraphStyle(static_cast<std::uint32_t>(mode / 2 % 2));
            graph.graphics.SetMinMaxMode(mode >= 4);
            graph.viewer.SetVertical(mode >= 6);
            CCanvas canvas(10, 10);
            graph.graphics.Draw(*canvas, nullptr);
            graph.graphics.HitTest({0, 0});
        }
    }
}

TEST(CCurveGraphics, WideGraphIsOnePolyline)
{
    CGraph graph(Ramp, {10000, 100});
    const auto operations = graph.Record();
    ASSERT_EQ(operations.size(), 1U);
    EXPECT_EQ(operations[0].points.size(), 10000U);
    EXPECT_EQ(operations[0].points.back().x, 9999.0F);
}

TEST(CCurveGraphics, LinesBeyondTheBufferGoOnInFurtherPolylines)
{
    CGraph graph(Ramp, {10000, 100});
    graph.graphics.SetSampleRate(4.0F);
    const auto operations = graph.Record();
    ASSERT_GT(operations.size(), 1U);
    std::size_t lines = 0;
    for (std::size_t i = 0; i < operations.size(); ++i)
    {
        lines += operations[i].points.size() - 1;
        if (i > 0)
        {
            EXPECT_EQ(operations[i].points.front().x, operations[i - 1].points.back().x);
        }
    }
    EXPECT_EQ(lines, 40000U - 1);
}

TEST(CCurveGraphics, RangesWithoutLengthAreDrawn)
{
    DataModel::Objects::CCaptureCurve curve(
        DataModel::Objects::CCurveInfo(Real(2.0F, 2.0F), Real(3.0F, 3.0F), "", ""));
    curve.SetValue(CFunctionOf([](float) { return 3.0F; }));
    CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({20, 10});
    CCanvas canvas(20, 10);
    graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 20);
    EXPECT_GT(canvas.AlphaAt(10, 9), 0);
}

TEST(CCurveGraphics, CurveWithoutAFunctionShowsItsDefault)
{
    const CUnitCurve curve;
    const CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({20, 10});
    CCanvas canvas(20, 10);
    graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 20);
    EXPECT_GT(canvas.AlphaAt(10, 9), 0);
}

TEST(CCurveGraphics, ImmenseRatesAndCountsOfStopsEndInABoundedPaint)
{
    const CFunctionOf function(Ramp);
    CUnitCurve curve;
    curve.SetValue(function);
    CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    for (const int style : {0, 1})
    {
        graphics.SetGraphStyle(static_cast<std::uint32_t>(style));
        graphics.SetSize({3, 3});
        graphics.SetSampleRate(3e38F);
        CRecordingSurface surface;
        graphics.Draw(surface, nullptr);
        EXPECT_LE(function.TakeEvaluations(), 2 * CLimits::maxSamples);
        graphics.SetSampleRate(1.0F);
        viewer.GetXViewer().SetPositionsCount(2147483647);
        graphics.Draw(surface, nullptr);
        EXPECT_LE(function.TakeEvaluations(), 2 * CLimits::maxSamples);
        viewer.GetXViewer().SetPositionsCount(-1);
    }
}

TEST(CCurveGraphics, EachSampleIsEvaluatedOnce)
{
    const CFunctionOf function(Ramp);
    CUnitCurve curve;
    curve.SetValue(function);
    const CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({100, 50});
    CRecordingSurface surface;
    graphics.Draw(surface, nullptr);
    EXPECT_EQ(function.TakeEvaluations(), 100);
    graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    EXPECT_EQ(function.TakeEvaluations(), 0); // a change alone evaluates nothing
    graphics.Draw(surface, nullptr);
    EXPECT_EQ(function.TakeEvaluations(), 100);
}

TEST(CCurveGraphics, PaintsAllocateNothing)
{
    CGraph graph([](float x) { return 0.5F + 0.5F * std::sin(400.0F * x); }, {300, 100});
    for (const int mode : {0, 1, 2, 3, 4, 5, 6, 7})
    {
        graph.graphics.SetAntiAlias(mode % 2 == 0);
        graph.graphics.SetGraphStyle(static_cast<std::uint32_t>(mode / 2 % 2));
        graph.graphics.SetMinMaxMode(mode >= 4);
        graph.graphics.SetSampleRate(mode >= 4 ? 5.0F : 1.0F);
        graph.viewer.SetVertical(mode >= 6);
        Graphics::CDrawSurface surface(nullptr);
        const Tests::CAllocationCounter allocations;
        graph.graphics.Draw(surface, nullptr);
        EXPECT_EQ(allocations.GetCount(), 0U) << mode;
    }
}

TEST(CCurveGraphics, PartialPaintGivesTheSamePixelsAndEvaluatesOnlyThem)
{
    const CFunctionOf function([](float x) { return 0.5F + 0.5F * std::sin(70.0F * x); });
    for (const bool vertical : {false, true})
    {
        for (const int mode : {0, 1, 2, 3})
        {
            CUnitCurve curve;
            curve.SetValue(function);
            CCurveViewer viewer(curve);
            viewer.SetVertical(vertical);
            CCurveGraphics graphics(viewer);
            graphics.SetSize({120, 90});
            graphics.SetAntiAlias(mode % 2 == 0);
            graphics.SetGraphStyle(static_cast<std::uint32_t>(mode / 2));
            graphics.SetSampleRate(0.4F);
            CCanvas whole(120, 90);
            graphics.Draw(*whole, nullptr);
            const int all = function.TakeEvaluations();
            for (const CRect part : {CRect(40, 30, 11, 9), CRect(0, 0, 3, 3), CRect(117, 87, 3, 3)})
            {
                CCanvas partial(120, 90);
                partial->ClipToRect(part);
                const Graphics::CSimple2DRegion region(part);
                graphics.Draw(*partial, &region);
                EXPECT_LT(function.TakeEvaluations(), all / 2);
                for (int y = 0; y < 90; ++y)
                {
                    for (int x = 0; x < 120; ++x)
                    {
                        // Long lines are drawn in pieces, which round by themselves.
                        ASSERT_NEAR(partial.AlphaAt(x, y), part.Contains({x, y}) ? whole.AlphaAt(x, y) : 0, 2)
                            << x << ' ' << y << ' ' << mode;
                    }
                }
            }
        }
    }
}

TEST(CCurveGraphics, SettersTellAChangeOnceWithTheWholeArea)
{
    CGraph graph(Half);
    const CChanges changes(graph.graphics);
    const auto expectOne = [&](auto set)
    {
        const std::size_t before = changes.areas.size();
        set();
        ASSERT_EQ(changes.areas.size(), before + 1);
        EXPECT_EQ(changes.areas.back(), CRect(0, 0, 100, 50));
        set();
        EXPECT_EQ(changes.areas.size(), before + 1);
    };
    expectOne([&] { graph.graphics.SetColor({1, 2, 3}); });
    expectOne([&] { graph.graphics.SetPenStyle(2); });
    expectOne([&] { graph.graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph); });
    expectOne([&] { graph.graphics.SetAntiAlias(false); });
    expectOne([&] { graph.graphics.SetSampleRate(2.0F); });
    expectOne([&] { graph.graphics.SetCurveAccessMode(true); });
    expectOne([&] { graph.graphics.SetMinMaxMode(true); });
    expectOne([&] { graph.viewer.SetVertical(true); });
    expectOne([&] { graph.viewer.GetXViewer().SetZoom(2.0F); });
    expectOne([&] { graph.viewer.GetYViewer().SetReverse(true); });
    const std::size_t before = changes.areas.size();
    graph.graphics.SetSampleRate(notANumber);
    EXPECT_EQ(changes.areas.size(), before);
}

TEST(CCurveGraphics, PenGoesToTheSurface)
{
    CGraph graph(Half);
    graph.graphics.SetColor({9, 8, 7});
    graph.graphics.SetPenStyle(3);
    CRecordingSurface surface;
    graph.graphics.Draw(surface, nullptr);
    EXPECT_EQ(surface.operations.at(0).color, (Graphics::CColor{9, 8, 7}));
    EXPECT_EQ(surface.penStyle, 3U);
    EXPECT_TRUE(surface.GetTextNoClip());
}

TEST(CCurveGraphics, ChangeOfTheCurveIsToldOnce)
{
    CGraph graph(Half);
    const CChanges changes(graph.graphics);
    graph.curve.SetValue(CFunctionOf(Ramp));
    EXPECT_EQ(changes.areas, std::vector<CRect>{CRect(0, 0, 100, 50)});
    graph.curve.NotifyChanged();
    EXPECT_EQ(changes.areas.size(), 2U);
}

TEST(CCurveGraphics, ConnectionsEndWithTheGraphics)
{
    CGraph graph(Half);
    {
        const CCurveGraphics graphics(graph.viewer);
    }
    graph.curve.SetValue(CFunctionOf(Ramp)); // these would reach freed memory
    graph.viewer.GetXViewer().SetZoom(2.0F);
}

TEST(CCurveGraphics, ExtraPixelsFollowZoomAndSize)
{
    CGraph graph(Half);
    const CExtraPixels& extra = graph.graphics.GetExtraPixels();
    CEventCounter events(extra.GetChangedEventProvider());
    EXPECT_EQ(extra.GetX(), 0);
    EXPECT_EQ(extra.GetY(), 0);
    graph.viewer.GetXViewer().SetZoom(2.5F);
    EXPECT_EQ(events.Take(), 1);
    EXPECT_EQ(extra.GetX(), 150);
    graph.viewer.GetYViewer().SetZoom(3.0F);
    EXPECT_EQ(events.Take(), 1);
    EXPECT_EQ(extra.GetY(), 100);
    graph.viewer.GetYViewer().SetOffset(0.5F);
    EXPECT_EQ(events.Take(), 0);
    graph.graphics.SetSize({200, 50});
    EXPECT_EQ(events.Take(), 1);
    EXPECT_EQ(extra.GetX(), 300);
    graph.viewer.GetXViewer().SetZoom(1e30F);
    EXPECT_EQ(extra.GetX(), 2147483647);
}

TEST(CCurveGraphics, LineIsHitWithinTwoPixels)
{
    CGraph graph(Ramp, {101, 101});
    // At x = 30 the line is on row 70.
    EXPECT_FALSE(graph.graphics.HitTest({30, 67}));
    EXPECT_TRUE(graph.graphics.HitTest({30, 68}));
    EXPECT_TRUE(graph.graphics.HitTest({30, 71}));
    EXPECT_FALSE(graph.graphics.HitTest({30, 72}));
}

TEST(CCurveGraphics, BarIsHitFromItsBaselineToItsTop)
{
    DataModel::Objects::CCaptureCurve curve(
        DataModel::Objects::CCurveInfo(Real(0.0F, 1.0F), Real(-1.0F, 1.0F), "", ""));
    curve.SetValue(CFunctionOf([](float x) { return x < 0.5F ? 0.5F : -0.5F; }));
    const CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({101, 101});
    graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    // On the left the bar runs up from the base, row 50, to row 25, on the right down to row 75.
    EXPECT_FALSE(graphics.HitTest({10, 24}));
    EXPECT_TRUE(graphics.HitTest({10, 25}));
    EXPECT_TRUE(graphics.HitTest({10, 49}));
    EXPECT_FALSE(graphics.HitTest({10, 51}));
    EXPECT_FALSE(graphics.HitTest({90, 49}));
    EXPECT_TRUE(graphics.HitTest({90, 50}));
    EXPECT_TRUE(graphics.HitTest({90, 75}));
    EXPECT_FALSE(graphics.HitTest({90, 76}));
}

TEST(CCurveGraphics, VerticalGraphIsHitAlongItsOwnSweep)
{
    CGraph graph(Ramp, {201, 101});
    graph.viewer.SetVertical(true);
    EXPECT_TRUE(graph.graphics.HitTest({60, 30}));
    EXPECT_FALSE(graph.graphics.HitTest({64, 30}));
    graph.SetBars();
    EXPECT_TRUE(graph.graphics.HitTest({10, 30}));
    EXPECT_FALSE(graph.graphics.HitTest({61, 30}));
}

TEST(CCurveGraphics, NothingIsHitWhereThereIsNoNumber)
{
    CGraph graph([](float) { return notANumber; });
    EXPECT_FALSE(graph.graphics.HitTest({10, 10}));
    EXPECT_FALSE(CGraph(Half, {0, 0}).graphics.HitTest({0, 0}));
}
