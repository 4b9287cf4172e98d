#include "Mirel/Graphics/CLineRasterizer.h"

#include "Canvas.h"

#include <cairo.h>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Graphics;
using Tests::CCanvas;

namespace
{

constexpr int side = 12;

/// Draws on a cleared picture of side by side pixels.
void Draw(CCanvas& canvas, const CSegment& segment, const CRect& clip = {0, 0, side, side})
{
    CLineRasterizer rasterizer;
    rasterizer.DrawSegment({canvas.GetBitmap().GetData(), 4 * side, clip}, {0, 0, 0}, segment);
}

/// The share of the pixel within half a pixel of the segment's line and between its ends, by counting points.
double CountCoverage(const CSegment& s, int x, int y)
{
    constexpr int points = 40;
    const double dx = s.bx - s.ax;
    const double dy = s.by - s.ay;
    const double length = std::sqrt(dx * dx + dy * dy);
    int inside = 0;
    for (int i = 0; i < points * points; ++i)
    {
        const int column = i % points;
        const int row = i / points;
        const double px = x + (column + 0.5) / points - s.ax;
        const double py = y + (row + 0.5) / points - s.ay;
        const double along = (px * dx + py * dy) / length;
        const double aside = (px * dy - py * dx) / length;
        inside += along >= 0.0 && along <= length && std::fabs(aside) <= 0.5 ? 1 : 0;
    }
    return static_cast<double>(inside) / (points * points);
}

double Coordinate()
{
    return *rc::gen::inRange(-300, 1500) / 100.0;
}

} // namespace

RC_GTEST_PROP(CLineRasterizer, CoversEachPixelByTheAreaOfTheLine, ())
{
    const CSegment segment = {Coordinate(), Coordinate(), Coordinate(), Coordinate()};
    RC_PRE(std::fabs(segment.ax - segment.bx) + std::fabs(segment.ay - segment.by) > 0.01);
    CCanvas canvas(side, side);
    Draw(canvas, segment);
    for (int y = 0; y < side; ++y)
    {
        for (int x = 0; x < side; ++x)
        {
            // Counting points along an edge that runs with their rows is off by up to a row at each edge.
            RC_ASSERT(std::fabs(canvas.AlphaAt(x, y) / 255.0 - CountCoverage(segment, x, y)) < 0.055);
        }
    }
}

TEST(CLineRasterizer, CoverageOfPlainCasesIsExact)
{
    CCanvas canvas(side, side);
    Draw(canvas, {2.5, 3.5, 6.5, 3.5});
    EXPECT_EQ(canvas.AlphaAt(2, 3), 128);
    EXPECT_EQ(canvas.AlphaAt(4, 3), 255);
    EXPECT_EQ(canvas.AlphaAt(6, 3), 128);
    EXPECT_EQ(canvas.CountPainted(), 5);
    CCanvas quarter(side, side);
    Draw(quarter, {2.0, 3.75, 4.0, 3.75});
    EXPECT_EQ(quarter.AlphaAt(2, 3), 191);
    EXPECT_EQ(quarter.AlphaAt(3, 4), 64);
    CCanvas upward(side, side);
    Draw(upward, {5.5, 9.0, 5.5, 1.0});
    EXPECT_EQ(upward.AlphaAt(5, 1), 255);
    EXPECT_EQ(upward.CountPainted(), 8);
}

TEST(CLineRasterizer, NothingIsWrittenOutsideOfTheClip)
{
    CCanvas whole(side, side);
    CCanvas clipped(side, side);
    const CSegment segment = {-3.0, 1.0, 14.0, 9.5};
    const CRect clip = {3, 2, 5, 4};
    Draw(whole, segment);
    Draw(clipped, segment, clip);
    for (int y = 0; y < side; ++y)
    {
        for (int x = 0; x < side; ++x)
        {
            EXPECT_EQ(clipped.At(x, y), clip.Contains({x, y}) ? whole.At(x, y) : 0U);
        }
    }
}

TEST(CLineRasterizer, SegmentWithoutLengthDrawsNothing)
{
    CCanvas canvas(side, side);
    Draw(canvas, {3.5, 3.5, 3.5, 3.5});
    EXPECT_EQ(canvas.CountPainted(), 0);
}

TEST(CLineRasterizer, BlendsTheColourOverWhatIsThere)
{
    CCanvas canvas(4, 1);
    canvas->SetFillColor({100, 200, 0});
    canvas->FillRect({0, 0, 4, 1});
    CLineRasterizer rasterizer;
    rasterizer.DrawSegment({canvas.GetBitmap().GetData(), 16, {0, 0, 4, 1}}, {200, 100, 50},
                           {0.5, 0.5, 2.5, 0.5});
    EXPECT_EQ(canvas.At(1, 0), 0xffc86432U);
    EXPECT_EQ(canvas.At(0, 0), 0xff966419U + 0x3200U);
    EXPECT_EQ(canvas.At(3, 0), 0xff64c800U);
}

/// The drawing library counts fifteen rows to a pixel; a polyline drawn by it, line by line, is the
/// reference.
RC_GTEST_PROP(CLineRasterizer, PolylineIsThePictureThatTheLibraryDraws, ())
{
    const auto count = static_cast<std::size_t>(*rc::gen::inRange(2, 6));
    std::vector<CPointF> points(count);
    for (CPointF& point : points)
    {
        point = {static_cast<float>(Coordinate()), static_cast<float>(Coordinate())};
    }
    const CPoint origin = {*rc::gen::inRange(-3, 4), *rc::gen::inRange(-3, 4)};
    const CRect clip = {*rc::gen::inRange(-2, 6), *rc::gen::inRange(-2, 6), 8, 8};
    CCanvas own(side, side);
    CCanvas library(side, side);
    for (CCanvas* canvas : {&own, &library})
    {
        (*canvas)->SetFillColor({255, 255, 255});
        (*canvas)->FillRect({0, 0, side, side});
        (*canvas)->SetPenColor({200, 30, 90});
        (*canvas)->Translate(origin);
        (*canvas)->ClipToRect(clip);
    }
    own->DrawPolylineF(points.data(), static_cast<int>(count));
    for (std::size_t i = 1; i < count; ++i)
    {
        library->DrawLineF(points[i - 1], points[i]);
    }
    for (int y = 0; y < side; ++y)
    {
        for (int x = 0; x < side; ++x)
        {
            for (const unsigned shift : {0U, 8U, 16U, 24U})
            {
                const int a = static_cast<int>((own.At(x, y) >> shift) & 255U);
                const int b = static_cast<int>((library.At(x, y) >> shift) & 255U);
                RC_ASSERT(std::abs(a - b) <= 34);
            }
        }
    }
}

TEST(CLineRasterizer, SurfacesThatAreNotPlainAreLeftToTheLibrary)
{
    const CPointF points[] = {{1.0F, 1.0F}, {5.0F, 1.0F}};
    CCanvas scaled(side, side);
    cairo_scale(scaled->GetNativeContext(), 2.0, 2.0);
    scaled->DrawPolylineF(points, 2);
    EXPECT_EQ(scaled.AlphaAt(5, 2), 255);
    EXPECT_EQ(scaled.AlphaAt(5, 3), 255);
    EXPECT_EQ(scaled.CountPainted(), 16);

    CCanvas moved(side, side);
    cairo_translate(moved->GetNativeContext(), 0.0, 0.5);
    moved->DrawPolylineF(points, 2);
    EXPECT_NEAR(moved.AlphaAt(3, 1), 128, 1);
    EXPECT_NEAR(moved.AlphaAt(3, 2), 128, 1);

    CCanvas odd(side, side);
    cairo_rectangle(odd->GetNativeContext(), 0, 0, 3, 3);
    cairo_rectangle(odd->GetNativeContext(), 4, 0, 3, 3);
    cairo_clip(odd->GetNativeContext());
    odd->DrawPolylineF(points, 2);
    EXPECT_EQ(odd.AlphaAt(3, 1), 0);
    EXPECT_EQ(odd.AlphaAt(2, 1), 255);
}
