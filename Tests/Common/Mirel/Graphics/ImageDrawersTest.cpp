#include "Mirel/Graphics/CImageGraphics.h"
#include "Mirel/Graphics/CImageGroupBoxGraphics.h"
#include "Mirel/Graphics/CMultiFilmStripDrawer.h"
#include "Mirel/Graphics/CMultiImageDrawer.h"

#include "Canvas.h"
#include "Changes.h"
#include "Mirel/Graphics/CSimple2DRegion.h"
#include "Pictures.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace Mirel::Graphics;
using Tests::CCanvas;
using Tests::CChanges;
using Tests::MakeGrey;
using Tests::MakePicture;
using Tests::MarkedPixel;
using EOrientation = CMultiFilmStripDrawer::EOrientation;
using ETileMode = CImageGraphics::ETileMode;

namespace
{

std::unique_ptr<CImageElement> MakeElement(CSize size, CSharedImage mouseMask = nullptr)
{
    return std::make_unique<CNormalImageElement>(MakePicture(size), std::move(mouseMask));
}

/// A catalog with a strip of that size as state 0.
CImageCatalog* MakeStrip(CSize size, CSharedImage mouseMask = nullptr)
{
    auto catalog = std::make_unique<CImageCatalog>();
    catalog->SetEntry(0, MakeElement(size, std::move(mouseMask)));
    return catalog.release();
}

} // namespace

TEST(CMultiFilmStripDrawer, FrameBeginsAtTheIntegerShareOfTheStrip)
{
    CMultiFilmStripDrawer drawer(MakeStrip({3, 101}), true, 2, EOrientation::Vertical);
    EXPECT_EQ(drawer.GetSize(), (CSize{3, 50}));
    drawer.SetFrame(1);
    CCanvas canvas(3, 60);
    drawer.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.At(0, 0), MarkedPixel(0, 50));
    EXPECT_EQ(canvas.At(2, 49), MarkedPixel(2, 99));
    EXPECT_EQ(canvas.CountPainted(), 150);
}

RC_GTEST_PROP(CMultiFilmStripDrawer, EveryFrameIsItsPieceOfTheStrip, ())
{
    const int length = *rc::gen::inRange(1, 200);
    const int count = *rc::gen::inRange(1, length + 1);
    const int frame = *rc::gen::inRange(0, count);
    const bool horizontal = *rc::gen::arbitrary<bool>();
    const CSize strip = horizontal ? CSize{length, 2} : CSize{2, length};
    CMultiFilmStripDrawer drawer(MakeStrip(strip), true, count,
                                 horizontal ? EOrientation::Horizontal : EOrientation::Vertical);
    drawer.SetFrame(frame);
    CCanvas canvas(strip.width, strip.height);
    drawer.Draw(*canvas, nullptr);
    const int begin = frame * length / count;
    const int last = length / count - 1;
    RC_ASSERT(canvas.At(0, 0) == (horizontal ? MarkedPixel(begin, 0) : MarkedPixel(0, begin)));
    RC_ASSERT(canvas.At(horizontal ? last : 1, horizontal ? 1 : last) ==
              (horizontal ? MarkedPixel(begin + last, 1) : MarkedPixel(1, begin + last)));
    RC_ASSERT(canvas.CountPainted() == 2 * (length / count));
}

TEST(CMultiFilmStripDrawer, RegionCutsTheFrame)
{
    CMultiFilmStripDrawer drawer(MakeStrip({40, 5}), true, 4, EOrientation::Horizontal);
    drawer.SetFrame(2);
    const CSimple2DRegion region(CRect(3, 1, 2, 2));
    CCanvas canvas(10, 5);
    drawer.Draw(*canvas, &region);
    EXPECT_EQ(canvas.CountPainted(), 4);
    EXPECT_EQ(canvas.At(3, 1), MarkedPixel(23, 1));
}

TEST(CMultiFilmStripDrawer, LargerAreaDoesNotShowTheNextFrame)
{
    CMultiFilmStripDrawer drawer(MakeStrip({4, 20}), true, 4, EOrientation::Vertical);
    drawer.SetSize({4, 15});
    EXPECT_FALSE(drawer.IsOpaque());
    CCanvas canvas(4, 20);
    drawer.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 20);
}

TEST(CMultiFilmStripDrawer, FramesThatThereAreNotDrawAndHitNothing)
{
    for (const int count : {0, -1, 2})
    {
        CMultiFilmStripDrawer drawer(MakeStrip({4, 4}), true, count, EOrientation::Vertical);
        drawer.SetSize({4, 4});
        CCanvas canvas(4, 4);
        for (const int frame : {-1, 2, 2147483647})
        {
            drawer.SetFrame(frame);
            drawer.Draw(*canvas, nullptr);
            EXPECT_FALSE(drawer.HitTest({1, 1}));
        }
        EXPECT_EQ(canvas.CountPainted(), 0);
    }
}

TEST(CMultiFilmStripDrawer, HitIsTakenInTheFrameThatIsShown)
{
    CMultiFilmStripDrawer drawer(MakeStrip({1, 4}, MakeGrey({1, 4}, {255, 255, 0, 255})), true, 2,
                                 EOrientation::Vertical);
    EXPECT_TRUE(drawer.HitTest({0, 0}));
    drawer.SetFrame(1);
    EXPECT_FALSE(drawer.HitTest({0, 0}));
    EXPECT_TRUE(drawer.HitTest({0, 1}));
}

TEST(CMultiFilmStripDrawer, ChangesAreTold)
{
    CMultiFilmStripDrawer drawer(MakeStrip({4, 20}), true, 4, EOrientation::Vertical);
    const CChanges changes(drawer);
    drawer.SetFrame(0);
    drawer.SetState(0);
    EXPECT_TRUE(changes.areas.empty());
    drawer.SetFrame(3);
    drawer.SetState(1);
    EXPECT_EQ(changes.areas, (std::vector<CRect>{CRect(0, 0, 4, 5), CRect(0, 0, 4, 5)}));
    EXPECT_EQ(drawer.GetFrame(), 3);
    EXPECT_EQ(drawer.GetState(), 1);
}

TEST(CMultiFilmStripDrawer, BorrowedCatalogStays)
{
    const std::unique_ptr<CImageCatalog> catalog(MakeStrip({4, 20}));
    {
        const CMultiFilmStripDrawer drawer(catalog.get(), false, 4, EOrientation::Vertical);
    }
    EXPECT_EQ(catalog->GetSize(0), (CSize{4, 20}));
}

TEST(CMultiImageDrawer, DrawsAndHitsTheCurrentImage)
{
    auto catalog = std::make_unique<CImageCatalog>();
    catalog->SetEntry(0, MakeElement({2, 2}));
    catalog->SetEntry(1, MakeElement({4, 4}, MakeGrey({4, 4}, {0, 255})));
    CMultiImageDrawer drawer(catalog.release(), true);
    EXPECT_EQ(drawer.GetSize(), (CSize{2, 2}));
    EXPECT_TRUE(drawer.HitTest({0, 0}));
    const CChanges changes(drawer);
    drawer.SetIndex(1);
    drawer.SetIndex(1);
    EXPECT_EQ(changes.areas.size(), 1U);
    EXPECT_FALSE(drawer.HitTest({0, 0}));
    EXPECT_TRUE(drawer.HitTest({1, 0}));
    const CSimple2DRegion region(CRect(1, 1, 3, 3));
    CCanvas canvas(5, 5);
    drawer.Draw(*canvas, &region);
    EXPECT_EQ(canvas.CountPainted(), 9);
    EXPECT_EQ(canvas.At(1, 1), MarkedPixel(1, 1));
    drawer.SetIndex(7);
    drawer.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 9);
    EXPECT_FALSE(drawer.IsOpaque());
}

TEST(CImageGraphics, UntiledImageStandsTopLeft)
{
    CImageGraphics graphics(MakeElement({3, 2}));
    EXPECT_EQ(graphics.GetSize(), (CSize{3, 2}));
    EXPECT_TRUE(graphics.IsOpaque());
    graphics.SetSize({6, 6});
    EXPECT_FALSE(graphics.IsOpaque());
    CCanvas canvas(8, 8);
    graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 6);
    EXPECT_TRUE(graphics.HitTest({2, 1}));
    EXPECT_FALSE(graphics.HitTest({3, 1}));
}

RC_GTEST_PROP(CImageGraphics, RepeatedImageGoesOnOverTheWholeClip, ())
{
    const auto from = [](int low, int high) { return *rc::gen::inRange(low, high); };
    const CSize size = {from(1, 160), from(1, 160)};
    const CRect clip = {from(-20, 100), from(-20, 100), from(0, 200), from(0, 200)};
    CImageGraphics graphics(MakeElement(size), ETileMode::Repeat);
    const CSimple2DRegion region(clip);
    CCanvas canvas(200, 200);
    graphics.Draw(*canvas, &region);
    for (int y = 0; y < 200; ++y)
    {
        for (int x = 0; x < 200; ++x)
        {
            const std::uint32_t drawn = MarkedPixel(x % size.width, y % size.height);
            RC_ASSERT(canvas.At(x, y) == (clip.Contains({x, y}) ? drawn : 0U));
        }
    }
}

TEST(CImageGraphics, RepeatedHitIsTakenInThePiece)
{
    CImageGraphics graphics(MakeElement({2, 1}, MakeGrey({2, 1}, {0, 255})), ETileMode::Repeat);
    EXPECT_FALSE(graphics.HitTest({4, 7}));
    EXPECT_TRUE(graphics.HitTest({5, 7}));
    EXPECT_TRUE(graphics.HitTest({-1, 0}));
}

TEST(CImageGraphics, StretchedImageFillsTheAreaAndIsHitEverywhere)
{
    for (const bool hasAlpha : {false, true})
    {
        CImageGraphics graphics(std::make_unique<CNormalImageElement>(MakePicture({1, 1}, hasAlpha)),
                                ETileMode::Stretch);
        graphics.SetSize({7, 5});
        CCanvas canvas(9, 9);
        graphics.Draw(*canvas, nullptr);
        EXPECT_EQ(canvas.CountPainted(), 35);
        EXPECT_EQ(canvas.At(6, 4), MarkedPixel(0, 0));
        EXPECT_TRUE(graphics.HitTest({100, -100}));
        const CSimple2DRegion region(CRect(2, 2, 1, 1));
        CCanvas part(9, 9);
        graphics.Draw(*part, &region);
        EXPECT_EQ(part.CountPainted(), 1);
    }
}

TEST(CImageGraphics, StretchedCopyFollowsSizeAndImage)
{
    CImageGraphics graphics(MakeElement({1, 1}), ETileMode::Stretch);
    CCanvas canvas(9, 9);
    graphics.Draw(*canvas, nullptr);
    graphics.SetSize({9, 9});
    graphics.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 81);
    const CChanges changes(graphics);
    graphics.SetElement(std::make_unique<CAlphaImageElement>(MakePicture({1, 1}), MakeGrey({1, 1}, {0})));
    EXPECT_EQ(changes.areas.size(), 1U);
    CCanvas clear(9, 9);
    graphics.Draw(*clear, nullptr);
    EXPECT_EQ(clear.CountPainted(), 0);
}

TEST(CImageGraphics, MissingImageDrawsNothingInAnyMode)
{
    for (const ETileMode mode : {ETileMode::None, ETileMode::Repeat, ETileMode::Stretch})
    {
        CImageGraphics graphics(nullptr, ETileMode::None);
        graphics.SetTileMode(mode);
        graphics.SetSize({5, 5});
        CCanvas canvas(5, 5);
        graphics.Draw(*canvas, nullptr);
        EXPECT_EQ(canvas.CountPainted(), 0);
        EXPECT_EQ(graphics.HitTest({1, 1}), mode == ETileMode::Stretch);
    }
}

TEST(CImageGroupBoxGraphics, CornersStandEdgesAndCentreStretch)
{
    CImageGroupBoxGraphics box;
    for (int i = 0; i < 9; ++i)
    {
        auto pixels = CBitmapContext::Create({2, 2}, 32);
        for (const CPoint p : {CPoint{0, 0}, {1, 0}, {0, 1}, {1, 1}})
        {
            pixels->CreatePixelAccess()->SetPixel(p.x, p.y, {static_cast<std::uint8_t>(i + 1), 0, 0});
        }
        box.SetPart(static_cast<CImageGroupBoxGraphics::EPart>(i),
                    std::make_unique<CNormalImageElement>(std::make_shared<CImage>(pixels, false)));
    }
    box.SetSize({10, 8});
    CCanvas canvas(12, 12);
    box.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 80);
    for (int y = 0; y < 8; ++y)
    {
        for (int x = 0; x < 10; ++x)
        {
            const int column = x < 2 ? 0 : x < 8 ? 1 : 2;
            const int row = y < 2 ? 0 : y < 6 ? 1 : 2;
            EXPECT_EQ(canvas.At(x, y), 0xff000000U | static_cast<unsigned>((3 * row + column + 1) << 16));
        }
    }
    const CSimple2DRegion region(CRect(1, 1, 3, 3));
    CCanvas part(12, 12);
    box.Draw(*part, &region);
    EXPECT_EQ(part.CountPainted(), 9);
}

TEST(CImageGroupBoxGraphics, MissingPartsAndASmallAreaDoNoHarm)
{
    CImageGroupBoxGraphics box;
    CCanvas canvas(8, 8);
    box.SetSize({8, 8});
    box.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 0);
    box.SetPart(CImageGroupBoxGraphics::EPart::TopLeft, MakeElement({4, 4}));
    box.SetPart(CImageGroupBoxGraphics::EPart::Center, MakeElement({4, 4}));
    box.SetSize({3, 3});
    box.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 9);
}
