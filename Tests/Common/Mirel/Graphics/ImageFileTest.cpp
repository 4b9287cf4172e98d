#include "Mirel/Graphics/ImageFile.h"

#include "JpegFile.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Graphics/Premultiply.h"
#include "PngFile.h"
#include "Support/CTemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Graphics;

namespace
{

constexpr std::uint32_t orange = 0xf08020U;
constexpr std::uint32_t navy = 0x102060U;

/// Left half and right half.
std::uint32_t Halves(int x, int /*y*/)
{
    return x < 16 ? orange : navy;
}

class CImageFiles : public testing::Test
{
protected:
    CSharedImage Read(const std::string& name, std::int64_t maxPixels = CLimits::maxImagePixels)
    {
        return ReadImageFile(folder.GetPath(name).c_str(), maxPixels, &reason);
    }

    Tests::CTemporaryFolder folder;
    std::string reason = "none";
};

} // namespace

TEST_F(CImageFiles, JpegIsReadWithoutAlpha)
{
    for (const int flags : {0, TJFLAG_PROGRESSIVE})
    {
        folder.Write("photo.jpg", Tests::MakeJpeg(32, 8, Halves, flags));
        const CSharedImage image = Read("photo.jpg");
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->GetSize(), (CSize{32, 8}));
        EXPECT_FALSE(image->HasAlpha());
        EXPECT_EQ(reason, "none");
        for (const int x : {1, 30})
        {
            const std::uint32_t pixel = LoadPixel(image->GetContext()->GetData(), x);
            const CColor expected = ColorOf(Halves(x, 0));
            EXPECT_EQ(pixel >> 24U, 255U);
            EXPECT_NEAR(ColorOf(pixel).r, expected.r, 4);
            EXPECT_NEAR(ColorOf(pixel).g, expected.g, 4);
            EXPECT_NEAR(ColorOf(pixel).b, expected.b, 4);
        }
    }
}

TEST_F(CImageFiles, ExtensionPngMeansPng)
{
    folder.Write("photo.PNG", Tests::MakeJpeg(32, 8, Halves));
    EXPECT_EQ(Read("photo.PNG"), nullptr);
    EXPECT_EQ(reason, "is no PNG image");
    ASSERT_TRUE(Tests::WritePng(folder.GetPath("picture.img"), 2, 2, false, [](int, int) { return orange; }));
    EXPECT_NE(Read("picture.img"), nullptr);
}

TEST_F(CImageFiles, WhatIsNoImageIsRefusedWithTheReason)
{
    folder.Write("text.jpg", "this is no image");
    folder.Write("empty.jpg", "");
    EXPECT_EQ(Read("text.jpg"), nullptr);
    EXPECT_EQ(reason, "is neither a PNG nor a JPEG image");
    EXPECT_EQ(Read("empty.jpg"), nullptr);
    EXPECT_EQ(Read("missing.jpg"), nullptr);
    EXPECT_EQ(reason, "cannot be read, or is too large");
    EXPECT_EQ(Read("."), nullptr);
    EXPECT_EQ(ReadImageFile("/dev/zero", 100), nullptr);
}

TEST_F(CImageFiles, DamagedFilesAreRefusedWithTheReason)
{
    const std::string jpeg =
        Tests::MakeJpeg(64, 64, [](int x, int y) { return orange * static_cast<unsigned>(x + y); });
    folder.Write("cut.jpg", jpeg.substr(0, jpeg.size() / 2));
    folder.Write("begun.jpg", jpeg.substr(0, 12));
    ASSERT_TRUE(Tests::WritePng(folder.GetPath("whole.png"), 64, 64, false,
                                [](int x, int y) { return orange * static_cast<unsigned>(x + y); }));
    const std::string png = folder.Read("whole.png");
    folder.Write("cut.png", png.substr(0, png.size() / 2));
    for (const char* name : {"cut.jpg", "begun.jpg", "cut.png"})
    {
        reason = "none";
        EXPECT_EQ(Read(name), nullptr) << name;
        EXPECT_EQ(reason.find("is damaged: "), 0U) << name << ' ' << reason;
        EXPECT_GT(reason.size(), 15U) << name;
    }
}

TEST_F(CImageFiles, HeaderIsAskedForThePixelsFirst)
{
    // A header that promises 65500 x 65500 pixels, and nothing after it.
    std::string promise = Tests::MakeJpeg(16, 16, Halves);
    const std::size_t frame = promise.find("\xff\xc0");
    ASSERT_NE(frame, std::string::npos);
    for (const std::size_t at : {frame + 5, frame + 7})
    {
        promise[at] = '\xff';
        promise[at + 1] = '\xdc';
    }
    folder.Write("promise.jpg", promise);
    EXPECT_EQ(Read("promise.jpg"), nullptr);
    EXPECT_EQ(reason, "has 65500 x 65500 pixels, of 16777216 that are left for it");
    folder.Write("photo.jpg", Tests::MakeJpeg(32, 8, Halves));
    EXPECT_EQ(Read("photo.jpg", 255), nullptr);
    EXPECT_EQ(reason, "has 32 x 8 pixels, of 255 that are left for it");
    EXPECT_NE(Read("photo.jpg", 256), nullptr);
}

TEST_F(CImageFiles, DamageAnywhereIsRefusedOrRead)
{
    const std::string good =
        Tests::MakeJpeg(40, 40, [](int x, int y) { return orange * static_cast<unsigned>(x * y); });
    std::uint32_t random = 11;
    for (int i = 0; i < 500; ++i)
    {
        std::string bad = good;
        for (int k = 0; k < 4; ++k)
        {
            random = random * 1664525U + 1013904223U;
            bad[random % bad.size()] = static_cast<char>(random >> 24U);
        }
        const CSharedImage image = ReadImage(bad, 100000);
        EXPECT_TRUE(image == nullptr || !image->GetSize().IsEmpty());
    }
}
