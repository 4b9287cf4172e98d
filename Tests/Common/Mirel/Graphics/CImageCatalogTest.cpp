#include "Mirel/Graphics/CImageCatalog.h"

#include "Canvas.h"
#include "Pictures.h"

#include <gtest/gtest.h>

using namespace Mirel::Graphics;
using Tests::CCanvas;
using Tests::MakeGrey;
using Tests::MakePicture;
using Tests::MarkedPixel;

namespace
{

constexpr float threshold = CImageCatalog::hitThreshold;

std::unique_ptr<CImageElement> MakeElement(CSize size, CSharedImage mouseMask = nullptr)
{
    return std::make_unique<CNormalImageElement>(MakePicture(size), std::move(mouseMask));
}

class CCountedElement : public CNormalImageElement
{
public:
    explicit CCountedElement(int* deaths_) : CNormalImageElement(nullptr), deaths(deaths_) {}
    ~CCountedElement() override { ++*deaths; }

private:
    int* deaths;
};

} // namespace

TEST(CImageCatalog, IndexWithoutAnElementDoesNothing)
{
    CImageCatalog catalog;
    catalog.SetEntry(2, MakeElement({4, 4}));
    CCanvas canvas(4, 4);
    for (const int index : {-1, 0, 3, 1000})
    {
        catalog.Draw(index, *canvas, {0, 0, 4, 4}, {0, 0, 4, 4});
        EXPECT_FALSE(catalog.HitTest(index, {1, 1}, threshold, {0, 0}));
        EXPECT_EQ(catalog.GetSize(index), CSize());
        EXPECT_FALSE(catalog.IsOpaque(index));
    }
    EXPECT_EQ(canvas.CountPainted(), 0);
    EXPECT_EQ(catalog.GetCount(), 3);
}

TEST(CImageCatalog, MissingImageIsAnEmptyElement)
{
    CImageCatalog catalog;
    catalog.SetEntry(0, std::make_unique<CNormalImageElement>(nullptr));
    CCanvas canvas(4, 4);
    catalog.Draw(0, *canvas, {0, 0, 4, 4}, {0, 0, 4, 4});
    EXPECT_EQ(canvas.CountPainted(), 0);
    EXPECT_EQ(catalog.GetSize(0), CSize());
    EXPECT_FALSE(catalog.IsOpaque(0));
    EXPECT_FALSE(catalog.HitTest(0, {0, 0}, threshold, {0, 0}));
}

TEST(CImageCatalog, DrawsThePartOfItsElement)
{
    CImageCatalog catalog;
    catalog.SetEntry(1, MakeElement({4, 4}));
    CCanvas canvas(6, 6);
    catalog.Draw(1, *canvas, {1, 2, 2, 1}, {3, 4, 2, 1});
    EXPECT_EQ(canvas.At(3, 4), MarkedPixel(1, 2));
    EXPECT_EQ(canvas.CountPainted(), 2);
    catalog.Draw(1, *canvas, {0, 0, 1, 1}, {0, 0, 3, 3});
    EXPECT_EQ(canvas.CountPainted(), 11);
    EXPECT_TRUE(catalog.IsOpaque(1));
}

TEST(CImageCatalog, ClearDestroysFromAnIndexUp)
{
    int deaths = 0;
    {
        CImageCatalog catalog;
        for (int i = 0; i < 4; ++i)
        {
            catalog.SetEntry(i, std::make_unique<CCountedElement>(&deaths));
        }
        catalog.Clear(2);
        EXPECT_EQ(deaths, 2);
        EXPECT_NE(catalog.GetEntry(1), nullptr);
        EXPECT_EQ(catalog.GetEntry(2), nullptr);
        catalog.SetEntry(0, nullptr);
        EXPECT_EQ(deaths, 3);
        catalog.SetEntry(-1, std::make_unique<CCountedElement>(&deaths));
        EXPECT_EQ(deaths, 4);
    }
    EXPECT_EQ(deaths, 5);
}

TEST(CImageCatalog, WithoutAMaskTheBoundsAreHitAndTheRowBelow)
{
    CImageCatalog catalog;
    catalog.SetEntry(0, MakeElement({4, 3}));
    const auto hit = [&](int x, int y) { return catalog.HitTest(0, {x, y}, threshold, {10, 20}); };
    EXPECT_TRUE(hit(10, 20));
    EXPECT_TRUE(hit(13, 22));
    EXPECT_TRUE(hit(13, 23));
    EXPECT_FALSE(hit(13, 24));
    EXPECT_FALSE(hit(14, 22));
    EXPECT_FALSE(hit(9, 20));
    EXPECT_FALSE(hit(10, 19));
}

TEST(CImageCatalog, MaskIsHitWhereItIsBrighterThanTheThreshold)
{
    // 51 / 255 is 0.2; the factor that greys are scaled by lies a little above 1 / 255.
    const std::vector<int> greys = {0, 50, 51, 52, 255};
    CImageCatalog catalog;
    catalog.SetEntry(0, MakeElement({5, 1}, MakeGrey({5, 1}, greys)));
    for (int x = 0; x < 5; ++x)
    {
        const double grey = greys[static_cast<std::size_t>(x)];
        EXPECT_EQ(catalog.HitTest(0, {x, 0}, 0.2F, {0, 0}), grey * 0.003921569 > static_cast<double>(0.2F))
            << grey;
        EXPECT_FALSE(catalog.HitTest(0, {x, 1}, 0.2F, {0, 0}));
    }
    EXPECT_FALSE(catalog.HitTest(0, {1, 0}, 0.2F, {0, 0}));
    EXPECT_TRUE(catalog.HitTest(0, {4, 0}, 0.2F, {0, 0}));
}

TEST(CImageCatalog, BoundsOfTheMaskCountNotThoseOfTheImage)
{
    CImageCatalog catalog;
    catalog.SetEntry(0, MakeElement({9, 9}, MakeGrey({2, 1}, {255, 255})));
    EXPECT_TRUE(catalog.HitTest(0, {1, 0}, threshold, {0, 0}));
    EXPECT_FALSE(catalog.HitTest(0, {2, 0}, threshold, {0, 0}));
    EXPECT_FALSE(catalog.HitTest(0, {5, 5}, threshold, {0, 0}));
}

TEST(CAlphaImageElement, ComposesItsMaskOnceUntilItChanges)
{
    CAlphaImageElement element(MakePicture({2, 1}), MakeGrey({2, 1}, {255, 0}));
    const CImage* composed = &element.GetDrawnImage();
    EXPECT_EQ(&element.GetDrawnImage(), composed);
    EXPECT_FALSE(element.IsOpaque());
    CCanvas canvas(2, 1);
    element.Draw(*canvas, {0, 0, 2, 1}, {0, 0, 2, 1});
    EXPECT_EQ(canvas.At(0, 0), MarkedPixel(0, 0));
    EXPECT_EQ(canvas.At(1, 0), 0U);
    element.SetMask(MakeGrey({2, 1}, {0, 255}));
    element.Draw(*canvas, {0, 0, 2, 1}, {0, 0, 2, 1});
    EXPECT_EQ(canvas.At(1, 0), MarkedPixel(1, 0));
}

TEST(CAlphaImageElement, MaskOfAnotherSizeIsIgnored)
{
    CAlphaImageElement element(MakePicture({2, 1}), MakeGrey({1, 1}, {0}));
    EXPECT_TRUE(element.IsOpaque());
    EXPECT_EQ(element.GetDrawnImage().GetSize(), (CSize{2, 1}));
    element.SetMask(nullptr);
    EXPECT_TRUE(element.IsOpaque());
}

TEST(CDynamicImageCatalog, MakesElementsWhenAskedAndAgainAfterClear)
{
    int made = 0;
    CDynamicImageCatalog catalog(2,
                                 [&](int index)
                                 {
                                     ++made;
                                     return MakeElement({index + 1, 1});
                                 });
    EXPECT_EQ(made, 0);
    EXPECT_EQ(catalog.GetSize(1), (CSize{2, 1}));
    EXPECT_EQ(catalog.GetSize(1), (CSize{2, 1}));
    EXPECT_EQ(made, 1);
    EXPECT_EQ(catalog.GetSize(2), CSize());
    catalog.Clear(0);
    EXPECT_EQ(catalog.GetSize(1), (CSize{2, 1}));
    EXPECT_EQ(made, 2);
}
