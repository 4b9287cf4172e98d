#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/ParamsVariations.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"
#include "Plugins/Oscilloscope/ScopeRig.h"
#include "Support/AllocationCounter.h"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

using namespace Mirel::Audio::DSP;
using PluginsFilters::CreateTopLevelFilter;

namespace
{

std::unique_ptr<IFilter> MakeFilter(double sampleRate)
{
    auto filter = CreateTopLevelFilter();
    bool ok = false;
    filter->Init(sampleRate, ok);
    EXPECT_TRUE(ok);
    return filter;
}

void Process(IFilter& filter, std::vector<float> left, std::vector<float> right,
             const IConstParamsVariations* variations = nullptr)
{
    const int count = static_cast<int>(left.size());
    std::array<CAudioStream, 2> streams{CAudioStream(left.data(), 0, count, 1),
                                        CAudioStream(right.data(), 0, count, 1)};
    CAudioStreams inputs(streams.data(), 2);
    CAudioStreams outputs(nullptr, 0);
    filter.Process({&inputs, &outputs, count, variations, nullptr});
}

void SetMode(IFilter& filter, float mode)
{
    std::array<float, 6> values{mode};
    filter.SetParams(CParamsValues(values.data(), 6));
}

} // namespace

TEST(TopLevelFilter, OffersStereoModeThenTheFiveParametersOfBothChannels)
{
    const auto filter = CreateTopLevelFilter();
    const char* const names[] = {"Stereo Mode", "View Mode",     "Sync",
                                 "Delay",       "Trigger Value", "Trigger Direction"};
    ASSERT_EQ(filter->GetInputParamsInfo().GetCount(), 6);
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_STREQ(filter->GetInputParamsInfo()[i].GetName(), names[i]);
    }
}

TEST(TopLevelFilter, PutsOutFourCurvesWithTheChannelsNumbered)
{
    const auto filter = CreateTopLevelFilter();
    const char* const names[] = {"Waveform (1)", "Histogram (1)", "Waveform (2)", "Histogram (2)"};
    ASSERT_EQ(filter->GetOutputCurvesInfo().GetCount(), 4);
    ASSERT_EQ(filter->GetOutputCurves().GetCount(), 4);
    ASSERT_EQ(filter->GetOutputCurvesDirty().GetCount(), 4);
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_STREQ(filter->GetOutputCurvesInfo()[i].GetName(), names[i]);
    }
}

TEST(TopLevelFilter, TakesTwoInputsAndGivesNoOutput)
{
    const auto filter = CreateTopLevelFilter();
    EXPECT_EQ(filter->GetProcessInfo().GetInputs().GetCount(), 2);
    EXPECT_EQ(filter->GetProcessInfo().GetOutputs().GetCount(), 0);
    EXPECT_STREQ(filter->GetProductInfo().GetName(), "Oscilloscope");
}

TEST(TopLevelFilter, LeftAndRightReachTheirChannelsUnchanged)
{
    const auto filter = MakeFilter(4.0);
    Process(*filter, {0.1f, 0.2f, 0.3f}, {0.5f, 0.6f, 0.7f});
    filter->UpdateOutputs();

    EXPECT_EQ(filter->GetOutputCurves()[0](0.0f), 0.3f);
    EXPECT_EQ(filter->GetOutputCurves()[2](0.0f), 0.7f);
    EXPECT_EQ(filter->GetOutputCurves()[3](0.6f), 1.0f);
}

TEST(TopLevelFilter, MidSideShowsTheMeanAndHalfOfRightMinusLeft)
{
    const auto filter = MakeFilter(4.0);
    SetMode(*filter, 1.0f);
    Process(*filter, {0.25f, 0.5f}, {0.75f, 1.0f});
    filter->UpdateOutputs();

    EXPECT_EQ(filter->GetOutputCurves()[0](0.0f), 0.75f);
    EXPECT_EQ(filter->GetOutputCurves()[2](0.0f), 0.25f);
}

TEST(TopLevelFilter, RefreshClockCoversBothChannels)
{
    const auto filter = MakeFilter(1000.0);
    IOutputDataSync* sync = filter->GetOutputDataSync();
    ASSERT_NE(sync, nullptr);
    sync->SetRefreshRate(100.0);
    sync->Reset();
    Process(*filter, std::vector<float>(9), std::vector<float>(9));
    EXPECT_FALSE(sync->IsOutputDue());
    Process(*filter, {0.0f}, {0.0f});
    EXPECT_TRUE(sync->IsOutputDue());
    EXPECT_EQ(sync->GetRefreshRate(), 100.0);
}

TEST(TopLevelFilter, NothingIsAllocatedWhileAudioRunsInAnyMode)
{
    const auto filter = MakeFilter(48000.0);
    std::vector<float> left = Tests::Noise(5000, 1.0f, 1);
    std::vector<float> right = Tests::Noise(5000, 1.0f, 2);
    std::array<CAudioStream, 2> streams{CAudioStream(left.data(), 0, 5000, 1),
                                        CAudioStream(right.data(), 0, 5000, 1)};
    CAudioStreams inputs(streams.data(), 2);
    CAudioStreams outputs(nullptr, 0);
    CDynamicParamsVariations ramp(6);
    ramp.Resize(2);
    for (int i = 0; i < 6; ++i)
    {
        ramp[0].SetValue(i, 0.0f);
        ramp[1].SetValue(i, i == 0 ? 1.0f / 5000.0f : 0.0f);
    }

    const Tests::CAllocationCounter allocations;
    filter->Process({&inputs, &outputs, 5000, nullptr, nullptr});
    filter->Process({&inputs, &outputs, 5000, &ramp, nullptr});
    SetMode(*filter, 1.0f);
    filter->Process({&inputs, &outputs, 5000, nullptr, nullptr});
    filter->ProcessSilence({nullptr, &outputs, 5000, &ramp, nullptr});
    filter->UpdateOutputs();
    EXPECT_EQ(allocations.GetCount(), 0U);
}
