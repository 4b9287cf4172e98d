#include "Mirel/Serialization/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

TEST(Utf8, TakesEveryScalarValueAtTheBoundsOfItsLength)
{
    for (const char* text :
         {"", "a", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
          "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "a\xC3\xA9z"})
    {
        EXPECT_TRUE(IsUtf8(text)) << text;
    }
    EXPECT_TRUE(IsUtf8(std::string(3, '\0')));
}

TEST(Utf8, RefusesWhatIsNotOne)
{
    struct
    {
        const char* name;
        const char* text;
    } const cases[] = {
        {"lone continuation", "\x80"},
        {"overlong two bytes", "\xC1\xBF"},
        {"overlong three bytes", "\xE0\x9F\xBF"},
        {"overlong four bytes", "\xF0\x8F\xBF\xBF"},
        {"surrogate", "\xED\xA0\x80"},
        {"above the last", "\xF4\x90\x80\x80"},
        {"five bytes", "\xF8\x88\x80\x80\x80"},
        {"cut short in two", "\xC3"},
        {"cut short in three", "\xE2\x82"},
        {"cut short in four", "\xF0\x9F\x92"},
        {"third byte is no continuation", "\xE2\x82_"},
        {"no byte of UTF-8", "\xFF"},
    };
    for (const auto& c : cases)
    {
        EXPECT_FALSE(IsUtf8(c.text)) << c.name;
        EXPECT_FALSE(IsUtf8("abc" + std::string(c.text))) << c.name;
    }
}

} // namespace
} // namespace Mirel::Serialization
