#include "Mirel/DataModel/Objects/CParamValueToText.h"

#include "Common/Mirel/DataModel/Objects/ValueText.h"
#include "Support/CommaLocale.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <rapidcheck/gtest.h>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::ValueText;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

std::string Metric(const char* format, float value)
{
    return ValueText(CParamValueToText(format, true, "{value}"), value);
}

std::string WithDigits(int digits, const char* format, float value, bool metric = false)
{
    CParamValueToText converter(format, metric, "{value}");
    converter.SetSignificantDigits(digits);
    return ValueText(converter, value);
}

} // namespace

TEST(CParamValueToText, PrintsTheValueWithTheFormat)
{
    EXPECT_EQ(ValueText(CParamValueToText("%.2f", false, "{value}"), 1.5F), "1.50");
    EXPECT_EQ(ValueText(CParamValueToText("%.0f", false, "{value}"), 2.6F), "3");
    EXPECT_EQ(ValueText(CParamValueToText("%+.1f", false, "{value}"), 0.0F), "+0.0");
    // The float is widened before it is printed.
    EXPECT_EQ(ValueText(CParamValueToText("%.10f", false, "{value}"), 0.1F), "0.1000000015");
}

TEST(CParamValueToText, HandsOutANewTextWhateverThePointerHeld)
{
    char stale[] = "stale";
    char* text = stale;
    CParamValueToText("%.0f", false, "{value}").ToText(7.0F, text);
    const std::unique_ptr<char[]> owner(text);

    EXPECT_STREQ(text, "7");
    EXPECT_STREQ(stale, "stale");
}

TEST(CParamValueToText, PatternSurroundsTheNumber)
{
    EXPECT_EQ(ValueText(CParamValueToText("%.1f", false, "about {value} dB"), 1.5F), "about 1.5 dB");
    EXPECT_EQ(ValueText(CParamValueToText("%.1f", false, "no number"), 1.5F), "no number");
    EXPECT_EQ(ValueText(CParamValueToText("%.1f", false, ""), 1.5F), "");
}

TEST(CParamValueToText, UnknownPlaceholdersKeepTheirBraces)
{
    EXPECT_EQ(ValueText(CParamValueToText("%.1f", false, "{value} {unit} {}"), 1.5F), "1.5 {unit} {}");
}

TEST(CParamValueToText, OddBracesAreCopiedAsEstablished)
{
    EXPECT_EQ(ValueText(CParamValueToText("%.1f", false, "abc{def"), 1.5F), "abc{def");
    EXPECT_EQ(ValueText(CParamValueToText("%.1f", false, "a{{b"), 1.5F), "a{a{{b");
}

TEST(CParamValueToText, NullTextsCountAsEmpty)
{
    const CParamValueToText converter(nullptr, false, nullptr);
    EXPECT_STREQ(converter.GetFormat(), "");
    EXPECT_STREQ(converter.GetPattern(), "");
    EXPECT_EQ(ValueText(converter, 1.5F), "");
}

TEST(CParamValueToText, FormatThatTakesAnythingButOneDoubleGivesTwoDecimals)
{
    for (const char* format : {"%s", "%n", "%d", "%f%f", "%*f", "%513f", "", "none"})
    {
        const CParamValueToText converter(format, false, "{value}");
        EXPECT_EQ(ValueText(converter, 1.5F), "1.50") << format;
        EXPECT_STREQ(converter.GetFormat(), format);
    }
}

TEST(CParamValueToText, HostileFormatsAndPatternsPrintAPlainNumber)
{
    const std::string longFormat = std::string(1001, '%') + "s";
    for (const char* format : {"%s%s%s%s%s%s%s%s", "%n%n%n%n", "%1000000000f", "%.1000000000f", "%f%n",
                               "%99$f", "%*.*f", "%", "%-", longFormat.c_str()})
    {
        CParamValueToText converter("%.0f", true, "{value}");
        converter.SetSignificantDigits(2);
        converter.SetFormat(format);
        EXPECT_EQ(ValueText(converter, 1234.0F), "1.20k") << format;
        EXPECT_EQ(ValueText(converter, notANumber), "nan") << format;
        // A pattern is copied, never printed with.
        EXPECT_EQ(ValueText(CParamValueToText("%.0f", false, format), 1.5F), format);
    }
}

TEST(CParamValueToText, TellsWhatIsWrongWithAFormat)
{
    EXPECT_EQ(CParamValueToText::DescribeFormatFault("%.2f dB"), "");
    EXPECT_EQ(CParamValueToText::DescribeFormatFault("%f%n"),
              "'%f%n' : Invalid value format, it has a conversion that is not a number's. Using default.");
    EXPECT_EQ(CParamValueToText::DescribeFormatFault("%f%f"),
              "'%f%f' : Invalid value format, it prints more than one number. Using default.");
    EXPECT_EQ(CParamValueToText::DescribeFormatFault("%.1000000000f"),
              "'%.1000000000f' : Invalid value format, its width or precision is above 512. Using default.");
    EXPECT_EQ(CParamValueToText::DescribeFormatFault(nullptr),
              "'' : Invalid value format, it prints no number. Using default.");
    EXPECT_EQ(CParamValueToText::DescribeFormatFault((std::string(63, 'x') + "\xC2\xB5 and more").c_str()),
              "'" + std::string(63, 'x') +
                  "...' : Invalid value format, it prints no number. Using default.");
}

RC_GTEST_PROP(CParamValueToText, AFormatIsUsedOrDescribed, ())
{
    const auto format = *rc::gen::container<std::string>(
        rc::gen::element('%', 'f', 'e', 's', 'n', '*', '.', '-', '0', '5', '9', '$', 'l', 'x'));
    const std::string text = ValueText(CParamValueToText(format.c_str(), false, "{value}"), 1.5F);
    const std::string fallback = ValueText(CParamValueToText("%.2f", false, "{value}"), 1.5F);
    RC_ASSERT(CParamValueToText::DescribeFormatFault(format.c_str()).empty() || text == fallback);
}

TEST(CParamValueToText, SignificantDigitsRoundTheValue)
{
    EXPECT_EQ(WithDigits(3, "%.0f", 1234.5F), "1230");
    EXPECT_EQ(WithDigits(3, "%.0f", -1234.5F), "-1230");
    EXPECT_EQ(WithDigits(2, "%.3f", 0.1251F), "0.130");
    EXPECT_EQ(WithDigits(3, "%.0f", infinity), "inf");
    EXPECT_EQ(WithDigits(3, "%.0f", notANumber), "nan");
}

TEST(CParamValueToText, SignificantDigitsPrintAZeroAsMinusOne)
{
    EXPECT_EQ(WithDigits(3, "%.0f", 0.0F), "-1");
    EXPECT_EQ(WithDigits(3, "%.2f", -0.0F), "-1.00");
    EXPECT_EQ(WithDigits(1, "%.1f", 0.0F, true), "-1.0");
}

TEST(CParamValueToText, WithoutSignificantDigitsTheValueStays)
{
    for (const int digits : {-1, 0, -3})
    {
        EXPECT_EQ(WithDigits(digits, "%.1f", 1234.5F), "1234.5") << digits;
        EXPECT_EQ(WithDigits(digits, "%.1f", 0.0F), "0.0") << digits;
    }
}

TEST(CParamValueToText, MetricPrefixFollowsThePowerOfAThousand)
{
    EXPECT_EQ(Metric("%.1f", 1500.0F), "1.5k");

    const struct
    {
        float value;
        const char* text;
    } cases[] = {
        {0.5e-9F, "0.5p"}, {0.5e-6F, "0.5\xC2\xB5"}, {0.5e-3F, "0.5m"}, {0.5F, "0.5"},
        {2e3F, "2.0k"},    {2e6F, "2.0M"},           {2e9F, "2.0G"},    {2e12F, "2.0T"},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(Metric("%.1f", each.value), each.text);
    }
}

TEST(CParamValueToText, MetricPrefixTurnsAtTheTruncatedLogarithm)
{
    EXPECT_EQ(Metric("%.0f", 999.0F), "999");
    EXPECT_EQ(Metric("%.0f", 1000.0F), "1k");
    EXPECT_EQ(Metric("%.0f", 999999.0F), "1000k");
    EXPECT_EQ(Metric("%.0f", 0.001F), "1m");
    // The logarithm of 0.002 is -2.7, which truncates to -2: no prefix yet.
    EXPECT_EQ(Metric("%.3f", 0.002F), "0.002");
    EXPECT_EQ(Metric("%.2f", 0.01F), "0.01");
    EXPECT_EQ(Metric("%.1f", 0.1F), "0.1");
    EXPECT_EQ(Metric("%.0f", 1.0F), "1");
}

TEST(CParamValueToText, NoPrefixBeyondTheTableOrWithoutALogarithm)
{
    EXPECT_EQ(Metric("%.1e", 2e15F), "2.0e+15");
    EXPECT_EQ(Metric("%.1e", 0.5e-12F), "5.0e-13");
    EXPECT_EQ(Metric("%.1f", -1500.0F), "-1500.0");
    EXPECT_EQ(Metric("%.1f", 0.0F), "0.0");
    EXPECT_EQ(Metric("%.1f", infinity), "inf");
    EXPECT_EQ(Metric("%.1f", -infinity), "-inf");
    EXPECT_EQ(Metric("%.1f", notANumber), "nan");
    EXPECT_EQ(Metric("%.1e", std::numeric_limits<float>::max()), "3.4e+38");
}

TEST(CParamValueToText, PrefixFollowsThePrintedFormatAtOnce)
{
    EXPECT_EQ(ValueText(CParamValueToText("%.1f s", true, "<{value}>"), 1500.0F), "<1.5 sk>");
}

TEST(CParamValueToText, DigitsAreRoundedBeforeThePrefixIsChosen)
{
    // 999.6 has no prefix; 1000 has one.
    EXPECT_EQ(WithDigits(3, "%.0f", 999.6F, true), "1k");
    EXPECT_EQ(WithDigits(2, "%.2f", 1234.0F, true), "1.20k");
}

TEST(CParamValueToText, NumbersHaveAPointInEveryLocale)
{
    const Tests::CCommaLocale comma;
    EXPECT_EQ(ValueText(CParamValueToText("%.2f", false, "{value}"), 1.5F), "1.50");
}

TEST(CParamValueToText, SettersFireOnAChangeOnly)
{
    CParamValueToText converter("%.1f", false, "{value}");
    CEventCounter changes(converter.GetChangedEventProvider());

    converter.SetFormat("%.1f");
    converter.SetPattern("{value}");
    converter.SetMetric(false);
    converter.SetSignificantDigits(-1);
    EXPECT_EQ(changes.Take(), 0);

    converter.SetFormat("%.2f");
    EXPECT_EQ(changes.Take(), 1);
    converter.SetPattern("<{value}>");
    EXPECT_EQ(changes.Take(), 1);
    converter.SetMetric(true);
    EXPECT_EQ(changes.Take(), 1);
    converter.SetSignificantDigits(2);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(ValueText(converter, 1234.0F), "<1.20k>");

    converter.SetPattern(nullptr);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(converter.GetPattern(), "");
}

TEST(CParamValueToText, CloneHasAllFieldsAndNoListeners)
{
    CParamValueToText converter("%.2f", true, "<{value}>");
    converter.SetSignificantDigits(2);
    CEventCounter changes(converter.GetChangedEventProvider());

    const IParamValueToText& interface = converter;
    const std::unique_ptr<IParamValueToText> clone(interface.Clone());
    auto* cloned = dynamic_cast<CParamValueToText*>(clone.get());
    ASSERT_NE(cloned, nullptr);

    EXPECT_EQ(ValueText(*clone, 1234.0F), "<1.20k>");
    cloned->SetMetric(false);
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(ValueText(converter, 1234.0F), "<1.20k>");
}
