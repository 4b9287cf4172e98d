#include "Mirel/Audio/DSP/CBaseCoreDSPFilter.h"

#include "Common/Mirel/Audio/DSP/RecordingEffect.h"
#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/DataModel/Objects/CProductInfo.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <vector>

using namespace Mirel::Audio::DSP;
using Tests::CRecordingEffect;

namespace
{

/// Runs a block of `count` samples of silence into an effect, with one output channel of `output`.
bool Silence(CRecordingEffect& effect, int count, std::vector<float>& output,
             const IConstParamsVariations* variations = nullptr)
{
    CAudioStream stream(output.data(), 0, static_cast<int>(output.size()), 1);
    CAudioStreamToStreams outputs(&stream);
    return effect.ProcessSilence({nullptr, &outputs, count, variations, nullptr});
}

} // namespace

TEST(CBaseCoreDSPFilter, InitSetsSizesThenDefaultsThenResetsThenUpdates)
{
    CRecordingEffect effect;
    bool ok = false;
    effect.Init(48000.0, ok);

    EXPECT_TRUE(ok);
    EXPECT_EQ(effect.trace, "IPRpc");
}

TEST(CBaseCoreDSPFilter, RefusedRateSkipsTheDefaultsAndStillResets)
{
    CRecordingEffect effect;
    effect.canRun = false;
    bool ok = true;
    effect.Init(48000.0, ok);

    EXPECT_FALSE(ok);
    EXPECT_EQ(effect.trace, "IRpc");
}

TEST(CBaseCoreDSPFilter, ParametersHoldTheirDefaultsAfterInitWhateverWasSetBefore)
{
    CRecordingEffect effect;
    std::vector<float> values{9, 9};
    effect.SetParams(CParamsValues(values.data(), 2));
    bool ok = false;
    effect.Init(48000.0, ok);

    EXPECT_EQ(effect.params, (std::vector<float>{3.0f, 0.5f}));
}

TEST(CBaseCoreDSPFilter, ProcessRunsTheSamplesThenThePostProcess)
{
    CRecordingEffect effect;
    effect.SetSilentSamples(77);
    std::vector<float> samples{1, 2};
    CAudioStream stream(samples.data(), 0, 2, 1);
    CAudioStreamToStreams inputs(&stream);
    CEmptyStreams outputs(0, 2);
    effect.Process({&inputs, &outputs, 2, nullptr, nullptr});

    EXPECT_EQ(effect.trace, "So");
    EXPECT_EQ(effect.heard, samples);
    EXPECT_EQ(effect.GetSilentSamples(), 0);
}

TEST(CBaseCoreDSPFilter, WithoutInputsOrOutputsOnlyThePostProcessRuns)
{
    CRecordingEffect effect;
    CEmptyStreams streams(1, 2);
    effect.Process({nullptr, &streams, 2, nullptr, nullptr});
    effect.Process({&streams, nullptr, 2, nullptr, nullptr});

    EXPECT_EQ(effect.trace, "no");
}

TEST(CBaseCoreDSPFilter, SilenceWithoutOutputsDoesNothing)
{
    CRecordingEffect effect;
    effect.tail = 10;

    EXPECT_FALSE(effect.ProcessSilence({nullptr, nullptr, 5, nullptr, nullptr}));
    EXPECT_EQ(effect.trace, "");
    EXPECT_EQ(effect.GetSilentSamples(), 0);
}

TEST(CBaseCoreDSPFilter, TailRunsOnEmptyStreamsOfTheDeclaredInputs)
{
    CRecordingEffect effect;
    effect.tail = 10;
    std::vector<float> output(4, 1.0f);

    EXPECT_TRUE(Silence(effect, 4, output));
    EXPECT_EQ(effect.trace, "So");
    EXPECT_EQ(effect.heard, std::vector<float>(4, 0.0f));
    EXPECT_EQ(effect.GetSilentSamples(), 4);
}

TEST(CBaseCoreDSPFilter, SilenceOfExactlyTheTailIsPastIt)
{
    CRecordingEffect effect;
    effect.tail = 8;
    std::vector<float> output(4, 1.0f);
    EXPECT_TRUE(Silence(effect, 4, output));
    EXPECT_TRUE(Silence(effect, 4, output));
    effect.trace.clear();

    EXPECT_FALSE(Silence(effect, 4, output));
    EXPECT_EQ(effect.trace, "s");
    EXPECT_EQ(output, std::vector<float>(4, 0.0f));
    EXPECT_EQ(effect.GetSilentSamples(), 12);
}

TEST(CBaseCoreDSPFilter, TailOfZeroNeverRunsSamplesOnSilence)
{
    CRecordingEffect effect;
    std::vector<float> output(4, 1.0f);

    EXPECT_FALSE(Silence(effect, 4, output));
    EXPECT_EQ(effect.trace, "s");
}

TEST(CBaseCoreDSPFilter, ParameterChangesAreTakenPastTheTail)
{
    CRecordingEffect effect;
    CDynamicParamsVariations variations(2);
    variations.Resize(1);
    variations[0].SetValue(0, 7.0f);
    std::vector<float> output(4);
    Silence(effect, 4, output, &variations);

    EXPECT_EQ(effect.trace, "Ps");
    EXPECT_EQ(effect.params, (std::vector<float>{7.0f, 0.0f}));

    variations.Resize(0);
    Silence(effect, 4, output, &variations);
    EXPECT_EQ(effect.trace, "Pss");
}

TEST(CBaseCoreDSPFilter, CountOfSilenceStopsAtTheTopInsteadOfWrapping)
{
    constexpr auto top = std::numeric_limits<std::int64_t>::max();
    CRecordingEffect effect;
    std::vector<float> output(4);
    effect.SetSilentSamples(top - 3);
    Silence(effect, 4, output);
    EXPECT_EQ(effect.GetSilentSamples(), top - 3);
    Silence(effect, 3, output);
    EXPECT_EQ(effect.GetSilentSamples(), top);
    Silence(effect, -4, output);
    EXPECT_EQ(effect.GetSilentSamples(), top - 4);
}

TEST(CBaseCoreDSPFilter, CopyGoesOnInTheSameSilence)
{
    CRecordingEffect effect;
    effect.SetSilentSamples(42);
    effect.SetLatency(5);
    const std::unique_ptr<CRecordingEffect> copy(effect.Clone());

    EXPECT_EQ(copy->GetSilentSamples(), 42);
    EXPECT_EQ(copy->GetLatency(), 5);
    EXPECT_EQ(copy->GetInputParamsInfo().GetCount(), 2);
}

TEST(CBaseCoreDSPFilter, AnEffectThatPutsNothingOutAnswersWithEmptyLists)
{
    class CPlain : public CBaseCoreDSPFilter
    {
    public:
        CPlain* Clone() const override { return new CPlain(*this); }
        const Mirel::DataModel::Objects::IConstProductInfo& GetProductInfo() const override
        {
            return product;
        }
        const CProcessInfo& GetProcessInfo() const override { return process; }
        void SetParams(const IConstParamsValues&) override {}
        int GetTailLength() const override { return 0; }

    private:
        Mirel::DataModel::Objects::CProductInfo product{"Plain", "1"};
        CProcessInfo process{1, 0};
    };
    CPlain effect;

    EXPECT_EQ(effect.GetLatency(), 0);
    EXPECT_EQ(effect.GetOutputDataSync(), nullptr);
    EXPECT_EQ(effect.GetOutputParams().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputStrings().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputCurves().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputCurvesDirty().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputSurfaces().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputSurfacesDirty().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputStringsInfo().GetCount(), 0);
    EXPECT_EQ(effect.GetOutputSurfacesInfo().GetCount(), 0);
    EXPECT_EQ(effect.GetFactoryPresets().GetCount(), 0);
}
