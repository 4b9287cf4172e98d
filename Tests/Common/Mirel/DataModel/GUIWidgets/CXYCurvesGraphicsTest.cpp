#include "Mirel/DataModel/GUIWidgets/CXYCurvesGraphics.h"

#include "CRecordingSurface.h"
#include "Common/Mirel/Graphics/Canvas.h"
#include "Common/Mirel/Graphics/Changes.h"
#include "CurveRig.h"
#include "Mirel/DataModel/GUIWidgets/Limits.h"
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
using Tests::CFunctionOf;
using Tests::CRecordingSurface;
using Tests::CUnitCurve;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

/// x runs to the right with the parameter, y is its square.
struct CFigure
{
    explicit CFigure(Core::CSize size = {101, 51})
        : x([](float t) { return t; }),
          y([](float t) { return t * t; }),
          xViewer(x),
          yViewer(y),
          graphics(xViewer, yViewer)
    {
        graphics.SetSize(size);
    }

    std::vector<CRecordingSurface::COperation> Record()
    {
        CRecordingSurface surface;
        graphics.Draw(surface, nullptr);
        return surface.operations;
    }

    CUnitCurve x;
    CUnitCurve y;
    CCurveViewer xViewer;
    CCurveViewer yViewer;
    CXYCurvesGraphics graphics;
};

} // namespace

TEST(CXYCurvesGraphics, BeginsAs1024AntialiasedDots)
{
    CFigure figure;
    EXPECT_EQ(figure.graphics.GetPositionsCount(), 1024.0F);
    EXPECT_EQ(figure.graphics.GetGraphStyle(), 0U);
    EXPECT_TRUE(figure.graphics.GetAntiAlias());
    const auto operations = figure.Record();
    ASSERT_EQ(operations.size(), 1U);
    EXPECT_EQ(operations[0].kind, CRecordingSurface::PointsF);
    EXPECT_EQ(operations[0].points.size(), 1024U);
}

TEST(CXYCurvesGraphics, PointsAreBothCurvesOverTheParameter)
{
    for (const bool antiAlias : {false, true})
    {
        for (const bool line : {false, true})
        {
            CFigure figure;
            figure.graphics.SetPositionsCount(5.0F);
            figure.graphics.SetAntiAlias(antiAlias);
            figure.graphics.SetGraphStyle(line ? CXYCurvesGraphics::GraphStyleCurve
                                               : CXYCurvesGraphics::GraphStyleDots);
            const auto operations = figure.Record();
            ASSERT_EQ(operations.size(), 1U);
            const auto kind = antiAlias ? (line ? CRecordingSurface::PolylineF : CRecordingSurface::PointsF)
                                        : (line ? CRecordingSurface::Polyline : CRecordingSurface::Points);
            EXPECT_EQ(operations[0].kind, kind);
            ASSERT_EQ(operations[0].points.size(), 5U);
            for (int i = 0; i < 5; ++i)
            {
                const float t = 0.25F * static_cast<float>(i);
                const float y = 51.0F - t * t * 50.0F - 1.0F;
                EXPECT_EQ(operations[0].points[static_cast<std::size_t>(i)].x, 100.0F * t);
                EXPECT_EQ(operations[0].points[static_cast<std::size_t>(i)].y,
                          antiAlias ? y : 50.0F - std::floor(t * t * 50.0F + 0.5F));
            }
        }
    }
}

TEST(CXYCurvesGraphics, CountIsRounded)
{
    CFigure figure;
    figure.graphics.SetPositionsCount(10.4F);
    EXPECT_EQ(figure.Record().at(0).points.size(), 10U);
    figure.graphics.SetPositionsCount(10.6F);
    EXPECT_EQ(figure.Record().at(0).points.size(), 11U);
}

TEST(CXYCurvesGraphics, OnePositionOrNoAreaDrawsNothing)
{
    CFigure figure;
    for (const float count : {1.0F, 0.0F, -4.0F})
    {
        figure.graphics.SetPositionsCount(count);
        EXPECT_TRUE(figure.Record().empty());
    }
    EXPECT_TRUE(CFigure({0, 5}).Record().empty());
    EXPECT_TRUE(CFigure({5, -1}).Record().empty());
}

TEST(CXYCurvesGraphics, SinglePixelIsPainted)
{
    CFigure figure({1, 1});
    CCanvas canvas(2, 2);
    figure.graphics.Draw(*canvas, nullptr);
    EXPECT_GT(canvas.AlphaAt(0, 0), 0);
}

TEST(CXYCurvesGraphics, ImmenseCountEndsInABoundedPaint)
{
    CFigure figure({5, 5});
    const CFunctionOf counted([](float t) { return t; });
    figure.x.SetValue(counted);
    figure.graphics.SetPositionsCount(2147483648.0F);
    figure.Record();
    EXPECT_LE(counted.TakeEvaluations(), CLimits::maxSamples);
}

TEST(CXYCurvesGraphics, PointsWithoutANumberAreLeftOut)
{
    CFigure figure;
    figure.y.SetValue(CFunctionOf([](float t) { return t > 0.25F && t < 0.55F ? notANumber : t; }));
    figure.graphics.SetPositionsCount(11.0F);
    figure.graphics.SetGraphStyle(CXYCurvesGraphics::GraphStyleCurve);
    const auto operations = figure.Record();
    ASSERT_EQ(operations.size(), 2U);
    EXPECT_EQ(operations[0].points.size() + operations[1].points.size(), 8U);
}

TEST(CXYCurvesGraphics, AccessModeKeepsValuesInTheView)
{
    CFigure figure;
    figure.x.SetValue(CFunctionOf([](float) { return 7.0F; }));
    figure.graphics.SetPositionsCount(2.0F);
    EXPECT_EQ(figure.Record().at(0).points[0].x, 700.0F);
    figure.graphics.SetCurveAccessMode(true);
    EXPECT_EQ(figure.Record().at(0).points[0].x, 100.0F);
}

TEST(CXYCurvesGraphics, PaintsAllocateNothing)
{
    CFigure figure;
    Graphics::CDrawSurface surface(nullptr);
    for (const bool antiAlias : {false, true})
    {
        figure.graphics.SetAntiAlias(antiAlias);
        const Tests::CAllocationCounter allocations;
        figure.graphics.Draw(surface, nullptr);
        EXPECT_EQ(allocations.GetCount(), 0U);
    }
}

TEST(CXYCurvesGraphics, EveryChangeIsToldOnceWithTheWholeArea)
{
    CFigure figure;
    const Tests::CChanges changes(figure.graphics);
    std::size_t told = 0;
    const auto expectOne = [&](auto set)
    {
        set();
        ASSERT_EQ(changes.areas.size(), ++told);
        EXPECT_EQ(changes.areas.back(), CRect(0, 0, 101, 51));
        set();
        EXPECT_EQ(changes.areas.size(), told);
    };
    expectOne([&] { figure.graphics.SetColor({1, 2, 3}); });
    expectOne([&] { figure.graphics.SetPenStyle(2); });
    expectOne([&] { figure.graphics.SetGraphStyle(CXYCurvesGraphics::GraphStyleCurve); });
    expectOne([&] { figure.graphics.SetAntiAlias(false); });
    expectOne([&] { figure.graphics.SetPositionsCount(20.0F); });
    expectOne([&] { figure.graphics.SetCurveAccessMode(true); });
    expectOne([&] { figure.xViewer.GetYViewer().SetZoom(2.0F); });
    expectOne([&] { figure.yViewer.GetXViewer().SetOffset(0.5F); });
    figure.x.SetValue(CFunctionOf([](float t) { return t; }));
    EXPECT_EQ(changes.areas.size(), ++told);
    figure.y.SetValue(CFunctionOf([](float t) { return t; }));
    EXPECT_EQ(changes.areas.size(), ++told);
}

TEST(CXYCurvesGraphics, ExtraPixelsAreThoseOfTheValues)
{
    CFigure figure;
    Tests::CEventCounter events(figure.graphics.GetExtraPixels().GetChangedEventProvider());
    figure.xViewer.GetYViewer().SetZoom(2.0F);
    figure.yViewer.GetYViewer().SetZoom(3.0F);
    EXPECT_EQ(events.Take(), 2);
    EXPECT_EQ(figure.graphics.GetExtraPixels().GetX(), 101);
    EXPECT_EQ(figure.graphics.GetExtraPixels().GetY(), 102);
}
