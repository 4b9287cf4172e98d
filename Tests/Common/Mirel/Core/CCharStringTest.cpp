#include "Mirel/Core/CCharString.h"

#include <gtest/gtest.h>

using Mirel::Core::CCharString;

TEST(CCharString, HoldsACopyOfTheText)
{
    char source[] = "gain";
    const CCharString text(source);
    source[0] = 'p';

    EXPECT_STREQ(text.Get(), "gain");
    EXPECT_FALSE(text.IsNull());
}

TEST(CCharString, NullStaysNullApartFromEmpty)
{
    EXPECT_EQ(CCharString().Get(), nullptr);
    EXPECT_EQ(CCharString(nullptr).Get(), nullptr);
    EXPECT_STREQ(CCharString(nullptr).GetOrEmpty(), "");
    EXPECT_STREQ(CCharString("").Get(), "");

    CCharString text("gain");
    text.Assign(nullptr);
    EXPECT_TRUE(text.IsNull());
}

TEST(CCharString, AssignTellsWhetherTheTextDiffers)
{
    CCharString text("a");
    EXPECT_FALSE(text.Assign("a"));
    EXPECT_TRUE(text.Assign("ab"));
    EXPECT_TRUE(text.Assign(nullptr));
    EXPECT_FALSE(text.Assign(""));
    EXPECT_FALSE(text.Assign(nullptr));
    EXPECT_TRUE(text.Assign("b"));
}

TEST(CCharString, TakesAPartOfItsOwnText)
{
    for (const char* whole : {"short", "a text that is far too long to be held without an allocation"})
    {
        CCharString text(whole);
        EXPECT_FALSE(text.Assign(text.Get()));
        EXPECT_STREQ(text.Get(), whole);
        EXPECT_TRUE(text.Assign(text.Get() + 2));
        EXPECT_STREQ(text.Get(), whole + 2);
    }
}

TEST(CCharString, CopiesAreIndependent)
{
    CCharString first("one");
    CCharString second(first);
    second.Assign("two");

    EXPECT_STREQ(first.Get(), "one");
    first = second;
    second.Assign(nullptr);
    EXPECT_STREQ(first.Get(), "two");
}
