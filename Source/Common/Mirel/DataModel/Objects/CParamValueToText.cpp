#include "Mirel/DataModel/Objects/CParamValueToText.h"

#include "Mirel/Core/NewText.h"
#include "Mirel/Core/NumberFormat.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/MetricPrefix.h"
#include "Mirel/DataModel/Objects/PatternExpansion.h"
#include "Mirel/DataModel/Objects/SignificantDigits.h"

#include <cmath>
#include <cstddef>

namespace Mirel::DataModel::Objects
{

namespace
{

constexpr std::size_t maxFormatInMessage = 64; ///< Bytes; a hostile one shall not flood the log.

/// The power of a thousand of a value, rounded towards zero, so that from 0.001 up to 999 there is none.
/// Values without a logarithm give one that has no prefix.
int ThousandsOf(float value)
{
    return Core::TruncateToInt32(static_cast<double>(std::log10(value))) / 3;
}

} // namespace

CParamValueToText::CParamValueToText(const char* format_, bool metric_, const char* pattern_)
    : pattern(pattern_ == nullptr ? "" : pattern_),
      format(format_ == nullptr ? "" : format_),
      metric(metric_)
{
}

CParamValueToText::CParamValueToText(const CParamValueToText& other)
    : IParamValueToText(),
      pattern(other.pattern),
      format(other.format),
      metric(other.metric),
      significantDigits(other.significantDigits)
{
}

void CParamValueToText::ToText(float value, char*& text) const
{
    text = nullptr;
    text =
        Core::NewText(ExpandPattern(pattern, [this, value](std::string_view placeholder, std::string& result)
                                    { AppendPlaceholder(placeholder, value, result); }));
}

void CParamValueToText::SetPattern(const char* newPattern)
{
    SetText(pattern, newPattern);
}

void CParamValueToText::SetFormat(const char* newFormat)
{
    SetText(format, newFormat);
}

std::string CParamValueToText::DescribeFormatFault(const char* format)
{
    const char* fault = Core::FindNumberFormatFault(format);
    if (fault == nullptr)
    {
        return {};
    }
    std::string shown = format == nullptr ? "" : format;
    if (shown.size() > maxFormatInMessage)
    {
        CutToWholeCharacters(shown, maxFormatInMessage);
        shown += "...";
    }
    return "'" + shown + "' : Invalid value format, " + fault + ". Using default.";
}

void CParamValueToText::SetMetric(bool newMetric)
{
    if (metric != newMetric)
    {
        metric = newMetric;
        changed.Notify();
    }
}

void CParamValueToText::SetSignificantDigits(int digits)
{
    if (significantDigits != digits)
    {
        significantDigits = digits;
        changed.Notify();
    }
}

void CParamValueToText::AppendPlaceholder(std::string_view placeholder, float value,
                                          std::string& result) const
{
    if (placeholder == "{value}")
    {
        result += NumberToText(value);
    }
    else
    {
        result += placeholder;
    }
}

std::string CParamValueToText::NumberToText(float value) const
{
    if (significantDigits > 0)
    {
        // A zero has no digits to round to; it is deliberately shown as minus one.
        const float rounded = value < 0.0F || value > 0.0F || std::isnan(value) ? value : -1.0F;
        value = RoundToSignificantDigits(rounded, significantDigits);
    }
    const char* prefix = nullptr;
    if (metric)
    {
        const int thousands = ThousandsOf(value);
        prefix = MetricPrefixOf(thousands);
        if (prefix != nullptr)
        {
            value *= std::pow(10.0F, static_cast<float>(-3 * thousands));
        }
    }
    std::string text = Core::FormatNumber(format.c_str(), static_cast<double>(value));
    if (prefix != nullptr)
    {
        text += prefix;
    }
    return text;
}

void CParamValueToText::SetText(std::string& field, const char* newText)
{
    const std::string_view text = newText == nullptr ? "" : newText;
    if (field != text)
    {
        field = std::string(text);
        changed.Notify();
    }
}

} // namespace Mirel::DataModel::Objects
