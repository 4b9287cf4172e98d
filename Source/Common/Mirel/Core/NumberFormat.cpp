#include "Mirel/Core/NumberFormat.h"

#include "Mirel/Core/CAutoCLocale.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>

namespace Mirel::Core
{

namespace
{

constexpr int maxFieldSize = 512; ///< Of width and precision, in characters.

/// Skips a width or precision; false if it is above the limit.
bool SkipFieldSize(const char*& format)
{
    int size = 0;
    for (; *format >= '0' && *format <= '9'; ++format)
    {
        size = size * 10 + (*format - '0');
        if (size > maxFieldSize)
        {
            return false;
        }
    }
    return true;
}

bool IsOneOf(char character, const char* characters)
{
    return character != '\0' && std::strchr(characters, character) != nullptr;
}

/// Skips one conversion from behind its percent sign, which has to be that of a double. Gives the fault or
/// null.
const char* SkipDoubleConversion(const char*& format)
{
    const char* tooLarge = "its width or precision is above 512";
    while (IsOneOf(*format, "-+ #0"))
    {
        ++format;
    }
    if (!SkipFieldSize(format))
    {
        return tooLarge;
    }
    if (*format == '.' && !SkipFieldSize(++format))
    {
        return tooLarge;
    }
    return IsOneOf(*format++, "eEfFgGaA") ? nullptr : "it has a conversion that is not a number's";
}

/// The one place where a format that is not a literal is printed with: FormatNumber lets nothing else
/// through.
int Print(char* buffer, std::size_t size, const char* checkedFormat, double value)
{
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    return std::snprintf(buffer, size, checkedFormat, value);
#pragma GCC diagnostic pop
}

} // namespace

bool IsNumberFormat(const char* format)
{
    return FindNumberFormatFault(format) == nullptr;
}

const char* FindNumberFormatFault(const char* format)
{
    int conversions = 0;
    while (format != nullptr && *format != '\0')
    {
        if (*format++ != '%')
        {
            continue;
        }
        if (*format == '%')
        {
            ++format;
            continue;
        }
        if (const char* fault = SkipDoubleConversion(format))
        {
            return fault;
        }
        ++conversions;
    }
    if (conversions == 1)
    {
        return nullptr;
    }
    return conversions == 0 ? "it prints no number" : "it prints more than one number";
}

std::string FormatNumber(const char* format, double value)
{
    const char* checkedFormat = IsNumberFormat(format) ? format : "%.2f";
    const CAutoCLocale locale;
    std::array<char, 1024> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    const int length = Print(buffer.data(), buffer.size(), checkedFormat, value);
    if (length < 0)
    {
        return {};
    }
    const auto count = static_cast<std::size_t>(length);
    if (count < buffer.size())
    {
        return {buffer.data(), count};
    }
    std::string text(count + 1, '\0');
    Print(text.data(), text.size(), checkedFormat, value);
    text.resize(count);
    return text;
}

} // namespace Mirel::Core
