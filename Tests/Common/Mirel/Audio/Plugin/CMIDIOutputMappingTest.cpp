#include "Mirel/Audio/Plugin/CMIDIOutputMapping.h"
#include "MIDIMappingRig.h"
#include "Support/AllocationCounter.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

using namespace Mirel::Audio::Plugin;
using Tests::Bind;
using Tests::CRecordingMIDIOutput;

namespace
{

CMIDICCSetting Between(float min, float max)
{
    CMIDICCSetting setting;
    setting.SetEnabled(true);
    setting.SetMin(min);
    setting.SetMax(max);
    return setting;
}

TEST(CMIDIOutputMapping, SendsAControllerMessageOnTheChannel)
{
    const CMIDIOutputMapping mapping;
    CRecordingMIDIOutput output;
    CMIDICCSetting setting = Between(0.0f, 1.0f);
    Bind(setting, 3, 74);
    mapping.Process(1.0f, setting, output);
    ASSERT_EQ(output.events.size(), 1U);
    EXPECT_EQ(output.events[0].status, 0xB2);
    EXPECT_EQ(output.events[0].data1, 74);
    EXPECT_EQ(output.events[0].data2, 127);
}

TEST(CMIDIOutputMapping, SendsOnTheLastChannelToo)
{
    const CMIDIOutputMapping mapping;
    CRecordingMIDIOutput output;
    CMIDICCSetting setting = Between(0.0f, 1.0f);
    Bind(setting, 16, 1);
    mapping.Process(0.0f, setting, output);
    EXPECT_EQ(output.events.at(0).status, 0xBF);
}

TEST(CMIDIOutputMapping, EveryChannelIsTheFirstOnOutput)
{
    const CMIDIOutputMapping mapping;
    CRecordingMIDIOutput output;
    CMIDICCSetting setting = Between(0.0f, 1.0f);
    Bind(setting, 0, 1);
    mapping.Process(0.0f, setting, output);
    EXPECT_EQ(output.events.at(0).status, 0xB0);
}

TEST(CMIDIOutputMapping, ADisabledSettingSendsNothing)
{
    const CMIDIOutputMapping mapping;
    CRecordingMIDIOutput output;
    CMIDICCSetting setting = Between(0.0f, 1.0f);
    setting.SetEnabled(false);
    mapping.Process(1.0f, setting, output);
    EXPECT_TRUE(output.events.empty());
}

TEST(CMIDIOutputMapping, RoundsToTheNearestStep)
{
    const CMIDICCSetting setting = Between(0.0f, 127.0f);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(63.25f, setting), 63);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(63.75f, setting), 64);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(0.25f, setting), 0);
}

TEST(CMIDIOutputMapping, ClampsWhatIsOutsideItsRange)
{
    const CMIDICCSetting setting = Between(-1.0f, 1.0f);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(-5.0f, setting), 0);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(5.0f, setting), 127);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(std::numeric_limits<float>::infinity(), setting), 127);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(std::numeric_limits<float>::quiet_NaN(), setting), 0);
}

TEST(CMIDIOutputMapping, ARangeOfNothingTakesTheDistanceFromIt)
{
    const CMIDICCSetting setting = Between(2.0f, 2.0f);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(2.0f, setting), 0);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(2.5f, setting), 64); // 63.5 + 0.5
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(3.5f, setting), 127);
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(1.0f, setting), 0);
}

TEST(CMIDIOutputMapping, BendsByTheCurve)
{
    CMIDICCSetting setting = Between(0.0f, 1.0f);
    setting.SetCurve(8);                                               // Square
    EXPECT_EQ(CMIDIOutputMapping::ControllerValue(0.5f, setting), 32); // 31.75 + 0.5
}

TEST(CMIDIOutputMapping, AllocatesNothing)
{
    const CMIDIOutputMapping mapping;
    CRecordingMIDIOutput output;
    const CMIDICCSetting setting = Between(0.0f, 1.0f);
    const Tests::CAllocationCounter allocations;
    mapping.Process(0.5f, setting, output);
    EXPECT_EQ(allocations.GetCount(), 0U);
}

RC_GTEST_PROP(CMIDIOutputMapping, TheTopIs127AndNever128, ())
{
    CMIDICCSetting setting = Between(*rc::gen::arbitrary<float>(), *rc::gen::arbitrary<float>());
    setting.SetCurve(*rc::gen::inRange(0, 13));
    const int value = CMIDIOutputMapping::ControllerValue(*rc::gen::arbitrary<float>(), setting);
    RC_ASSERT(value >= 0);
    RC_ASSERT(value <= 127);
}

RC_GTEST_PROP(CMIDIOutputMapping, IsTheNearestStepInDoublePrecision, ())
{
    const auto min = static_cast<float>(*rc::gen::inRange(-1000, 1000)) * 0.25f;
    const auto max = static_cast<float>(*rc::gen::inRange(-1000, 1000)) * 0.25f;
    RC_PRE(min < max || min > max);
    const auto v = static_cast<float>(*rc::gen::inRange(-1000, 1000)) * 0.25f;
    const double low = static_cast<double>(min);
    const double x = std::clamp((static_cast<double>(v) - low) / (static_cast<double>(max) - low), 0.0, 1.0);
    const double steps = x * 127.0;
    RC_ASSERT(std::abs(CMIDIOutputMapping::ControllerValue(v, Between(min, max)) - steps) <= 0.501);
}

} // namespace
