#include "Mirel/Serialization/NumberText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <locale>
#include <string>

namespace Mirel::Serialization
{
namespace
{

template <class T>
std::string Text(T value)
{
    std::string text = "unset";
    EXPECT_TRUE(FormatNumber(value, text));
    return text;
}

template <class T>
T Parsed(const char* text, T before)
{
    ParseNumber(text, before);
    return before;
}

TEST(NumberText, FollowsTheTableOfKinds)
{
    EXPECT_EQ(Text(true), "1");
    EXPECT_EQ(Text(false), "0");
    EXPECT_EQ(Text(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(Text(2147483647), "2147483647");
    EXPECT_EQ(Text(0.1F), "0.10000000149");
    EXPECT_EQ(Text(0.5F), "0.5");
    EXPECT_EQ(Text(1e10F), "10000000000");
    // The nearest float is 999999995904; its eleventh digit is a zero, which is not written.
    EXPECT_EQ(Text(1e12F), "9.999999959e+11");
    EXPECT_EQ(Text(0.1), "0.10000000000000000555");
    EXPECT_EQ(Text(-0.0F), "-0");
}

TEST(NumberText, ReadsTheNumberAtTheStart)
{
    EXPECT_EQ(Parsed("12abc", 5), 12);
    EXPECT_EQ(Parsed("  \n 7", 5), 7);
    EXPECT_EQ(Parsed("1.5", 5), 1);
    EXPECT_EQ(Parsed("+3", 5), 3);
    EXPECT_EQ(Parsed("2", 0.0F), 2.0F);
    EXPECT_EQ(Parsed("1e3", 0.0), 1000.0);
    EXPECT_TRUE(Parsed("2", false));
    EXPECT_FALSE(Parsed("0", true));
}

TEST(NumberText, LeavesTheValueWhereThereIsNoNumber)
{
    for (const char* text : {"", " ", "abc", "-", ".", "true", "inf", "nan", "#5"})
    {
        EXPECT_EQ(Parsed(text, 42), 42) << text;
        EXPECT_EQ(Parsed(text, 42.5F), 42.5F) << text;
        EXPECT_EQ(Parsed(text, 42.5), 42.5) << text;
        EXPECT_TRUE(Parsed(text, true)) << text;
        EXPECT_FALSE(Parsed(text, false)) << text;
    }
}

TEST(NumberText, LeavesTheValueWhereTheTypeCannotHoldTheNumber)
{
    EXPECT_EQ(Parsed("99999999999", 42), 42);
    EXPECT_EQ(Parsed("-2147483649", 42), 42);
    EXPECT_EQ(Parsed("1e39", 42.5F), 42.5F);
    EXPECT_EQ(Parsed("1e999", 42.5), 42.5);
}

TEST(NumberText, WritesWhatIsNotFiniteAndDoesNotReadItBack)
{
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Text(infinity), "inf");
    EXPECT_EQ(Text(-infinity), "-inf");
    EXPECT_EQ(Text(std::numeric_limits<float>::quiet_NaN()), "nan");
    EXPECT_EQ(Parsed("inf", 1.5F), 1.5F);
    EXPECT_EQ(Parsed("nan", 1.5), 1.5);
}

class CGermanNumbers : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(NumberText, DoesNotFollowTheGlobalLocale)
{
    const std::locale previous =
        std::locale::global(std::locale(std::locale::classic(), new CGermanNumbers()));
    const std::string half = Text(0.5F);
    const std::string million = Text(1000000);
    const float read = Parsed("0.25", 0.0F);
    const int readInt = Parsed("1000000", 0);
    std::locale::global(previous);
    EXPECT_EQ(half, "0.5");
    EXPECT_EQ(million, "1000000");
    EXPECT_EQ(read, 0.25F);
    EXPECT_EQ(readInt, 1000000);
}

RC_GTEST_PROP(NumberText, GivesEveryFiniteFloatBackExactly, (std::uint32_t bits))
{
    const auto value = std::bit_cast<float>(bits);
    RC_PRE(std::isfinite(value));
    RC_ASSERT(std::bit_cast<std::uint32_t>(Parsed(Text(value).c_str(), 3.0F)) == bits);
}

RC_GTEST_PROP(NumberText, GivesEveryFiniteDoubleBackExactly, (std::uint64_t bits))
{
    const auto value = std::bit_cast<double>(bits);
    RC_PRE(std::isfinite(value));
    RC_ASSERT(std::bit_cast<std::uint64_t>(Parsed(Text(value).c_str(), 3.0)) == bits);
}

RC_GTEST_PROP(NumberText, GivesEveryIntBack, (int value))
{
    RC_ASSERT(Parsed(Text(value).c_str(), value == 0 ? 1 : 0) == value);
}

} // namespace
} // namespace Mirel::Serialization
