#include "Mirel/Graphics/CGraphicResourcesManager.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/ImageFile.h"
#include "Mirel/Graphics/ImageMask.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Graphics/Premultiply.h"
#include "PngFile.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Graphics;

namespace
{

constexpr std::uint32_t halfRed = 0x80ff0000U;
constexpr std::uint32_t blue = 0xff0000ffU;

std::uint32_t PixelOf(const CImage& image, int x, int y)
{
    const CBitmapContext& pixels = *image.GetContext();
    return LoadPixel(pixels.GetData() + std::int64_t{pixels.GetStride()} * y, x);
}

class CGraphicResources : public testing::Test
{
public:
    CGraphicResources()
    {
        Write("plain.png", 3, 2, false, [](int x, int) { return x == 0 ? 0xff0a141eU : blue; });
        Write("alpha.png", 2, 2, true, [](int x, int) { return x == 0 ? halfRed : blue; });
        Write("mask.png", 3, 2, false,
              [](int x, int) { return 0xff000000U | static_cast<unsigned>(x * 0x404040); });
        Write("small mask.png", 2, 2, false, [](int, int) { return 0xff000000U; });
    }

protected:
    template <class PixelAt>
    void Write(const std::string& name, int width, int height, bool alpha, const PixelAt& pixelAt)
    {
        ASSERT_TRUE(Tests::WritePng(folder.GetPath(name), width, height, alpha, pixelAt));
    }

    CSharedImage Get(const std::string& name)
    {
        return manager.GetImage(folder.GetPath(name).c_str(), hasAlpha);
    }

    CSharedImage GetMasked(const std::string& name, const std::string& mask)
    {
        return manager.GetImageWithMask(folder.GetPath(name).c_str(), folder.GetPath(mask).c_str(), hasAlpha);
    }

    Tests::CTemporaryFolder folder;
    CGraphicResourcesManager manager;
    bool hasAlpha = false;
};

} // namespace

TEST_F(CGraphicResources, OpaqueImageLoadsItsColours)
{
    hasAlpha = true;
    const auto image = Get("plain.png");
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->GetSize(), (CSize{3, 2}));
    EXPECT_FALSE(hasAlpha);
    EXPECT_EQ(PixelOf(*image, 0, 1), 0xff0a141eU);
    EXPECT_EQ(PixelOf(*image, 2, 0), blue);
}

TEST_F(CGraphicResources, AlphaIsReadAndComponentsAreScaledByIt)
{
    const auto image = Get("alpha.png");
    ASSERT_NE(image, nullptr);
    EXPECT_TRUE(hasAlpha);
    EXPECT_EQ(PixelOf(*image, 0, 0), 0x80800000U);
    EXPECT_EQ(PixelOf(*image, 1, 0), blue);
}

TEST_F(CGraphicResources, ImageIsLoadedOnceAndToldWithItsAlphaMark)
{
    const auto first = Get("alpha.png");
    folder.Write("alpha.png", "changed since");
    hasAlpha = false;
    EXPECT_EQ(Get("alpha.png"), first);
    EXPECT_TRUE(hasAlpha);
    EXPECT_EQ(manager.GetCount(), 1U);
}

TEST_F(CGraphicResources, SamePathWithAndWithoutMaskIsTwoEntries)
{
    const auto plain = Get("plain.png");
    const auto masked = GetMasked("plain.png", "mask.png");
    EXPECT_NE(plain, masked);
    EXPECT_EQ(manager.GetCount(), 2U);
    EXPECT_EQ(GetMasked("plain.png", "mask.png"), masked);
    EXPECT_EQ(manager.GetCount(), 2U);
}

TEST_F(CGraphicResources, GreyOfTheMaskBecomesOpacity)
{
    const auto image = GetMasked("plain.png", "mask.png");
    ASSERT_NE(image, nullptr);
    EXPECT_TRUE(hasAlpha);
    EXPECT_EQ(PixelOf(*image, 0, 0), 0U);
    EXPECT_EQ(PixelOf(*image, 1, 0), 0x40000040U);
    EXPECT_EQ(PixelOf(*image, 2, 1), 0x80000080U);
}

TEST_F(CGraphicResources, MaskOfAnotherSizeOrNoMaskLeavesTheImageAsItIs)
{
    for (const char* mask : {"small mask.png", "missing.png"})
    {
        const auto image = GetMasked("plain.png", mask);
        ASSERT_NE(image, nullptr);
        EXPECT_FALSE(hasAlpha);
        EXPECT_EQ(PixelOf(*image, 0, 0), 0xff0a141eU);
    }
    EXPECT_EQ(GetMasked("missing.png", "mask.png"), nullptr);
}

TEST_F(CGraphicResources, MaskFormIsGreyAndAnEntryOfItsOwn)
{
    Get("plain.png");
    const auto mask = manager.GetAlphaImage(folder.GetPath("plain.png").c_str());
    ASSERT_NE(mask, nullptr);
    EXPECT_EQ(manager.GetCount(), 2U);
    EXPECT_EQ(mask->CreatePixelAccess()->GetPixel(0, 0).r, (10 + 2 * 20 + 30) / 4);
    EXPECT_EQ(mask->CreatePixelAccess()->GetPixel(1, 1).r, 255 / 4);
    EXPECT_EQ(manager.GetAlphaImage(folder.GetPath("plain.png").c_str()), mask);
}

TEST_F(CGraphicResources, FilesThatAreNoImagesGiveNoneAndAreNotKept)
{
    const std::string whole = folder.Read("alpha.png");
    folder.Write("text.png", "this is no picture");
    folder.Write("empty.png", "");
    folder.Write("cut.png", whole.substr(0, whole.size() / 2));
    for (const char* name : {"text.png", "empty.png", "cut.png", "missing.png", "."})
    {
        EXPECT_EQ(Get(name), nullptr) << name;
    }
    EXPECT_EQ(manager.GetCount(), 0U);
}

TEST_F(CGraphicResources, ExtensionIsComparedWithoutCaseAndContentCounts)
{
    for (const char* name : {"UPPER.PNG", "other.img"})
    {
        folder.Write(name, folder.Read("plain.png"));
        EXPECT_NE(Get(name), nullptr) << name;
    }
}

TEST_F(CGraphicResources, HeaderThatPromisesTooManyPixelsIsRefused)
{
    std::string file = folder.Read("plain.png");
    // Width and height, big-endian, stand behind the signature and the chunk's length and name.
    constexpr std::size_t widthAt = 16;
    file.replace(widthAt, 8, std::string("\x00\x01\x00\x00\x00\x01\x00\x00", 8));
    folder.Write("huge.png", file);
    EXPECT_EQ(Get("huge.png"), nullptr);
}

TEST_F(CGraphicResources, BudgetOfPixelsIsAskedBeforeDecoding)
{
    const std::string path = folder.GetPath("plain.png");
    EXPECT_NE(ReadImageFile(path.c_str(), 6), nullptr);
    EXPECT_EQ(ReadImageFile(path.c_str(), 5), nullptr);
}

TEST_F(CGraphicResources, ImagesOutliveTheManager)
{
    CSharedImage image;
    {
        CGraphicResourcesManager shortLived;
        image = shortLived.GetImage(folder.GetPath("plain.png").c_str(), hasAlpha);
    }
    EXPECT_EQ(PixelOf(*image, 0, 0), 0xff0a141eU);
}

TEST_F(CGraphicResources, CompositionTakesTheColoursBelowAnAlpha)
{
    const auto image = Get("alpha.png");
    const auto white = CBitmapContext::Create({2, 2}, 8);
    white->CreatePixelAccess()->SetPixel(0, 0, {255, 255, 255});
    const auto composed = ComposeWithMask(*image, CImage(white, false));
    ASSERT_NE(composed, nullptr);
    EXPECT_EQ(PixelOf(*composed, 0, 0), 0xffff0000U);
    EXPECT_EQ(PixelOf(*composed, 1, 1), 0U);
}

TEST_F(CGraphicResources, EmptyImagesHaveNoMaskAndNoComposition)
{
    const CImage empty;
    EXPECT_EQ(MakeMask(empty), nullptr);
    EXPECT_EQ(ComposeWithMask(empty, empty), nullptr);
    EXPECT_EQ(empty.CreatePixelAccess(), nullptr);
}

TEST_F(CGraphicResources, RefusedImageTellsWhichFileAndWhy)
{
    folder.Write("broken.png", "no image");
    std::string reason = "none";
    const std::string path = folder.GetPath("broken.png");
    EXPECT_EQ(manager.GetImage(path.c_str(), hasAlpha, &reason), nullptr);
    EXPECT_EQ(reason, "Image \"" + path + "\" is no PNG image");
    EXPECT_EQ(manager.GetAlphaImage(path.c_str(), &reason), nullptr);
    reason = "none";
    EXPECT_NE(manager.GetImage(folder.GetPath("plain.png").c_str(), hasAlpha, &reason), nullptr);
    EXPECT_EQ(reason, "none");
}

TEST_F(CGraphicResources, MaskThatDoesNotFitIsTold)
{
    const std::string path = folder.GetPath("plain.png");
    const std::string mask = folder.GetPath("small mask.png");
    std::string reason;
    EXPECT_NE(manager.GetImageWithMask(path.c_str(), mask.c_str(), hasAlpha, &reason), nullptr);
    EXPECT_EQ(reason, "Image \"" + mask + "\" has another size than \"" + path + "\", whose mask it is");
    const std::string missing = folder.GetPath("missing.png");
    EXPECT_NE(manager.GetImageWithMask(path.c_str(), missing.c_str(), hasAlpha, &reason), nullptr);
    EXPECT_EQ(reason, "Image \"" + missing + "\" cannot be read, or is too large");
}

TEST_F(CGraphicResources, SiblingStandsInWithADeviceScale)
{
    Write("plain@2x.png", 6, 4, false, [](int x, int) { return x == 1 ? blue : 0xff0a141eU; });
    EXPECT_EQ(Get("plain.png")->GetContext()->GetSize(), (CSize{3, 2}));
    manager.SetDeviceScale(2);
    EXPECT_EQ(manager.GetCount(), 0U);
    const CSharedImage sharp = Get("plain.png");
    EXPECT_EQ(sharp->GetSize(), (CSize{3, 2}));
    EXPECT_EQ(sharp->GetContext()->GetSize(), (CSize{6, 4}));
    EXPECT_EQ(PixelOf(*sharp, 1, 0), blue);
    EXPECT_EQ(Get("plain.png"), sharp);
    EXPECT_EQ(Get("alpha.png")->GetContext()->GetSize(), (CSize{2, 2}));
    EXPECT_EQ(manager.GetAlphaImage(folder.GetPath("plain.png").c_str())->GetContext()->GetSize(),
              (CSize{3, 2}));
    manager.SetDeviceScale(0);
    EXPECT_EQ(manager.GetDeviceScale(), 1);
    manager.SetDeviceScale(9);
    EXPECT_EQ(manager.GetDeviceScale(), 4);
}

TEST_F(CGraphicResources, SiblingThatIsNotTwiceAsLargeIsLeftOutAndTold)
{
    Write("plain@2x.png", 6, 5, false, [](int, int) { return blue; });
    manager.SetDeviceScale(2);
    std::string reason;
    const CSharedImage image = manager.GetImage(folder.GetPath("plain.png").c_str(), hasAlpha, &reason);
    EXPECT_EQ(image->GetContext()->GetSize(), (CSize{3, 2}));
    EXPECT_NE(reason.find("plain@2x.png\" is not twice as wide and high as"), std::string::npos);
}

TEST_F(CGraphicResources, MaskedImageIsSharpIfBothHaveSiblings)
{
    Write("plain@2x.png", 6, 4, false, [](int, int) { return blue; });
    manager.SetDeviceScale(2);
    EXPECT_EQ(GetMasked("plain.png", "mask.png")->GetContext()->GetSize(), (CSize{3, 2}));
    Write("mask@2x.png", 6, 4, false, [](int, int) { return 0xff808080U; });
    manager.SetDeviceScale(3);
    const CSharedImage sharp = GetMasked("plain.png", "mask.png");
    EXPECT_EQ(sharp->GetContext()->GetSize(), (CSize{6, 4}));
    EXPECT_EQ(sharp->GetSize(), (CSize{3, 2}));
    EXPECT_EQ(PixelOf(*sharp, 5, 3), 0x80000080U);
}
