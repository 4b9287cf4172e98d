#include "Canvas.h"
#include "Mirel/Graphics/C2DRectangleGraphics.h"
#include "Mirel/Graphics/CColorDrawer.h"
#include "Mirel/Graphics/CImageGraphics.h"
#include "Mirel/Graphics/ImageFile.h"

#include <cairo.h>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

using namespace Mirel::Graphics;
using Tests::CCanvas;

namespace
{

constexpr int width = 480;
constexpr int height = 320;

void PaintGrid(CDrawSurface& surface)
{
    CColorDrawer ground({20, 24, 32});
    ground.SetSize({width, height});
    ground.Draw(surface, nullptr);
    surface.SetPenColor({50, 60, 70});
    for (int x = 0; x < width; x += 20)
    {
        surface.DrawLine({x, 0}, {x, height});
    }
    for (int y = 0; y < height; y += 20)
    {
        surface.DrawLine({0, y}, {width, y});
    }
    surface.SetPenColor({255, 255, 255});
    surface.DrawRect({0, 0, width, height});
}

void PaintLines(CDrawSurface& surface)
{
    surface.SetPenColor({90, 220, 120});
    std::vector<CPointF> trace;
    constexpr int points = 440;
    trace.reserve(points);
    for (int x = 0; x < points; ++x)
    {
        trace.push_back(
            {static_cast<float>(x + 20), 80.0F - 50.0F * std::sin(static_cast<float>(x) / 22.0F)});
    }
    surface.DrawPolylineF(trace.data(), static_cast<int>(trace.size()));
    surface.SetPenColor({240, 180, 60});
    for (int i = 0; i < 24; ++i)
    {
        const double angle = i * std::numbers::pi / 12;
        surface.DrawLineF({80.0F, 220.0F}, {static_cast<float>(80.0 + 60.0 * std::cos(angle)),
                                            static_cast<float>(220.0 + 60.0 * std::sin(angle))});
    }
    for (int i = 0; i < 20; ++i)
    {
        surface.DrawPoint({150 + 4 * i, 156});
        const CPoint dot = {150 + 4 * i, 164};
        surface.DrawPoints(&dot, 1);
    }
}

/// An arrow that points to the upper left corner, in the colours of its quarters.
void PaintArrow(CDrawSurface& surface)
{
    constexpr CColor quarters[] = {{220, 40, 40}, {40, 200, 40}, {60, 80, 240}, {230, 220, 40}};
    for (int i = 0; i < 4; ++i)
    {
        surface.SetFillColor(quarters[i]);
        surface.FillRect({i % 2 * 20, i / 2 * 20, 20, 20});
    }
    surface.SetPenColor({255, 255, 255});
    surface.DrawLine({2, 2}, {36, 36});
    surface.DrawLine({2, 2}, {2, 14});
    surface.DrawLine({2, 2}, {14, 2});
}

void PaintImages(CDrawSurface& surface)
{
    int x = 160;
    for (const int depth : {32, 24, 16, 8})
    {
        CDIBBitmap arrow(depth, {40, 40});
        PaintArrow(*arrow.CreateSurface());
        surface.DrawBitmap(arrow, {0, 0}, {x, 180}, {40, 40});
        surface.DrawBitmapAlpha(arrow, {0, 0}, {x, 225}, {40, 40}, 128);
        surface.StretchBitmap(arrow, {0, 0, 40, 40}, {x, 270, 45, 30});
        x += 50;
    }
    CLayer arrow({40, 40});
    PaintArrow(*arrow.CreateSurface());
    surface.SaveState();
    surface.Translate({370, 180});
    CImageGraphics tiles(std::make_unique<CNormalImageElement>(arrow.CreateImage()),
                         CImageGraphics::ETileMode::Repeat);
    tiles.SetSize({90, 60});
    tiles.Draw(surface, nullptr);
    C2DRectangleGraphics outline({255, 0, 255});
    outline.SetSize({90, 60});
    outline.Draw(surface, nullptr);
    surface.Translate({0, 70});
    surface.ClipToRect({0, 0, 30, 50});
    surface.DrawLayerInRect(arrow, {0, 0, 90, 50});
    surface.RestoreState();
}

} // namespace

/// A picture for the eye, left in the build folder; what can be told in numbers, other tests tell.
TEST(TestCard, ReadsBackAsItWasPainted)
{
    CCanvas canvas(width, height);
    PaintGrid(*canvas);
    PaintLines(*canvas);
    PaintImages(*canvas);
    cairo_surface_flush(cairo_get_target(canvas->GetNativeContext()));
    ASSERT_EQ(cairo_surface_write_to_png(cairo_get_target(canvas->GetNativeContext()), TEST_CARD),
              CAIRO_STATUS_SUCCESS);

    const CSharedImage read = ReadImageFile(TEST_CARD, std::int64_t{width} * height);
    ASSERT_NE(read, nullptr);
    const auto pixels = read->CreatePixelAccess();
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            ASSERT_EQ(pixels->GetPixel(x, y).Pack(), canvas.At(x, y) & 0xffffffU);
        }
    }
}
