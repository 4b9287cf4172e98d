#include "SkinImages/SImage.h"
#include "SkinImages/SkinImagesProgram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <sstream>
#include <string>

namespace SkinImages
{

namespace
{

namespace fs = std::filesystem;

/// Other versions of the drawing library may round an edge another way.
constexpr int tolerance = 2;

using CSurface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

CSurface Load(const fs::path& path)
{
    return {cairo_image_surface_create_from_png(path.c_str()), &cairo_surface_destroy};
}

/// The greatest difference of a byte; -1 for pictures of different sizes or none.
int DifferenceOf(const fs::path& one, const fs::path& other)
{
    const CSurface a = Load(one);
    const CSurface b = Load(other);
    const int height = cairo_image_surface_get_height(a.get());
    const int stride = cairo_image_surface_get_stride(a.get());
    if (cairo_surface_status(a.get()) != CAIRO_STATUS_SUCCESS ||
        cairo_surface_status(b.get()) != CAIRO_STATUS_SUCCESS ||
        cairo_image_surface_get_width(a.get()) != cairo_image_surface_get_width(b.get()) ||
        height != cairo_image_surface_get_height(b.get()) ||
        stride != cairo_image_surface_get_stride(b.get()))
    {
        return -1;
    }
    const unsigned char* const first = cairo_image_surface_get_data(a.get());
    const unsigned char* const second = cairo_image_surface_get_data(b.get());
    int difference = 0;
    for (int i = 0; i < height * stride; ++i)
    {
        difference = std::max(difference, std::abs(int{first[i]} - int{second[i]}));
    }
    return difference;
}

std::set<std::string> NamesIn(const fs::path& folder)
{
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
    {
        names.insert(entry.path().filename());
    }
    return names;
}

class SkinImagesTest : public testing::Test
{
public:
    ~SkinImagesTest() override { fs::remove_all(folder); }

protected:
    SkinImagesTest()
        : folder(fs::temp_directory_path() /
                 ("skin-images-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + "-" +
                  testing::UnitTest::GetInstance()->current_test_info()->name()))
    {
    }

    int Run(std::initializer_list<const char*> arguments)
    {
        std::vector<const char*> line = {"skin-images"};
        line.insert(line.end(), arguments);
        return RunProgram(static_cast<int>(line.size()), line.data(), out, errors);
    }

    fs::path folder;
    std::ostringstream out;
    std::ostringstream errors;
};

} // namespace

TEST_F(SkinImagesTest, DrawsTheCommittedImagesAgain)
{
    ASSERT_EQ(Run({folder.c_str()}), 0) << errors.str();
    const fs::path committed = SKIN_IMAGES_FOLDER;
    ASSERT_EQ(NamesIn(folder), NamesIn(committed));
    for (const std::string& name : NamesIn(committed))
    {
        const int difference = DifferenceOf(committed / name, folder / name);
        EXPECT_GE(difference, 0) << name;
        EXPECT_LE(difference, tolerance) << name;
    }
}

TEST_F(SkinImagesTest, EveryImageHasASiblingOfTwiceItsSize)
{
    const fs::path committed = SKIN_IMAGES_FOLDER;
    for (const SImage& image : GetImages())
    {
        for (const EState state : image.states)
        {
            const CSurface plain = Load(committed / FileNameOf(image, state, 1));
            const CSurface twice = Load(committed / FileNameOf(image, state, 2));
            EXPECT_EQ(cairo_image_surface_get_width(plain.get()), image.width) << image.name;
            EXPECT_EQ(cairo_image_surface_get_height(plain.get()), image.height * image.frames) << image.name;
            EXPECT_EQ(cairo_image_surface_get_width(twice.get()), 2 * image.width) << image.name;
            EXPECT_EQ(cairo_image_surface_get_height(twice.get()), 2 * image.height * image.frames)
                << image.name;
        }
    }
}

TEST_F(SkinImagesTest, StatesOfAnImageLookDifferent)
{
    for (const SImage& image : GetImages())
    {
        for (std::size_t i = 1; i < image.states.size(); ++i)
        {
            const fs::path committed = SKIN_IMAGES_FOLDER;
            const bool isAlias = image.states[i] == EState::Selected; // It looks as pushed.
            EXPECT_TRUE(isAlias || DifferenceOf(committed / FileNameOf(image, EState::Normal, 1),
                                                committed / FileNameOf(image, image.states[i], 1)) > 0)
                << FileNameOf(image, image.states[i], 1);
        }
    }
}

TEST_F(SkinImagesTest, AFolderThatCannotBeMadeIsReported)
{
    EXPECT_EQ(Run({"/dev/null/images"}), 1);
    EXPECT_NE(errors.str().find("cannot write"), std::string::npos);
}

TEST_F(SkinImagesTest, ALineWithoutAFolderIsWrong)
{
    EXPECT_EQ(Run({}), 2);
}

} // namespace SkinImages
