#include "Mirel/Audio/DSP/TMSLRFromStereoFilter.h"

#include "Common/Mirel/Audio/DSP/CompositionRig.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

using namespace Mirel::Audio::DSP;
using namespace Tests;

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
