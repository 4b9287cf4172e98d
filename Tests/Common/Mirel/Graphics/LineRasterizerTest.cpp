#include "Mirel/Graphics/LineRasterizer.h"

#include "Canvas.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <utility>
#include <vector>

using namespace Mirel::Graphics;
using Tests::CCanvas;

namespace
{

constexpr int side = 12;

/// Draws on a cleared picture of side by side pixels.
void Draw(CCanvas& canvas, const CSegment& segment, const CRect& clip = {0, 0, side, side}, int width = 1)
{
    DrawSegment({canvas.GetBitmap().GetData(), 4 * side, clip}, {0, 0, 0}, segment, width);
}

/// The share of the pixel within half the width of the segment's line and between its ends, by counting
/// points.
double CountCoverage(const CSegment& s, int x, int y, int width = 1)
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
        inside += along >= 0.0 && along <= length && std::fabs(aside) <= 0.5 * width ? 1 : 0;
    }
    return static_cast<double>(inside) / (points * points);
}

double Coordinate()
{
    return *rc::gen::inRange(-300, 1500) / 100.0;
}

} // namespace

RC_GTEST_PROP(LineRasterizer, CoversEachPixelByTheAreaOfTheLine, ())
{
    const CSegment segment = {Coordinate(), Coordinate(), Coordinate(), Coordinate()};
    RC_PRE(std::fabs(segment.ax - segment.bx) + std::fabs(segment.ay - segment.by) > 0.01);
    const int width = *rc::gen::inRange(1, 5);
    CCanvas canvas(side, side);
    Draw(canvas, segment, {0, 0, side, side}, width);
    for (int y = 0; y < side; ++y)
    {
        for (int x = 0; x < side; ++x)
        {
            // Counting points along an edge that runs with their rows is off by up to a row at each edge.
            RC_ASSERT(std::fabs(canvas.AlphaAt(x, y) / 255.0 - CountCoverage(segment, x, y, width)) < 0.055);
        }
    }
}

/// Long steep lines take another way inside than at their ends.
RC_GTEST_PROP(LineRasterizer, LongSteepLinesCoverEachPixelByTheirArea, ())
{
    constexpr int width = 24;
    constexpr int height = 64;
    const auto along = [](int end) { return *rc::gen::inRange(-200, end * 100 + 200) / 100.0; };
    CSegment segment = {along(width), along(height), along(width), along(height)};
    if (*rc::gen::arbitrary<bool>())
    {
        // The next column: what traces are made of.
        segment.bx = segment.ax + 1.0;
    }
    RC_PRE(std::fabs(segment.ay - segment.by) > std::fabs(segment.ax - segment.bx));
    const int thickness = *rc::gen::inRange(1, 4);
    CCanvas canvas(width, height);
    DrawSegment({canvas.GetBitmap().GetData(), 4 * width, {0, 0, width, height}}, {0, 0, 0}, segment,
                thickness);
    for (int y = 0; y < height; ++y)
    {
        const double middle =
            segment.ax + (y + 0.5 - segment.ay) / (segment.by - segment.ay) * (segment.bx - segment.ax);
        for (int x = 0; x < width; ++x)
        {
            const bool isNear = std::fabs(x + 0.5 - middle) < 2.0 * thickness + 1.0;
            const double expected = isNear ? CountCoverage(segment, x, y, thickness) : 0.0;
            RC_ASSERT(std::fabs(canvas.AlphaAt(x, y) / 255.0 - expected) < 0.055);
        }
    }
}

TEST(LineRasterizer, ClipsOfFewColumnsAreKeptToo)
{
    for (int clipWidth = 1; clipWidth < 7; ++clipWidth)
    {
        for (const CSegment& segment :
             {CSegment{2.3, -2.0, 5.1, 14.0}, CSegment{6.0, 1.2, 5.0, 10.7}, CSegment{3.5, 0.0, 3.5, 12.0},
              CSegment{0.0, 3.0, 12.0, 5.0}, CSegment{1.0, 4.5, 9.2, 4.5}})
        {
            CCanvas whole(side, side);
            CCanvas clipped(side, side);
            const CRect clip = {3, 2, clipWidth, 7};
            Draw(whole, segment);
            Draw(clipped, segment, clip);
            for (int y = 0; y < side; ++y)
            {
                for (int x = 0; x < side; ++x)
                {
                    // A narrow clip may take another way, with other roundings.
                    const int expected = clip.Contains({x, y}) ? whole.AlphaAt(x, y) : 0;
                    EXPECT_NEAR(clipped.AlphaAt(x, y), expected, clip.Contains({x, y}) ? 1 : 0);
                }
            }
        }
    }
}

TEST(LineRasterizer, LinesAlongPixelsAreExact)
{
    CCanvas canvas(side, side);
    Draw(canvas, {3.5, 1.25, 3.5, 6.5});
    EXPECT_EQ(canvas.AlphaAt(3, 1), 191);
    EXPECT_EQ(canvas.At(3, 2), 0xff000000U);
    EXPECT_EQ(canvas.At(3, 5), 0xff000000U);
    EXPECT_EQ(canvas.AlphaAt(3, 6), 128);
    EXPECT_EQ(canvas.CountPainted(), 6);
    CCanvas level(side, side);
    Draw(level, {9.25, 7.5, -4.0, 7.5});
    EXPECT_EQ(level.At(0, 7), 0xff000000U);
    EXPECT_EQ(level.At(8, 7), 0xff000000U);
    EXPECT_EQ(level.AlphaAt(9, 7), 64);
    EXPECT_EQ(level.CountPainted(), 10);
    CCanvas wide(side, side);
    Draw(wide, {2.0, 4.0, 6.5, 4.0}, {0, 0, side, side}, 2);
    EXPECT_EQ(wide.At(2, 3), 0xff000000U);
    EXPECT_EQ(wide.At(5, 4), 0xff000000U);
    EXPECT_EQ(wide.AlphaAt(6, 4), 128);
    EXPECT_EQ(wide.CountPainted(), 10);
    CCanvas inside(side, side);
    Draw(inside, {5.5, 3.25, 5.5, 3.75});
    EXPECT_EQ(inside.AlphaAt(5, 3), 128);
    EXPECT_EQ(inside.CountPainted(), 1);
}

TEST(LineRasterizer, CoverageOfPlainCasesIsExact)
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

RC_GTEST_PROP(LineRasterizer, ClipShowsAPartOfTheWholePictureAndNothingElse, ())
{
    const CSegment segment = {Coordinate(), Coordinate(), Coordinate(), Coordinate()};
    const int width = *rc::gen::inRange(1, 5);
    const int left = *rc::gen::inRange(0, side);
    const int top = *rc::gen::inRange(0, side);
    const CRect clip = {left, top, *rc::gen::inRange(1, side - left + 1),
                        *rc::gen::inRange(1, side - top + 1)};
    CCanvas whole(side, side);
    CCanvas clipped(side, side);
    Draw(whole, segment, {0, 0, side, side}, width);
    Draw(clipped, segment, clip, width);
    for (int y = 0; y < side; ++y)
    {
        for (int x = 0; x < side; ++x)
        {
            // At the edge of a clip a line may take another way, with other roundings.
            const bool isInside = clip.Contains({x, y});
            const int expected = isInside ? whole.AlphaAt(x, y) : 0;
            RC_ASSERT(std::abs(clipped.AlphaAt(x, y) - expected) <= (isInside ? 2 : 0));
        }
    }
}

TEST(LineRasterizer, SegmentWithoutLengthDrawsNothing)
{
    CCanvas canvas(side, side);
    Draw(canvas, {3.5, 3.5, 3.5, 3.5});
    EXPECT_EQ(canvas.CountPainted(), 0);
}

TEST(LineRasterizer, BlendsTheColourOverWhatIsThere)
{
    CCanvas canvas(4, 1);
    canvas->SetFillColor({100, 200, 0});
    canvas->FillRect({0, 0, 4, 1});
    DrawSegment({canvas.GetBitmap().GetData(), 16, {0, 0, 4, 1}}, {200, 100, 50}, {0.5, 0.5, 2.5, 0.5});
    EXPECT_EQ(canvas.At(1, 0), 0xffc86432U);
    EXPECT_EQ(canvas.At(0, 0), 0xff966419U + 0x3200U);
    EXPECT_EQ(canvas.At(3, 0), 0xff64c800U);
}

namespace
{

/// The greatest and the mean difference of the bytes of two pictures.
struct CDifference
{
    int greatest = 0;
    double mean = 0.0;
};

CDifference Compare(const CCanvas& a, const CCanvas& b, CSize size)
{
    CDifference difference;
    for (int i = 0; i < size.width * size.height; ++i)
    {
        for (const unsigned shift : {0U, 8U, 16U, 24U})
        {
            const int ours = static_cast<int>((a.At(i % size.width, i / size.width) >> shift) & 255U);
            const int theirs = static_cast<int>((b.At(i % size.width, i / size.width) >> shift) & 255U);
            difference.greatest = std::max(difference.greatest, std::abs(ours - theirs));
            difference.mean += std::abs(ours - theirs);
        }
    }
    difference.mean /= 4.0 * size.width * size.height;
    return difference;
}

/// The same lines, stroked by the drawing library one by one.
void StrokeByLibrary(CCanvas& canvas, const std::vector<CPointF>& points)
{
    cairo_t* context = canvas->GetNativeContext();
    const CColor pen = canvas->GetPenColor();
    cairo_set_source_rgb(context, ToUnit(pen.r), ToUnit(pen.g), ToUnit(pen.b));
    for (std::size_t i = 1; i < points.size(); ++i)
    {
        const auto place = [](float value) { return static_cast<double>(value) + 0.5; };
        // Without a length the library paints nothing.
        const bool isDot = points[i - 1].x == points[i].x && points[i - 1].y == points[i].y;
        const double extra = isDot ? 0.5 : 0.0;
        cairo_move_to(context, place(points[i - 1].x) - extra, place(points[i - 1].y));
        cairo_line_to(context, place(points[i].x) + extra, place(points[i].y));
        cairo_stroke(context);
    }
}

} // namespace

/// The drawing library counts fifteen rows to a pixel; a polyline drawn by it, line by line, is the
/// reference.
RC_GTEST_PROP(LineRasterizer, PolylineIsThePictureThatTheLibraryDraws, ())
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
    StrokeByLibrary(library, points);
    RC_ASSERT(Compare(own, library, {side, side}).greatest <= 34);
}

/// Noise, a sine of many periods and one of few, as a curve graph draws them: the bounds hold for what is
/// seen as one picture.
TEST(LineRasterizer, TracesAreThePicturesThatTheLibraryDraws)
{
    constexpr CSize size = {400, 250};
    for (const double periods : {-1.0, 176.0, 3.5})
    {
        for (const auto& [perColumn, scale] : {std::pair(1, 1), std::pair(2, 1), std::pair(2, 2)})
        {
            std::vector<CPointF> points;
            std::uint32_t random = 3;
            for (int i = 0; i < size.width * perColumn; ++i)
            {
                random = random * 1664525U + 1013904223U;
                const double place = static_cast<double>(i) / perColumn / size.width;
                const double value = periods < 0.0 ? random / 2147483648.0 - 1.0
                                                   : std::sin(periods * 2.0 * 3.14159265 * place);
                points.push_back({static_cast<float>(i / perColumn),
                                  static_cast<float>((1.0 - value) * (size.height - 1) / 2.0)});
            }
            const CSize pixels = {size.width * scale, size.height * scale};
            CCanvas own(pixels.width, pixels.height);
            CCanvas library(pixels.width, pixels.height);
            for (CCanvas* canvas : {&own, &library})
            {
                (*canvas)->Scale(scale);
                (*canvas)->SetFillColor({20, 24, 32});
                (*canvas)->FillRect({0, 0, size.width, size.height});
                (*canvas)->SetPenColor({90, 220, 120});
            }
            own->DrawPolylineF(points.data(), static_cast<int>(points.size()));
            StrokeByLibrary(library, points);
            const CDifference difference = Compare(own, library, pixels);
            EXPECT_LE(difference.greatest, 32) << periods << ' ' << perColumn << ' ' << scale;
            EXPECT_LE(difference.mean, 1.5) << periods << ' ' << perColumn << ' ' << scale;
        }
    }
}

/// As on a screen whose pixels are finer than those of the skin.
RC_GTEST_PROP(LineRasterizer, ScaledPolylineIsThePictureThatTheLibraryDraws, ())
{
    const int scale = *rc::gen::inRange(2, 5);
    const auto count = static_cast<std::size_t>(*rc::gen::inRange(2, 6));
    std::vector<CPointF> points(count);
    for (CPointF& point : points)
    {
        point = {static_cast<float>(Coordinate()), static_cast<float>(Coordinate())};
    }
    const CPoint origin = {*rc::gen::inRange(-3, 4), *rc::gen::inRange(-3, 4)};
    const CRect clip = {*rc::gen::inRange(-2, 6), *rc::gen::inRange(-2, 6), 8, 8};
    const CSize size = {side * scale, side * scale};
    CCanvas own(size.width, size.height);
    CCanvas library(size.width, size.height);
    for (CCanvas* canvas : {&own, &library})
    {
        (*canvas)->SetFillColor({255, 255, 255});
        (*canvas)->FillRect({CPoint(), size});
        (*canvas)->SetPenColor({200, 30, 90});
        (*canvas)->Scale(scale);
        (*canvas)->Translate(origin);
        (*canvas)->ClipToRect(clip);
    }
    own->DrawPolylineF(points.data(), static_cast<int>(count));
    StrokeByLibrary(library, points);
    RC_ASSERT(Compare(own, library, size).greatest <= 34);
}

TEST(LineRasterizer, BitmapsWithADeviceScaleShowTheSameLinesAsScaledSurfaces)
{
    const CPointF points[] = {{1.0F, 1.0F}, {9.5F, 3.25F}, {2.0F, 10.0F}, {2.0F, 10.0F}};
    CDIBBitmap fine(32, {side, side}, 3);
    const auto surface = fine.CreateSurface();
    surface->DrawPolylineF(points, 4);
    CCanvas scaled(3 * side, 3 * side);
    scaled->Scale(3.0);
    scaled->DrawPolylineF(points, 4);
    EXPECT_EQ(std::memcmp(fine.GetData(), scaled.GetBitmap().GetData(), std::size_t{4} * 9 * side * side), 0);
    EXPECT_GT(scaled.CountPainted(), 0);
}

TEST(LineRasterizer, SurfacesThatAreNotPlainAreLeftToTheLibrary)
{
    const CPointF points[] = {{1.0F, 1.0F}, {5.0F, 1.0F}};
    // From 1.5 to 5.5 across and from 1 to 2 down, times one and a half.
    CCanvas scaled(side, side);
    scaled->Scale(1.5);
    scaled->DrawPolylineF(points, 2);
    EXPECT_NEAR(scaled.AlphaAt(4, 1), 128, 1);
    EXPECT_EQ(scaled.AlphaAt(4, 2), 255);
    EXPECT_EQ(scaled.AlphaAt(4, 3), 0);
    EXPECT_NEAR(scaled.AlphaAt(8, 2), 64, 1);

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
