#include "AAXPlugin/DisplayNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace MirelExt::AAXPlugin;
using testing::ElementsAre;

TEST(DisplayNames, OfTheProductGoFromFullToEightCharacters)
{
    EXPECT_EQ(MakeDisplayNames("Tarnwell's Scope Bank"), "Tarnwell's Scope Bank\nTW Scope Bank\nTW Scope");
}

TEST(DisplayNames, ShortNameIsHandedOnInAllThreeLines)
{
    EXPECT_EQ(MakeDisplayNames("Scope"), "Scope\nScope\nScope");
    EXPECT_EQ(MakeDisplayNames(""), "\n\n");
}

TEST(DisplayNames, FirstLineAbbreviatesChannelLayouts)
{
    const struct
    {
        const char* name;
        const char* firstLine;
    } rows[] = {{"Scope (Stereo)", "Scope S"}, {"Scope (Mono)", "Scope M"},  {"Scope (Dual)", "Scope Dual"},
                {"Scope(Stereo)", "Scope S"},  {"Scope(Mono)", "Scope M"},   {"Scope(Dual)", "Scope Dual"},
                {"(Mono) Scope", " M Scope"},  {"A (Mono) (Mono)", "A M M"}, {"A  (Dual)", "A  Dual"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(SplitLines(MakeDisplayNames(row.name))[0], row.firstLine) << row.name;
    }
}

TEST(DisplayNames, LowerLinesKeepChannelLayouts)
{
    EXPECT_EQ(MakeDisplayNames("S (Mono)"), "S M\nS (Mono)\nS (Mono)");
}

TEST(DisplayNames, LowerLinesAbbreviateTheMakerAndDropTheFormat)
{
    EXPECT_EQ(MakeDisplayNames("Tarnwell's AAXX"), "Tarnwell's AAXX\nTW X\nTW X");
    EXPECT_EQ(MakeDisplayNames("Scope AAX"), "Scope AAX\nScope \nScope ");
}

TEST(DisplayNames, LinesAreShortenedTo31And16And8Characters)
{
    // 31 characters as the first line, then 32.
    EXPECT_EQ(MakeDisplayNames("abcdefghijklmno pqrstuvwxyz 123"),
              "abcdefghijklmno pqrstuvwxyz 123\nabcdefghijklmno\nabcdefgh");
    EXPECT_EQ(MakeDisplayNames("abcdefghijklmno pqrstuvwxyz 1234"),
              "abcdefghijklmno pqrstuvwxyz\nabcdefghijklmno\nabcdefgh");
    EXPECT_EQ(MakeDisplayNames("1234567 89012345"), "1234567 89012345\n1234567 89012345\n1234567");
}

TEST(DisplayNames, ReplacementsComeBeforeTheLimit)
{
    // 29 characters and " (Stereo)": only the abbreviated name fits.
    EXPECT_EQ(SplitLines(MakeDisplayNames("abcdefghijklmnopqrstuvwxyz123 (Stereo)"))[0],
              "abcdefghijklmnopqrstuvwxyz123 S");
}

TEST(DisplayNames, SplitLinesKeepsEmptyLines)
{
    EXPECT_THAT(SplitLines("a\nb\nc"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(SplitLines("a\n\n"), ElementsAre("a", "", ""));
    EXPECT_THAT(SplitLines(""), ElementsAre(""));
}

} // namespace
