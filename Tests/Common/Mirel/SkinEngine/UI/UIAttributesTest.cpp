#include "Mirel/SkinEngine/UI/UIAttributes.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace Mirel::SkinEngine
{
namespace
{

using Containers::CNamedAttributes;
using Graphics::CColor;
using Graphics::CTextFormat;
using Layout::EAlign;

CNamedAttributes With(const char* name, const char* value)
{
    CNamedAttributes attributes;
    attributes.Set(name, value);
    return attributes;
}

TEST(UIAttributes, ReadColours)
{
    struct SRow
    {
        const char* text;
        std::optional<CColor> color;
    };
    const SRow rows[] = {
        {"#102030", CColor{16, 32, 48}},
        {"#fff", CColor{255, 255, 255}},
        {"#1aB", CColor{17, 170, 187}},
        {"1,2,3", CColor{1, 2, 3}},
        {" 1, 20 ,255 ", CColor{1, 20, 255}},
        {"Red", CColor{255, 0, 0}},
        {"aqua", CColor{0, 255, 255}},
        {"olive", CColor{128, 128, 0}},
        {"", std::nullopt},
        {"#12345", std::nullopt},
        {"#ggg", std::nullopt},
        {"1,2", std::nullopt},
        {"1,2,256", std::nullopt},
        {"-1,2,3", std::nullopt},
        {"redd", std::nullopt},
        {"1,2,3,4", std::nullopt},
    };
    for (const SRow& row : rows)
    {
        EXPECT_EQ(ParseColor(row.text), row.color) << row.text;
    }
}

TEST(UIAttributes, ReadAlignments)
{
    EXPECT_EQ(ReadAlign(With("h_align", "left"), "h_align"), EAlign::Begin);
    EXPECT_EQ(ReadAlign(With("h_align", "right"), "h_align"), EAlign::End);
    EXPECT_EQ(ReadAlign(With("h_align", "top"), "h_align"), EAlign::Center);
    EXPECT_EQ(ReadAlign(With("v_align", "top"), "v_align"), EAlign::Begin);
    EXPECT_EQ(ReadAlign(With("v_align", "bottom"), "v_align"), EAlign::End);
    EXPECT_EQ(ReadAlign(With("v_align", "left"), "v_align"), EAlign::Center);
    EXPECT_EQ(ReadAlign({}, "internal_v_align"), EAlign::Center);
}

TEST(UIAttributes, ReadOpacities)
{
    struct SRow
    {
        const char* text;
        float opacity;
    };
    const SRow rows[] = {{"50%", 0.5f}, {"2", 1.0f}, {"0.25", 0.25f}, {"-1", 0.0f},
                         {"%", 1.0f},   {"x", 1.0f}, {"300%", 1.0f},  {"nan", 0.0f}};
    for (const SRow& row : rows)
    {
        EXPECT_FLOAT_EQ(ReadOpacity(With("opacity", row.text)), row.opacity) << row.text;
    }
    EXPECT_FLOAT_EQ(ReadOpacity({}), 1.0f);
}

TEST(UIAttributes, TakeOnlyAFinalPercentSignForAShare)
{
    EXPECT_EQ(ReadRatio(With("width", "25%"), "width"), 0.25f);
    EXPECT_EQ(ReadRatio(With("width", "25"), "width"), std::nullopt);
    EXPECT_EQ(ReadRatio(With("width", "2%5%"), "width"), std::nullopt);
    EXPECT_EQ(ReadRatio(With("width", ""), "width"), std::nullopt);
    EXPECT_EQ(ReadPixels(With("width", "25"), "width"), 25);
    EXPECT_EQ(ReadPixels(With("width", "25%"), "width"), std::nullopt);
    EXPECT_EQ(ReadPixels(With("width", "-1"), "width"), std::nullopt);
}

TEST(UIAttributes, ReadHowPicturesAreKept)
{
    EXPECT_FALSE(ReadBuffered({}));
    EXPECT_TRUE(ReadBuffered(With("buffered", "true")));
    EXPECT_TRUE(ReadBuffered(With("anti_flicker", "true")));
    CNamedAttributes both = With("anti_flicker", "true");
    both.Set("buffered", "false");
    EXPECT_FALSE(ReadBuffered(both));
    EXPECT_EQ(ReadOffscreenType({}), 2);
    EXPECT_EQ(ReadOffscreenType(With("offscreen_type", "card")), 1);
    EXPECT_EQ(ReadOffscreenType(With("offscreen_type", "none")), 0);
    EXPECT_EQ(ReadOffscreenType(With("anti_flicker", "no")), 0);
    EXPECT_EQ(ReadOffscreenType(With("buffered", "false")), 0);
    EXPECT_EQ(ReadOffscreenType(With("buffered", "true")), 2);
}

TEST(UIAttributes, ReadPenStyles)
{
    EXPECT_EQ(ReadPenStyle(With("pen_style", "dash"), "pen_style"), 1U);
    EXPECT_EQ(ReadPenStyle(With("pen_style", "dot"), "pen_style"), 2U);
    EXPECT_EQ(ReadPenStyle(With("pen_style", "dash_dot"), "pen_style"), 3U);
    EXPECT_EQ(ReadPenStyle(With("pen_style", "dash_dot_dot"), "pen_style"), 4U);
    EXPECT_EQ(ReadPenStyle(With("pen_style", "wavy"), "pen_style"), 0U);
    EXPECT_EQ(ReadPenStyle({}, "pen_style"), 0U);
}

TEST(UIAttributes, ReadFonts)
{
    CNamedAttributes attributes;
    for (const auto& [name, value] : {std::pair{"font_face", "Sans"},
                                      {"font_size", "17"},
                                      {"font_width", "3"},
                                      {"font_weight", "bold"},
                                      {"text_decoration", "underline"},
                                      {"font_style", "italic"},
                                      {"font_quality", "no_anti_alias"},
                                      {"font_escapement", "90"}})
    {
        attributes.Set(name, value);
    }
    Graphics::CFontDescription font;
    ReadFont(attributes, font);
    EXPECT_EQ(font.face, "Sans");
    EXPECT_EQ(font.height, 17);
    EXPECT_EQ(font.width, 3);
    EXPECT_EQ(font.weight, 700);
    EXPECT_TRUE(font.underline);
    EXPECT_TRUE(font.italic);
    EXPECT_EQ(font.quality, Graphics::EFontQuality::NoAntiAlias);
    EXPECT_FLOAT_EQ(font.escapement, 90.0f);
    attributes.Set("font_height", "9");
    attributes.Set("font_weight", "500");
    attributes.Set("text_decoration", "none");
    attributes.Set("font_quality", "default");
    ReadFont(attributes, font);
    EXPECT_EQ(font.height, 9);
    EXPECT_EQ(font.weight, 500);
    EXPECT_FALSE(font.underline);
    EXPECT_EQ(font.quality, Graphics::EFontQuality::Default);
    const Graphics::CFontDescription before = font;
    ReadFont({}, font);
    EXPECT_EQ(font, before);
}

TEST(UIAttributes, ReadTextFormats)
{
    EXPECT_EQ(ReadTextFormat({}).flags, CTextFormat::wordBreak);
    EXPECT_EQ(ReadTextFormat({}).hAlign, Graphics::ETextHAlign::Center);
    EXPECT_EQ(ReadTextFormat(With("text_h_align", "right")).hAlign, Graphics::ETextHAlign::Right);
    EXPECT_EQ(ReadTextFormat(With("text_v_align", "top")).vAlign, Graphics::ETextVAlign::Top);
    EXPECT_TRUE(ReadTextFormat(With("multiline", "true")).Has(CTextFormat::multiline));
    EXPECT_TRUE(ReadTextFormat(With("multiline", "true")).Has(CTextFormat::noWrap));
    EXPECT_TRUE(ReadTextFormat(With("word_break", "true")).Has(CTextFormat::multiline));
    EXPECT_FALSE(ReadTextFormat(With("word_break", "true")).Has(CTextFormat::noWrap));
    EXPECT_TRUE(ReadTextFormat(With("ellipsis", "true")).Has(CTextFormat::ellipsis));
    EXPECT_FALSE(ReadTextFormat(With("ellipsis", "true")).Has(CTextFormat::multiline));
}

TEST(UIAttributes, ReadWhatACellAsks)
{
    CNamedAttributes attributes;
    for (const auto& [name, value] : {std::pair{"h_align", "left"},
                                      {"v_align", "bottom"},
                                      {"h_position", "-3"},
                                      {"width", "50%"},
                                      {"height", "20"},
                                      {"flex", "1.5"}})
    {
        attributes.Set(name, value);
    }
    Layout::CLayoutOptions options;
    ReadLayoutOptions(attributes, options);
    EXPECT_EQ(options.GetHAlign(), EAlign::Begin);
    EXPECT_EQ(options.GetVAlign(), EAlign::End);
    EXPECT_TRUE(options.HasHPosition());
    EXPECT_EQ(options.GetHPosition(), -3);
    EXPECT_FALSE(options.HasVPosition());
    EXPECT_FLOAT_EQ(options.GetWidthRatio(), 0.5f);
    EXPECT_LT(options.GetHeightRatio(), 0.0f);
    EXPECT_FLOAT_EQ(options.GetFlex(), 1.5f);
}

} // namespace
} // namespace Mirel::SkinEngine
