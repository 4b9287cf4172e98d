#include "Mirel/Audio/Plugin/CBypassProcessor.h"

#include "Common/Mirel/Audio/DSP/RecordingEffect.h"
#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Support/AllocationCounter.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

using namespace Mirel::Audio::DSP;
using Mirel::Audio::Plugin::CBypassProcessor;
using Tests::CRecordingEffect;

namespace
{

using CSamples = std::vector<float>;

/// One input and one output around an effect that multiplies by 3.
class CBypassRig
{
public:
    explicit CBypassRig(int outputs = 1) : effect(1, outputs)
    {
        effect.params = {3.0f, 0.0f};
        bypass.Init(outputs, 16);
    }

    CSamples Process(CSamples input)
    {
        CSamples output(input.size(), unwritten);
        Run(input, output, false);
        return output;
    }

    /// The host's buffer is full of ones all the same.
    CSamples Silence(std::size_t count)
    {
        CSamples input(count, 1.0f);
        CSamples output(count, unwritten);
        Run(input, output, true);
        return output;
    }

    void Run(CSamples& input, CSamples& output, bool isSilent)
    {
        const int count = static_cast<int>(input.size());
        CAudioStream in(input.data(), 0, count, 1);
        CAudioStream out(output.data(), 0, count, 1);
        CAudioStreamToStreams inputs(&in);
        CAudioStreamToStreams outputs(effect.GetProcessInfo().GetOutputs().GetCount() > 0 ? &out : nullptr);
        const CProcessBlock block{&inputs, &outputs, count, nullptr, nullptr};
        if (isSilent)
        {
            sounds = bypass.ProcessSilence(effect, block);
        }
        else
        {
            bypass.Process(effect, block);
        }
    }

    static constexpr float unwritten = -7.0f;
    CRecordingEffect effect;
    CBypassProcessor bypass;
    bool sounds = false;
};

} // namespace

TEST(CBypassProcessor, TheFilterIsHeardAtFirst)
{
    CBypassRig rig;
    EXPECT_EQ(rig.Process({1, 2, 3}), (CSamples{3, 6, 9}));
}

TEST(CBypassProcessor, WithoutAFadeTheInputTakesTheFiltersPlaceAtOnce)
{
    CBypassRig rig;
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Process({1, 2, 3}), (CSamples{1, 2, 3}));
    rig.bypass.SetBypass(false);
    EXPECT_EQ(rig.Process({1, 2, 3}), (CSamples{3, 6, 9}));
}

TEST(CBypassProcessor, TheFilterKeepsRunningInBypass)
{
    CBypassRig rig;
    rig.bypass.SetBypass(true);
    rig.Process({1, 2, 3});
    rig.Process({4});
    EXPECT_EQ(rig.effect.heard, (CSamples{1, 2, 3, 4}));
}

TEST(CBypassProcessor, TheFadeBeginsWithTheFilterAndEndsWithTheInput)
{
    CBypassRig rig;
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(true);
    // 3 g + 1 (1 - g) for g = 1, 3/4, 1/2, 1/4, 0, 0
    EXPECT_EQ(rig.Process({1, 1, 1, 1, 1, 1}), (CSamples{3, 2.5f, 2, 1.5f, 1, 1}));
    EXPECT_EQ(rig.Process({1, 1}), (CSamples{1, 1}));
    EXPECT_EQ(rig.effect.heard.size(), 8U);
}

TEST(CBypassProcessor, TheFadeGoesOnInTheNextBlock)
{
    CBypassRig rig;
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Process({1}), (CSamples{3}));
    EXPECT_EQ(rig.Process({}), (CSamples{}));
    EXPECT_EQ(rig.Process({1, 1}), (CSamples{2.5f, 2}));
    EXPECT_EQ(rig.Process({1, 1, 1}), (CSamples{1.5f, 1, 1}));
}

TEST(CBypassProcessor, AChangeDuringAFadeTurnsItAroundAtItsGain)
{
    CBypassRig rig;
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(true);
    rig.Process({1, 1});
    rig.bypass.SetBypass(false);
    EXPECT_EQ(rig.Process({1, 1, 1, 1}), (CSamples{2, 2.5f, 3, 3}));
    EXPECT_EQ(rig.Process({1}), (CSamples{3}));
}

TEST(CBypassProcessor, ToSetWhatIsSetChangesNothing)
{
    CBypassRig rig;
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(false);
    EXPECT_EQ(rig.Process({1}), (CSamples{3}));
    rig.bypass.SetBypass(true);
    rig.Process({1, 1});
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Process({1, 1, 1}), (CSamples{2, 1.5f, 1}));
}

TEST(CBypassProcessor, TheFadeBackBeginsWithTheInput)
{
    CBypassRig rig;
    rig.bypass.SetBypass(true);
    rig.Process({1});
    rig.bypass.SetFadeLength(2);
    EXPECT_EQ(rig.Process({1}), (CSamples{1})) << "a length alone begins no fade";
    rig.bypass.SetBypass(false);
    EXPECT_EQ(rig.Process({1, 1, 1, 1}), (CSamples{1, 2, 3, 3}));
}

TEST(CBypassProcessor, ANewFadeLengthKeepsTheGainOfAFadeUnderWay)
{
    CBypassRig rig;
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(true);
    rig.Process({1, 1});
    rig.bypass.SetFadeLength(8);
    EXPECT_EQ(rig.Process({1, 1, 1}), (CSamples{2, 1.75f, 1.5f}));
    rig.bypass.SetFadeLength(0);
    EXPECT_EQ(rig.Process({1, 1}), (CSamples{1, 1}));
}

TEST(CBypassProcessor, SilenceRunsTheFiltersSilence)
{
    CBypassRig rig;
    rig.effect.tail = 4;
    EXPECT_EQ(rig.Silence(4), (CSamples{0, 0, 0, 0}));
    EXPECT_TRUE(rig.sounds);
    EXPECT_EQ(rig.effect.heard, (CSamples{0, 0, 0, 0}));
    EXPECT_EQ(rig.Silence(2), (CSamples{0, 0}));
    EXPECT_FALSE(rig.sounds);
}

TEST(CBypassProcessor, SilenceInBypassIsSilentAndKeepsTheFilterRunning)
{
    CBypassRig rig;
    rig.effect.tail = 4;
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Silence(4), (CSamples{0, 0, 0, 0}));
    EXPECT_FALSE(rig.sounds);
    EXPECT_EQ(rig.effect.GetSilentSamples(), 4);
    EXPECT_EQ(rig.Silence(3), (CSamples{0, 0, 0}));
    EXPECT_EQ(rig.effect.GetSilentSamples(), 7);
    EXPECT_EQ(rig.effect.blocks, std::vector<int>{4});
}

TEST(CBypassProcessor, AFadeInSilenceMixesTheTailWithSilence)
{
    CBypassRig rig;
    rig.effect.tail = 8;
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Silence(2), (CSamples{0, 0}));
    EXPECT_TRUE(rig.sounds) << "the tail is still in the mixture";
    EXPECT_EQ(rig.Process({1, 1, 1}), (CSamples{2, 1.5f, 1})) << "the fade went on in silence";
}

TEST(CBypassProcessor, AFilterWithoutOutputsHearsEverythingAndTheAudioIsLeftAlone)
{
    CBypassRig rig(0);
    const CSamples untouched(3, CBypassRig::unwritten);
    EXPECT_EQ(rig.Process({1, 2, 3}), untouched);
    rig.bypass.SetFadeLength(4);
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Process({4, 5, 6}), untouched);
    EXPECT_EQ(rig.Process({7, 8, 9}), untouched);
    EXPECT_EQ(rig.Process({10, 11, 12}), untouched);
    EXPECT_EQ(rig.effect.heard, (CSamples{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST(CBypassProcessor, AnOutputWithoutAnInputHasSilenceForItsDrySignal)
{
    CRecordingEffect effect(1, 2);
    CBypassProcessor bypass;
    bypass.Init(2, 4);
    CSamples in{1, 2};
    CSamples out1(2, CBypassRig::unwritten);
    CSamples out2(2, CBypassRig::unwritten);
    CAudioStream input(in.data(), 0, 2, 1);
    CAudioStream streams[] = {CAudioStream(out1.data(), 0, 2, 1), CAudioStream(out2.data(), 0, 2, 1)};
    CAudioStreamToStreams inputs(&input);
    CAudioStreams outputs(streams, 2);
    bypass.SetBypass(true);
    bypass.Process(effect, {&inputs, &outputs, 2, nullptr, nullptr});
    EXPECT_EQ(out1, in);
    EXPECT_EQ(out2, (CSamples{0, 0}));
}

TEST(CBypassProcessor, FadesThroughStridesAndMissingData)
{
    CRecordingEffect effect(1, 1);
    effect.params = {3.0f, 0.0f};
    CBypassProcessor bypass;
    bypass.Init(1, 4);
    bypass.SetFadeLength(2);
    bypass.SetBypass(true);
    CSamples in{1, 9, 1, 9, 1, 9};
    CSamples out(6, CBypassRig::unwritten);
    CAudioStream input(in.data(), 0, 6, 2);
    CAudioStream output(out.data(), 1, 6, 2);
    CAudioStreamToStreams inputs(&input);
    CAudioStreamToStreams outputs(&output);
    bypass.Process(effect, {&inputs, &outputs, 3, nullptr, nullptr});
    const float untouched = CBypassRig::unwritten;
    EXPECT_EQ(out, (CSamples{untouched, 3, untouched, 2, untouched, 1}));

    bypass.SetBypass(false);
    CEmptyStreams nothing(1, 3);
    bypass.Process(effect, {&nothing, &outputs, 3, nullptr, nullptr});
    EXPECT_EQ(out, (CSamples{untouched, 0, untouched, 0, untouched, 0}));
    bypass.SetBypass(true);
    bypass.Process(effect, {&inputs, &nothing, 3, nullptr, nullptr});
}

TEST(CBypassProcessor, ALongerBlockThanAnnouncedIsProcessedAllTheSame)
{
    CBypassRig rig;
    rig.bypass.SetBypass(true);
    EXPECT_EQ(rig.Process(CSamples(40, 2.0f)), CSamples(40, 2.0f));
    EXPECT_EQ(rig.effect.blocks, std::vector<int>{40});
}

TEST(CBypassProcessor, NothingIsAllocatedForBlocksUpToTheAnnouncedSize)
{
    CBypassRig rig;
    rig.effect.tail = 1000;
    rig.effect.heard.reserve(1000);
    rig.effect.blocks.reserve(1000);
    rig.effect.trace.reserve(1000);
    rig.bypass.SetFadeLength(20);
    CSamples input(16, 1.0f);
    CSamples shortInput(5, 1.0f);
    CSamples output(16);

    const Tests::CAllocationCounter allocations;
    for (const bool on : {true, false, true})
    {
        rig.bypass.SetBypass(on);
        for (int i = 0; i < 4; ++i)
        {
            rig.Run(input, output, false);
            rig.Run(shortInput, output, false);
            rig.Run(input, output, true);
        }
    }
    EXPECT_EQ(allocations.GetCount(), 0U);
}
