#include "Mirel/Graphics/CBitmap.h"

#include "Mirel/Graphics/CBitmapAdapter.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CBitmapSurface.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/Limits.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

using namespace Mirel::Graphics;

namespace
{

constexpr int depths[] = {8, 16, 24, 32};

CColor PixelOf(CBitmap& bitmap, int x, int y)
{
    return bitmap.CreatePixelAccess()->GetPixel(x, y);
}

} // namespace

TEST(CDIBBitmap, PixelsAreClearedAtCreation)
{
    for (const int depth : depths)
    {
        CDIBBitmap bitmap(depth, {5, 3});
        EXPECT_EQ(bitmap.GetSize(), (CSize{5, 3}));
        EXPECT_EQ(bitmap.GetDepth(), depth);
        const std::uint8_t* data = bitmap.GetData();
        EXPECT_TRUE(std::all_of(data, data + 3 * GetStride(5, depth), [](int byte) { return byte == 0; }));
        EXPECT_EQ(bitmap.GetContext()->GetStride(), GetStride(5, depth));
    }
}

TEST(CDIBBitmap, SizeWithoutPixelsIsEmpty)
{
    CDIBBitmap bitmap(32, {4, 4});
    bitmap.SetSize({0, 10});
    EXPECT_EQ(bitmap.GetContext(), nullptr);
    EXPECT_EQ(bitmap.GetSize(), CSize());
    EXPECT_EQ(bitmap.GetDepth(), 32);
    EXPECT_EQ(bitmap.GetData(), nullptr);
    EXPECT_EQ(bitmap.CreateSurface()->GetBitmap(), nullptr);
    EXPECT_EQ(bitmap.CreateBitmapSurface(), nullptr);
    EXPECT_EQ(bitmap.CreatePixelAccess(), nullptr);
    EXPECT_TRUE(bitmap.CreateImage()->IsEmpty());
}

TEST(CDIBBitmap, DrawingIntoAnEmptyOneDoesNothing)
{
    CDIBBitmap bitmap(32);
    const CDIBBitmap other(32, {1, 1});
    const auto surface = bitmap.CreateSurface();
    surface->SaveState();
    surface->Translate({1, 1});
    surface->ClipToRect({0, 0, 1, 1});
    surface->DrawLine({0, 0}, {3, 3});
    surface->FillRect({0, 0, 3, 3});
    surface->DrawBitmap(other, {0, 0}, {0, 0}, {1, 1});
    surface->RestoreState();
    EXPECT_EQ(surface->GetClipBox(), CRect());
    EXPECT_EQ(surface->GetTranslation(), CPoint());
    EXPECT_EQ(surface->GetContextSize(), CSize());
    bitmap.Clear();
}

TEST(CDIBBitmap, ResizeReplacesByClearedPixelsOfTheSameDepth)
{
    for (const int depth : depths)
    {
        CDIBBitmap bitmap(depth, {4, 4});
        bitmap.CreatePixelAccess()->SetPixel(0, 0, {255, 255, 255});
        const CBitmapContext* before = bitmap.GetContext();
        bitmap.SetSize({4, 4});
        EXPECT_EQ(bitmap.GetContext(), before);
        bitmap.SetSize({2, 6});
        EXPECT_EQ(bitmap.GetSize(), (CSize{2, 6}));
        EXPECT_EQ(bitmap.GetDepth(), depth);
        EXPECT_EQ(PixelOf(bitmap, 0, 0), CColor());
    }
}

TEST(CDIBBitmap, EmptyOneGrowsAgainInItsDepth)
{
    CDIBBitmap bitmap(24, {3, 3});
    bitmap.SetSize({-1, 5});
    bitmap.SetSize({2, 2});
    EXPECT_EQ(bitmap.GetContext()->GetDepth(), 24);
}

TEST(CDIBBitmap, SizesBeyondTheLimitAndOtherDepthsStayEmpty)
{
    EXPECT_EQ(CDIBBitmap(32, {1 << 20, 1 << 20}).GetContext(), nullptr);
    EXPECT_EQ(CDIBBitmap(1, {4, 4}).GetContext(), nullptr);
}

TEST(CDIBBitmap, MemoryLongerThanCanBeDrawnIntoHasNoSurface)
{
    for (const int depth : depths)
    {
        CDIBBitmap strip(depth, {1, CLimits::maxDrawingSide + 1});
        EXPECT_NE(strip.GetContext(), nullptr);
        EXPECT_EQ(strip.CreateBitmapSurface(), nullptr);
    }
}

TEST(CDIBBitmap, ClearZeroesAllPixels)
{
    for (const int depth : depths)
    {
        CDIBBitmap bitmap(depth, {3, 2});
        bitmap.CreatePixelAccess()->SetPixel(2, 1, {255, 255, 255});
        bitmap.Clear();
        const std::uint8_t* data = bitmap.GetData();
        EXPECT_TRUE(std::all_of(data, data + 2 * GetStride(3, depth), [](int byte) { return byte == 0; }));
    }
}

TEST(CDIBBitmap, DrawingArrivesInTheStatedLayoutWhenTheSurfaceGoes)
{
    for (const int depth : depths)
    {
        CDIBBitmap bitmap(depth, {3, 2});
        CDIBBitmap expected(depth, {3, 2});
        expected.CreatePixelAccess()->SetPixel(2, 1, {200, 100, 50});
        {
            const auto surface = bitmap.CreateSurface();
            surface->SetFillColor({200, 100, 50});
            surface->FillRect({2, 1, 1, 1});
        }
        if (depth == 32)
        {
            EXPECT_EQ(PixelOf(bitmap, 2, 1), (CColor{200, 100, 50}));
        }
        else
        {
            const auto bytes = 2 * GetStride(3, depth);
            EXPECT_TRUE(std::equal(bitmap.GetData(), bitmap.GetData() + bytes, expected.GetData())) << depth;
        }
    }
}

TEST(CDIBBitmap, DrawingNothingLeavesEveryValueOfEachDepth)
{
    for (const int depth : {8, 16, 24})
    {
        CDIBBitmap bitmap(depth, {256, 1});
        for (int x = 0; x < 256; ++x)
        {
            const auto v = static_cast<std::uint8_t>(x);
            const auto opposite = static_cast<std::uint8_t>(255 - x);
            bitmap.CreatePixelAccess()->SetPixel(x, 0, {v, opposite, v});
        }
        const auto bytes = GetStride(256, depth);
        const std::vector<std::uint8_t> before(bitmap.GetData(), bitmap.GetData() + bytes);
        bitmap.CreateSurface();
        EXPECT_TRUE(std::equal(before.begin(), before.end(), bitmap.GetData())) << depth;
    }
}

TEST(CDIBBitmap, TwoSurfacesOfOneBitmapKeepEachOthersDrawing)
{
    CDIBBitmap bitmap(24, {2, 1});
    {
        const auto first = bitmap.CreateSurface();
        first->SetFillColor({10, 20, 30});
        first->FillRect({0, 0, 1, 1});
        const auto second = bitmap.CreateSurface();
        second->SetFillColor({40, 50, 60});
        second->FillRect({1, 0, 1, 1});
    }
    EXPECT_EQ(PixelOf(bitmap, 0, 0), (CColor{10, 20, 30}));
    EXPECT_EQ(PixelOf(bitmap, 1, 0), (CColor{40, 50, 60}));
}

TEST(CDIBBitmap, ImageSharesThePixelsAndKeepsThem)
{
    CSharedImage image;
    {
        CDIBBitmap bitmap(32, {2, 2});
        image = bitmap.CreateImage();
        bitmap.CreatePixelAccess()->SetPixel(1, 1, {1, 2, 3});
    }
    EXPECT_EQ(image->GetSize(), (CSize{2, 2}));
    EXPECT_EQ(image->CreatePixelAccess()->GetPixel(1, 1), (CColor{1, 2, 3}));
    EXPECT_TRUE(image->HasAlpha());
}

TEST(CDIBBitmap, SurfaceOutlivesAResizeAndTheBitmap)
{
    auto bitmap = std::make_unique<CDIBBitmap>(16, CSize{4, 4});
    const auto surface = bitmap->CreateSurface();
    bitmap->SetSize({2, 2});
    bitmap.reset();
    surface->FillRect({0, 0, 4, 4});
    EXPECT_EQ(surface->GetContextSize(), (CSize{4, 4}));
}

TEST(CSharedBitmap, StartsEmpty)
{
    const CSharedBitmap bitmap;
    EXPECT_EQ(bitmap.GetUseCount(), 0);
    EXPECT_EQ(bitmap.GetDepth(), 0);
    const auto shared = bitmap.Share();
    EXPECT_EQ(shared->GetContext(), nullptr);
    EXPECT_EQ(shared->GetUseCount(), 0);
}

TEST(CSharedBitmap, SharesCountUpAndDown)
{
    const CDIBBitmap bitmap(32, {2, 2});
    const auto shared = bitmap.Share();
    auto cloned = shared->Clone();
    EXPECT_EQ(shared->GetContext(), bitmap.GetContext());
    EXPECT_EQ(cloned->GetContext(), bitmap.GetContext());
    EXPECT_EQ(bitmap.GetUseCount(), 3);
    cloned.reset();
    EXPECT_EQ(bitmap.GetUseCount(), 2);
    shared->Detach();
    EXPECT_EQ(bitmap.GetUseCount(), 1);
    EXPECT_EQ(shared->GetContext(), nullptr);
}

TEST(CSharedBitmap, PixelsGoWithTheLastUser)
{
    auto context = CBitmapContext::Create({2, 2}, 32);
    const std::weak_ptr<CBitmapContext> watched = context;
    auto bitmap = std::make_unique<CSharedBitmap>();
    bitmap->Attach(std::move(context));
    const auto shared = bitmap->Share();
    bitmap.reset();
    EXPECT_FALSE(watched.expired());
    shared->Detach();
    EXPECT_TRUE(watched.expired());
}

TEST(CSharedBitmap, ResizeLeavesTheOthersTheirPixels)
{
    CDIBBitmap bitmap(32, {2, 2});
    const auto shared = bitmap.Share();
    bitmap.SetSize({5, 5});
    EXPECT_EQ(shared->GetSize(), (CSize{2, 2}));
    EXPECT_EQ(shared->GetUseCount(), 1);
    EXPECT_EQ(bitmap.GetUseCount(), 1);
}

TEST(CSharedBitmap, ShareIsCountedAcrossThreads)
{
    const CDIBBitmap bitmap(32, {2, 2});
    const auto shareOften = [&]
    {
        for (int i = 0; i < 1000; ++i)
        {
            bitmap.Share();
        }
    };
    std::thread other(shareOften);
    shareOften();
    other.join();
    EXPECT_EQ(bitmap.GetUseCount(), 1);
}

TEST(CBitmapAdapter, DetachLeavesThePixelsAlone)
{
    const auto context = CBitmapContext::Create({2, 2}, 8);
    CBitmapAdapter adapter(context.get());
    EXPECT_EQ(adapter.GetDepth(), 8);
    EXPECT_EQ(context.use_count(), 1);
    adapter.Detach();
    EXPECT_EQ(adapter.GetContext(), nullptr);
    EXPECT_EQ(context->GetSize(), (CSize{2, 2}));
}

TEST(CBitmapAdapter, ResizeGoesOnWithMemoryOfItsOwn)
{
    const auto context = CBitmapContext::Create({2, 2}, 8);
    CBitmapAdapter adapter(context.get());
    adapter.SetSize({3, 3});
    EXPECT_NE(adapter.GetContext(), context.get());
    EXPECT_EQ(adapter.GetDepth(), 8);
    EXPECT_EQ(context->GetSize(), (CSize{2, 2}));
    adapter.Attach(context.get());
    EXPECT_EQ(adapter.GetContext(), context.get());
}
