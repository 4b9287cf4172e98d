#include "SkinCheck/JsonText.h"

#include "Mirel/Serialization/Utf8.h"

#include <cstdio>

namespace SkinCheck
{

namespace
{

std::string Escaped(char character, bool isUtf8)
{
    constexpr unsigned firstPrintable = 0x20;
    constexpr unsigned firstNotAscii = 0x80;
    const auto byte = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\')
    {
        return {'\\', character};
    }
    if (byte < firstPrintable)
    {
        char text[8];
        static_cast<void>(std::snprintf(text, sizeof(text), "\\u%04x", static_cast<unsigned>(byte)));
        return text;
    }
    return byte >= firstNotAscii && !isUtf8 ? "\\ufffd" : std::string(1, character);
}

} // namespace

std::string JsonText(const std::string& text)
{
    const bool isUtf8 = Mirel::Serialization::IsUtf8(text);
    std::string json = "\"";
    for (const char character : text)
    {
        json += Escaped(character, isUtf8);
    }
    return json.append("\"");
}

} // namespace SkinCheck
