#include "ManualPdf/SBlock.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ManualPdf
{

namespace
{

using EKind = SBlock::EKind;

std::vector<SBlock> Read(const std::string& text)
{
    std::istringstream stream(text);
    return ReadBlocks(stream);
}

} // namespace

TEST(SBlockTest, LinesOfAParagraphRunOn)
{
    const auto blocks = Read("one\ntwo\n\nthree\n");
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[0].text, "one two");
    EXPECT_EQ(blocks[1].text, "three");
}

TEST(SBlockTest, HeadingsHaveLevels)
{
    const auto blocks = Read("# A\n## B `c`\ntext");
    ASSERT_EQ(blocks.size(), 3U);
    EXPECT_EQ(blocks[0].kind, EKind::Heading);
    EXPECT_EQ(blocks[0].level, 1);
    EXPECT_EQ(blocks[1].level, 2);
    EXPECT_EQ(blocks[1].plain, "B c");
    EXPECT_EQ(blocks[2].kind, EKind::Paragraph);
}

TEST(SBlockTest, ItemsOfAListRunOn)
{
    const auto blocks = Read("- one\n  more\n- two");
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[0].kind, EKind::Item);
    EXPECT_EQ(blocks[0].text, "one more");
    EXPECT_EQ(blocks[1].text, "two");
}

TEST(SBlockTest, TablesHaveAHeadAndNoRule)
{
    const auto blocks = Read("| a | b |\n|---|:-:|\n| c | d e |\n\n| x |\n");
    ASSERT_EQ(blocks.size(), 3U);
    EXPECT_EQ(blocks[0].level, 1);
    EXPECT_EQ(blocks[1].level, 0);
    EXPECT_EQ(blocks[1].cells, (std::vector<std::string>{"c", "d e"}));
    EXPECT_EQ(blocks[2].level, 1);
}

TEST(SBlockTest, PicturesHaveAFileAndACaption)
{
    const auto blocks = Read("![A view](pictures/a.png)");
    ASSERT_EQ(blocks.size(), 1U);
    EXPECT_EQ(blocks[0].kind, EKind::Picture);
    EXPECT_EQ(blocks[0].file, "pictures/a.png");
    EXPECT_EQ(blocks[0].text, "A view");
}

TEST(SBlockTest, MarksBecomeMarkup)
{
    EXPECT_EQ(ToMarkup("a **b** `c`"), "a <b>b</b> <tt>c</tt>");
    EXPECT_EQ(ToMarkup("x < y & z > w"), "x &lt; y &amp; z &gt; w");
    EXPECT_EQ(ToMarkup("`**`"), "<tt>**</tt>");
}

TEST(SBlockTest, OpenMarksAreClosed)
{
    EXPECT_EQ(ToMarkup("**a"), "<b>a</b>");
    EXPECT_EQ(ToMarkup("**a `b"), "<b>a <tt>b</tt></b>");
}

} // namespace ManualPdf
