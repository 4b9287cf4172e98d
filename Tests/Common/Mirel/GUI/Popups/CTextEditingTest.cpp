#include "Mirel/GUI/Controls/CTextEditing.h"

#include "Mirel/Serialization/Utf8.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using Mirel::GUI::CTextEditing;
using EUnit = Mirel::GUI::CTextEditing::EUnit;

namespace
{

TEST(CTextEditing, InsertReplacesTheSelection)
{
    CTextEditing editing;
    editing.SetText("Scope Bank");
    EXPECT_EQ(editing.GetCaret(), 10U);
    editing.SelectAll();
    EXPECT_EQ(editing.GetSelectedText(), "Scope Bank");
    EXPECT_TRUE(editing.Insert("x"));
    EXPECT_EQ(editing.GetText(), "x");
    EXPECT_FALSE(editing.HasSelection());
}

TEST(CTextEditing, CaretSteppsOverWholeCharacters)
{
    CTextEditing editing;
    editing.SetText("a\u00e4\u20ac\U0001F600");
    editing.Move(EUnit::Character, false, false);
    EXPECT_EQ(editing.GetCaret(), 6U);
    editing.Move(EUnit::Character, false, false);
    EXPECT_EQ(editing.GetCaret(), 3U);
    editing.Move(EUnit::Character, false, false);
    EXPECT_EQ(editing.GetCaret(), 1U);
    editing.Delete(EUnit::Character, true);
    EXPECT_EQ(editing.GetText(), "a\u20ac\U0001F600");
    editing.MoveTo(2, false);
    EXPECT_EQ(editing.GetCaret(), 1U);
}

TEST(CTextEditing, WordsAreSteppedOverAndDeleted)
{
    CTextEditing editing;
    editing.SetText("one, two three");
    editing.Move(EUnit::Word, false, false);
    EXPECT_EQ(editing.GetCaret(), 9U);
    editing.Move(EUnit::Word, false, true);
    EXPECT_EQ(editing.GetSelectedText(), "two ");
    EXPECT_TRUE(editing.Delete(EUnit::Word, false));
    EXPECT_EQ(editing.GetText(), "one, three");
    EXPECT_TRUE(editing.Delete(EUnit::Word, true));
    EXPECT_EQ(editing.GetText(), "one, ");
    editing.SelectWordAt(1);
    EXPECT_EQ(editing.GetSelectedText(), "one");
    editing.SelectWordAt(3);
    EXPECT_EQ(editing.GetSelectedText(), ", ");
}

TEST(CTextEditing, ArrowLeavesASelectionAtItsEnd)
{
    CTextEditing editing;
    editing.SetText("abcd");
    editing.MoveTo(1, false);
    editing.MoveTo(3, true);
    editing.Move(EUnit::Character, false, false);
    EXPECT_EQ(editing.GetCaret(), 1U);
    editing.MoveTo(3, true);
    editing.Move(EUnit::Character, true, false);
    EXPECT_EQ(editing.GetCaret(), 3U);
}

TEST(CTextEditing, NothingToDeleteChangesNothing)
{
    CTextEditing editing;
    EXPECT_FALSE(editing.Delete(EUnit::Character, false));
    EXPECT_FALSE(editing.Delete(EUnit::Character, true));
    EXPECT_FALSE(editing.Insert(""));
}

TEST(CTextEditing, PastedLinesBecomeOneAndBrokenTextIsLeftOut)
{
    CTextEditing editing;
    EXPECT_TRUE(editing.Insert("a\nb\tc\r\x01"));
    EXPECT_EQ(editing.GetText(), "a b c");
    EXPECT_FALSE(editing.Insert("\xff\xfe"));
    EXPECT_EQ(editing.GetText(), "a b c");
}

TEST(CTextEditing, LongestTextEndsBetweenCharacters)
{
    CTextEditing editing;
    editing.SetMaxLength(4);
    editing.Insert("abc\u00e4");
    EXPECT_EQ(editing.GetText(), "abc");
    editing.Insert("de");
    EXPECT_EQ(editing.GetText(), "abcd");
}

RC_GTEST_PROP(CTextEditing, StaysWellFormedWhateverIsDone, (const std::vector<int>& actions))
{
    CTextEditing editing;
    editing.SetText("\u00e4b\u20ac d\U0001F600f g");
    for (const int action : actions)
    {
        const auto bits = static_cast<unsigned>(action);
        const auto unit = static_cast<EUnit>((bits >> 4U) % 3U);
        const bool forward = (bits & 8U) != 0;
        switch (bits % 5U)
        {
        case 0:
            editing.Move(unit, forward, (bits & 64U) != 0);
            break;
        case 1:
            editing.Insert(forward ? "\u20ac" : "q");
            break;
        case 2:
            editing.Delete(unit, forward);
            break;
        case 3:
            editing.MoveTo((bits >> 7U) % 40U, forward);
            break;
        default:
            editing.SelectWordAt((bits >> 7U) % 40U);
        }
        const std::string& text = editing.GetText();
        RC_ASSERT(Mirel::Serialization::IsUtf8(text));
        RC_ASSERT(editing.GetSelectionEnd() <= text.size());
        RC_ASSERT(Mirel::Serialization::IsUtf8(text.substr(0, editing.GetSelectionBegin())));
        RC_ASSERT(Mirel::Serialization::IsUtf8(editing.GetSelectedText()));
    }
}

} // namespace
