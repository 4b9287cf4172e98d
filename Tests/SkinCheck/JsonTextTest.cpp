#include "SkinCheck/JsonText.h"

#include <gtest/gtest.h>

namespace SkinCheck
{

TEST(JsonText, QuotesAndEscapes)
{
    EXPECT_EQ(JsonText(""), "\"\"");
    EXPECT_EQ(JsonText("a \"b\" \\"), R"("a \"b\" \\")");
    EXPECT_EQ(JsonText("1\n2\t\x01"), R"("1\u000a2\u0009\u0001")");
    EXPECT_EQ(JsonText("\xc3\xa9"), "\"\xc3\xa9\"");
}

TEST(JsonText, ReplacesWhatIsNoUtf8)
{
    EXPECT_EQ(JsonText("a\xff"), R"("a\ufffd")");
}

} // namespace SkinCheck
