#include "Mirel/Graphics/CDrawSurface.h"

#include "Canvas.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace Mirel::Graphics;
using Tests::CCanvas;

namespace
{

/// Opaque, each pixel telling where it was: red is 40 * x + 10, green 40 * y + 10.
CColor MarkAt(int x, int y)
{
    return {static_cast<std::uint8_t>(40 * x + 10), static_cast<std::uint8_t>(40 * y + 10), 128};
}

void Mark(CBitmap& bitmap)
{
    const auto access = bitmap.CreatePixelAccess();
    for (int y = 0; y < bitmap.GetSize().height; ++y)
    {
        for (int x = 0; x < bitmap.GetSize().width; ++x)
        {
            access->SetPixel(x, y, MarkAt(x, y));
        }
    }
}

std::uint32_t MarkedPixel(int x, int y)
{
    return 0xff000000U | MarkAt(x, y).Pack();
}

class CDrawSurfaceImages : public testing::Test
{
public:
    CDrawSurfaceImages() { Mark(source); }

protected:
    CDIBBitmap source{32, {4, 4}};
    CCanvas canvas{10, 10};
};

} // namespace

TEST_F(CDrawSurfaceImages, PartOfABitmapArrivesTopLeftUpright)
{
    canvas->DrawBitmap(source, {1, 2}, {5, 3}, {2, 2});
    EXPECT_EQ(canvas.At(5, 3), MarkedPixel(1, 2));
    EXPECT_EQ(canvas.At(6, 3), MarkedPixel(2, 2));
    EXPECT_EQ(canvas.At(5, 4), MarkedPixel(1, 3));
    EXPECT_EQ(canvas.At(6, 4), MarkedPixel(2, 3));
    EXPECT_EQ(canvas.CountPainted(), 4);
}

TEST_F(CDrawSurfaceImages, ImageDrawsLikeItsBitmap)
{
    canvas->Translate({1, 1});
    canvas->DrawImage(*source.CreateImage(), {0, 0}, {2, 2}, {4, 4});
    EXPECT_EQ(canvas.At(3, 3), MarkedPixel(0, 0));
    EXPECT_EQ(canvas.At(6, 6), MarkedPixel(3, 3));
    EXPECT_EQ(canvas.CountPainted(), 16);
}

TEST_F(CDrawSurfaceImages, WhatLiesOutsideOfTheSourceIsLeftOut)
{
    canvas->DrawBitmap(source, {-1, 3}, {2, 2}, {3, 3});
    EXPECT_EQ(canvas.At(3, 2), MarkedPixel(0, 3));
    EXPECT_EQ(canvas.At(4, 2), MarkedPixel(1, 3));
    EXPECT_EQ(canvas.CountPainted(), 2);
    canvas->DrawBitmap(source, {4, 0}, {0, 0}, {2, 2});
    canvas->DrawBitmap(source, {0, 0}, {0, 0}, {0, 2});
    EXPECT_EQ(canvas.CountPainted(), 2);
}

RC_GTEST_FIXTURE_PROP(CDrawSurfaceImages, EveryPartLandsPixelByPixel, ())
{
    const auto from = [](int low, int high) { return *rc::gen::inRange(low, high); };
    const CPoint src = {from(-3, 6), from(-3, 6)};
    const CPoint dst = {from(-5, 12), from(-5, 12)};
    const CSize size = {from(0, 8), from(0, 8)};
    canvas->DrawBitmap(source, src, dst, size);
    for (int y = 0; y < 10; ++y)
    {
        for (int x = 0; x < 10; ++x)
        {
            const CPoint at = {x - dst.x + src.x, y - dst.y + src.y};
            const bool drawn = CRect(dst, size).Contains({x, y}) && CRect(0, 0, 4, 4).Contains(at);
            RC_ASSERT(canvas.At(x, y) == (drawn ? MarkedPixel(at.x, at.y) : 0U));
        }
    }
}

TEST_F(CDrawSurfaceImages, OpacityBlendsOnce)
{
    canvas->SetFillColor({255, 255, 255});
    canvas->FillRect({0, 0, 10, 10});
    canvas->DrawBitmapAlpha(source, {0, 0}, {0, 0}, {1, 1}, 128);
    const std::uint32_t pixel = canvas.At(0, 0);
    EXPECT_NEAR((pixel >> 16U) & 255U, 10 * 128 / 255.0 + 255 * 127 / 255.0, 1.5);
    EXPECT_EQ(pixel >> 24U, 255U);
    canvas->DrawImageAlpha(*source.CreateImage(), {0, 0}, {1, 0}, {1, 1}, 128);
    EXPECT_EQ(canvas.At(1, 0), pixel);
}

TEST_F(CDrawSurfaceImages, FullAndNoOpacityAreExact)
{
    canvas->DrawBitmapAlpha(source, {0, 0}, {0, 0}, {4, 4}, 255);
    EXPECT_EQ(canvas.At(3, 1), MarkedPixel(3, 1));
    canvas->DrawBitmapAlpha(source, {0, 0}, {5, 5}, {4, 4}, 0);
    EXPECT_EQ(canvas.CountPainted(), 16);
}

TEST_F(CDrawSurfaceImages, OpacityDoesNotLastBeyondTheCall)
{
    canvas->DrawBitmapAlpha(source, {0, 0}, {0, 0}, {1, 1}, 50);
    canvas->FillRect({5, 5, 1, 1});
    EXPECT_EQ(canvas.AlphaAt(5, 5), 255);
}

TEST_F(CDrawSurfaceImages, TransparentPixelsLetTheGroundThrough)
{
    CDIBBitmap clear(32, {2, 2});
    canvas->SetFillColor({10, 20, 30});
    canvas->FillRect({0, 0, 10, 10});
    canvas->DrawBitmap(clear, {0, 0}, {0, 0}, {2, 2});
    EXPECT_EQ(canvas.At(0, 0), 0xff0a141eU);
}

TEST_F(CDrawSurfaceImages, StretchScalesTheSourcePartAlone)
{
    canvas->StretchBitmap(source, {1, 1, 1, 1}, {2, 3, 5, 4});
    EXPECT_EQ(canvas.CountPainted(), 20);
    for (const CPoint at : {CPoint{2, 3}, CPoint{6, 6}, CPoint{4, 5}})
    {
        EXPECT_EQ(canvas.At(at.x, at.y), MarkedPixel(1, 1));
    }
}

TEST_F(CDrawSurfaceImages, StretchWithoutAChangeOfSizeIsACopy)
{
    canvas->StretchImage(*source.CreateImage(), {0, 0, 4, 4}, {3, 3, 4, 4});
    EXPECT_EQ(canvas.At(4, 6), MarkedPixel(1, 3));
    EXPECT_EQ(canvas.CountPainted(), 16);
}

TEST_F(CDrawSurfaceImages, StretchStandsTheLargestRectangles)
{
    constexpr int far = 2147483647;
    canvas->StretchBitmap(source, {0, 0, 1, 1}, {-far, -far, far, far});
    EXPECT_EQ(canvas.CountPainted(), 0);
    canvas->StretchBitmap(source, {0, 0, 1, 1}, {0, 0, far, far});
    EXPECT_EQ(canvas.At(9, 9), MarkedPixel(0, 0));
}

TEST_F(CDrawSurfaceImages, BitmapsOfOtherDepthsDrawTheirColours)
{
    for (const int depth : {8, 16, 24})
    {
        CCanvas target(2, 1);
        CDIBBitmap white(depth, {2, 1});
        white.CreatePixelAccess()->SetPixel(1, 0, {255, 255, 255});
        target->DrawBitmap(white, {0, 0}, {0, 0}, {2, 1});
        EXPECT_EQ(target.At(0, 0), 0xff000000U) << depth;
        EXPECT_EQ(target.At(1, 0), 0xffffffffU) << depth;
    }
}

TEST_F(CDrawSurfaceImages, StripLongerThanASurfaceGivesItsParts)
{
    CDIBBitmap strip(32, {1, 40000});
    strip.CreatePixelAccess()->SetPixel(0, 39999, {1, 2, 3});
    canvas->DrawBitmap(strip, {0, 39999}, {0, 0}, {1, 1});
    EXPECT_EQ(canvas.At(0, 0), 0xff010203U);
}

TEST_F(CDrawSurfaceImages, LayersDrawAtAPointWithOpacityAndInARectangle)
{
    CLayer layer({4, 4});
    Mark(layer);
    canvas->DrawLayer(layer, {1, 1});
    EXPECT_EQ(canvas.At(1, 1), MarkedPixel(0, 0));
    EXPECT_EQ(canvas.At(4, 4), MarkedPixel(3, 3));
    EXPECT_EQ(canvas.CountPainted(), 16);
    canvas->DrawLayerAlpha(layer, {6, 6}, 128);
    EXPECT_NEAR(canvas.AlphaAt(6, 6), 128, 1);
    CCanvas large(10, 10);
    large->DrawLayerInRect(layer, {0, 0, 8, 8});
    EXPECT_EQ(large.CountPainted(), 64);
    EXPECT_EQ(large.At(0, 0), MarkedPixel(0, 0));
    EXPECT_EQ(large.At(7, 7), MarkedPixel(3, 3));
}

TEST_F(CDrawSurfaceImages, BitmapDrawnOntoItselfIsReadBeforeItIsWritten)
{
    for (const CPoint shift : {CPoint{1, 1}, CPoint{-1, -1}, CPoint{0, 2}, CPoint{2, 0}})
    {
        CDIBBitmap bitmap(32, {4, 4});
        Mark(bitmap);
        bitmap.CreateSurface()->DrawBitmap(bitmap, {0, 0}, shift, {4, 4});
        const auto access = bitmap.CreatePixelAccess();
        for (int i = 0; i < 16; ++i)
        {
            const CPoint from = {i % 4 - shift.x, i / 4 - shift.y};
            const bool moved = CRect(0, 0, 4, 4).Contains(from);
            EXPECT_EQ(access->GetPixel(i % 4, i / 4), moved ? MarkAt(from.x, from.y) : MarkAt(i % 4, i / 4));
        }
    }
    CDIBBitmap grey(8, {3, 1});
    for (int x = 0; x < 3; ++x)
    {
        const auto v = static_cast<std::uint8_t>(10 * (x + 1));
        grey.CreatePixelAccess()->SetPixel(x, 0, {v, v, v});
    }
    grey.CreateSurface()->DrawBitmap(grey, {0, 0}, {1, 0}, {2, 1});
    EXPECT_EQ(grey.GetData()[0], 10);
    EXPECT_EQ(grey.GetData()[1], 10);
    EXPECT_EQ(grey.GetData()[2], 20);
}
