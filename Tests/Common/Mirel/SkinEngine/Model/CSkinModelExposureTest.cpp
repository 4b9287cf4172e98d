#include "Mirel/SkinEngine/Model/CSkinModelExposure.h"

#include "Mirel/SkinEngine/Model/EObjectFlags.h"
#include "Mirel/SkinEngine/Model/PatternMatch.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

/// The meaning of a pattern, letter by letter, by trying everything.
bool MatchesByTrying(const std::string& text, const std::string& pattern)
{
    if (pattern.empty())
    {
        return text.empty();
    }
    if (pattern.front() == '*')
    {
        return MatchesByTrying(text, pattern.substr(1)) ||
               (!text.empty() && MatchesByTrying(text.substr(1), pattern));
    }
    return !text.empty() && text.front() == pattern.front() &&
           MatchesByTrying(text.substr(1), pattern.substr(1));
}

rc::Gen<std::string> ShortText(const std::string& letters)
{
    return rc::gen::resize(9, rc::gen::container<std::string>(rc::gen::elementOf(letters)));
}

TEST(CSkinModelExposure, WantsWhatIsUsedByItsExactText)
{
    CSkinModelExposure exposure;
    exposure.Use("knob.value");
    EXPECT_TRUE(exposure.IsWanted("knob.value"));
    EXPECT_FALSE(exposure.IsWanted("Knob.value"));
    EXPECT_FALSE(exposure.IsWanted("knob"));
    EXPECT_FALSE(exposure.IsWanted("knob.value2"));
}

TEST(CSkinModelExposure, NullAndEmptyMarkAndMatchNothing)
{
    CSkinModelExposure exposure;
    exposure.Use(nullptr);
    exposure.Use("");
    EXPECT_FALSE(exposure.IsWanted(nullptr));
    EXPECT_FALSE(exposure.IsWanted(""));
    exposure.Use("*");
    EXPECT_FALSE(exposure.IsWanted(nullptr));
    EXPECT_EQ(exposure.GetParamFlags(nullptr), 0);
    EXPECT_EQ(exposure.GetCurveFlags(nullptr), 0);
    EXPECT_EQ(exposure.GetSurfaceFlags(nullptr), 0);
    EXPECT_EQ(exposure.GetStringOrActionFlags(nullptr), 0);
}

TEST(CSkinModelExposure, EachSubObjectOfAParamHasItsBit)
{
    struct CCase
    {
        const char* used;
        int flags;
    };
    for (const CCase& row : {CCase{"p", 1}, CCase{"p.info", 2}, CCase{"p.default", 4}, CCase{"p.min", 8},
                             CCase{"p.max", 16}, CCase{"p.other", 0}, CCase{"q", 0}})
    {
        CSkinModelExposure exposure;
        exposure.Use(row.used);
        EXPECT_EQ(exposure.GetParamFlags("p"), row.flags) << row.used;
        EXPECT_EQ(exposure.GetStringOrActionFlags("p"), row.flags & 1) << row.used;
    }
}

TEST(CSkinModelExposure, CurvesAndSurfacesHaveOneBitForAllTheirAxes)
{
    struct CCase
    {
        const char* used;
        int curveFlags;
        int surfaceFlags;
    };
    for (const CCase& row : {CCase{"c", 1, 1}, CCase{"c.x_info", 2, 2}, CCase{"c.y_info", 2, 2},
                             CCase{"c.z_info", 0, 2}, CCase{"c.info", 0, 0}, CCase{"c.min", 0, 0}})
    {
        CSkinModelExposure exposure;
        exposure.Use(row.used);
        EXPECT_EQ(exposure.GetCurveFlags("c"), row.curveFlags) << row.used;
        EXPECT_EQ(exposure.GetSurfaceFlags("c"), row.surfaceFlags) << row.used;
    }
}

TEST(CSkinModelExposure, ASkinThatReadsOnlyTheMaximumGetsFlags16)
{
    CSkinModelExposure exposure;
    exposure.Use("volume.max");
    EXPECT_EQ(exposure.GetParamFlags("volume"), 16);
    EXPECT_FALSE(exposure.IsWanted("volume"));
}

TEST(CSkinModelExposure, APatternOfAnItemWantsThatSuffixInEveryItemAndNoLongerOne)
{
    CSkinModelExposure exposure;
    exposure.Use("bands[*].gain");
    EXPECT_TRUE(exposure.IsWanted("bands[0].gain"));
    EXPECT_TRUE(exposure.IsWanted("bands[1234].gain"));
    EXPECT_FALSE(exposure.IsWanted("bands[0].gain2"));
    EXPECT_FALSE(exposure.IsWanted("bands[0].gain.min"));
    EXPECT_FALSE(exposure.IsWanted("bands[0].gai"));
    EXPECT_FALSE(exposure.IsWanted("Bands[0].gain"));
    EXPECT_FALSE(exposure.IsWanted("bands.gain"));
}

TEST(CSkinModelExposure, TheStarAloneWantsEverythingWithAllSubObjects)
{
    CSkinModelExposure exposure;
    exposure.Use("*");
    EXPECT_TRUE(exposure.IsWanted("anything at all"));
    EXPECT_EQ(exposure.GetParamFlags("p"), 31);
    EXPECT_EQ(exposure.GetStringOrActionFlags("p"), 1);
    EXPECT_EQ(exposure.GetCurveFlags("p"), 3);
    EXPECT_EQ(exposure.GetSurfaceFlags("p"), 3);
}

TEST(CSkinModelExposure, FlagsHaveTheirNumbers)
{
    EXPECT_EQ(objectItself, 1);
    EXPECT_EQ(objectInfo, 2);
    EXPECT_EQ(paramDefault, 4);
    EXPECT_EQ(paramMin, 8);
    EXPECT_EQ(paramMax, 16);
    EXPECT_EQ(allObjectFlags, 31);
}

TEST(MatchesPattern, ALongTextOfStarsAndNearMissesTakesNoTimeToSpeakOf)
{
    std::string pattern;
    for (int i = 0; i < 2000; ++i)
    {
        pattern += "a*";
    }
    // By trying everything this would outlast the reader.
    EXPECT_FALSE(MatchesPattern(std::string(4000, 'a'), pattern + "b"));
    EXPECT_TRUE(MatchesPattern(std::string(4000, 'a'), pattern));
}

RC_GTEST_PROP(MatchesPattern, AgreesWithTryingEverything, ())
{
    const std::string text = *ShortText("ab.[]");
    const std::string pattern = *ShortText("ab.[]**");
    RC_ASSERT(MatchesPattern(text, pattern) == MatchesByTrying(text, pattern));
}

RC_GTEST_PROP(MatchesPattern, MatchesWhatWasMadeFromThePattern, ())
{
    const std::string pattern = *ShortText("ab*");
    std::string text;
    for (const char letter : pattern)
    {
        text += letter == '*' ? *ShortText("ab*c") : std::string(1, letter);
    }
    RC_ASSERT(MatchesPattern(text, pattern));
}

RC_GTEST_PROP(CSkinModelExposure, WantsWhatAnyMarkMatches, ())
{
    const auto marks = *rc::gen::container<std::vector<std::string>>(ShortText("ab*"));
    const std::string id = *ShortText("ab");
    CSkinModelExposure exposure;
    bool expected = false;
    for (const std::string& mark : marks)
    {
        exposure.Use(mark.c_str());
        expected = expected || (!mark.empty() && MatchesByTrying(id, mark));
    }
    RC_ASSERT(exposure.IsWanted(id.c_str()) == expected);
}

} // namespace
} // namespace Mirel::SkinEngine
