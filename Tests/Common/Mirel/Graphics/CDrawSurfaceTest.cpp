#include "Mirel/Graphics/CDrawSurface.h"

#include "Canvas.h"

#include <cairo.h>
#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::Graphics;
using Tests::CCanvas;

namespace
{

constexpr int full = 255;
constexpr int half = 128;

/// Coverage from two half-covering lines: what the first lets through, the second covers by half.
constexpr int corner = 191;

} // namespace

TEST(CDrawSurface, LineRunsThroughPixelCentres)
{
    CCanvas canvas(9, 7);
    canvas->SetPenColor({200, 100, 50});
    canvas->DrawLine({2, 3}, {6, 3});
    EXPECT_NEAR(canvas.AlphaAt(2, 3), half, 1);
    for (int x = 3; x < 6; ++x)
    {
        EXPECT_EQ(canvas.At(x, 3), 0xffc86432U);
    }
    EXPECT_NEAR(canvas.AlphaAt(6, 3), half, 1);
    EXPECT_EQ(canvas.CountPainted(), 5);
}

TEST(CDrawSurface, VerticalLineRunsDownward)
{
    CCanvas canvas(4, 8);
    canvas->DrawLine({1, 2}, {1, 6});
    EXPECT_EQ(canvas.AlphaAt(1, 3), full);
    EXPECT_EQ(canvas.AlphaAt(1, 5), full);
    EXPECT_EQ(canvas.AlphaAt(1, 1), 0);
    EXPECT_EQ(canvas.AlphaAt(1, 7), 0);
    EXPECT_EQ(canvas.CountPainted(), 5);
}

TEST(CDrawSurface, DiagonalCoversTheAreaOfALineOnePixelWide)
{
    CCanvas canvas(20, 20);
    canvas->DrawLine({3, 3}, {15, 12});
    double covered = 0.0;
    for (int y = 0; y < 20; ++y)
    {
        for (int x = 0; x < 20; ++x)
        {
            covered += canvas.AlphaAt(x, y) / 255.0;
        }
    }
    // A triangle of 9, 12 and 15: fifteen pixels long.
    EXPECT_NEAR(covered, 15.0, 0.3);
}

TEST(CDrawSurface, LineWithoutLengthPaintsItsPixel)
{
    CCanvas canvas(4, 4);
    canvas->DrawLine({1, 2}, {1, 2});
    EXPECT_EQ(canvas.At(1, 2), 0xff000000U);
    EXPECT_EQ(canvas.CountPainted(), 1);
}

TEST(CDrawSurface, FloatLinesHaveTheSameHalfPixelOffset)
{
    CCanvas whole(9, 7);
    CCanvas floats(9, 7);
    whole->DrawLine({1, 1}, {6, 4});
    floats->DrawLineF({1.0F, 1.0F}, {6.0F, 4.0F});
    for (int y = 0; y < 7; ++y)
    {
        for (int x = 0; x < 9; ++x)
        {
            EXPECT_EQ(whole.At(x, y), floats.At(x, y));
        }
    }
    CCanvas between(9, 7);
    between->DrawLineF({1.0F, 2.5F}, {7.0F, 2.5F});
    EXPECT_NEAR(between.AlphaAt(4, 2), half, 1);
    EXPECT_NEAR(between.AlphaAt(4, 3), half, 1);
}

TEST(CDrawSurface, PolylineJoinsSuccessivePoints)
{
    CCanvas canvas(9, 9);
    const CPoint points[] = {{1, 1}, {5, 1}, {5, 6}};
    canvas->DrawPolyline(points, 3);
    EXPECT_EQ(canvas.AlphaAt(3, 1), full);
    EXPECT_EQ(canvas.AlphaAt(5, 3), full);
    EXPECT_NEAR(canvas.AlphaAt(5, 1), corner, 2);
    const CPointF floats[] = {{1.0F, 8.0F}, {5.0F, 8.0F}};
    canvas->DrawPolylineF(floats, 2);
    EXPECT_EQ(canvas.AlphaAt(3, 8), full);
}

TEST(CDrawSurface, PolylineOfOnePointDrawsNothing)
{
    CCanvas canvas(4, 4);
    const CPoint point = {1, 1};
    const CPointF floatPoint = {1.0F, 1.0F};
    canvas->DrawPolyline(&point, 1);
    canvas->DrawPolylineF(&floatPoint, 1);
    canvas->DrawPolyline(nullptr, 0);
    EXPECT_EQ(canvas.CountPainted(), 0);
}

TEST(CDrawSurface, PointCoversTheRightHalfOfItsPixel)
{
    CCanvas canvas(4, 4);
    canvas->DrawPoint({1, 2});
    EXPECT_NEAR(canvas.AlphaAt(1, 2), half, 1);
    EXPECT_EQ(canvas.CountPainted(), 1);
    CCanvas floats(4, 4);
    floats->DrawPointF({1.0F, 2.0F});
    EXPECT_EQ(floats.At(1, 2), canvas.At(1, 2));
}

TEST(CDrawSurface, PointsAreSegmentsWithoutLength)
{
    CCanvas canvas(4, 4);
    const CPoint points[] = {{1, 1}, {3, 2}};
    canvas->DrawPoints(points, 1);
    EXPECT_EQ(canvas.AlphaAt(1, 1), full);
    EXPECT_EQ(canvas.CountPainted(), 1);
    canvas->DrawPoints(points, 2);
    EXPECT_EQ(canvas.CountPainted(), 2);
    const CPointF floats[] = {{0.0F, 3.0F}};
    canvas->DrawPointsF(floats, 1);
    EXPECT_EQ(canvas.AlphaAt(0, 3), full);
}

TEST(CDrawSurface, RectangleIsAnOutlineInsideItsSize)
{
    CCanvas canvas(8, 8);
    canvas->DrawRect({1, 2, 5, 4});
    EXPECT_EQ(canvas.AlphaAt(3, 2), full);
    EXPECT_EQ(canvas.AlphaAt(3, 5), full);
    EXPECT_EQ(canvas.AlphaAt(1, 3), full);
    EXPECT_EQ(canvas.AlphaAt(5, 4), full);
    EXPECT_NEAR(canvas.AlphaAt(1, 2), corner, 2);
    EXPECT_NEAR(canvas.AlphaAt(5, 5), corner, 2);
    EXPECT_EQ(canvas.AlphaAt(3, 3), 0);
    EXPECT_EQ(canvas.CountPainted(), 2 * 5 + 2 * 2);
}

TEST(CDrawSurface, RectangleOfOnePixelPaintsThatPixel)
{
    CCanvas canvas(4, 4);
    canvas->DrawRect({2, 1, 1, 1});
    EXPECT_EQ(canvas.AlphaAt(2, 1), full);
    EXPECT_EQ(canvas.CountPainted(), 1);
}

TEST(CDrawSurface, RectangleWithoutPixelsDrawsNothing)
{
    CCanvas canvas(4, 4);
    canvas->DrawRect({1, 1, 0, 3});
    canvas->DrawRect({1, 1, 3, 0});
    canvas->DrawRect({3, 3, -2, -2});
    canvas->FillRect({1, 1, 0, 3});
    canvas->FillRect({3, 3, -2, -2});
    EXPECT_EQ(canvas.CountPainted(), 0);
}

TEST(CDrawSurface, FillCoversWholePixels)
{
    CCanvas canvas(5, 5);
    canvas->SetFillColor({255, 128, 1});
    canvas->SetPenColor({1, 1, 1});
    canvas->FillRect({1, 2, 3, 2});
    EXPECT_EQ(canvas.CountPainted(), 6);
    EXPECT_EQ(canvas.At(1, 2), 0xffff8001U);
    EXPECT_EQ(canvas.At(3, 3), 0xffff8001U);
}

TEST(CDrawSurface, EveryComponentArrivesAsGiven)
{
    CCanvas canvas(256, 1);
    for (int x = 0; x < 256; ++x)
    {
        const auto v = static_cast<std::uint8_t>(x);
        canvas->SetFillColor({v, 0, static_cast<std::uint8_t>(255 - v)});
        canvas->FillRect({x, 0, 1, 1});
        EXPECT_EQ(canvas.At(x, 0), 0xff000000U | static_cast<unsigned>(x << 16 | (255 - x)));
    }
}

TEST(CDrawSurface, PenStyleChangesNothing)
{
    for (std::uint32_t style = 0; style < 5; ++style)
    {
        CCanvas canvas(9, 3);
        canvas->SetPenStyle(style);
        canvas->DrawLine({-1, 1}, {9, 1});
        EXPECT_EQ(canvas.CountPainted(), 9);
    }
}

TEST(CDrawSurface, CoordinatesFarOutsideDrawWhatIsSeen)
{
    constexpr int far = std::numeric_limits<int>::max();
    CCanvas canvas(5, 5);
    canvas->DrawLine({-far, 2}, {far, 2});
    EXPECT_EQ(canvas.AlphaAt(0, 2), full);
    EXPECT_EQ(canvas.AlphaAt(4, 2), full);
    EXPECT_EQ(canvas.CountPainted(), 5);
    canvas->DrawLineF({2.0F, -1e30F}, {2.0F, 1e30F});
    EXPECT_EQ(canvas.CountPainted(), 9);
    canvas->DrawRect({far - 1, far - 1, far, far});
    EXPECT_EQ(canvas.CountPainted(), 9);
    canvas->FillRect({-far, -far, far, far});
    EXPECT_EQ(canvas.CountPainted(), 9);
    canvas->FillRect({-10, -10, far, far});
    EXPECT_EQ(canvas.CountPainted(), 25);
}

TEST(CDrawSurface, CoordinatesThatAreNotFiniteDrawNothingAndDoNoHarm)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    CCanvas canvas(5, 5);
    for (const float odd : {nan, infinity, -infinity})
    {
        canvas->DrawLineF({odd, 1.0F}, {3.0F, 1.0F});
        canvas->DrawLineF({1.0F, 1.0F}, {3.0F, odd});
        canvas->DrawLineF({odd, odd}, {odd, odd});
        canvas->DrawPointF({odd, 1.0F});
    }
    EXPECT_EQ(canvas.CountPainted(), 0);
    canvas->DrawLine({0, 1}, {4, 1});
    EXPECT_EQ(canvas.CountPainted(), 5);
}

TEST(CDrawSurface, TranslationMovesTheOriginAndAddsUp)
{
    CCanvas canvas(8, 8);
    EXPECT_EQ(canvas->GetTranslation(), CPoint());
    canvas->Translate({3, 4});
    canvas->Translate({1, -2});
    EXPECT_EQ(canvas->GetTranslation(), (CPoint{4, 2}));
    canvas->FillRect({0, 0, 1, 1});
    EXPECT_EQ(canvas.AlphaAt(4, 2), full);
    EXPECT_EQ(canvas->GetClipBox(), CRect(-4, -2, 8, 8));
}

TEST(CDrawSurface, TranslationIsRoundedByAddingHalf)
{
    CCanvas canvas(8, 8);
    cairo_translate(canvas->GetNativeContext(), 2.5, 3.4);
    // On a bitmap y is 8 - truncate(8 - 3.4 + 0.5).
    EXPECT_EQ(canvas->GetTranslation(), (CPoint{3, 3}));

    cairo_surface_t* target = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 2, 2);
    CDrawSurface surface(cairo_create(target));
    cairo_translate(surface.GetNativeContext(), 2.5, 3.4);
    EXPECT_EQ(surface.GetTranslation(), (CPoint{3, 3}));
    cairo_surface_destroy(target);
}

TEST(CDrawSurface, RoundingOfATranslationGoesTowardsZero)
{
    cairo_surface_t* target = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 2, 2);
    CDrawSurface surface(cairo_create(target));
    surface.Translate({-16, -18});
    EXPECT_EQ(surface.GetTranslation(), (CPoint{-15, -17}));
    cairo_surface_destroy(target);

    CCanvas canvas(8, 8);
    canvas->Translate({-16, -18});
    EXPECT_EQ(canvas->GetTranslation(), (CPoint{-15, -18}));
}

TEST(CDrawSurface, ClipBoxTruncatesItsOriginAndRoundsItsSize)
{
    CCanvas canvas(8, 8);
    cairo_scale(canvas->GetNativeContext(), 2.0, 2.0);
    EXPECT_EQ(canvas->GetClipBox(), CRect(0, 0, 4, 4));
    cairo_translate(canvas->GetNativeContext(), -1.75, -1.25);
    EXPECT_EQ(canvas->GetClipBox(), CRect(1, 1, 4, 4));
}

TEST(CDrawSurface, ClipsIntersect)
{
    CCanvas canvas(8, 8);
    canvas->ClipToRect({1, 1, 5, 5});
    canvas->ClipToRect({3, 0, 8, 4});
    EXPECT_EQ(canvas->GetClipBox(), CRect(3, 1, 3, 3));
    canvas->FillRect({0, 0, 8, 8});
    EXPECT_EQ(canvas.CountPainted(), 9);
    canvas->ClipToRect({0, 0, -1, 5});
    EXPECT_TRUE(canvas->GetClipBox().IsEmpty());
    canvas->FillRect({0, 0, 8, 8});
    EXPECT_EQ(canvas.CountPainted(), 9);
}

TEST(CDrawSurface, RestoreBringsBackPenFillOriginAndClip)
{
    CCanvas canvas(8, 8);
    canvas->SetPenColor({1, 2, 3});
    canvas->SetFillColor({255, 0, 0});
    canvas->SaveState();
    canvas->SetPenColor({9, 9, 9});
    canvas->SetFillColor({0, 255, 0});
    canvas->Translate({2, 2});
    canvas->ClipToRect({0, 0, 1, 1});
    canvas->SaveState();
    canvas->SetPenColor({7, 7, 7});
    canvas->RestoreState();
    EXPECT_EQ(canvas->GetPenColor(), (CColor{9, 9, 9}));
    canvas->RestoreState();
    EXPECT_EQ(canvas->GetPenColor(), (CColor{1, 2, 3}));
    EXPECT_EQ(canvas->GetTranslation(), CPoint());
    EXPECT_EQ(canvas->GetClipBox(), CRect(0, 0, 8, 8));
    canvas->FillRect({0, 0, 1, 1});
    EXPECT_EQ(canvas.At(0, 0), 0xffff0000U);
}

TEST(CDrawSurface, RestoreWithoutSaveDoesNothing)
{
    CCanvas canvas(4, 4);
    canvas->SetPenColor({1, 2, 3});
    canvas->RestoreState();
    EXPECT_EQ(canvas->GetPenColor(), (CColor{1, 2, 3}));
    canvas->FillRect({0, 0, 4, 4});
    EXPECT_EQ(canvas.CountPainted(), 16);
}

TEST(CDrawSurface, TextsAreClippedUntilSaidOtherwise)
{
    CDrawSurface surface(nullptr);
    EXPECT_FALSE(surface.GetTextNoClip());
    surface.SetTextNoClip(true);
    EXPECT_TRUE(surface.GetTextNoClip());
}

TEST(CDrawSurface, PlainSurfaceOverAnImageHasABitmapView)
{
    cairo_surface_t* target = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 6, 5);
    CDrawSurface surface(cairo_create(target));
    CBitmap* bitmap = surface.GetBitmap();
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetSize(), (CSize{6, 5}));
    EXPECT_EQ(bitmap->GetDepth(), 32);
    EXPECT_EQ(bitmap->GetData(), cairo_image_surface_get_data(target));
    EXPECT_EQ(surface.GetBitmap(), bitmap);
    EXPECT_EQ(surface.GetBitmapView(), bitmap);
    EXPECT_EQ(surface.GetContextSize(), (CSize{6, 5}));
    cairo_surface_destroy(target);
}

TEST(CDrawSurface, SurfaceWithoutPixelsInMemoryHasNoBitmap)
{
    cairo_surface_t* target = cairo_recording_surface_create(CAIRO_CONTENT_COLOR, nullptr);
    CDrawSurface surface(cairo_create(target));
    EXPECT_EQ(surface.GetBitmap(), nullptr);
    EXPECT_EQ(surface.GetBitmapView(), nullptr);
    EXPECT_EQ(surface.GetContextSize(), CSize());
    surface.FillRect({0, 0, 5, 5});
    cairo_surface_destroy(target);
}

TEST(CDrawSurface, ContextGoesWithTheSurface)
{
    cairo_surface_t* target = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 2, 2);
    cairo_t* context = cairo_create(target);
    cairo_reference(context);
    {
        const CDrawSurface surface(context);
        EXPECT_EQ(surface.GetNativeContext(), context);
        EXPECT_EQ(cairo_get_reference_count(context), 2U);
    }
    EXPECT_EQ(cairo_get_reference_count(context), 1U);
    cairo_destroy(context);
    cairo_surface_destroy(target);
}

TEST(CBitmapSurface, ItsBitmapIsTheOneItDrawsInto)
{
    for (const int depth : {8, 16, 24, 32})
    {
        CDIBBitmap bitmap(depth, {3, 2});
        const auto surface = bitmap.CreateBitmapSurface();
        EXPECT_EQ(surface->GetBitmap()->GetContext(), bitmap.GetContext());
        EXPECT_EQ(surface->GetBitmapView(), surface->GetBitmap());
        EXPECT_EQ(surface->GetBitmap()->GetDepth(), depth);
        EXPECT_EQ(surface->GetContextSize(), (CSize{3, 2}));
        surface->GetPixelAccess()->SetPixel(1, 1, {255, 255, 255});
        EXPECT_NE(bitmap.CreatePixelAccess()->GetPixel(1, 1), CColor());
    }
}

TEST(CBitmapSurface, ContextWithoutPixelsIsRefused)
{
    EXPECT_EQ(CBitmapSurface::Create(nullptr), nullptr);
}
