#include "Plugins/Oscilloscope/COscilloscope.h"

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Plugins/Oscilloscope/ScopeRig.h"
#include "Support/AllocationCounter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

using namespace Mirel::Audio::DSP;
using namespace PluginsFilters;
using Tests::CScopeRig;
using Tests::Noise;

namespace
{

using EParam = COscilloscope::EParam;

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

} // namespace

// --- parameters

TEST(COscilloscope, ViewModeIsChosenByHalves)
{
    struct SCase
    {
        float parameter;
        float
            newestAtZero; // Flow and a missed trigger show the newest sample at x = 0, Loop the last position
    };
    for (const SCase& mode : {SCase{0.5f, 3.0f}, SCase{0.51f, 5.0f}, SCase{1.5f, 5.0f}, SCase{1.51f, 3.0f}})
    {
        SCOPED_TRACE(mode.parameter);
        CScopeRig rig(5.0);
        rig.Set(EParam::ViewMode, mode.parameter);
        rig.Set(EParam::TriggerValue, 100.0f); // never reached
        rig.Process({9, 9, 9, 4, 5, 1, 2, 3});
        rig.scope.UpdateOutputs();
        EXPECT_EQ(rig.Waveform(0.0f), mode.newestAtZero);
    }
}

TEST(COscilloscope, TogglingSyncWipesTheDisplayBothWays)
{
    CScopeRig rig(8.0);
    for (const float sync : {1.0f, 0.0f})
    {
        rig.Process(std::vector<float>(8, 0.5f));
        rig.Set(EParam::Sync, sync);
        rig.scope.UpdateOutputs();
        EXPECT_EQ(rig.Waveform(-0.5f), 0.0f);
        rig.Process({0.25f});
        rig.scope.UpdateOutputs();
        EXPECT_EQ(rig.Histogram(0.25f), 1.0f);
        EXPECT_EQ(rig.Histogram(0.5f), 0.0f);
    }
}

TEST(COscilloscope, UnchangedSyncWipesNothing)
{
    CScopeRig rig(8.0);
    rig.Process(std::vector<float>(8, 0.5f));
    rig.Set(EParam::Sync, 0.5f);
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), 0.5f);
}

TEST(COscilloscope, SyncStartsANewRefreshPeriod)
{
    CScopeRig rig(1000.0);
    rig.scope.GetOutputDataSync()->SetRefreshRate(10.0);
    rig.Process(std::vector<float>(200, 0.0f));
    ASSERT_TRUE(rig.scope.GetOutputDataSync()->IsOutputDue());

    rig.Set(EParam::Sync, 1.0f);

    EXPECT_FALSE(rig.scope.GetOutputDataSync()->IsOutputDue());
}

TEST(COscilloscope, DelayShiftsTheTraceByTruncatedSamples)
{
    CScopeRig rig(1000.0);
    rig.Set(EParam::Delay, 7.9f); // 7 samples
    std::vector<float> ramp(100);
    std::iota(ramp.begin(), ramp.end(), 1.0f);
    rig.Process(ramp);
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), 93.0f);
}

TEST(COscilloscope, LongestDelayStaysInsideTheLineAtEveryRate)
{
    // 54613.3 x 0.3 is 16384: a power of two, which a line of just that size would mask to no delay at all.
    for (const double rate : {8.0, 8000.0, 44100.0, 48000.0, 54613.3333333333, 96000.0, 192000.0})
    {
        SCOPED_TRACE(rate);
        CScopeRig rig(rate);
        rig.Set(EParam::Delay, 300.0f);
        const auto delay = static_cast<int>(0.001 * rate * 300.0);
        std::vector<float> signal(static_cast<std::size_t>(delay) + 1, 0.25f);
        signal[0] = 0.75f;
        rig.Process(signal.data(), delay);
        rig.scope.UpdateOutputs();
        EXPECT_EQ(rig.Waveform(0.0f), 0.0f);
        rig.Process(signal.data() + delay, 1);
        rig.scope.UpdateOutputs();
        EXPECT_EQ(rig.Waveform(0.0f), 0.75f);
    }
}

TEST(COscilloscope, ChangedDelayJumpsWithoutInterpolation)
{
    CScopeRig rig(1000.0);
    std::vector<float> ramp(100);
    std::iota(ramp.begin(), ramp.end(), 1.0f);
    rig.Process(ramp);
    rig.Set(EParam::Delay, 50.0f);
    rig.Process({101.0f});
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), 51.0f);
    EXPECT_EQ(rig.Waveform(-1.0f / 999.0f), 100.0f);
}

TEST(COscilloscope, DirectionSwitchesAboveOneHalf)
{
    // A rise behind the -2 and a fall behind the 3: a triggered trace ends with the sample before its
    // crossing.
    const std::vector<float> signal{-3, -2, 1, 2, 3, -4, -5, -6};
    CScopeRig rig(8.0);
    rig.Set(EParam::ViewMode, 2.0f);
    rig.Set(EParam::TriggerDirection, 0.5f);
    rig.Process(signal);
    rig.scope.UpdateOutputs();
    EXPECT_EQ(rig.Waveform(0.0f), -2.0f);

    rig.Set(EParam::TriggerDirection, 0.51f);
    rig.Process(signal);
    rig.scope.UpdateOutputs();
    EXPECT_EQ(rig.Waveform(0.0f), 3.0f);
}

TEST(COscilloscope, ValuesAtTheStartOfTheBlockAreTakenFromVariations)
{
    CScopeRig rig(1000.0);
    CDynamicParamsVariations variations(5);
    variations.Resize(2);
    for (int i = 0; i < 5; ++i)
    {
        variations[0].SetValue(i, 0.0f);
        variations[1].SetValue(i, 0.0f);
    }
    variations[0].SetValue(EParam::Delay, 2.0f);
    const std::array<float, 4> samples{1, 2, 3, 4};
    rig.Process(samples.data(), 4, &variations);
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), 2.0f);
}

// --- trace

TEST(COscilloscope, FlowEndsWithTheNewestSample)
{
    CScopeRig rig(5.0);
    rig.Process({1, 2, 3, 4, 5, 6, 7});
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(-1.0f), 3.0f);
    EXPECT_EQ(rig.Waveform(-0.75f), 4.0f);
    EXPECT_EQ(rig.Waveform(0.0f), 7.0f);
}

TEST(COscilloscope, LoopStandsStillWhileTheHeadMovesThroughIt)
{
    CScopeRig rig(5.0);
    rig.Set(EParam::ViewMode, 1.0f);
    rig.Process({1, 2, 3, 4, 5, 6, 7});
    rig.scope.UpdateOutputs();
    EXPECT_EQ(rig.Waveform(-1.0f), 6.0f);
    EXPECT_EQ(rig.Waveform(-0.75f), 7.0f);
    EXPECT_EQ(rig.Waveform(-0.5f), 3.0f);
    EXPECT_EQ(rig.Waveform(0.0f), 5.0f);
}

TEST(COscilloscope, TriggeredTraceIsFlatFromTheCrossingToTheHeadAndGoesOnWithWhatLedThere)
{
    CScopeRig rig(8.0);
    rig.Set(EParam::ViewMode, 2.0f);
    rig.Set(EParam::TriggerValue, 0.1f);
    rig.Process({9, 9, 9, 9, 9, 9, 9, 9, 0.9f, -0.4f, -0.5f, 0.5f, 0.6f, 0.7f});
    rig.scope.UpdateOutputs();

    // The crossing lies at position 3, the head at position 6, whose value is the flat line's.
    EXPECT_EQ(rig.Waveform(-1.0f), 9.0f);
    EXPECT_EQ(rig.Waveform(-5.0f / 7.0f), 9.0f);
    EXPECT_EQ(rig.Waveform(-2.0f / 7.0f), 0.9f);
    EXPECT_EQ(rig.Waveform(-1.0f / 7.0f), -0.4f);
    EXPECT_EQ(rig.Waveform(0.0f), -0.5f);
}

TEST(COscilloscope, ASineThatNeverReachesTheLevelFlows)
{
    CScopeRig rig(1000.0);
    rig.Set(EParam::ViewMode, 2.0f);
    rig.Set(EParam::TriggerValue, 0.9f);
    std::vector<float> sine(1300);
    std::generate(sine.begin(), sine.end(),
                  [i = 0]() mutable { return 0.5f * std::sin(0.05f * static_cast<float>(i++)); });
    rig.Process(sine);
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), sine[1299]);
    EXPECT_EQ(rig.Waveform(-1.0f), sine[300]);
}

TEST(COscilloscope, SilenceAtLevelZeroCountsAsTriggeredAtPositionOne)
{
    CScopeRig rig(4.0);
    rig.Set(EParam::ViewMode, 2.0f);
    rig.Process({1, 2, 3, 0});
    rig.scope.UpdateOutputs();

    // start = stop = 1, the head is at 0: behind stop and before the head nothing is fresh but position 0.
    EXPECT_EQ(rig.Waveform(0.0f), 1.0f);
    EXPECT_EQ(rig.Waveform(-1.0f), 1.0f);
}

TEST(COscilloscope, TableKeepsWhatLiesBeyondTheRange)
{
    CScopeRig rig(4.0);
    rig.Process({0, 0, 0, 7.5f});
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), 7.5f);
    EXPECT_EQ(rig.Bin(150), 1.0f / 3.0f);
}

// --- silence, refresh, life

TEST(COscilloscope, TailIsOneSecond)
{
    EXPECT_EQ(CScopeRig(44100.0).scope.GetTailLength(), 44100);
    EXPECT_EQ(CScopeRig(44100.5).scope.GetTailLength(), 44101);
}

TEST(COscilloscope, PastTheTailOnlyTheTableIsFedAndTheCurvesStayClean)
{
    CScopeRig rig(8.0);
    rig.Process(std::vector<float>(8, 0.5f));
    EXPECT_TRUE(rig.Silence(8));
    rig.scope.UpdateOutputs();
    rig.Clean();

    EXPECT_FALSE(rig.Silence(8));
    rig.scope.UpdateOutputs();

    EXPECT_FALSE(rig.IsDirty(0));
    EXPECT_FALSE(rig.IsDirty(1));
    EXPECT_EQ(rig.Waveform(0.0f), 0.0f);
}

TEST(COscilloscope, SilentSamplesAdvanceTheRefreshClock)
{
    CScopeRig rig(1000.0);
    rig.scope.GetOutputDataSync()->SetRefreshRate(10.0);
    rig.Silence(1000);
    rig.scope.GetOutputDataSync()->Reset();

    rig.Silence(99);
    EXPECT_FALSE(rig.scope.GetOutputDataSync()->IsOutputDue());
    rig.Silence(1);
    EXPECT_TRUE(rig.scope.GetOutputDataSync()->IsOutputDue());
}

TEST(COscilloscope, NewDataMarksBothCurvesOnce)
{
    CScopeRig rig(8.0);
    rig.scope.UpdateOutputs();
    EXPECT_FALSE(rig.IsDirty(0));

    rig.Process({1.0f});
    rig.scope.UpdateOutputs();
    EXPECT_TRUE(rig.IsDirty(0));
    EXPECT_TRUE(rig.IsDirty(1));

    rig.Clean();
    rig.scope.UpdateOutputs();
    EXPECT_FALSE(rig.IsDirty(0));
}

TEST(COscilloscope, AnEmptyBlockTakesBackThePendingData)
{
    CScopeRig rig(8.0);
    rig.Process({1.0f});
    rig.Process(std::vector<float>());
    rig.scope.UpdateOutputs();

    EXPECT_FALSE(rig.IsDirty(0));
}

TEST(COscilloscope, FirstBlockAfterInitIsDue)
{
    CScopeRig rig(48000.0);
    rig.scope.GetOutputDataSync()->SetRefreshRate(50.0);
    bool ok = false;
    rig.scope.Init(96000.0, ok);

    EXPECT_TRUE(rig.scope.GetOutputDataSync()->IsOutputDue());
    rig.scope.GetOutputDataSync()->Reset();
    rig.Process(std::vector<float>(1919, 0.0f));
    EXPECT_FALSE(rig.scope.GetOutputDataSync()->IsOutputDue());
    rig.Process({0.0f});
    EXPECT_TRUE(rig.scope.GetOutputDataSync()->IsOutputDue());
}

TEST(COscilloscope, InitAtAnotherRateStartsAfresh)
{
    CScopeRig rig(8.0);
    rig.Process(std::vector<float>(8, 0.5f));
    bool ok = false;
    rig.scope.Init(16.0, ok);
    rig.Process({0.25f});
    rig.scope.UpdateOutputs();

    EXPECT_TRUE(ok);
    EXPECT_EQ(rig.scope.GetTailLength(), 16);
    EXPECT_EQ(rig.Waveform(-0.5f), 0.0f);
    EXPECT_EQ(rig.Histogram(0.5f), 0.0f);
}

TEST(COscilloscope, RatesThatCannotRunAreRefusedAndHarmless)
{
    for (const double rate :
         {0.0, -48000.0, 0.4, 1e12, std::nan(""), std::numeric_limits<double>::infinity()})
    {
        SCOPED_TRACE(rate);
        CScopeRig rig(rate);
        EXPECT_FALSE(rig.initialised);
        rig.Set(EParam::Delay, 300.0f);
        rig.Process(Noise(5000, 1.0f));
        rig.Silence(5000);
        rig.scope.UpdateOutputs();
        EXPECT_EQ(rig.Waveform(-0.5f), 0.0f);
    }
}

TEST(COscilloscope, CloneGoesOnFromTheSameStateAndAlone)
{
    CScopeRig rig(8.0);
    rig.Process({0.1f, 0.2f, 0.3f});
    rig.scope.UpdateOutputs();
    const std::unique_ptr<IFilter> clone(rig.scope.Clone());
    rig.Process(std::vector<float>(8, 0.9f));
    rig.scope.UpdateOutputs();

    EXPECT_EQ(clone->GetOutputCurves()[0](0.0f), 0.3f);
    EXPECT_EQ(clone->GetOutputCurves()[1](0.2f), 1.0f);
    EXPECT_EQ(clone->GetOutputCurves()[1](0.9f), 0.0f);
    EXPECT_EQ(rig.Waveform(0.0f), 0.9f);
}

// --- bad input

TEST(COscilloscope, BlocksWithoutInputOrOfNoLengthNeverFault)
{
    CScopeRig rig(8.0);
    CEmptyStreams none(0, 8);
    CEmptyStreams silent(1, 8);
    CAudioStream still(nullptr, 0, 8, 0);
    CAudioStreamToStreams stillInputs(&still);
    rig.scope.Process({nullptr, &none, 8, nullptr, nullptr});
    rig.scope.Process({&none, &none, 8, nullptr, nullptr});
    rig.scope.Process({&silent, &none, 8, nullptr, nullptr});
    rig.scope.Process({&stillInputs, &none, 8, nullptr, nullptr});
    rig.scope.Process({&silent, &none, 0, nullptr, nullptr});
    rig.scope.Process({&silent, &none, -8, nullptr, nullptr});
    rig.scope.ProcessSilence({nullptr, nullptr, 8, nullptr, nullptr});
    rig.Process({0.5f});
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Waveform(0.0f), 0.5f);
    EXPECT_EQ(rig.Histogram(0.0f), 1.0f); // data that is missing reads as zeros
}

TEST(COscilloscope, StridesAreFollowed)
{
    CScopeRig rig(1000.0);
    std::vector<float> interleaved = Noise(4000, 1.0f);
    CAudioStream stream(interleaved.data(), 1, 3998, 2);
    CAudioStreamToStreams inputs(&stream);
    CEmptyStreams none(0, 1999);
    rig.scope.Process({&inputs, &none, 1999, nullptr, nullptr});
    rig.scope.UpdateOutputs();
    EXPECT_EQ(rig.Waveform(0.0f), interleaved[3997]);
    EXPECT_EQ(rig.Waveform(-1.0f), interleaved[1999]);

    float one = 0.5f;
    CAudioStream still(&one, 0, 8, 0);
    CAudioStreamToStreams stillInputs(&still);
    rig.scope.Process({&stillInputs, &none, 1999, nullptr, nullptr});
    rig.scope.UpdateOutputs();
    EXPECT_EQ(rig.Histogram(0.5f), 1.0f);
    EXPECT_EQ(rig.Waveform(-1.0f), 0.5f);
}

TEST(COscilloscope, SamplesOfEveryKindStayInsideTheBins)
{
    CScopeRig rig(9.0);
    rig.Process({notANumber, infinity, -infinity, 1e-42f, std::numeric_limits<float>::max(), -2.0f, 2.0f,
                 0.0f, -notANumber});
    rig.scope.UpdateOutputs();

    // NaN twice, -infinity and -2 in bin 0; infinity, the largest and 2 in bin 150; the denormal and 0 in
    // bin 75.
    EXPECT_EQ(rig.Bin(0), 1.0f);
    EXPECT_EQ(rig.Bin(150), 3.0f * (1.0f / 4.0f));
    EXPECT_EQ(rig.Bin(75), 2.0f * (1.0f / 4.0f));
}

TEST(COscilloscope, ParametersOfEveryKindNeverFault)
{
    for (const float value : {notANumber, infinity, -infinity, -5.0f, 1e30f, -1e30f, 301.0f})
    {
        for (const EParam param :
             {EParam::ViewMode, EParam::Delay, EParam::TriggerValue, EParam::TriggerDirection})
        {
            CScopeRig rig(48.0);
            rig.Set(EParam::ViewMode, 2.0f);
            rig.Set(param, value);
            rig.Process(Noise(100, 1.0f));
            rig.scope.UpdateOutputs();
            EXPECT_TRUE(std::isfinite(rig.Waveform(-0.3f)));
        }
    }
}

TEST(COscilloscope, CurvesTakeAnyArgument)
{
    CScopeRig rig(48.0);
    rig.Process(Noise(100, 1.0f));
    rig.scope.UpdateOutputs();
    for (const float x : {notANumber, infinity, -infinity, 1e30f, -1e30f})
    {
        EXPECT_TRUE(std::isfinite(rig.Waveform(x)));
        EXPECT_TRUE(std::isfinite(rig.Histogram(x)));
    }
}

TEST(COscilloscope, NothingIsAllocatedAfterInit)
{
    CScopeRig rig(48000.0);
    const auto signal = Noise(100000, 1.2f);
    const Tests::CAllocationCounter allocations;
    rig.Set(EParam::ViewMode, 2.0f);
    rig.Set(EParam::Delay, 123.0f);
    rig.Process(signal.data(), 100000);
    rig.Process(signal.data(), 64);
    rig.Silence(48000);
    rig.Silence(100000);
    rig.Set(EParam::Sync, 1.0f);
    rig.scope.UpdateOutputs();

    EXPECT_EQ(allocations.GetCount(), 0U);
}
