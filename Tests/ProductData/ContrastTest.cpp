#include "Support/Contrast.h"

#include <gtest/gtest.h>

#include <cairo.h>

#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace Tests;

const std::string skins = std::string(PRODUCT_DATA_FOLDER) + "/Skins/";

/// The colours that the skins' shared part names.
std::map<std::string, std::uint32_t> ReadStyle()
{
    std::ifstream file(skins + "parts/style.xml");
    std::stringstream text;
    text << file.rdbuf();
    const std::string style = text.str();
    static const std::regex variable(R"re(<VARIABLE id="(\w+)" value="#([0-9A-F]{6})"/>)re");
    std::map<std::string, std::uint32_t> colors;
    for (std::sregex_iterator match(style.begin(), style.end(), variable), end; match != end; ++match)
    {
        colors[(*match)[1]] = static_cast<std::uint32_t>(std::stoul((*match)[2], nullptr, 16));
    }
    return colors;
}

/// The pixel in the middle of each frame of an image as it looks over a colour. None if it cannot be read.
std::vector<std::uint32_t> ReadGrounds(const std::string& name, int frames, std::uint32_t under)
{
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> image(
        cairo_image_surface_create_from_png((skins + "images/" + name + ".png").c_str()),
        &cairo_surface_destroy);
    std::vector<std::uint32_t> grounds;
    if (cairo_surface_status(image.get()) != CAIRO_STATUS_SUCCESS)
    {
        return grounds;
    }
    const int width = cairo_image_surface_get_width(image.get());
    const int height = cairo_image_surface_get_height(image.get()) / frames;
    for (int frame = 0; frame < frames; ++frame)
    {
        const unsigned char* pixel =
            cairo_image_surface_get_data(image.get()) +
            (frame * height + height / 2) * cairo_image_surface_get_stride(image.get()) + width / 2 * 4;
        const unsigned alpha =
            cairo_image_surface_get_format(image.get()) == CAIRO_FORMAT_ARGB32 ? pixel[3] : 255U;
        std::uint32_t ground = 0;
        for (unsigned i = 0; i < 3; ++i)
        {
            const unsigned below = (under >> (8 * i)) & 0xFFU;
            ground |= (pixel[i] + below * (255U - alpha) / 255U) << (8 * i);
        }
        grounds.push_back(ground);
    }
    return grounds;
}

struct SText
{
    const char* color;
    const char* image;
    int frames = 1;
    bool hasStates = false; ///< The image has siblings for hover, focus and pushed.
    const char* under = "back";
};

/// Every colour of a text with the images that skins put it on.
constexpr SText texts[] = {
    {"ink", "header"},
    {"ink", "footer"},
    {"ink", "preset_name", 1, true},
    {"faint", "preset_step", 1, true},
    {"ink", "button", 1, true},
    {"ink", "bypass", 2, true},
    {"ink", "choice", 1, true},
    {"faint", "header"},
    {"faint", "footer"},
    {"faint", "compact_header"},
    {"faint", "xy_header"},
    {"faint", "xy_footer"},
    {"channel1_color", "name_plate", 1, false, "channel1_color"},
    {"channel1_color", "name_plate", 1, false, "channel2_color"},
    {"channel2_color", "name_plate", 1, false, "channel1_color"},
    {"channel2_color", "name_plate", 1, false, "channel2_color"},
};

TEST(SkinContrast, TextsAreReadableOnTheImagesBehindThem)
{
    const std::map<std::string, std::uint32_t> colors = ReadStyle();
    for (const SText& text : texts)
    {
        for (const char* state : {"", "_hover", "_focus", "_pushed"})
        {
            if (*state != 0 && !text.hasStates)
            {
                continue;
            }
            const std::string name = std::string(text.image) + state;
            const auto grounds = ReadGrounds(name, text.frames, colors.at(text.under));
            EXPECT_FALSE(grounds.empty()) << name;
            for (const std::uint32_t ground : grounds)
            {
                EXPECT_GE(GetContrast(colors.at(text.color), ground), leastTextContrast)
                    << text.color << " on " << name;
            }
        }
    }
}

TEST(SkinContrast, TextsAreReadableOnTheSkinsBackgroundAndInTooltips)
{
    const std::map<std::string, std::uint32_t> colors = ReadStyle();
    for (const char* text : {"ink", "faint", "channel1_color", "channel2_color"})
    {
        EXPECT_GE(GetContrast(colors.at(text), colors.at("back")), leastTextContrast) << text;
    }
    EXPECT_GE(GetContrast(colors.at("ink"), colors.at("tip_back")), leastTextContrast);
}

/// For who cannot tell the hues: one is the brighter one.
TEST(SkinContrast, TracesDifferFromTheScreenAndInLightness)
{
    const std::map<std::string, std::uint32_t> colors = ReadStyle();
    const std::uint32_t screen = ReadGrounds("screen", 1, 0).at(0);
    EXPECT_GE(GetContrast(colors.at("channel1_color"), screen), leastTextContrast);
    EXPECT_GE(GetContrast(colors.at("channel2_color"), screen), leastTextContrast);
    EXPECT_GE(GetContrast(colors.at("level_color"), screen), 3.0);
    EXPECT_GE(GetContrast(colors.at("channel1_color"), colors.at("channel2_color")), 1.4);
    EXPECT_GT(GetContrast(colors.at("grid_color"), screen), 1.2);
}

TEST(SkinContrast, IsOneForEqualColorsAndTwentyOneForBlackAndWhite)
{
    EXPECT_DOUBLE_EQ(GetContrast(0x123456, 0x123456), 1.0);
    EXPECT_NEAR(GetContrast(0xFFFFFF, 0x000000), 21.0, 1e-9);
    // The well-known grey that just passes on white.
    EXPECT_NEAR(GetContrast(0x767676, 0xFFFFFF), 4.54, 0.005);
}

} // namespace
