#include "Mirel/SkinEngine/UI/UIAttributes.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using Graphics::CColor;

namespace
{

struct SNamedColor
{
    std::string_view name;
    CColor color;
};

constexpr std::array<SNamedColor, 16> namedColors = {{{"black", {0, 0, 0}},
                                                      {"silver", {192, 192, 192}},
                                                      {"gray", {128, 128, 128}},
                                                      {"white", {255, 255, 255}},
                                                      {"maroon", {128, 0, 0}},
                                                      {"red", {255, 0, 0}},
                                                      {"purple", {128, 0, 128}},
                                                      {"fuchsia", {255, 0, 255}},
                                                      {"green", {0, 128, 0}},
                                                      {"lime", {0, 255, 0}},
                                                      {"olive", {128, 128, 0}},
                                                      {"yellow", {255, 255, 0}},
                                                      {"navy", {0, 0, 128}},
                                                      {"blue", {0, 0, 255}},
                                                      {"teal", {0, 128, 128}},
                                                      {"aqua", {0, 255, 255}}}};

std::string_view GetView(const CNamedAttributes& attributes, const std::string& name)
{
    return GetText(attributes, name);
}

std::string_view Trimmed(std::string_view text)
{
    const auto begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

/// The whole text as a number from 0 to 255.
std::optional<std::uint8_t> ParseByte(std::string_view text, int base)
{
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value, base);
    if (text.empty() || fault != std::errc() || stop != end || value < 0 || value > 255)
    {
        return std::nullopt;
    }
    return static_cast<std::uint8_t>(value);
}

std::optional<CColor> MakeColor(const std::array<std::optional<std::uint8_t>, 3>& parts)
{
    if (!parts[0] || !parts[1] || !parts[2])
    {
        return std::nullopt;
    }
    return CColor{*parts[0], *parts[1], *parts[2]};
}

std::optional<CColor> ParseHexColor(std::string_view digits)
{
    if (digits.size() != 3 && digits.size() != 6)
    {
        return std::nullopt;
    }
    const std::size_t length = digits.size() / 3;
    std::array<std::optional<std::uint8_t>, 3> parts;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        std::string part(digits.substr(i * length, length));
        parts[i] = ParseByte(length == 1 ? part + part : part, 16);
    }
    return MakeColor(parts);
}

std::optional<CColor> ParseDecimalColor(std::string_view text)
{
    const auto first = text.find(',');
    const auto second = first == std::string_view::npos ? first : text.find(',', first + 1);
    if (second == std::string_view::npos)
    {
        return std::nullopt;
    }
    return MakeColor({ParseByte(Trimmed(text.substr(0, first)), 10),
                      ParseByte(Trimmed(text.substr(first + 1, second - first - 1)), 10),
                      ParseByte(Trimmed(text.substr(second + 1)), 10)});
}

char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualsName(std::string_view text, std::string_view name)
{
    return std::equal(text.begin(), text.end(), name.begin(), name.end(),
                      [](char a, char b) { return ToLower(a) == b; });
}

void ReadRatioOption(const CNamedAttributes& attributes, const char* name, Layout::CLayoutOptions& options,
                     Layout::EAxis axis)
{
    if (const auto ratio = ReadRatio(attributes, name))
    {
        options.SetRatio(axis, *ratio);
    }
}

void ReadPositionOption(const CNamedAttributes& attributes, const char* name, Layout::CLayoutOptions& options,
                        Layout::EAxis axis)
{
    if (FindText(attributes, name) != nullptr)
    {
        int position = 0;
        ReadNumber(attributes, name, position);
        options.SetPosition(axis, position);
    }
}

void ReadFontStyle(const CNamedAttributes& attributes, Graphics::CFontDescription& font)
{
    if (FindText(attributes, "font_weight") != nullptr)
    {
        const std::string_view weight = GetView(attributes, "font_weight");
        font.weight = weight == "bold" ? Graphics::CFontDescription::boldWeight
                                       : Graphics::CFontDescription::normalWeight;
        ReadNumber(attributes, "font_weight", font.weight);
    }
    if (FindText(attributes, "text_decoration") != nullptr)
    {
        font.underline = GetView(attributes, "text_decoration") == "underline";
    }
    if (FindText(attributes, "font_style") != nullptr)
    {
        font.italic = GetView(attributes, "font_style") == "italic";
    }
    if (FindText(attributes, "font_quality") != nullptr)
    {
        using Graphics::EFontQuality;
        const std::string_view quality = GetView(attributes, "font_quality");
        font.quality = quality == "cleartype"       ? EFontQuality::ClearType
                       : quality == "anti_alias"    ? EFontQuality::AntiAlias
                       : quality == "no_anti_alias" ? EFontQuality::NoAntiAlias
                                                    : EFontQuality::Default;
    }
}

} // namespace

std::optional<CColor> ParseColor(std::string_view text)
{
    text = Trimmed(text);
    if (text.starts_with('#'))
    {
        return ParseHexColor(text.substr(1));
    }
    for (const SNamedColor& named : namedColors)
    {
        if (EqualsName(text, named.name))
        {
            return named.color;
        }
    }
    return ParseDecimalColor(text);
}

std::uint32_t ReadPenStyle(const CNamedAttributes& attributes, const std::string& name)
{
    constexpr std::array<std::string_view, 5> styles = {"solid", "dash", "dot", "dash_dot", "dash_dot_dot"};
    const auto found = std::find(styles.begin(), styles.end(), GetView(attributes, name));
    return found == styles.end() ? 0 : static_cast<std::uint32_t>(found - styles.begin());
}

Layout::EAlign ReadAlign(const CNamedAttributes& attributes, const std::string& name)
{
    const bool horizontal = name.ends_with("h_align");
    const std::string_view text = GetView(attributes, name);
    if (text == (horizontal ? "left" : "top"))
    {
        return Layout::EAlign::Begin;
    }
    return text == (horizontal ? "right" : "bottom") ? Layout::EAlign::End : Layout::EAlign::Center;
}

Graphics::ETextHAlign ReadTextHAlign(const CNamedAttributes& attributes)
{
    return static_cast<Graphics::ETextHAlign>(ReadAlign(attributes, "text_h_align"));
}

Graphics::ETextVAlign ReadTextVAlign(const CNamedAttributes& attributes)
{
    return static_cast<Graphics::ETextVAlign>(ReadAlign(attributes, "text_v_align"));
}

Graphics::CTextFormat ReadTextFormat(const CNamedAttributes& attributes)
{
    using Graphics::CTextFormat;
    CTextFormat format;
    format.hAlign = ReadTextHAlign(attributes);
    format.vAlign = ReadTextVAlign(attributes);
    if (IsTrue(attributes, "word_break"))
    {
        format.flags |= CTextFormat::multiline;
    }
    else if (IsTrue(attributes, "multiline"))
    {
        format.flags |= CTextFormat::multiline | CTextFormat::noWrap;
    }
    if (IsTrue(attributes, "ellipsis"))
    {
        format.flags |= CTextFormat::ellipsis;
    }
    return format;
}

Graphics::CImageGraphics::ETileMode ReadTileMode(const CNamedAttributes& attributes)
{
    using ETileMode = Graphics::CImageGraphics::ETileMode;
    return IsTrue(attributes, "stretch")  ? ETileMode::Stretch
           : IsTrue(attributes, "repeat") ? ETileMode::Repeat
                                          : ETileMode::None;
}

std::optional<float> ReadRatio(const CNamedAttributes& attributes, const std::string& name)
{
    const std::string_view text = GetView(attributes, name);
    float value = 0.0F;
    if (text.empty() || text.find('%') != text.size() - 1 || !ReadNumber(attributes, name, value))
    {
        return std::nullopt;
    }
    return FromPercent(value);
}

std::optional<int> ReadPixels(const CNamedAttributes& attributes, const std::string& name)
{
    int value = 0;
    if (GetView(attributes, name).ends_with('%') || !ReadNumber(attributes, name, value) || value == -1)
    {
        return std::nullopt;
    }
    return value;
}

bool NeedsSize(const CNamedAttributes& attributes, const std::string& axis)
{
    return !ReadPixels(attributes, axis) && !ReadRatio(attributes, axis);
}

float ReadOpacity(const CNamedAttributes& attributes)
{
    const bool inPercent = GetView(attributes, "opacity").find('%') != std::string_view::npos;
    float value = inPercent ? 100.0F : 1.0F;
    ReadNumber(attributes, "opacity", value);
    value = inPercent ? FromPercent(value) : value;
    return value > 0.0F ? std::min(value, 1.0F) : 0.0F;
}

bool ReadBuffered(const CNamedAttributes& attributes)
{
    return IsTrue(attributes, FindText(attributes, "buffered") != nullptr ? "buffered" : "anti_flicker");
}

int ReadOffscreenType(const CNamedAttributes& attributes)
{
    const std::string_view text = GetView(attributes, "offscreen_type");
    int type = text == "card" ? 1 : text == "none" ? 0 : 2;
    for (const char* name : {"anti_flicker", "buffered"})
    {
        if (FindText(attributes, name) != nullptr && !IsTrue(attributes, name))
        {
            type = 0;
        }
    }
    return type;
}

void ReadLayoutOptions(const CNamedAttributes& attributes, Layout::CLayoutOptions& options)
{
    using Layout::EAxis;
    options.SetHAlign(ReadAlign(attributes, "h_align"));
    options.SetVAlign(ReadAlign(attributes, "v_align"));
    ReadPositionOption(attributes, "h_position", options, EAxis::Horizontal);
    ReadPositionOption(attributes, "v_position", options, EAxis::Vertical);
    ReadRatioOption(attributes, "width", options, EAxis::Horizontal);
    ReadRatioOption(attributes, "height", options, EAxis::Vertical);
    float flex = 0.0F;
    if (ReadNumber(attributes, "flex", flex))
    {
        options.SetFlex(flex);
    }
}

void ReadFont(const CNamedAttributes& attributes, Graphics::CFontDescription& font)
{
    if (const char* face = FindText(attributes, "font_face"))
    {
        font.face = face;
    }
    if (!ReadNumber(attributes, "font_height", font.height))
    {
        ReadNumber(attributes, "font_size", font.height);
    }
    ReadNumber(attributes, "font_width", font.width);
    ReadNumber(attributes, "font_escapement", font.escapement);
    ReadFontStyle(attributes, font);
}

bool ReadVertical(const CNamedAttributes& attributes, bool missing)
{
    const std::string_view orientation = GetView(attributes, "orientation");
    if (orientation == "vertical" || orientation == "horizontal")
    {
        return orientation == "vertical";
    }
    return FindText(attributes, "vertical") == nullptr ? missing : IsTrue(attributes, "vertical");
}

SAxisPair ReadAxisPair(const CNamedAttributes& attributes, const std::string& name)
{
    int both = 0;
    ReadNumber(attributes, name, both);
    SAxisPair pair{both, both};
    ReadNumber(attributes, "h_" + name, pair.horizontal);
    ReadNumber(attributes, "v_" + name, pair.vertical);
    return pair;
}

} // namespace Mirel::SkinEngine
