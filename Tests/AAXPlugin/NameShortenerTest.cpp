#include "AAXPlugin/NameShortener.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace
{

using MirelExt::AAXPlugin::ShortenName;

struct CRow
{
    const char* text;
    std::size_t limit;
    const char* result;
};

template <std::size_t N>
void ExpectRows(const CRow (&rows)[N])
{
    for (const CRow& row : rows)
    {
        EXPECT_EQ(ShortenName(row.text, row.limit), row.result) << '"' << row.text << "\" to " << row.limit;
    }
}

TEST(NameShortener, TextThatFitsStaysAsItIs)
{
    ExpectRows(
        {{"Scope", 5, "Scope"}, {"Scope ", 6, "Scope "}, {" a  b ", 6, " a  b "}, {"", 0, ""}, {"", 5, ""}});
}

TEST(NameShortener, WordsGoFromTheEndUntilTheRestFits)
{
    ExpectRows({{"Scope Bank", 9, "Scope"},
                {"one two three four", 17, "one two three"},
                {"one two three four", 13, "one two three"},
                {"one two three four", 12, "one two"},
                {"one two three four", 7, "one two"},
                {"one two three four", 6, "one"},
                {"one two three four", 3, "one"}});
}

TEST(NameShortener, SingleWordThatIsTooLongIsCut)
{
    ExpectRows({{"Oscilloscope", 5, "Oscil"}, {"Oscilloscope Bank", 5, "Oscil"}, {"one two", 1, "o"}});
}

TEST(NameShortener, LimitOfZeroLeavesNothing)
{
    ExpectRows({{"Scope", 0, ""}, {"Scope Bank", 0, ""}, {"   ", 0, ""}});
}

TEST(NameShortener, BlanksGoWithTheWordTheyPrecede)
{
    ExpectRows({{"one   two", 8, "one"}, {"one   ", 4, "one"}, {"   one", 4, "one"}, {"     ", 2, ""}});
}

TEST(NameShortener, CountsAndCutsWholeCharacters)
{
    ExpectRows({{"\xC3\xA4\xC3\xB6\xC3\xBC", 3, "\xC3\xA4\xC3\xB6\xC3\xBC"},
                {"\xC3\xA4\xC3\xB6\xC3\xBC", 2, "\xC3\xA4\xC3\xB6"},
                {"\xE2\x82\xAC\xE2\x82\xAC", 1, "\xE2\x82\xAC"},
                {"\xF0\x9F\x8E\x9A\xF0\x9F\x8E\x9A x", 2, "\xF0\x9F\x8E\x9A\xF0\x9F\x8E\x9A"}});
}

TEST(NameShortener, BrokenCharactersCountByTheByte)
{
    ExpectRows({{"\xC3", 1, "\xC3"},
                {"\x80\x80\x80", 2, "\x80\x80"},
                {"\xE2\x82"
                 "abc",
                 3,
                 "\xE2\x82"
                 "a"},
                {"\xFF\xFE", 1, "\xFF"}});
}

RC_GTEST_PROP(NameShortener, ResultNeverExceedsTheLimitAndIsAPartOfTheText, ())
{
    const auto text = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab  c")));
    const auto limit = *rc::gen::inRange<std::size_t>(0, 40);
    const std::string result = ShortenName(text, limit);
    RC_ASSERT(result.size() <= limit);
    RC_ASSERT(text.find(result) != std::string::npos);
    RC_ASSERT(text.size() > limit || result == text);
    RC_ASSERT(ShortenName(result, limit) == result);
}

} // namespace
