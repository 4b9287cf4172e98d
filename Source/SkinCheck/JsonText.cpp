#include "SkinCheck/JsonText.h"

#include <array>
#include <cstdio>

namespace SkinCheck
{

namespace
{

/// The bytes of the character at that place; 0 if it is none.
std::size_t CharacterLength(std::string_view text, std::size_t position)
{
    const auto lead = static_cast<unsigned char>(text[position]);
    std::size_t length = 1;
    if (lead >= 0x80U)
    {
        length = lead >= 0xF0U && lead < 0xF5U ? 4 : lead >= 0xE0U ? 3 : lead >= 0xC2U ? 2 : 0;
        length = lead >= 0xF5U || position + length > text.size() ? 0 : length;
    }
    for (std::size_t i = 1; i < length; ++i)
    {
        if ((static_cast<unsigned char>(text[position + i]) & 0xC0U) != 0x80U)
        {
            return 0;
        }
    }
    return length;
}

} // namespace

std::string ToJson(std::string_view text)
{
    std::string json = "\"";
    for (std::size_t i = 0; i < text.size();)
    {
        const char c = text[i];
        const std::size_t length = CharacterLength(text, i);
        if (c == '"' || c == '\\')
        {
            json += '\\';
            json += c;
        }
        else if (static_cast<unsigned char>(c) < 0x20U)
        {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(c));
            json += escape.data();
        }
        else if (length == 0)
        {
            json += '?';
        }
        else
        {
            json += text.substr(i, length);
        }
        i += length == 0 ? 1 : length;
    }
    return json += '"';
}

} // namespace SkinCheck
