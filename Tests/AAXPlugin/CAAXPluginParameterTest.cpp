#include "AAXPlugin/CAAXPluginParameter.h"

#include "AAXPlugin/AAXExtAutomationDelegate.h"
#include "AAXPlugin/CRecordingAutomation.h"
#include "AAXPlugin/ParamInfo.h"
#include "Mirel/Audio/Plugin/CParamValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <mutex>
#include <string>
#include <thread>

namespace
{

using namespace MirelExt::AAXPlugin;
using Mirel::Audio::Plugin::CParamValue;
using Mirel::DataModel::Objects::CParamInfo;
using testing::ElementsAre;
using Tests::CRecordingAutomation;
using Tests::ParamInfo;

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();

TEST(CAAXPluginParameter, StepsFollowTheKindOfValue)
{
    const struct
    {
        int type;
        float min;
        float max;
        int steps;
        bool continuous;
    } rows[] = {{0, 0.0F, 1.0F, 2, false},   {0, 0.0F, 9.0F, 2, false}, {1, 0.0F, 2.0F, 3, false},
                {1, -5.0F, 5.0F, 11, false}, {1, 0.0F, 2.5F, 4, false}, {1, 0.0F, 2.25F, 3, false},
                {1, 2.0F, 0.0F, 3, false},   {1, 0.0F, 0.0F, 1, false}, {2, 0.0F, 1.0F, -1, true},
                {3, 0.0F, 1.0F, 2, false},   {77, 0.0F, 1.0F, -1, true}};
    for (const auto& row : rows)
    {
        const CParamInfo info = ParamInfo(row.type, row.min, row.max, row.min);
        CParamValue value(info);
        const CAAXPluginParameter parameter("P1", info, "", value);
        EXPECT_EQ(parameter.GetStepCount(), row.steps) << row.type << ", " << row.min << " to " << row.max;
        EXPECT_EQ(parameter.IsContinuous(), row.continuous) << row.type;
    }
}

class Parameter : public testing::Test
{
protected:
    Parameter()
    {
        automation.Set(TACFReference<IAAXAutomationDelegate>(host.Get()));
        parameter.SetListener([this] { ++changes; });
    }

    CParamInfo info = ParamInfo(2, -1.0F, 3.0F, 1.0F, "Gain");
    CParamValue value{info};
    CAAXPluginParameter parameter{"P7", info, "OUT:", value};
    TACFReference<CRecordingAutomation> host =
        TACFReference<CRecordingAutomation>::Adopt(new CRecordingAutomation);
    AAXExtAutomationDelegate automation;
    int changes = 0;
};

TEST_F(Parameter, HasTheIdentityOfItsDescription)
{
    EXPECT_EQ(parameter.GetIdentifier(), "P7");
    EXPECT_EQ(parameter.GetName(), "OUT:Gain");
    EXPECT_EQ(parameter.GetDefault(), 1.0F);
    EXPECT_EQ(parameter.GetValue(), 1.0F);
    const CParamInfo nameless = ParamInfo(2, 0.0F, 1.0F, 0.0F, nullptr);
    EXPECT_EQ(CAAXPluginParameter("P0", nameless, "", value).GetName(), "");
}

TEST_F(Parameter, ValueIsClampedStoredAndToldOnAChange)
{
    parameter.SetValue(2.0F);
    EXPECT_EQ(value.GetValue(), 2.0F);
    EXPECT_EQ(changes, 1);
    parameter.SetValue(2.0F);
    EXPECT_EQ(changes, 1);
    parameter.SetValue(99.0F);
    EXPECT_EQ(value.GetValue(), 3.0F);
    parameter.SetValue(-99.0F);
    EXPECT_EQ(value.GetValue(), -1.0F);
    parameter.SetValue(NaN);
    EXPECT_EQ(value.GetValue(), -1.0F);
    EXPECT_EQ(changes, 3);
}

TEST_F(Parameter, PostWithoutAutomationSetsTheValue)
{
    parameter.PostValue(2.0F);
    parameter.Touch();
    parameter.Release();
    EXPECT_EQ(value.GetValue(), 2.0F);
}

TEST_F(Parameter, PostAsksTheHostAndLeavesTheValueToIt)
{
    parameter.SetAutomation(&automation);
    parameter.PostValue(2.0F);
    EXPECT_EQ(value.GetValue(), 1.0F);
    EXPECT_EQ(changes, 0);
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 0.750000", "release P7"));
}

TEST_F(Parameter, PostsOfAGestureAreBetweenItsTouchAndRelease)
{
    parameter.SetAutomation(&automation);
    parameter.Touch();
    parameter.Touch();
    parameter.PostValue(0.0F);
    parameter.PostValue(3.0F);
    parameter.Release();
    parameter.Release();
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 0.250000", "value P7 1.000000", "release P7"));
}

TEST_F(Parameter, ValueThatGoesBackBeforeTheHostAnswersIsPostedToo)
{
    parameter.SetAutomation(&automation);
    parameter.Touch();
    parameter.PostValue(3.0F);
    parameter.PostValue(1.0F); // what the value still is
    parameter.PostValue(1.0F);
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 1.000000", "value P7 0.500000"));
}

TEST_F(Parameter, ValueThatTheHostTookBackIsPostedAgain)
{
    parameter.SetAutomation(&automation);
    parameter.Touch();
    parameter.PostValue(3.0F);
    parameter.SetValue(1.0F); // the host's automation holds it
    parameter.PostValue(3.0F);
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 1.000000", "value P7 1.000000"));
}

TEST_F(Parameter, UnchangedValueIsNotPosted)
{
    parameter.SetAutomation(&automation);
    parameter.PostValue(1.0F);
    parameter.PostValue(NaN);
    EXPECT_TRUE(host->calls.empty());
    parameter.SetValue(3.0F);
    parameter.PostValue(77.0F);
    EXPECT_TRUE(host->calls.empty()) << "at the end of the range already";
}

TEST_F(Parameter, HostThatTakesNoValueLeavesTheChangeToThePlugin)
{
    parameter.SetAutomation(&automation);
    host->result = -20004;
    parameter.PostValue(2.0F);
    EXPECT_EQ(value.GetValue(), 2.0F);
    automation.Clear();
    parameter.PostValue(0.0F);
    EXPECT_EQ(value.GetValue(), 0.0F);
}

TEST_F(Parameter, AudioThreadPostsAGestureOfItsOwnOutsideOfAHands)
{
    parameter.SetAutomation(&automation);
    parameter.PostValueOfAudio(2.0F);
    parameter.PostValueOfAudio(2.0F);
    parameter.PostValueOfAudio(NaN);
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 0.750000", "release P7"));
    host->calls.clear();
    parameter.Touch();
    parameter.PostValueOfAudio(3.0F);
    parameter.Release();
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 1.000000", "release P7"));
}

TEST_F(Parameter, ValueThatAHostMakesTheHandLetGoOfStaysWithinTheGesture)
{
    parameter.SetAutomation(&automation);
    parameter.SetListener([this] { parameter.Touch(); });
    host->result = -20004; // so that the value is set within the post
    parameter.PostValue(2.0F);
    parameter.Release();
    EXPECT_THAT(host->calls, ElementsAre("touch P7", "value P7 0.750000", "release P7"));
}

/// Writes down what several threads post, as one letter a call.
class CBusyAutomation : public TACFObject<IAAXAutomationDelegate>
{
public:
    std::int32_t PostTouch(const char* /*id*/) override { return Note('t'); }
    std::int32_t PostRelease(const char* /*id*/) override { return Note('r'); }
    std::int32_t PostValue(const char* /*id*/, double /*normalized*/) override { return Note('v'); }

    std::string script;

private:
    std::int32_t Note(char call)
    {
        const std::scoped_lock lock(guard);
        script += call;
        return AAXResult::Ok;
    }

    std::mutex guard;
};

TEST_F(Parameter, GesturesOfAHandAndOfTheAudioThreadAreToldOneAfterAnother)
{
    constexpr int rounds = 20000;
    const auto busy = TACFReference<CBusyAutomation>::Adopt(new CBusyAutomation);
    AAXExtAutomationDelegate shared;
    shared.Set(TACFReference<IAAXAutomationDelegate>(busy.Get()));
    parameter.SetAutomation(&shared);
    std::atomic<bool> isDone = false;
    std::thread audio(
        [&]
        {
            for (int i = 0; !isDone; ++i)
            {
                parameter.PostValueOfAudio(static_cast<float>(i % 7) / 3.0F);
            }
        });
    for (int i = 0; i < rounds; ++i)
    {
        parameter.Touch();
        parameter.PostValue(static_cast<float>(i % 5) / 2.0F);
        parameter.Release();
        parameter.PostValue(static_cast<float>(i % 3));
    }
    isDone = true;
    audio.join();
    bool isHeld = false;
    for (const char call : busy->script)
    {
        ASSERT_EQ(isHeld, call != 't');
        isHeld = call != 'r';
    }
    EXPECT_FALSE(isHeld);
}

TEST(CLinearTaper, MapsTheRangeEvenlyBothWays)
{
    const CLinearTaper taper(-1.0F, 3.0F);
    const struct
    {
        float plain;
        double normalized;
    } rows[] = {{-1.0F, 0.0}, {0.0F, 0.25}, {1.0F, 0.5}, {3.0F, 1.0}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(taper.ToNormalized(row.plain), row.normalized);
        EXPECT_EQ(taper.ToPlain(row.normalized), row.plain);
    }
}

TEST(CLinearTaper, KeepsToTheRange)
{
    const CLinearTaper taper(0.0F, 300.0F);
    EXPECT_EQ(taper.ToPlain(1.5), 300.0F);
    EXPECT_EQ(taper.ToPlain(-1.5), 0.0F);
    EXPECT_EQ(taper.ToNormalized(301.0F), 1.0);
    EXPECT_EQ(taper.ToNormalized(-1.0F), 0.0);
    EXPECT_TRUE(std::isnan(taper.ToPlain(std::numeric_limits<double>::quiet_NaN())));
    EXPECT_TRUE(std::isnan(taper.Clamp(NaN)));
}

TEST(CLinearTaper, RangeMayRunDownOrHaveNoWidth)
{
    const CLinearTaper down(4.0F, 0.0F);
    EXPECT_EQ(down.ToNormalized(3.0F), 0.25);
    EXPECT_EQ(down.ToPlain(0.25), 3.0F);
    EXPECT_EQ(down.Clamp(5.0F), 4.0F);
    const CLinearTaper point(2.0F, 2.0F);
    EXPECT_EQ(point.ToNormalized(2.0F), 0.0);
    EXPECT_EQ(point.ToPlain(0.5), 2.0F);
}

} // namespace
