#include "Mirel/DataModel/GUIWidgets/RulerStops.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/GUIWidgets/Limits.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace Mirel::DataModel;
using namespace Mirel::DataModel::GUIWidgets;
using Controls::CParamViewerConfig;
using Tests::Integer;
using Tests::Real;

namespace
{

using Values = std::vector<float>;

Values ValuesOf(const std::vector<CRulerStop>& stops)
{
    Values values;
    for (const CRulerStop& stop : stops)
    {
        values.push_back(stop.value);
    }
    return values;
}

/// At 1000 pixels with labels 100 apart: room for ten.
std::vector<CRulerStop> Stops(const CParamViewerConfig& axis)
{
    return GetRulerStops(axis, 1000.0F, 100.0F);
}

void ExpectNear(const Values& values, const Values& expected)
{
    ASSERT_EQ(values.size(), expected.size());
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        EXPECT_NEAR(values[i], expected[i], 1e-5F * std::max(1.0F, std::fabs(expected[i]))) << i;
    }
}

} // namespace

TEST(RulerStops, AreThoseOfTheAxis)
{
    const auto info = Real(-1.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetPositionsCount(5);
    const auto stops = Stops(axis);
    EXPECT_EQ(ValuesOf(stops), (Values{-1.0F, -0.5F, 0.0F, 0.5F, 1.0F}));
    EXPECT_EQ(stops[1].position, 0.25F);
    EXPECT_EQ(stops[4].position, 1.0F);
}

TEST(RulerStops, OfAnIntegerAreItsValues)
{
    const auto info = Integer(-2.0F, 3.0F);
    EXPECT_EQ(ValuesOf(Stops(CParamViewerConfig(info))), (Values{-2.0F, -1.0F, 0.0F, 1.0F, 2.0F, 3.0F}));
}

TEST(RulerStops, ReversedAxisRunsDown)
{
    const auto info = Integer(0.0F, 2.0F);
    CParamViewerConfig axis(info);
    axis.SetReverse(true);
    EXPECT_EQ(ValuesOf(Stops(axis)), (Values{2.0F, 1.0F, 0.0F}));
}

TEST(RulerStops, ZoomedAxisHasThoseOfItsWindow)
{
    const auto info = Integer(0.0F, 10.0F);
    CParamViewerConfig axis(info);
    axis.SetZoom(4.0F);
    axis.SetOffset(0.5F); // the window shows 3.75 to 6.25
    const auto stops = Stops(axis);
    EXPECT_EQ(ValuesOf(stops), (Values{4.0F, 5.0F, 6.0F}));
    EXPECT_NEAR(stops[0].position, 0.1F, 1e-5F);
    EXPECT_NEAR(stops[1].position, 0.5F, 1e-5F);
}

TEST(RulerStops, SpreadBetweenMoreStopsWhereZoomOffersThem)
{
    const auto info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetPositionsCount(5);
    axis.SetZoomPositions(false);
    axis.SetZoom(2.0F);
    ExpectNear(ValuesOf(Stops(axis)), {0.0F, 0.125F, 0.25F, 0.375F, 0.5F});
}

TEST(RulerStops, OneStopIsOneLabel)
{
    const auto info = Real(3.0F, 4.0F);
    CParamViewerConfig axis(info);
    axis.SetPositionsCount(1);
    EXPECT_EQ(ValuesOf(Stops(axis)), Values{3.0F});
    const auto none = Integer(7.0F, 7.0F);
    EXPECT_EQ(ValuesOf(Stops(CParamViewerConfig(none))), Values{7.0F});
}

TEST(RulerStops, ImmenseCountsAreThinnedOut)
{
    const auto info = Integer(0.0F, 2147483647.0F);
    const auto stops = Stops(CParamViewerConfig(info));
    EXPECT_GT(stops.size(), 1000U);
    EXPECT_LE(stops.size(), static_cast<std::size_t>(CLimits::maxRulerStops) + 1);
    EXPECT_EQ(stops.front().value, 0.0F);
}

TEST(RulerStops, AxisWithoutStopsHasRoundValues)
{
    const auto small = Real(-1.0F, 1.0F);
    ExpectNear(ValuesOf(Stops(CParamViewerConfig(small))),
               {-1.0F, -0.8F, -0.6F, -0.4F, -0.2F, 0.0F, 0.2F, 0.4F, 0.6F, 0.8F, 1.0F});
    const auto level = Real(-63.0F, 6.0F);
    const auto stops = Stops(CParamViewerConfig(level));
    ExpectNear(ValuesOf(stops), {-60.0F, -50.0F, -40.0F, -30.0F, -20.0F, -10.0F, 0.0F});
    EXPECT_NEAR(stops[6].position, 63.0F / 69.0F, 1e-5F);
    EXPECT_EQ(stops[6].value, 0.0F);
}

TEST(RulerStops, RoundValuesAreThoseOfTheWindow)
{
    const auto info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetZoom(10.0F);
    axis.SetOffset(1.0F);
    const auto stops = Stops(axis);
    ExpectNear(ValuesOf(stops), {0.9F, 0.91F, 0.92F, 0.93F, 0.94F, 0.95F, 0.96F, 0.97F, 0.98F, 0.99F, 1.0F});
    EXPECT_NEAR(stops[5].position, 0.5F, 1e-4F);
}

TEST(RulerStops, LogarithmicAxisHasOneTwoAndFiveOfEachDecade)
{
    const auto info = Real(20.0F, 20000.0F);
    CParamViewerConfig axis(info);
    axis.SetLogScale(true);
    ExpectNear(ValuesOf(Stops(axis)),
               {20.0F, 50.0F, 100.0F, 200.0F, 500.0F, 1000.0F, 2000.0F, 5000.0F, 10000.0F, 20000.0F});
    // With room for five there are but the decades.
    ExpectNear(ValuesOf(GetRulerStops(axis, 500.0F, 100.0F)), {100.0F, 1000.0F, 10000.0F});
}

TEST(RulerStops, EndOfTheRangeCountsAsItsDecadeThoughAFloatLiesBelowIt)
{
    const auto info = Real(0.0001F, 0.01F);
    CParamViewerConfig axis(info);
    axis.SetLogScale(true);
    const auto stops = Stops(axis);
    ASSERT_EQ(stops.size(), 7U); // 1, 2 and 5 in two decades, and the end
    EXPECT_NEAR(stops.front().value, 0.0001F, 1e-8F);
    EXPECT_NEAR(stops.back().value, 0.01F, 1e-6F);
}

TEST(RulerStops, RunInTheOrderOfTheirPositions)
{
    const auto info = Real(0.0F, 4.0F);
    CParamViewerConfig axis(info);
    axis.SetReverse(true);
    const auto stops = Stops(axis);
    ASSERT_GT(stops.size(), 2U);
    EXPECT_NEAR(stops.front().value, 4.0F, 1e-5F);
    EXPECT_EQ(stops.back().value, 0.0F);
}

TEST(RulerStops, OddRangesEnd)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const float pairs[][2] = {{2.0F, 2.0F},          {1.0F, -1.0F},  {0.0F, infinity},
                              {-3e38F, 3e38F},       {0.0F, 1e-40F}, {1e8F, 1.00000008e8F},
                              {std::nanf(""), 1.0F}, {0.0F, 100.0F}, {-5.0F, 100.0F}};
    for (const auto& [min, max] : pairs)
    {
        const auto info = Real(min, max);
        for (const bool log : {false, true})
        {
            CParamViewerConfig axis(info);
            axis.SetLogScale(log);
            EXPECT_LE(Stops(axis).size(), 100U) << min << ' ' << max;
            axis.SetPositionsCount(4);
            EXPECT_LE(Stops(axis).size(), 4U) << min << ' ' << max;
            axis.SetZoom(1e30F);
            axis.SetOffset(0.3F);
            EXPECT_LE(Stops(axis).size(), 4U) << min << ' ' << max;
            axis.SetPositionsCount(-1);
            EXPECT_LE(Stops(axis).size(), 100U) << min << ' ' << max;
        }
    }
}
