#include "Mirel/Serialization/IniText.h"

#include <algorithm>

namespace Mirel::Serialization
{

namespace
{

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char c)
{
    return blanks.find(c) != std::string_view::npos;
}

bool HasOuterBlank(std::string_view text)
{
    return IsBlank(text.front()) || IsBlank(text.back());
}

bool EndsLines(std::string_view line)
{
    constexpr std::string_view tag = "end_of_text";
    while (!line.empty() && IsBlank(line.back()))
    {
        line.remove_suffix(1);
    }
    return std::equal(line.begin(), line.end(), tag.begin(), tag.end(),
                      [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; });
}

} // namespace

bool IsIniKey(std::string_view key)
{
    constexpr std::string_view marks = ";#[";
    return !key.empty() && !HasOuterBlank(key) && marks.find(key.front()) == std::string_view::npos &&
           key.find_first_of("=\r\n") == std::string_view::npos && !key.starts_with(byteOrderMark);
}

bool IsIniSection(std::string_view section)
{
    return !section.empty() && !HasOuterBlank(section) &&
           section.find_first_of("]\r\n") == std::string_view::npos;
}

bool IsIniValue(std::string_view value)
{
    if (value.find('\r') != std::string_view::npos)
    {
        return false;
    }
    if (value.empty() || (!HasOuterBlank(value) && value.find('\n') == std::string_view::npos))
    {
        return !value.starts_with("<<<");
    }
    for (;;)
    {
        const std::size_t end = value.find('\n');
        if (EndsLines(value.substr(0, end)))
        {
            return false;
        }
        if (end == std::string_view::npos)
        {
            return true;
        }
        value.remove_prefix(end + 1);
    }
}

} // namespace Mirel::Serialization
