#include "Host/Editor/CPicture.h"

#include "Host/Editor/CSnapshots.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <png.h>

namespace Host
{
namespace
{

TEST(WritePicture, AnotherReaderFindsThePixels)
{
    const Tests::CTemporaryFolder folder;
    const CPicture picture = {
        2, 3, {0xFF102030U, 0xFFFFFFFFU, 0xFF000000U, 0x80A0B0C0U, 0xFF0000FFU, 0xFFFF0000U}};
    std::string error;
    ASSERT_TRUE(WritePicture(picture, folder.GetPath("p.png"), error)) << error;
    png_image head = {};
    head.version = PNG_IMAGE_VERSION;
    ASSERT_NE(png_image_begin_read_from_file(&head, folder.GetPath("p.png").c_str()), 0);
    EXPECT_EQ(head.width, 2U);
    EXPECT_EQ(head.height, 3U);
    head.format = PNG_FORMAT_BGRA;
    std::vector<std::uint32_t> pixels(6);
    ASSERT_NE(png_image_finish_read(&head, nullptr, pixels.data(), 0, nullptr), 0);
    EXPECT_EQ(pixels, picture.pixels);
}

TEST(WritePicture, SaysWhatItCannotWrite)
{
    std::string error;
    EXPECT_FALSE(WritePicture({}, "a.png", error));
    EXPECT_EQ(error, "there is no picture to write to \"a.png\"");
    EXPECT_FALSE(WritePicture({1, 1, {0}}, "/nowhere/a.png", error));
    EXPECT_EQ(error, "cannot write \"/nowhere/a.png\"");
}

TEST(CSnapshots, NamesThePictureOfATimeBesideThatOfTheEnd)
{
    EXPECT_EQ(CSnapshots::NameAt("out/scope.png", 1.5), "out/scope-1.5s.png");
    EXPECT_EQ(CSnapshots::NameAt("scope", 2.0), "scope-2s");
}

} // namespace
} // namespace Host
