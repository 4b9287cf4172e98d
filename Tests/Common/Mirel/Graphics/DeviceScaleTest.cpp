#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CBitmapSurface.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CImageGraphics.h"
#include "Mirel/Graphics/ImageMask.h"
#include "Mirel/Graphics/Premultiply.h"
#include "Pictures.h"
#include "TextCanvas.h"

#include <gtest/gtest.h>

using namespace Mirel::Graphics;

namespace
{

std::uint32_t PixelAt(const CBitmap& bitmap, int x, int y)
{
    const CBitmapContext& pixels = *bitmap.GetContext();
    return LoadPixel(pixels.GetData() + std::int64_t{pixels.GetStride()} * y, x);
}

} // namespace

TEST(DeviceScale, BitmapHasMorePixelsThanItsSize)
{
    CDIBBitmap bitmap(32, {10, 5}, 2);
    EXPECT_EQ(bitmap.GetSize(), (CSize{10, 5}));
    EXPECT_EQ(bitmap.GetContext()->GetSize(), (CSize{20, 10}));
    EXPECT_EQ(bitmap.GetDeviceScale(), 2);
    bitmap.SetSize({4, 4});
    EXPECT_EQ(bitmap.GetContext()->GetSize(), (CSize{8, 8}));
    bitmap.SetSize({0, 4});
    EXPECT_EQ(bitmap.GetContext(), nullptr);
    bitmap.SetSize({3, 3});
    EXPECT_EQ(bitmap.GetContext()->GetSize(), (CSize{6, 6}));
    EXPECT_EQ(CDIBBitmap(32, {1, 1}, 9).GetDeviceScale(), 4);
    EXPECT_EQ(CDIBBitmap(32, {1, 1}, 0).GetDeviceScale(), 1);
}

TEST(DeviceScale, SurfaceKeepsTheCoordinatesOfTheSkin)
{
    CDIBBitmap bitmap(32, {10, 5}, 2);
    const auto surface = bitmap.CreateSurface();
    EXPECT_EQ(surface->GetDeviceScale(), 2);
    EXPECT_EQ(surface->GetContextSize(), (CSize{10, 5}));
    EXPECT_EQ(surface->GetClipBox(), (CRect{0, 0, 10, 5}));
    EXPECT_EQ(surface->GetBitmap()->GetSize(), (CSize{10, 5}));
    surface->Translate({3, -2});
    EXPECT_EQ(surface->GetTranslation(), (CPoint{3, -2}));
    surface->Translate({-3, 2});
    surface->SetFillColor({255, 0, 0});
    surface->FillRect({1, 1, 2, 1});
    EXPECT_EQ(PixelAt(bitmap, 1, 2), 0U);
    EXPECT_EQ(PixelAt(bitmap, 2, 2), 0xffff0000U);
    EXPECT_EQ(PixelAt(bitmap, 5, 3), 0xffff0000U);
    EXPECT_EQ(PixelAt(bitmap, 6, 3), 0U);
}

TEST(DeviceScale, LinesAreThatManyPixelsWide)
{
    CDIBBitmap bitmap(32, {10, 5}, 3);
    const auto surface = bitmap.CreateSurface();
    surface->SetPenColor({0, 0, 255});
    const CPoint points[] = {{0, 2}, {9, 2}};
    surface->DrawPolyline(points, 2);
    EXPECT_EQ(PixelAt(bitmap, 15, 5), 0U);
    EXPECT_EQ(PixelAt(bitmap, 15, 6), 0xff0000ffU);
    EXPECT_EQ(PixelAt(bitmap, 15, 8), 0xff0000ffU);
    EXPECT_EQ(PixelAt(bitmap, 15, 9), 0U);
}

TEST(DeviceScale, SharpImageIsDrawnPixelByPixel)
{
    const CSharedImage picture = MakeScaled(*Tests::MakePicture({8, 6}), 2);
    EXPECT_EQ(picture->GetSize(), (CSize{4, 3}));
    CDIBBitmap bitmap(32, {10, 10}, 2);
    bitmap.CreateSurface()->DrawImage(*picture, {1, 1}, {5, 5}, {2, 2});
    EXPECT_EQ(PixelAt(bitmap, 10, 10), Tests::MarkedPixel(2, 2));
    EXPECT_EQ(PixelAt(bitmap, 13, 13), Tests::MarkedPixel(5, 5));
    EXPECT_EQ(PixelAt(bitmap, 14, 13), 0U);
}

TEST(DeviceScale, LayersKeepTheirPixelsWhenDrawn)
{
    CLayer layer({4, 4}, 2);
    const CSharedImage picture = MakeScaled(*Tests::MakePicture({8, 8}), 2);
    layer.CreateSurface()->DrawImage(*picture, {0, 0}, {0, 0}, {4, 4});
    CDIBBitmap bitmap(32, {10, 10}, 2);
    bitmap.CreateSurface()->DrawLayer(layer, {1, 1});
    for (int i = 0; i < 64; ++i)
    {
        EXPECT_EQ(PixelAt(bitmap, 2 + i % 8, 2 + i / 8), Tests::MarkedPixel(i % 8, i / 8));
    }
}

TEST(DeviceScale, GraphicsKeepSharpCopiesOfTheirImages)
{
    const CSharedImage picture = MakeScaled(*Tests::MakePicture({8, 8}), 2);
    for (const auto mode : {CImageGraphics::ETileMode::Repeat, CImageGraphics::ETileMode::Stretch})
    {
        CImageGraphics graphics(std::make_unique<CNormalImageElement>(picture), mode);
        graphics.SetSize({4, 4});
        CDIBBitmap plain(32, {4, 4});
        graphics.Draw(*plain.CreateSurface(), nullptr);
        CDIBBitmap sharp(32, {4, 4}, 2);
        graphics.Draw(*sharp.CreateSurface(), nullptr);
        for (int i = 0; i < 64; ++i)
        {
            EXPECT_EQ(PixelAt(sharp, i % 8, i / 8), Tests::MarkedPixel(i % 8, i / 8));
        }
    }
}

TEST(DeviceScale, TextHasTheSameExtentAndMorePixels)
{
    const CSharedFont font = Tests::GetFonts().GetFont(Tests::Describe(12));
    CDIBBitmap plain(32, {80, 20});
    CDIBBitmap sharp(32, {80, 20}, 2);
    int painted[] = {0, 0};
    CSize extents[2];
    for (int i = 0; i < 2; ++i)
    {
        CDIBBitmap& bitmap = i == 0 ? plain : sharp;
        const auto surface = bitmap.CreateSurface();
        surface->SetFont(font);
        surface->SetPenColor({255, 255, 255});
        surface->DrawText("Level 0.5", {2, 2});
        extents[i] = surface->GetTextExtent("Level 0.5");
        const CSize pixels = bitmap.GetContext()->GetSize();
        for (int at = 0; at < pixels.width * pixels.height; ++at)
        {
            painted[i] += static_cast<int>(PixelAt(bitmap, at % pixels.width, at / pixels.width) >> 24U);
        }
    }
    EXPECT_EQ(extents[0], extents[1]);
    EXPECT_NEAR(painted[1] / 4.0, painted[0], 0.08 * painted[0]);
}
