#include "Host/Run/CRunOptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace Host
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

struct CParsed
{
    EParsed result;
    CRunOptions options;
    std::string out;
    std::string error;
};

CParsed Parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "scope-bank");
    CParsed parsed = {};
    std::ostringstream out;
    parsed.result = ParseCommandLine(static_cast<int>(arguments.size()), arguments.data(), out,
                                     parsed.options, parsed.error);
    parsed.out = out.str();
    return parsed;
}

TEST(ParseCommandLine, HasDefaults)
{
    const CParsed parsed = Parse({});
    EXPECT_EQ(parsed.result, EParsed::Run);
    EXPECT_EQ(parsed.options.inputFile, "");
    EXPECT_THAT(parsed.options.blockSizes, ElementsAre(512));
    EXPECT_EQ(parsed.options.curvePoints, 1025);
    EXPECT_FALSE(parsed.options.seconds.has_value());
}

TEST(ParseCommandLine, TakesEveryOption)
{
    const CParsed parsed = Parse({"--param",   "Delay=1",
                                  "in.wav",    "--at",
                                  "2:Delay=3", "--param",
                                  "Sync=0",    "--midi",
                                  "1:176,1,2", "--bypass",
                                  "--block",   "64,0",
                                  "--seconds", "5",
                                  "--offset",  "0.5",
                                  "--output",  "o.wav",
                                  "--curves",  "c.csv",
                                  "--points",  "11",
                                  "--summary", "--summary-json",
                                  "s.json",    "--save-state",
                                  "a",         "--load-state",
                                  "b",         "--save-preset",
                                  "c",         "--module",
                                  "m"});
    ASSERT_EQ(parsed.result, EParsed::Run) << parsed.error;
    const CRunOptions& options = parsed.options;
    EXPECT_EQ(options.inputFile, "in.wav");
    ASSERT_EQ(options.changes.size(), 3U);
    EXPECT_EQ(options.changes[0].name, "Delay");
    EXPECT_EQ(options.changes[1].name, "Sync");
    EXPECT_EQ(options.changes[2].seconds, 2.0);
    ASSERT_EQ(options.midi.size(), 1U);
    EXPECT_EQ(options.midi[0].status, 176);
    EXPECT_TRUE(options.bypass);
    EXPECT_THAT(options.blockSizes, ElementsAre(64, 0));
    EXPECT_EQ(options.seconds, 5.0);
    EXPECT_EQ(options.offset, 0.5);
    EXPECT_EQ(options.outputFile, "o.wav");
    EXPECT_EQ(options.curvesFile, "c.csv");
    EXPECT_EQ(options.curvePoints, 11);
    EXPECT_TRUE(options.summary);
    EXPECT_EQ(options.summaryFile, "s.json");
    EXPECT_EQ(options.saveState, "a");
    EXPECT_EQ(options.loadState, "b");
    EXPECT_EQ(options.savePreset, "c");
    EXPECT_EQ(options.modulePath, "m");
}

TEST(ParseCommandLine, PrintsHelpWithExamples)
{
    const CParsed parsed = Parse({"--help"});
    EXPECT_EQ(parsed.result, EParsed::Done);
    EXPECT_THAT(parsed.out, HasSubstr("--at"));
    EXPECT_THAT(parsed.out, HasSubstr("Examples:"));
}

TEST(ParseCommandLine, RefusesInOneLine)
{
    for (const std::vector<const char*>& arguments :
         std::vector<std::vector<const char*>>{{"--nonsense"},
                                               {"a.wav", "b.wav"},
                                               {"--offset", "-1"},
                                               {"--offset", "nan"},
                                               {"--seconds", "-1"},
                                               {"--points", "1"},
                                               {"--points", "x"},
                                               {"--block", "0"},
                                               {"--param", "x"},
                                               {"--at", "x"},
                                               {"--midi", "x"},
                                               {"--param"},
                                               {"--load-state", "a", "--load-preset", "b"}})
    {
        const CParsed parsed = Parse(arguments);
        EXPECT_EQ(parsed.result, EParsed::Failed) << arguments[0];
        EXPECT_NE(parsed.error, "") << arguments[0];
        EXPECT_EQ(parsed.error.find('\n'), std::string::npos) << parsed.error;
    }
}

TEST(ParseCommandLine, TakesTheOptionsOfTheEditor)
{
    const CParsed parsed = Parse({"--skin", "s.xml", "--snapshot", "o.png", "--snapshot-at", "2",
                                  "--snapshot-at", "0.5", "--size", "800x300", "in.wav"});
    ASSERT_EQ(parsed.result, EParsed::Run) << parsed.error;
    EXPECT_EQ(parsed.options.skinFile, "s.xml");
    EXPECT_EQ(parsed.options.snapshotFile, "o.png");
    EXPECT_THAT(parsed.options.snapshotSeconds, ElementsAre(0.5, 2.0));
    ASSERT_TRUE(parsed.options.pictureSize.has_value());
    EXPECT_EQ(parsed.options.pictureSize->width, 800);
    EXPECT_EQ(parsed.options.pictureSize->height, 300);
    EXPECT_EQ(parsed.options.inputFile, "in.wav");
}

TEST(ParseCommandLine, OptionsOfTheWindowStandWithoutAResult)
{
    const CParsed parsed = Parse({"--loop", "--audio", "--skin", "s.xml", "--watch"});
    ASSERT_EQ(parsed.result, EParsed::Run) << parsed.error;
    EXPECT_TRUE(parsed.options.loops);
    EXPECT_TRUE(parsed.options.isHeard);
    EXPECT_TRUE(parsed.options.watchesSkin);
    EXPECT_FALSE(parsed.options.IsOffline());
}

TEST(ParseCommandLine, EveryOptionThatNamesAResultMeansNoWindow)
{
    EXPECT_FALSE(Parse({}).options.IsOffline());
    EXPECT_FALSE(Parse({"in.wav", "--param", "Sync=1", "--load-state", "a"}).options.IsOffline());
    const std::vector<std::vector<const char*>> rows = {
        {"--offline"},     {"--summary"},       {"--summary-json", "s"}, {"--output", "o"},
        {"--curves", "c"}, {"--snapshot", "p"}, {"--save-state", "s"},   {"--save-preset", "s"},
        {"--list-params"}, {"--describe"}};
    for (const auto& row : rows)
    {
        EXPECT_TRUE(Parse(row).options.IsOffline()) << row.front();
    }
}

TEST(ParseCommandLine, RefusesOptionsOfTheEditorThatMakeNoSense)
{
    const std::vector<std::pair<std::vector<const char*>, const char*>> rows = {
        {{"--snapshot", "o", "--snapshot-at", "-1"}, "--snapshot-at: seconds are 0 or more"},
        {{"--snapshot-at", "1"}, "--snapshot-at: give --snapshot too"},
        {{"--watch"}, "--watch: give --skin too"},
        {{"--loop", "--summary"},
         "--loop, --audio and --watch are for the window, not for a run with a result"},
        {{"--audio", "--offline"},
         "--loop, --audio and --watch are for the window, not for a run with a result"},
        {{"--size", "800"}, "--size: two numbers from 1 to 16384 with an x between, not \"800\""},
        {{"--size", "0x5"}, "--size: two numbers from 1 to 16384 with an x between, not \"0x5\""},
        {{"--size", "5x"}, "--size: two numbers from 1 to 16384 with an x between, not \"5x\""},
        {{"--size", "5x5x"}, "--size: two numbers from 1 to 16384 with an x between, not \"5x5x\""},
        {{"--size", "5x99999"}, "--size: two numbers from 1 to 16384 with an x between, not \"5x99999\""}};
    for (const auto& [arguments, message] : rows)
    {
        const CParsed parsed = Parse(arguments);
        EXPECT_EQ(parsed.result, EParsed::Failed) << message;
        EXPECT_EQ(parsed.error, message);
    }
}

} // namespace
} // namespace Host
