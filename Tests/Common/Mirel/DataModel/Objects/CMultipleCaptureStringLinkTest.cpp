#include "Mirel/DataModel/Objects/CMultipleCaptureStringLink.h"

#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/Limits.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <string>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;

namespace
{

class CMultipleCaptureStringLinkTest : public testing::Test
{
protected:
    CMultipleCaptureStringLinkTest()
    {
        first.SetValue("a");
        second.SetValue("b");
        link.AddSource(&first);
        link.AddSource(&second);
        link.AddTarget(&one);
        link.AddTarget(&two);
    }

    CCaptureString first;
    CCaptureString second;
    CCaptureString one;
    CCaptureString two;
    CMultipleCaptureStringLink link;
};

} // namespace

TEST_F(CMultipleCaptureStringLinkTest, HandsTheChangedTextToAllTargets)
{
    link.Enable(true);
    EXPECT_STREQ(one.GetValue(), "a");
    second.SetValue("c");
    EXPECT_STREQ(one.GetValue(), "c");
    EXPECT_STREQ(two.GetValue(), "c");
    first.SetValue("d");
    EXPECT_STREQ(one.GetValue(), "d");
}

TEST_F(CMultipleCaptureStringLinkTest, TheChangedStringIsNotWritten)
{
    link.AddTarget(&first);
    link.Enable(true);
    second.SetValue("c");
    EXPECT_STREQ(first.GetValue(), "c");
    first.SetValue("d");
    EXPECT_STREQ(first.GetValue(), "d");
}

TEST_F(CMultipleCaptureStringLinkTest, SeparatorJoinsAllTexts)
{
    EXPECT_EQ(link.GetSeparator(), nullptr);
    link.SetSeparator(", ");
    link.Enable(true);
    EXPECT_STREQ(one.GetValue(), "a, b");
    second.SetValue("");
    EXPECT_STREQ(one.GetValue(), "a, ");
    first.SetValue("");
    EXPECT_STREQ(two.GetValue(), ", ");
    second.SetValue("c");
    EXPECT_STREQ(two.GetValue(), ", c");
}

TEST_F(CMultipleCaptureStringLinkTest, EmptySeparatorCounts)
{
    link.SetSeparator("");
    link.Enable(true);
    EXPECT_STREQ(one.GetValue(), "ab");
    EXPECT_STREQ(link.GetSeparator(), "");
}

TEST_F(CMultipleCaptureStringLinkTest, ChangeOfTheSeparatorUpdatesAndFires)
{
    link.Enable(true);
    CEventCounter changes(link.GetChangedEventProvider());
    link.SetSeparator("-");
    link.SetSeparator("-");
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(one.GetValue(), "a-b");
    link.SetSeparator(nullptr);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(one.GetValue(), "a");
}

TEST_F(CMultipleCaptureStringLinkTest, JoinedTargetThatIsASourceAsWellIsNotWritten)
{
    link.AddTarget(&second);
    link.SetSeparator("-");
    link.Enable(true);
    first.SetValue("c");
    EXPECT_STREQ(second.GetValue(), "b");
    EXPECT_STREQ(one.GetValue(), "c-b");
}

TEST_F(CMultipleCaptureStringLinkTest, WithoutSourcesNothingIsWritten)
{
    CMultipleCaptureStringLink empty;
    one.SetValue("kept");
    empty.AddTarget(&one);
    empty.Enable(true);
    empty.SetSeparator("-");
    EXPECT_STREQ(one.GetValue(), "kept");
}

TEST_F(CMultipleCaptureStringLinkTest, TextThatIsJoinedToItselfThroughAnotherLinkEndsAtTheLimit)
{
    CMultipleCaptureStringLink back;
    back.AddSource(&one);
    back.AddTarget(&second);
    back.Enable(true);
    link.SetSeparator("\xC2\xB5");
    link.AddSource(&second);
    link.Enable(true);
    for (int i = 0; i < 100; ++i)
    {
        first.SetValue(i % 2 == 0 ? "a" : "bb");
    }
    const std::string text = one.GetValue();
    EXPECT_LE(text.size(), maxJoinedText);
    EXPECT_GE(text.size(), maxJoinedText - 1);
}

TEST_F(CMultipleCaptureStringLinkTest, TextBeyondTheLimitIsCutBetweenCharacters)
{
    std::string text = "a";
    while (text.size() <= maxJoinedText)
    {
        text += "\xC2\xB5";
    }
    link.SetSeparator("-");
    link.Enable(true);
    first.SetValue(text.c_str());
    // The letter a makes the limit, which is even, fall inside a character of two bytes.
    EXPECT_EQ(std::string(one.GetValue()), text.substr(0, maxJoinedText - 1));
    EXPECT_EQ(std::string(two.GetValue()), text.substr(0, maxJoinedText - 1));
}
