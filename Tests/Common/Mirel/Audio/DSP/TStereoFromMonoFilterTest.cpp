#include "Mirel/Audio/DSP/TStereoFromMonoFilter.h"

#include "Common/Mirel/Audio/DSP/CompositionRig.h"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

using namespace Mirel::Audio::DSP;
using namespace Tests;

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
