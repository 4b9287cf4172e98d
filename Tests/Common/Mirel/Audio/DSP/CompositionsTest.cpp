#include "Common/Mirel/Audio/DSP/RecordingEffect.h"
#include "Mirel/Audio/DSP/TMSLRFromStereoFilter.h"
#include "Mirel/Audio/DSP/TStereoFromMonoFilter.h"
#include "Support/AllocationCounter.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Mirel::Audio::DSP;
using Tests::CRecordingEffect;

namespace
{

/// The effects of the composition that is made next, left then right: a composition keeps its own to itself.
std::vector<CRecordingEffect*> made;

template <int inputs, int outputs>
class TEffect : public CRecordingEffect
{
public:
    TEffect() : CRecordingEffect(inputs, outputs) { made.push_back(this); }
    TEffect(const TEffect& other) : CRecordingEffect(other) { made.push_back(this); }
    TEffect& operator=(const TEffect&) = delete;
    ~TEffect() override = default;
};

using CAnalyser = TEffect<1, 0>;
using CGenerator = TEffect<0, 1>;
using CProcessor = TEffect<1, 1>;

template <class F>
using TTop = TMSLRFromStereoFilter<TStereoFromMonoFilter<F>>;

/// A composition with its two effects and a pair of channels on either side.
template <class Filter>
struct TRig
{
    template <class... Arguments>
    explicit TRig(Arguments... arguments)
    {
        made.clear();
        filter = std::make_unique<Filter>(arguments...);
        left = made.at(0);
        right = made.at(1);
        bool ok = false;
        filter->Init(48000.0, ok);
    }

    void Process(std::vector<float>& l, std::vector<float>& r,
                 const IConstParamsVariations* variations = nullptr)
    {
        const auto count = static_cast<int>(l.size());
        std::array<CAudioStream, 2> in{CAudioStream(l.data(), 0, count, 1),
                                       CAudioStream(r.data(), 0, count, 1)};
        std::array<CAudioStream, 2> out{CAudioStream(outL.data(), 0, count, 1),
                                        CAudioStream(outR.data(), 0, count, 1)};
        CAudioStreams inputs(in.data(), 2);
        CAudioStreams outputs(out.data(), 2);
        filter->Process({&inputs, &outputs, count, variations, nullptr});
    }

    std::unique_ptr<Filter> filter;
    CRecordingEffect* left = nullptr;
    CRecordingEffect* right = nullptr;
    std::vector<float> outL = std::vector<float>(6000);
    std::vector<float> outR = std::vector<float>(6000);
};

template <class F>
TRig<TTop<F>> MakeTop(bool modeIsLast = false)
{
    return TRig<TTop<F>>(modeIsLast, "(1)", "(2)");
}

std::vector<float> Ramp(std::size_t count, float from)
{
    std::vector<float> samples;
    for (std::size_t i = 0; i < count; ++i)
    {
        samples.push_back(from + static_cast<float>(i) / 1024.0f);
    }
    return samples;
}

/// Three parameters (mode, gain, other), of which the mode moves.
CDynamicParamsVariations ModeRamp(float from, float slope)
{
    CDynamicParamsVariations variations(3);
    variations.Resize(2);
    variations[0].SetValue(0, from);
    variations[0].SetValue(1, 2.0f);
    variations[1].SetValue(0, slope);
    return variations;
}

} // namespace

TEST(TStereoFromMonoFilter, ListsAllOutputsOfTheLeftThenAllOfTheRight)
{
    TRig<TStereoFromMonoFilter<CProcessor>> rig;
    const auto& filter = std::as_const(*rig.filter);
    ASSERT_EQ(filter.GetOutputCurvesInfo().GetCount(), 2);
    EXPECT_STREQ(filter.GetOutputCurvesInfo()[0].GetName(), "Curve (L)");
    EXPECT_STREQ(filter.GetOutputCurvesInfo()[1].GetName(), "Curve (R)");
    EXPECT_STREQ(filter.GetOutputParamsInfo()[1].GetName(), "Level (R)");
    EXPECT_STREQ(filter.GetProcessInfo().GetInputs()[0].GetName(), " (L)");
    EXPECT_EQ(filter.GetProcessInfo().GetOutputs().GetCount(), 2);
    EXPECT_EQ(filter.GetInputParamsInfo().GetCount(), 2);

    rig.left->SetCurve(1.0f);
    rig.right->SetCurve(2.0f);
    EXPECT_EQ(filter.GetOutputCurves()[0](0.0f), 1.0f);
    EXPECT_EQ(filter.GetOutputCurves()[1](0.0f), 2.0f);
    rig.filter->GetOutputCurvesDirty()[1].SetDirty(true);
    EXPECT_TRUE(rig.right->GetOutputCurvesDirty()[0].IsDirty());
}

TEST(TStereoFromMonoFilter, CloneHandsOutTheCurvesOfItsOwnChannels)
{
    TRig<TStereoFromMonoFilter<CAnalyser>> rig;
    rig.left->SetCurve(1.0f);
    made.clear();
    const std::unique_ptr<IFilter> clone(rig.filter->Clone());
    made.at(0)->SetCurve(5.0f);

    EXPECT_EQ(clone->GetOutputCurves()[0](0.0f), 5.0f);
    EXPECT_EQ(rig.filter->GetOutputCurves()[0](0.0f), 1.0f);
}

TEST(TStereoFromMonoFilter, InitRunsBothAndFailsIfEitherDoes)
{
    TRig<TStereoFromMonoFilter<CAnalyser>> rig;
    EXPECT_EQ(rig.left->params, (std::vector<float>{3.0f, 0.5f}));
    rig.right->canRun = false;
    bool ok = true;
    rig.filter->Init(48000.0, ok);
    EXPECT_FALSE(ok);
}

TEST(TStereoFromMonoFilter, TailAndLatencyAreTheLargerOfBoth)
{
    TRig<TStereoFromMonoFilter<CAnalyser>> rig;
    rig.left->tail = 5;
    rig.right->tail = 9;
    rig.left->SetLatency(7);
    rig.right->SetLatency(2);

    EXPECT_EQ(rig.filter->GetTailLength(), 9);
    EXPECT_EQ(rig.filter->GetLatency(), 7);
}

TEST(TStereoFromMonoFilter, EachChannelHearsItsStream)
{
    TRig<TStereoFromMonoFilter<CProcessor>> rig;
    std::vector<float> l{1, 2};
    std::vector<float> r{5, 6};
    rig.Process(l, r);

    EXPECT_EQ(rig.left->heard, l);
    EXPECT_EQ(rig.right->heard, r);
    EXPECT_EQ(rig.outL[1], 6.0f); // gain 3
    EXPECT_EQ(rig.outR[1], 18.0f);
}

TEST(TStereoFromMonoFilter, ASideWithoutStreamsGivesEmptyOnes)
{
    TRig<TStereoFromMonoFilter<CGenerator>> rig;
    std::vector<float> out(4, 1.0f);
    std::array<CAudioStream, 2> streams{CAudioStream(out.data(), 0, 2, 1), CAudioStream(out.data(), 2, 2, 1)};
    CAudioStreams outputs(streams.data(), 2);
    rig.filter->Process({nullptr, &outputs, 2, nullptr, nullptr});

    EXPECT_EQ(rig.left->heard, std::vector<float>(2, 0.0f));
    EXPECT_EQ(out, std::vector<float>(4, 0.0f));
}

TEST(TStereoFromMonoFilter, FewerStreamsThanDeclaredAreIgnored)
{
    TRig<TStereoFromMonoFilter<CProcessor>> rig;
    std::vector<float> samples(2);
    CAudioStream one(samples.data(), 0, 2, 1);
    CAudioStreamToStreams single(&one);
    CEmptyStreams two(2, 2);
    rig.left->trace.clear();
    rig.filter->Process({&single, &two, 2, nullptr, nullptr});
    rig.filter->Process({&two, &single, 2, nullptr, nullptr});
    rig.filter->Process({nullptr, &two, 2, nullptr, nullptr});
    EXPECT_FALSE(rig.filter->ProcessSilence({&two, &single, 2, nullptr, nullptr}));
    EXPECT_FALSE(rig.filter->ProcessSilence({&two, nullptr, 2, nullptr, nullptr}));

    EXPECT_EQ(rig.left->trace, "");
}

TEST(TStereoFromMonoFilter, SilenceSoundsIfEitherChannelDoes)
{
    TRig<TStereoFromMonoFilter<CAnalyser>> rig;
    CEmptyStreams none(0, 4);
    EXPECT_FALSE(rig.filter->ProcessSilence({nullptr, &none, 4, nullptr, nullptr}));
    rig.left->tail = 100;
    EXPECT_TRUE(rig.filter->ProcessSilence({nullptr, &none, 4, nullptr, nullptr}));
    rig.left->tail = 0;
    rig.right->tail = 100;
    EXPECT_TRUE(rig.filter->ProcessSilence({nullptr, &none, 4, nullptr, nullptr}));
}

TEST(TStereoFromMonoFilter, UpdateOutputsReachesBoth)
{
    TRig<TStereoFromMonoFilter<CAnalyser>> rig;
    rig.left->trace.clear();
    rig.right->trace.clear();
    rig.filter->UpdateOutputs();

    EXPECT_EQ(rig.left->trace + rig.right->trace, "pcpc");
}

TEST(TStereoFromMonoFilter, ClockIsThereIfEitherChannelHasOne)
{
    TRig<TStereoFromMonoFilter<CAnalyser>> rig;
    EXPECT_EQ(rig.filter->GetOutputDataSync(), nullptr);
    rig.right->hasClock = true;
    EXPECT_NE(rig.filter->GetOutputDataSync(), nullptr);
}

TEST(TMSLRFromStereoFilter, ModeStandsInFrontOrLast)
{
    const auto front = MakeTop<CAnalyser>();
    const auto& params = std::as_const(*front.filter).GetInputParamsInfo();
    ASSERT_EQ(params.GetCount(), 3);
    EXPECT_STREQ(params[0].GetName(), "Stereo Mode");
    EXPECT_STREQ(params[0].GetComment(), "Left-Right or Mid-Side");
    EXPECT_EQ(params[0].GetType(), 0);
    EXPECT_EQ(params[0].GetMin(), 0.0f);
    EXPECT_EQ(params[0].GetMax(), 1.0f);
    EXPECT_EQ(params[0].GetDefault(), 0.0f);
    EXPECT_STREQ(params[2].GetName(), "Other");
    for (const auto& [value, expected] : {std::pair{0.0f, "Stereo"}, std::pair{1.0f, "Mid-Side"}})
    {
        char* text = nullptr;
        params[0].GetValueToText().ToText(value, text);
        EXPECT_STREQ(text, expected);
        delete[] text;
    }

    const auto last = MakeTop<CAnalyser>(true);
    EXPECT_STREQ(std::as_const(*last.filter).GetInputParamsInfo()[0].GetName(), "Gain");
    EXPECT_STREQ(std::as_const(*last.filter).GetInputParamsInfo()[2].GetName(), "Stereo Mode");
}

TEST(TMSLRFromStereoFilter, LabelsTakeThePlaceOfTheChannels)
{
    const auto rig = MakeTop<CAnalyser>();
    EXPECT_STREQ(std::as_const(*rig.filter).GetOutputCurvesInfo()[0].GetName(), "Curve (1)");
    EXPECT_STREQ(std::as_const(*rig.filter).GetOutputCurvesInfo()[1].GetName(), "Curve (2)");
    EXPECT_STREQ(rig.filter->GetProductInfo().GetName(), "Recorder");
}

TEST(TMSLRFromStereoFilter, ParametersAreSplitBetweenModeAndFilter)
{
    for (const bool modeIsLast : {false, true})
    {
        auto rig = MakeTop<CAnalyser>(modeIsLast);
        std::array<float, 3> values =
            modeIsLast ? std::array<float, 3>{4, 5, 1} : std::array<float, 3>{1, 4, 5};
        rig.filter->SetParams(CParamsValues(values.data(), 3));
        EXPECT_EQ(rig.left->params, (std::vector<float>{4, 5}));
        EXPECT_EQ(rig.right->params, (std::vector<float>{4, 5}));
        std::vector<float> l{1};
        std::vector<float> r{3};
        rig.Process(l, r);
        EXPECT_EQ(rig.left->heard, std::vector<float>{2});
        EXPECT_EQ(rig.right->heard, std::vector<float>{1});
    }
}

TEST(TMSLRFromStereoFilter, OnStereoTheInputsThemselvesArriveWhateverTheyHold)
{
    auto rig = MakeTop<CAnalyser>();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    std::vector<float> l{infinity, std::numeric_limits<float>::quiet_NaN(), 0.1f};
    std::vector<float> r{0.25f, 0.5f, 0.7f};
    rig.Process(l, r);

    EXPECT_EQ(rig.right->heard, r);
    EXPECT_EQ(rig.left->heard[0], infinity);
    EXPECT_TRUE(std::isnan(rig.left->heard[1]));
    EXPECT_EQ(rig.left->heard[2], 0.1f);
}

TEST(TMSLRFromStereoFilter, ModeChangeCrossfadesInsideTheBlockAndRestsAtItsEnd)
{
    auto rig = MakeTop<CAnalyser>();
    std::vector<float> l{1, 1, 1, 1};
    std::vector<float> r{3, 3, 3, 3};
    const auto ramp = ModeRamp(0.0f, 0.25f);
    rig.Process(l, r, &ramp);
    rig.Process(l, r);

    // s = -1, -3/4, -1/2, -1/4 and then 0 at rest; mid = ((s + 1) 3 + (1 - s) 1) / 2 = 2 + s
    EXPECT_EQ(rig.left->heard, (std::vector<float>{1, 1.25f, 1.5f, 1.75f, 2, 2, 2, 2}));
    // side = ((1 - s) 3 - (s + 1) 1) / 2 = 1 - 2 s
    EXPECT_EQ(rig.right->heard, (std::vector<float>{3, 2.5f, 2, 1.5f, 1, 1, 1, 1}));
    EXPECT_EQ(rig.left->params, (std::vector<float>{2.0f, 0.0f}));
}

TEST(TMSLRFromStereoFilter, BlocksOfAnyLengthAreHeardAlike)
{
    for (const std::size_t count : {1U, 63U, 1023U, 1024U, 1025U, 5000U})
    {
        SCOPED_TRACE(count);
        std::vector<float> l = Ramp(count, 0.5f);
        std::vector<float> r = Ramp(count, -0.25f);
        const float slope = 1.0f / 8192.0f; // sums of it are exact
        auto whole = MakeTop<CAnalyser>();
        const auto ramp = ModeRamp(0.0f, slope);
        whole.Process(l, r, &ramp);

        auto single = MakeTop<CAnalyser>();
        for (std::size_t i = 0; i < count; ++i)
        {
            std::vector<float> oneL{l[i]};
            std::vector<float> oneR{r[i]};
            const auto step = ModeRamp(slope * static_cast<float>(i), slope);
            single.Process(oneL, oneR, &step);
        }
        EXPECT_EQ(whole.left->heard, single.left->heard);
        EXPECT_EQ(whole.right->heard, single.right->heard);
    }
}

TEST(TMSLRFromStereoFilter, ParametersOfTheFilterGoOnTheirRampInLongBlocks)
{
    auto rig = MakeTop<CAnalyser>();
    auto ramp = ModeRamp(1.0f, 0.0f);
    ramp[0].SetValue(1, 2.0f);
    ramp[1].SetValue(1, 0.5f);
    std::vector<float> samples(1025);
    rig.Process(samples, samples, &ramp);

    // The second piece begins 1024 samples later.
    EXPECT_EQ(rig.left->blocks, (std::vector<int>{1024, 1}));
    EXPECT_EQ(rig.left->params[0], 2.0f + 1024 * 0.5f);
}

TEST(TMSLRFromStereoFilter, ABlockWithoutSamplesStillReachesTheFilter)
{
    auto rig = MakeTop<CAnalyser>();
    const auto ramp = ModeRamp(1.0f, 0.0f);
    std::vector<float> none;
    rig.Process(none, none, &ramp);

    EXPECT_EQ(rig.left->blocks, std::vector<int>{0});
    EXPECT_EQ(rig.left->params[0], 2.0f);
}

TEST(TMSLRFromStereoFilter, OutputsComeBackAsLeftAndRight)
{
    auto rig = MakeTop<CProcessor>();
    for (const float slope : {0.0f, 1.0f / 4096.0f})
    {
        const auto ramp = ModeRamp(0.75f, slope);
        std::vector<float> l = Ramp(3000, 0.0f);
        std::vector<float> r = Ramp(3000, -1.0f);
        rig.Process(l, r, &ramp);
        for (std::size_t i = 0; i < l.size(); ++i)
        {
            ASSERT_NEAR(rig.outL[i], 2.0f * l[i], 2e-6f) << i;
            ASSERT_NEAR(rig.outR[i], 2.0f * r[i], 2e-6f) << i;
        }
    }
}

TEST(TMSLRFromStereoFilter, StridesAreFollowedOnBothSides)
{
    auto rig = MakeTop<CProcessor>();
    std::array<float, 3> values{1.0f, 2.0f, 0.0f};
    rig.filter->SetParams(CParamsValues(values.data(), 3));
    std::vector<float> interleaved{1, 10, 2, 20, 3, 30};
    std::vector<float> out(6);
    std::array<CAudioStream, 2> in{CAudioStream(interleaved.data(), 0, 6, 2),
                                   CAudioStream(interleaved.data(), 1, 6, 2)};
    std::array<CAudioStream, 2> outStreams{CAudioStream(out.data(), 0, 6, 2),
                                           CAudioStream(out.data(), 1, 6, 2)};
    CAudioStreams inputs(in.data(), 2);
    CAudioStreams outputs(outStreams.data(), 2);
    rig.filter->Process({&inputs, &outputs, 3, nullptr, nullptr});

    EXPECT_EQ(out, (std::vector<float>{2, 20, 4, 40, 6, 60}));
}

TEST(TMSLRFromStereoFilter, ModeMovesOnInSilence)
{
    auto rig = MakeTop<CAnalyser>();
    CEmptyStreams outputs(0, 4);
    const auto ramp = ModeRamp(0.0f, 0.25f);
    rig.filter->ProcessSilence({nullptr, &outputs, 4, &ramp, nullptr});
    rig.left->heard.clear();
    std::vector<float> l{1};
    std::vector<float> r{3};
    rig.Process(l, r);

    EXPECT_EQ(rig.left->heard, std::vector<float>{2});
}

TEST(TMSLRFromStereoFilter, FewerStreamsThanDeclaredAreIgnored)
{
    auto rig = MakeTop<CAnalyser>();
    rig.left->trace.clear();
    CEmptyStreams one(1, 4);
    rig.filter->Process({&one, nullptr, 4, nullptr, nullptr});

    EXPECT_EQ(rig.left->trace, "");
}
