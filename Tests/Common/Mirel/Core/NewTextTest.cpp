#include "Mirel/Core/NewText.h"

#include <gtest/gtest.h>
#include <memory>

using Mirel::Core::NewText;

TEST(NewText, GivesACopyThatEndsWithZero)
{
    const std::string_view part = std::string_view("abcdef").substr(1, 3);
    const std::unique_ptr<char[]> text(NewText(part));

    EXPECT_STREQ(text.get(), "bcd");
}

TEST(NewText, NothingGivesAnEmptyText)
{
    const std::unique_ptr<char[]> text(NewText({}));

    EXPECT_STREQ(text.get(), "");
}
