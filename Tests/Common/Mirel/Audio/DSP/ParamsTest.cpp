#include "Mirel/Audio/DSP/CLegacyPresets.h"
#include "Mirel/Audio/DSP/CPieceVariations.h"
#include "Mirel/Audio/DSP/CProcessInfo.h"
#include "Mirel/Audio/DSP/ParamsValues.h"
#include "Mirel/Audio/DSP/ParamsVariations.h"
#include "Support/AllocationCounter.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::Audio::DSP;

TEST(CParamsValues, OutOfRangeReadsZeroAndIgnoresWrites)
{
    std::array<float, 2> values{1, 2};
    CParamsValues block(values.data(), 2);
    block.SetValue(-1, 9.0f);
    block.SetValue(2, 9.0f);
    block.SetValue(1, 5.0f);

    EXPECT_EQ(block.GetValue(-1), 0.0f);
    EXPECT_EQ(block.GetValue(2), 0.0f);
    EXPECT_EQ(values, (std::array<float, 2>{1, 5}));
}

TEST(CParamsValues, NullArrayReadsZero)
{
    CParamsValues block(nullptr, 3);
    block.SetValue(0, 1.0f);

    EXPECT_EQ(block.GetValue(0), 0.0f);
    EXPECT_EQ(block.GetCount(), 3);
}

TEST(CConstParamsValuesDeMux, ShowsTheWindowFromFirstToLast)
{
    std::array<float, 4> values{1, 2, 3, 4};
    const CParamsValues source(values.data(), 4);
    const CConstParamsValuesDeMux window(source, 1, 2);

    EXPECT_EQ(window.GetCount(), 2);
    EXPECT_EQ(window.GetValue(0), 2.0f);
    EXPECT_EQ(window.GetValue(1), 3.0f);
}

TEST(CConstParamsValuesDeMux, LastBelowFirstReadsAsEmpty)
{
    std::array<float, 4> values{1, 2, 3, 4};
    const CParamsValues source(values.data(), 4);
    const CConstParamsValuesDeMux window(source, 2, 0);

    EXPECT_EQ(window.GetCount(), -1);
    EXPECT_EQ(window.GetValue(0), 0.0f);
    EXPECT_EQ(CConstParamsValuesDeMux(source, 2, 1).GetCount(), 0);
}

TEST(CConstParamsValuesMux, RunsThroughTheFirstThenTheSecond)
{
    std::array<float, 1> one{1};
    std::array<float, 2> two{2, 3};
    const CParamsValues first(one.data(), 1);
    const CParamsValues second(two.data(), 2);
    const CConstParamsValuesMux mux(first, second);

    EXPECT_EQ(mux.GetCount(), 3);
    EXPECT_EQ(mux.GetValue(0), 1.0f);
    EXPECT_EQ(mux.GetValue(2), 3.0f);
}

TEST(CConstParamsValuesMux, EmptyWindowTakesNoPlaceOfTheOther)
{
    std::array<float, 3> values{1, 2, 3};
    const CParamsValues source(values.data(), 3);
    const CConstParamsValuesDeMux empty(source, 2, -1); // counts -2

    const CConstParamsValuesMux inFront(empty, source);
    EXPECT_EQ(inFront.GetCount(), 3);
    EXPECT_EQ(inFront.GetValue(0), 1.0f);
    EXPECT_EQ(inFront.GetValue(2), 3.0f);

    const CConstParamsValuesMux behind(source, empty);
    EXPECT_EQ(behind.GetCount(), 3);
    EXPECT_EQ(behind.GetValue(2), 3.0f);
    EXPECT_EQ(behind.GetValue(3), 0.0f);
    EXPECT_EQ(CConstParamsValuesMux(empty, empty).GetCount(), 0);
}

TEST(CDynamicParamsVariations, OptimizeDropsTheHighestOrdersOfZeros)
{
    CDynamicParamsVariations variations(2);
    variations.Resize(3);
    variations[1].SetValue(1, 0.5f);
    variations.Optimize();
    EXPECT_EQ(variations.GetCount(), 2);

    variations[1].SetValue(1, 0.0f);
    variations.Optimize();
    EXPECT_EQ(variations.GetCount(), 1);
    variations.Optimize();
    EXPECT_EQ(variations.GetCount(), 1);
}

TEST(CDynamicParamsVariations, AZeroOrderBelowALiveOneStays)
{
    CDynamicParamsVariations variations(1);
    variations.Resize(3);
    variations[2].SetValue(0, 1.0f);
    variations.Optimize();

    EXPECT_EQ(variations.GetCount(), 3);
}

TEST(CDynamicParamsVariations, ShrinkingAndGrowingBackKeepsBuffersAndAllocatesNothing)
{
    CDynamicParamsVariations variations(4);
    variations.Resize(3);
    variations[2].SetValue(3, 7.0f);

    const Tests::CAllocationCounter allocations;
    variations.Resize(0);
    variations.Resize(3);

    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_EQ(variations[2].GetValue(3), 7.0f);
}

TEST(CDynamicParamsVariations, ForceKeepsExactlyAsManyAsAskedFor)
{
    CDynamicParamsVariations variations(1);
    variations.Resize(3);
    variations[2].SetValue(0, 7.0f);
    variations.Resize(1, true);
    variations.Resize(3);

    EXPECT_EQ(variations[2].GetValue(0), 0.0f);
}

TEST(StepVariation, EachTermTakesUpTheNextHigherFromTheHighestDown)
{
    std::array<float, 3> terms{1, 10, 100};
    StepVariation(terms.data(), 3);
    EXPECT_EQ(terms, (std::array<float, 3>{111, 110, 100}));

    StepVariation(terms.data(), 1);
    EXPECT_EQ(terms, (std::array<float, 3>{111, 110, 100}));
}

TEST(CConstParamsVariationsDeMux, ShowsAWindowOfEachOfAtMostThreeOrders)
{
    CDynamicParamsVariations variations(3);
    variations.Resize(4);
    variations[2].SetValue(1, 5.0f);
    const CConstParamsVariationsDeMux window(&variations, 1, 2);

    ASSERT_EQ(window.GetCount(), 3);
    EXPECT_EQ(window[2].GetValue(0), 5.0f);
    EXPECT_EQ(window[2].GetCount(), 2);
    EXPECT_EQ(CConstParamsVariationsDeMux(nullptr, 0, 1).GetCount(), 0);
}

TEST(CPieceVariations, AdvancingEqualsSteppingEverySample)
{
    CDynamicParamsVariations variations(1);
    variations.Resize(3);
    variations[0].SetValue(0, 2.0f);
    variations[1].SetValue(0, 0.5f);
    variations[2].SetValue(0, 0.25f);
    CPieceVariations pieces;
    pieces.SetValueCount(1);
    pieces.Begin(&variations);
    std::array<float, 3> terms{2.0f, 0.5f, 0.25f};
    for (int i = 0; i < 17; ++i)
    {
        StepVariation(terms.data(), 3);
    }

    pieces.Advance(17);

    ASSERT_NE(pieces.Get(), nullptr);
    EXPECT_FLOAT_EQ((*pieces.Get())[0].GetValue(0), terms[0]);
    EXPECT_FLOAT_EQ((*pieces.Get())[1].GetValue(0), terms[1]);
}

TEST(CPieceVariations, WithoutVariationsThereAreNone)
{
    CPieceVariations pieces;
    pieces.SetValueCount(2);
    pieces.Begin(nullptr);
    pieces.Advance(5);

    EXPECT_EQ(pieces.Get(), nullptr);
}

TEST(CProcessInfo, CopiesTheRecordsOrLeavesThemNameless)
{
    const CInputInfo input("In", "the signal");
    const CProcessInfo info(1, 2, &input);

    ASSERT_EQ(info.GetInputs().GetCount(), 1);
    EXPECT_STREQ(info.GetInputs()[0].GetName(), "In");
    EXPECT_STREQ(info.GetInputs()[0].GetComment(), "the signal");
    ASSERT_EQ(info.GetOutputs().GetCount(), 2);
    EXPECT_STREQ(info.GetOutputs()[1].GetName(), "");
}

TEST(CLegacyPresets, IncompleteRecordsLowerTheCount)
{
    const std::array<float, 2> values{1, 2};
    const CLegacyPresetRecord records[]{
        {"First", "a text", values.data(), 2}, {nullptr, "nameless", values.data(), 2},
        {"No values", nullptr, nullptr, 2},    {"Negative", nullptr, values.data(), -1},
        {"Last", nullptr, nullptr, 0},
    };
    const CLegacyPresets presets(5, records);

    ASSERT_EQ(presets.GetCount(), 2);
    EXPECT_EQ(presets[0].GetName(), "First");
    EXPECT_EQ(presets[0].GetDescription(), "a text");
    EXPECT_EQ(presets[0].GetValues().GetValue(1), 2.0f);
    EXPECT_EQ(presets[1].GetName(), "Last");
    EXPECT_EQ(presets[1].GetValues().GetCount(), 0);
}
