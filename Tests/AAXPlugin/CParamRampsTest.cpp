#include "AAXPlugin/CParamRamps.h"

#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace
{

using namespace Mirel::Audio::DSP;
using MirelExt::AAXPlugin::CParamRamps;

class CRampsOfTwo : public testing::Test
{
protected:
    CRampsOfTwo() { ramps.Init(block); }

    const IConstParamsVariations& Update(float first, float second, int samples)
    {
        values = {first, second};
        return ramps.Update(block, samples);
    }

    std::array<float, 2> values = {0.0F, 0.0F};
    CParamsValues block{values.data(), 2};
    CParamRamps ramps;
};

using ParamRamps = CRampsOfTwo;

TEST_F(ParamRamps, RestingParametersAreNoMovement)
{
    EXPECT_EQ(Update(0.0F, 0.0F, 64).GetCount(), 0);
    EXPECT_EQ(Update(0.0F, 0.0F, 64).GetCount(), 0);
}

TEST_F(ParamRamps, ChangeGivesTwoOrdersThenOneThenNone)
{
    const IConstParamsVariations& moving = Update(8.0F, 0.0F, 64);
    ASSERT_EQ(moving.GetCount(), 2);
    EXPECT_EQ(moving[0].GetValue(0), 0.0F);
    EXPECT_EQ(moving[1].GetValue(0), 0.125F);
    EXPECT_EQ(moving[0].GetValue(1), 0.0F);
    EXPECT_EQ(moving[1].GetValue(1), 0.0F);
    const IConstParamsVariations& arrived = Update(8.0F, 0.0F, 64);
    ASSERT_EQ(arrived.GetCount(), 1);
    EXPECT_EQ(arrived[0].GetValue(0), 8.0F);
    EXPECT_EQ(Update(8.0F, 0.0F, 64).GetCount(), 0);
}

TEST_F(ParamRamps, EachChangeRampsFromWhereTheLastOneEnded)
{
    Update(8.0F, 0.0F, 64);
    const IConstParamsVariations& moving = Update(4.0F, 2.0F, 16);
    ASSERT_EQ(moving.GetCount(), 2);
    EXPECT_EQ(moving[0].GetValue(0), 8.0F);
    EXPECT_EQ(moving[1].GetValue(0), -0.25F);
    EXPECT_EQ(moving[0].GetValue(1), 0.0F);
    EXPECT_EQ(moving[1].GetValue(1), 0.125F);
}

TEST_F(ParamRamps, IncrementIsComputedInDoublePrecision)
{
    Update(0.1F, 0.0F, 64);
    const IConstParamsVariations& moving = Update(0.7F, 0.0F, 3);
    EXPECT_EQ(moving[1].GetValue(0),
              static_cast<float>((static_cast<double>(0.7F) - static_cast<double>(0.1F)) / 3.0));
}

TEST_F(ParamRamps, BlockWithoutSamplesMovesNothingAndLeavesTheChangeToTheNext)
{
    EXPECT_EQ(Update(8.0F, 0.0F, 0).GetCount(), 0);
    const IConstParamsVariations& moving = Update(8.0F, 0.0F, 8);
    ASSERT_EQ(moving.GetCount(), 2);
    EXPECT_EQ(moving[0].GetValue(0), 0.0F);
    EXPECT_EQ(moving[1].GetValue(0), 1.0F);
}

TEST_F(ParamRamps, BlockWithoutSamplesAfterARampHandsOverTheFinalValues)
{
    Update(8.0F, 0.0F, 8);
    const IConstParamsVariations& arrived = Update(8.0F, 0.0F, 0);
    ASSERT_EQ(arrived.GetCount(), 1);
    EXPECT_EQ(arrived[0].GetValue(0), 8.0F);
    EXPECT_EQ(Update(8.0F, 0.0F, 8).GetCount(), 0);
}

TEST_F(ParamRamps, IncrementTooSmallForAFloatIsNoRamp)
{
    // Half the smallest float over many samples: the parameter takes its value without a movement.
    Update(std::numeric_limits<float>::denorm_min(), 0.0F, 1000);
    EXPECT_EQ(Update(std::numeric_limits<float>::denorm_min(), 0.0F, 1000).GetCount(), 0);
}

TEST_F(ParamRamps, InitRestsAtTheValuesGiven)
{
    values = {3.0F, 4.0F};
    ramps.Init(block);
    EXPECT_EQ(Update(3.0F, 4.0F, 64).GetCount(), 0);
    Update(4.0F, 4.0F, 64);
    ramps.Init(block);
    EXPECT_EQ(Update(4.0F, 4.0F, 64).GetCount(), 0) << "the ramp before Init is forgotten";
}

TEST_F(ParamRamps, UpdateAllocatesNothing)
{
    const Tests::CAllocationCounter allocations;
    for (int i = 0; i < 100; ++i)
    {
        const int first = i / 3;
        const int second = i / 5;
        Update(static_cast<float>(first), static_cast<float>(second), i % 7);
    }
    EXPECT_EQ(allocations.GetCount(), 0U);
}

TEST(CParamRamps, WithoutParametersThereIsNoMovement)
{
    CParamRamps ramps;
    const CParamsValues none;
    ramps.Init(none);
    EXPECT_EQ(ramps.Update(none, 64).GetCount(), 0);
}

RC_GTEST_PROP(CParamRamps, StepsOfAWholeBlockLeadToTheNewValue, (int first, int second, unsigned count))
{
    const int samples = static_cast<int>(count % 1000) + 1;
    float value = static_cast<float>(first % 100);
    const CParamsValues block(&value, 1);
    CParamRamps ramps;
    ramps.Init(block);
    value = static_cast<float>(second % 100);
    const IConstParamsVariations& moving = ramps.Update(block, samples);
    if (first % 100 == second % 100)
    {
        RC_ASSERT(moving.GetCount() == 0);
        return;
    }
    const double end =
        static_cast<double>(moving[0].GetValue(0)) + samples * static_cast<double>(moving[1].GetValue(0));
    RC_ASSERT(std::abs(end - static_cast<double>(value)) < 1e-4);
}

} // namespace
