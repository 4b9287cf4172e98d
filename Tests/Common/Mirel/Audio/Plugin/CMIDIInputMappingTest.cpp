#include "Mirel/Audio/Plugin/CMIDIInputMapping.h"
#include "MIDIMappingRig.h"
#include "Support/AllocationCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace Mirel::Audio::Plugin;
using Mirel::DataModel::Objects::CParamInfo;
using Tests::Bind;
using Tests::Controller;

namespace
{

constexpr float untouched = -1.0f;

/// Four parameters from -1 to 127 at rest at -1, each with a setting from 0 to 127.
class CMIDIInputMappingTest : public testing::Test
{
protected:
    CMIDIInputMappingTest()
    {
        for (int i = 0; i < 4; ++i)
        {
            params.Add(CParamInfo(2, -1.0f, 127.0f, untouched, "P", "", ""));
            settings.Add(CParamInfo(2, 0.0f, 127.0f, 0.0f, "P", "", ""));
        }
    }

    void Send(const CMIDIEvent& event) { mapping.Process(event, settings, params); }
    float Get(int index) { return params[index].GetValue(); }

    CMIDICCMessage last;
    CMIDIInputMapping mapping{last};
    CMIDICCSettings settings;
    CInputParamValues params;
};

TEST_F(CMIDIInputMappingTest, MovesTheBoundParameterOverItsRange)
{
    Bind(settings[1], 2, 7);
    settings[1].SetMin(10.0f);
    settings[1].SetMax(20.0f);
    Send(Controller(2, 7, 0));
    EXPECT_FLOAT_EQ(Get(1), 10.0f);
    Send(Controller(2, 7, 127));
    EXPECT_FLOAT_EQ(Get(1), 10.0f + 10.0f * (127.0f * 0.007874016f));
    EXPECT_EQ(Get(0), untouched);
}

TEST_F(CMIDIInputMappingTest, RunsBackwardsWhenMinIsTheGreater)
{
    Bind(settings[0], 1, 1);
    settings[0].SetMin(100.0f);
    settings[0].SetMax(0.0f);
    Send(Controller(1, 1, 0));
    EXPECT_FLOAT_EQ(Get(0), 100.0f);
    Send(Controller(1, 1, 127));
    EXPECT_NEAR(Get(0), 0.0f, 1e-4f);
}

TEST_F(CMIDIInputMappingTest, BendsByTheCurve)
{
    Bind(settings[0], 1, 1);
    settings[0].SetMax(1.0f);
    settings[0].SetCurve(8); // Square
    Send(Controller(1, 1, 64));
    const float x = 64.0f * 0.007874016f;
    EXPECT_FLOAT_EQ(Get(0), x * x);
}

TEST_F(CMIDIInputMappingTest, ASettingWithChannel0FollowsEveryChannel)
{
    Bind(settings[0], 0, 7);
    for (int channel = 1; channel <= 16; ++channel)
    {
        Send(Controller(channel, 7, channel));
        EXPECT_NEAR(Get(0), static_cast<float>(channel), 1e-4f);
    }
}

TEST_F(CMIDIInputMappingTest, OtherChannelsControllersAndDisabledSettingsMoveNothing)
{
    Bind(settings[0], 2, 7);
    Bind(settings[1], 1, 8);
    settings[2].SetChannel(1);
    settings[2].SetNumber(7);
    Send(Controller(1, 7, 50));
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_EQ(Get(i), untouched) << i;
    }
}

TEST_F(CMIDIInputMappingTest, TwoParametersBoundToOneControllerBothFollow)
{
    Bind(settings[0], 1, 7);
    Bind(settings[3], 0, 7);
    Send(Controller(1, 7, 50));
    EXPECT_NEAR(Get(0), 50.0f, 1e-4f);
    EXPECT_NEAR(Get(3), 50.0f, 1e-4f);
    EXPECT_EQ(Get(1), untouched);
}

TEST_F(CMIDIInputMappingTest, OtherMessagesAreIgnoredAndNotRemembered)
{
    Bind(settings[0], 0, 7);
    Send(Controller(5, 9, 3));
    for (int status = 0; status < 256; ++status)
    {
        if ((status & 0xF0) != 0xB0)
        {
            Send({static_cast<std::uint8_t>(status), 7, 100});
        }
    }
    EXPECT_EQ(Get(0), untouched);
    EXPECT_EQ(last.GetChannel(), 5);
    EXPECT_EQ(last.GetNumber(), 9);
    EXPECT_EQ(last.GetValue(), 3);
}

TEST_F(CMIDIInputMappingTest, RemembersTheLastMessageEvenIfNothingFollowsIt)
{
    Send(Controller(16, 127, 126));
    EXPECT_EQ(last.GetChannel(), 16);
    EXPECT_EQ(last.GetNumber(), 127);
    EXPECT_EQ(last.GetValue(), 126);
}

TEST_F(CMIDIInputMappingTest, TakesSevenBitsOfEachDataByte)
{
    Bind(settings[0], 1, 7);
    Send({0xB0, 0x87, 0xB2});
    EXPECT_EQ(last.GetNumber(), 7);
    EXPECT_EQ(last.GetValue(), 0x32);
    EXPECT_NEAR(Get(0), 50.0f, 1e-4f);
}

TEST_F(CMIDIInputMappingTest, KeepsToTheRangeOfTheParameter)
{
    Bind(settings[0], 1, 7);
    settings[0].SetMin(-1000.0f);
    settings[0].SetMax(1000.0f);
    Send(Controller(1, 7, 0));
    EXPECT_EQ(Get(0), -1.0f);
    Send(Controller(1, 7, 127));
    EXPECT_EQ(Get(0), 127.0f);
}

TEST_F(CMIDIInputMappingTest, AllocatesNothing)
{
    Bind(settings[0], 1, 7);
    settings[0].SetCurve(0);
    const Tests::CAllocationCounter allocations;
    for (int value = 0; value < 128; ++value)
    {
        Send(Controller(1, 7, value));
    }
    EXPECT_EQ(allocations.GetCount(), 0U);
}

/// The straight curve beside the same sum in double precision.
RC_GTEST_PROP(CMIDIInputMapping, PlacesTheControllerBetweenMinAndMax, ())
{
    const auto min = static_cast<float>(*rc::gen::inRange(-1000, 1000)) * 0.25f;
    const auto max = static_cast<float>(*rc::gen::inRange(-1000, 1000)) * 0.25f;
    const int value = *rc::gen::inRange(0, 128);
    CMIDICCMessage last;
    const CMIDIInputMapping mapping(last);
    CInputParamValues params;
    params.Add(CParamInfo(2, -1000.0f, 1000.0f, 0.0f, "P", "", ""));
    CMIDICCSettings settings;
    settings.Add();
    Bind(settings[0], 1, 1);
    settings[0].SetMin(min);
    settings[0].SetMax(max);
    mapping.Process(Controller(1, 1, value), settings, params);
    const double low = static_cast<double>(min);
    const double expected = low + (static_cast<double>(max) - low) * value / 127.0;
    RC_ASSERT(std::abs(static_cast<double>(params[0].GetValue()) - expected) < 1e-3);
}

} // namespace
