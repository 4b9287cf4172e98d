#include "Host/Run/TimedEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Host
{
namespace
{

using testing::ElementsAre;

TEST(ParseNumber, TakesTheWholeText)
{
    double number = 7.0;
    EXPECT_TRUE(ParseNumber("-2.5e1", number));
    EXPECT_EQ(number, -25.0);
    for (const char* text : {"", "1,5", "1.5 ", " 1", "1x", "nan", "inf", "0x10", "1e999"})
    {
        EXPECT_FALSE(ParseNumber(text, number)) << text;
    }
    EXPECT_EQ(number, -25.0);
}

TEST(ParseParamChange, SplitsAtTheFirstEqualsSign)
{
    CParamChange change;
    std::string error;
    ASSERT_TRUE(ParseParamChange("View Mode=a=b", change, error));
    EXPECT_EQ(change.name, "View Mode");
    EXPECT_EQ(change.value, "a=b");
    EXPECT_EQ(change.seconds, 0.0);
}

TEST(ParseParamChange, RefusesWhatHasNoNameOrNoValue)
{
    CParamChange change;
    std::string error;
    for (const char* text : {"", "Delay", "=1", "Delay="})
    {
        EXPECT_FALSE(ParseParamChange(text, change, error)) << text;
    }
    EXPECT_EQ(error, "\"Delay=\" is not NAME=VALUE");
}

TEST(ParseTimedParamChange, TakesTheTimeBeforeTheFirstColon)
{
    CParamChange change;
    std::string error;
    ASSERT_TRUE(ParseTimedParamChange("1.5:Time: now=3", change, error));
    EXPECT_EQ(change.seconds, 1.5);
    EXPECT_EQ(change.name, "Time: now");
    EXPECT_EQ(change.value, "3");
    for (const char* text : {"Delay=3", "x:Delay=3", "-1:Delay=3", ":Delay=3", "1:Delay", "1"})
    {
        EXPECT_FALSE(ParseTimedParamChange(text, change, error)) << text;
        EXPECT_EQ(error, '"' + std::string(text) + "\" is not SECONDS:NAME=VALUE");
    }
}

TEST(ParseMidiMessage, ReadsDecimalAndHexadecimalBytes)
{
    CMidiMessage message;
    std::string error;
    ASSERT_TRUE(ParseMidiMessage("0.25:0xB2,7,127", message, error)) << error;
    EXPECT_EQ(message.seconds, 0.25);
    EXPECT_EQ(message.status, 0xB2);
    EXPECT_EQ(message.data1, 7);
    EXPECT_EQ(message.data2, 127);
    ASSERT_TRUE(ParseMidiMessage("0:176,0,0", message, error)) << error;
    EXPECT_EQ(message.status, 176);
}

TEST(ParseMidiMessage, RefusesWhatIsNoMessage)
{
    CMidiMessage message;
    std::string error;
    for (const char* text : {"", "176,1,2", "0:176,1", "0:176,1,2,3", "0:256,1,2", "0:176,-1,2", "0:x,1,2"})
    {
        EXPECT_FALSE(ParseMidiMessage(text, message, error)) << text;
        EXPECT_EQ(error, '"' + std::string(text) + "\" is not SECONDS:STATUS,D1,D2");
    }
    for (const char* text : {"0:127,1,2", "0:176,128,2", "0:176,1,128"})
    {
        EXPECT_FALSE(ParseMidiMessage(text, message, error)) << text;
        EXPECT_EQ(error, '"' + std::string(text) +
                             "\" is no MIDI message: a status is 128 to 255, its data are 0 to 127");
    }
}

TEST(ParseBlockSizes, ReadsAListWithEmptyBlocks)
{
    std::vector<int> sizes;
    std::string error;
    ASSERT_TRUE(ParseBlockSizes("64", sizes, error));
    EXPECT_THAT(sizes, ElementsAre(64));
    ASSERT_TRUE(ParseBlockSizes("64,0,65536", sizes, error));
    EXPECT_THAT(sizes, ElementsAre(64, 0, 65536));
}

TEST(ParseBlockSizes, RefusesWhatWouldNotPlay)
{
    std::vector<int> sizes = {1};
    std::string error;
    for (const char* text : {"", "a", "64,", ",64", "-1", "65537", "64;64"})
    {
        EXPECT_FALSE(ParseBlockSizes(text, sizes, error)) << text;
        EXPECT_EQ(error, '"' + std::string(text) + "\" is no list of block sizes: numbers from 0 to 65536");
    }
    EXPECT_FALSE(ParseBlockSizes("0,0", sizes, error));
    EXPECT_EQ(error, "\"0,0\" would never come to an end: one block at least must not be empty");
    EXPECT_THAT(sizes, ElementsAre(1));
}

} // namespace
} // namespace Host
