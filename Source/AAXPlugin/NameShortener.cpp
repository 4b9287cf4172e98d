#include "AAXPlugin/NameShortener.h"

#include "Mirel/Serialization/Utf8.h"

namespace MirelExt::AAXPlugin
{

using Mirel::Serialization::IsUtf8Continuation;

namespace
{

/// How many continuation bytes a lead byte asks for.
std::size_t ContinuationsAfter(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xC2U && byte <= 0xDFU)
    {
        return 1;
    }
    if (byte >= 0xE0U && byte <= 0xEFU)
    {
        return 2;
    }
    return byte >= 0xF0U && byte <= 0xF4U ? 3 : 0;
}

/// Bytes of the first character. Not called for an empty text.
std::size_t FirstCharacterSize(std::string_view text)
{
    const std::size_t size = 1 + ContinuationsAfter(text.front());
    if (size > text.size())
    {
        return 1;
    }
    for (std::size_t i = 1; i < size; ++i)
    {
        if (!IsUtf8Continuation(text[i]))
        {
            return 1;
        }
    }
    return size;
}

/// The first `limit` characters, or fewer if there are no more.
std::string_view FirstCharacters(std::string_view text, std::size_t limit)
{
    std::size_t end = 0;
    for (; limit > 0 && end < text.size(); --limit)
    {
        end += FirstCharacterSize(text.substr(end));
    }
    return text.substr(0, end);
}

bool Fits(std::string_view text, std::size_t limit)
{
    return FirstCharacters(text, limit).size() == text.size();
}

std::string_view WithoutTrailingBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view WithoutLeadingBlanks(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

} // namespace

std::string ShortenName(std::string_view name, std::size_t limit)
{
    if (Fits(name, limit))
    {
        return std::string(name);
    }
    std::string_view words = WithoutTrailingBlanks(WithoutLeadingBlanks(name));
    while (!Fits(words, limit))
    {
        const std::size_t blank = words.find_last_of(' ');
        if (blank == std::string_view::npos)
        {
            return std::string(FirstCharacters(words, limit));
        }
        words = WithoutTrailingBlanks(words.substr(0, blank));
    }
    return std::string(words);
}

} // namespace MirelExt::AAXPlugin
