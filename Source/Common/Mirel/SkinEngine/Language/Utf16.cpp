#include "Mirel/SkinEngine/Language/Utf16.h"

#include <cstddef>

namespace Mirel::SkinEngine
{

namespace
{

constexpr char32_t replacement = 0xFFFD;

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The character at the start of the text, and a step behind it.
char32_t TakeCharacter(const char16_t*& text)
{
    const char16_t unit = *text++;
    if (IsHighSurrogate(unit) && IsLowSurrogate(*text))
    {
        const auto high = static_cast<char32_t>(unit - 0xD800);
        const auto low = static_cast<char32_t>(*text++ - 0xDC00);
        return 0x10000 + (high << 10U) + low;
    }
    return IsHighSurrogate(unit) || IsLowSurrogate(unit) ? replacement : unit;
}

void Append(char32_t code, std::string& target)
{
    const auto put = [&target](char32_t byte) { target.push_back(static_cast<char>(byte)); };
    if (code < 0x80)
    {
        put(code);
    }
    else if (code < 0x800)
    {
        put(0xC0 | (code >> 6U));
        put(0x80 | (code & 0x3FU));
    }
    else if (code < 0x10000)
    {
        put(0xE0 | (code >> 12U));
        put(0x80 | ((code >> 6U) & 0x3FU));
        put(0x80 | (code & 0x3FU));
    }
    else
    {
        put(0xF0 | (code >> 18U));
        put(0x80 | ((code >> 12U) & 0x3FU));
        put(0x80 | ((code >> 6U) & 0x3FU));
        put(0x80 | (code & 0x3FU));
    }
}

} // namespace

void AssignUtf8(const char16_t* text, std::string& target)
{
    target.clear();
    if (text == nullptr)
    {
        return;
    }
    std::size_t ascii = 0;
    while (text[ascii] != 0 && text[ascii] < 0x80)
    {
        ++ascii;
    }
    target.resize(ascii);
    for (std::size_t i = 0; i < ascii; ++i)
    {
        target[i] = static_cast<char>(text[i]);
    }
    for (text += ascii; *text != 0;)
    {
        Append(TakeCharacter(text), target);
    }
}

std::string ToUtf8(const char16_t* text)
{
    std::string target;
    AssignUtf8(text, target);
    return target;
}

} // namespace Mirel::SkinEngine
