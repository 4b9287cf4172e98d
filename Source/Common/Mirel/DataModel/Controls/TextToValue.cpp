#include "Mirel/DataModel/Controls/TextToValue.h"

#include "Mirel/DataModel/Controls/ValueOfKind.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/DataModel/Objects/Limits.h"
#include "Mirel/DataModel/Objects/MetricPrefix.h"
#include "Mirel/DataModel/Objects/ValueToString.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string>

namespace Mirel::DataModel::Controls
{

namespace
{

using Objects::IConstParamInfo;

/// The powers of a thousand that texts of values know, the plain number first: one that is too small for its
/// prefix prints without, and would be taken for it.
constexpr std::array<int, 8> allThousands = {0, -3, -2, -1, 1, 2, 3, 4};

std::string_view Trim(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
    {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualInAnyCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

/// Takes a decimal number off the front.
bool TakeNumber(std::string_view& text, double& number)
{
    std::string_view digits = text;
    if (digits.starts_with('+'))
    {
        digits.remove_prefix(1);
        if (digits.starts_with('-'))
        {
            return false;
        }
    }
    double parsed = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), parsed);
    if (error != std::errc() || !std::isfinite(parsed))
    {
        return false;
    }
    number = parsed;
    text = digits.substr(static_cast<std::size_t>(end - digits.data()));
    return true;
}

double Scaled(double number, int thousands)
{
    // A division by an exact power is rounded once, a product with an inexact one twice.
    const double factor = std::pow(1000.0, std::abs(thousands));
    return thousands < 0 ? number / factor : number * factor;
}

/// Whether what follows a number is nothing, a unit, or a metric prefix with either.
bool ReadSuffix(std::string_view suffix, std::string_view unit, int& thousands)
{
    thousands = 0;
    if (suffix.empty() || EqualInAnyCase(suffix, unit))
    {
        return true;
    }
    if (!Objects::TakeMetricPrefix(suffix, thousands))
    {
        return false;
    }
    suffix = Trim(suffix);
    return suffix.empty() || EqualInAnyCase(suffix, unit);
}

/// What the converter prints after the number of a value; false if its text does not begin with one.
bool PrintedSuffix(const IConstParamInfo& info, double value, std::string& suffix)
{
    const std::string printed = Objects::ValueToString(info.GetValueToText(), static_cast<float>(value));
    std::string_view rest = Trim(printed);
    double number = 0.0;
    if (!TakeNumber(rest, number))
    {
        return false;
    }
    suffix = Trim(rest);
    return true;
}

/// A number with the very suffix that the converter would give it, prefix included.
bool ReadPrintedSuffix(const IConstParamInfo& info, double number, std::string_view suffix, double& value)
{
    std::string printed;
    for (const int thousands : allThousands)
    {
        const double candidate = Scaled(number, thousands);
        if (PrintedSuffix(info, candidate, printed) && suffix == printed)
        {
            value = candidate;
            return true;
        }
    }
    return false;
}

bool ReadNumber(const IConstParamInfo& info, std::string_view text, float& value)
{
    double number = 0.0;
    if (!TakeNumber(text, number))
    {
        return false;
    }
    const std::string_view suffix = Trim(text);
    const char* unit = info.GetUnit();
    int thousands = 0;
    double scaled = number;
    if (ReadSuffix(suffix, Trim(unit == nullptr ? "" : unit), thousands))
    {
        scaled = Scaled(number, thousands);
    }
    else if (!ReadPrintedSuffix(info, number, suffix, scaled))
    {
        return false;
    }
    value = static_cast<float>(scaled);
    return true;
}

bool IsPrintedAs(const IConstParamInfo& info, float value, std::string_view text)
{
    return Trim(Objects::ValueToString(info.GetValueToText(), value)) == text;
}

/// Looks through the values of a whole kind for the one with that text.
bool ReadName(const IConstParamInfo& info, std::string_view text, float& value)
{
    if (!Objects::IsWholeValueKind(info.GetType()))
    {
        return false;
    }
    for (int i = 0; i < Objects::maxEnumNames; ++i)
    {
        const float candidate = info.GetMin() + static_cast<float>(i);
        if (!(candidate <= info.GetMax()))
        {
            return false;
        }
        if (IsPrintedAs(info, candidate, text))
        {
            value = candidate;
            return true;
        }
    }
    return false;
}

/// A two-state kind takes the nearer end, which on a range that does not begin at 0 is not what a position
/// gives.
float NearestOfKind(const IConstParamInfo& info, float value)
{
    if (!Objects::IsWholeValueKind(info.GetType()))
    {
        return value;
    }
    if (info.GetType() == Objects::ValueKindInteger)
    {
        return RoundAwayFromZero(value);
    }
    return value - info.GetMin() > info.GetMax() - value ? info.GetMax() : info.GetMin();
}

} // namespace

bool TextToValue(const IConstParamInfo& info, std::string_view text, float& value)
{
    text = Trim(text);
    float number = 0.0F;
    const bool isNumber = ReadNumber(info, text, number);
    float named = 0.0F;
    // A text that stands for several values, as rounded ones do, means the number that it is.
    if (isNumber && IsPrintedAs(info, number, text))
    {
        value = NearestOfKind(info, number);
        return true;
    }
    if (ReadName(info, text, named))
    {
        value = named;
        return true;
    }
    if (isNumber)
    {
        value = NearestOfKind(info, number);
    }
    return isNumber;
}

} // namespace Mirel::DataModel::Controls
