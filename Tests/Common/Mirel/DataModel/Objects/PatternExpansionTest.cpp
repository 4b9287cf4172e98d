#include "Mirel/DataModel/Objects/PatternExpansion.h"

#include "Mirel/DataModel/Objects/Limits.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

using namespace Mirel::DataModel::Objects;

namespace
{

/// "{v}" becomes "1.5"; every other placeholder stands for itself.
std::string Expand(std::string_view pattern)
{
    return ExpandPattern(pattern, [](std::string_view placeholder, std::string& result)
                         { result += placeholder == "{v}" ? "1.5" : placeholder; });
}

} // namespace

TEST(ExpandPattern, CopiesTextAndExpandsWhatStandsInBraces)
{
    const struct
    {
        const char* pattern;
        const char* result;
    } cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"{v}", "1.5"},
        {"a{v}b", "a1.5b"},
        {"{v}{v}", "1.51.5"},
        {"a{v} - {v}b", "a1.5 - 1.5b"},
        {"{other}", "{other}"},
        {"x{other}y{v}z", "x{other}y1.5z"},
        {"{}", "{}"},
        {"{ v}", "{ v}"},
        {"{V}", "{V}"},
        {"}", "}"},
        {"a}b{v}", "a}b1.5"},
        {"{v}}", "1.5}"},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(Expand(each.pattern), each.result) << each.pattern;
    }
}

TEST(ExpandPattern, BraceThatNeverClosesIsCopiedAsItStands)
{
    for (const char* pattern : {"{", "abc{def", "{abc", "a{", "a{b{c", "}{", "a}b{c"})
    {
        EXPECT_EQ(Expand(pattern), pattern);
    }
    EXPECT_EQ(Expand("{v}{"), "1.5{");
    EXPECT_EQ(Expand("x{v}y{z"), "x1.5y{z");
    EXPECT_EQ(Expand("x{v}y{z{w"), "x1.5y{z{w");
}

TEST(ExpandPattern, DoubledBraceGivesOneAndThenTheTextOnceMore)
{
    EXPECT_EQ(Expand("a{{b"), "a{a{{b");
    EXPECT_EQ(Expand("{{"), "{{{");
    // Before the second pair everything from the start is copied, then again at the end.
    EXPECT_EQ(Expand("a{{b{{c"), "a{a{{b{a{{b{{c");
    EXPECT_EQ(Expand("a{{b{v}c"), "a{a{{b1.5c");
    EXPECT_EQ(Expand("{v}a{{b"), "1.5a{a{{b");
    EXPECT_EQ(Expand("{{v}}"), "{{{v}}");
    EXPECT_EQ(Expand("a{{b{c"), "a{a{{b{c");
}

TEST(ExpandPattern, PlaceholderInsideAnUnknownOneIsExpandedAfterIt)
{
    // Up to the closing brace "{a{v}" is one unknown placeholder; the brace inside begins the next.
    EXPECT_EQ(Expand("{a{v}"), "{a{v}1.5");
    EXPECT_EQ(Expand("{a{v}b"), "{a{v}1.5b");
}

TEST(ExpandPattern, ResultOfAHostilePatternEndsAtTheLimit)
{
    std::string doubled;
    std::string nested;
    for (int i = 0; i < 20000; ++i)
    {
        doubled += "x{{";
        nested += "{x";
    }
    nested += '}';

    EXPECT_EQ(Expand(doubled).size(), maxExpandedText);
    EXPECT_EQ(Expand(nested).size(), maxExpandedText);
    EXPECT_EQ(Expand(std::string(maxExpandedText, 'x')).size(), maxExpandedText);
    EXPECT_EQ(Expand(std::string(maxExpandedText + 1, 'x')).size(), maxExpandedText);
}

TEST(ExpandPattern, LimitCutsBeforeACharacterNotInsideIt)
{
    std::string pattern = "a";
    for (std::size_t i = 0; i < maxExpandedText; ++i)
    {
        pattern += "\u00B5"; // two bytes
    }

    EXPECT_EQ(Expand(pattern).size(), maxExpandedText - 1);
}

RC_GTEST_PROP(ExpandPattern, PatternOfUnknownPlaceholdersIsItsOwnExpansion, ())
{
    const auto word = rc::gen::container<std::string>(rc::gen::elementOf(std::string("abc }")));
    const auto inside = rc::gen::container<std::string>(rc::gen::elementOf(std::string("abc ")));
    std::string pattern;
    for (int i = *rc::gen::inRange(0, 6); i > 0; --i)
    {
        pattern += *word;
        pattern += '{';
        pattern += *inside;
        pattern += '}';
    }
    pattern += *rc::gen::element(std::string(), std::string("{end"));

    RC_ASSERT(Expand(pattern) == pattern);
}
