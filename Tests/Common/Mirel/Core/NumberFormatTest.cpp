#include "Mirel/Core/NumberFormat.h"

#include "Support/CommaLocale.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace Mirel::Core;

TEST(IsNumberFormat, TakesWhatReadsExactlyOneDouble)
{
    for (const char* format : {"%f",     "%.0f",  "%.2f",   "%e",        "%E",         "%F",
                               "%g",     "%G",    "%a",     "%A",        "%-+ #08.3f", "%5f",
                               "%.f",    "%512f", "%.512f", "%512.512f", "%0512f",     "about %.1f of it",
                               "%.0f%%", "%%%f",  "%f dB",  "\xC2\xB5%f"})
    {
        EXPECT_TRUE(IsNumberFormat(format)) << format;
    }
}

TEST(IsNumberFormat, RefusesEverythingElse)
{
    for (const char* format : {"",
                               "text",
                               "%",
                               "%%",
                               "%.2",
                               "%5",
                               "%.",
                               "%d",
                               "%i",
                               "%u",
                               "%x",
                               "%c",
                               "%s",
                               "%p",
                               "%n",
                               "%f%n",
                               "%n%f",
                               "%f%f",
                               "%f %.2f",
                               "%f %s",
                               "%*f",
                               "%.*f",
                               "%1$f",
                               "%lf",
                               "%Lf",
                               "%hf",
                               "%'f",
                               "%513f",
                               "%.513f",
                               "%99999999999999999999f",
                               "%.99999999999999999999f",
                               "%1.2.3f",
                               "%.-2f",
                               "%.+2f",
                               "%5-f",
                               "%f%",
                               "% ",
                               "%b",
                               "%m"})
    {
        EXPECT_FALSE(IsNumberFormat(format)) << format;
    }
    EXPECT_FALSE(IsNumberFormat(nullptr));
}

TEST(FindNumberFormatFault, SaysWhatIsWrong)
{
    const struct
    {
        const char* format;
        const char* fault;
    } rows[] = {
        {nullptr, "it prints no number"},
        {"", "it prints no number"},
        {"%%", "it prints no number"},
        {"%f%.1f", "it prints more than one number"},
        {"%n", "it has a conversion that is not a number's"},
        {"%f%s", "it has a conversion that is not a number's"},
        {"%*f", "it has a conversion that is not a number's"},
        {"%f%", "it has a conversion that is not a number's"},
        {"%1000000000f", "its width or precision is above 512"},
        {"%.1000000000f", "its width or precision is above 512"},
    };
    for (const auto& row : rows)
    {
        EXPECT_STREQ(FindNumberFormatFault(row.format), row.fault);
    }
    EXPECT_EQ(FindNumberFormatFault("about %.1f%%"), nullptr);
}

TEST(FormatNumber, PrintsAsTheFormatSays)
{
    EXPECT_EQ(FormatNumber("%.0f", 2.6), "3");
    EXPECT_EQ(FormatNumber("%.2f", 2.6), "2.60");
    EXPECT_EQ(FormatNumber("%+.1f dB", 3.0), "+3.0 dB");
    EXPECT_EQ(FormatNumber("%06.1f", -2.5), "-002.5");
    EXPECT_EQ(FormatNumber("%.1e", 12345.0), "1.2e+04");
    EXPECT_EQ(FormatNumber("%g", 0.5), "0.5");
    EXPECT_EQ(FormatNumber("%a", 1.0), "0x1p+0");
    EXPECT_EQ(FormatNumber("%.0f%%", 50.0), "50%");
    EXPECT_EQ(FormatNumber("%f", std::numeric_limits<double>::infinity()), "inf");
}

TEST(FormatNumber, TwoDecimalsTakeThePlaceOfAFormatThatIsNotANumbers)
{
    for (const char* format : {"%s", "%n", "%d", "%f %f", "%*f", "%513f", "", "text"})
    {
        EXPECT_EQ(FormatNumber(format, 2.6), "2.60") << format;
    }
    EXPECT_EQ(FormatNumber(nullptr, 2.6), "2.60");
}

TEST(FormatNumber, PrintsAPointInEveryLocale)
{
    const Tests::CCommaLocale comma;

    EXPECT_EQ(FormatNumber("%.2f", 1234.5), "1234.50");
}

TEST(FormatNumber, HoldsTheLongestNumbersAndTextsWhole)
{
    const std::string widest = FormatNumber("%512.0f", 7.0);
    EXPECT_EQ(widest, std::string(511, ' ') + "7");

    // The largest double has 309 digits before the point.
    const std::string longest = FormatNumber("%.512f", -std::numeric_limits<double>::max());
    EXPECT_EQ(longest.size(), 1U + 309U + 1U + 512U);
    EXPECT_EQ(longest.substr(0, 8), "-1797693");

    for (const std::size_t around : {1021U, 1022U, 1023U, 1024U, 1025U, 5000U})
    {
        const std::string text(around, 'x');
        EXPECT_EQ(FormatNumber((text + "%.0f").c_str(), 1.0), text + "1");
    }
}
