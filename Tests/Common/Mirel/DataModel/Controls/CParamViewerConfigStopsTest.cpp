#include "Common/Mirel/DataModel/Controls/AxisEvents.h"
#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/Math/CConstantFunction.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using Mirel::DataModel::Controls::CParamViewerConfig;
using Mirel::DataModel::Objects::CParamInfo;
using Tests::CAxisEvents;
using Tests::Integer;
using Tests::Real;
using Tests::TwoState;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr bool clamped = true;
constexpr bool open = false;

using Counts = std::vector<int>;

} // namespace

TEST(CParamViewerConfig, SteppedAxisReadsAndShowsStops)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetPositionsCount(5);

    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_EQ(axis.GetPositionsCount(), 5);
    EXPECT_EQ(axis.GetVisiblePositions(), 5.0F);
    EXPECT_EQ(axis.PositionToValue(0.3F), 0.25F);
    EXPECT_EQ(axis.PositionToValue(0.375F), 0.5F);
    EXPECT_EQ(axis.PositionToValue(0.374F), 0.25F);
    EXPECT_EQ(axis.PositionToValue(1.0F), 1.0F);
    EXPECT_EQ(axis.ValueToPosition(0.3F, open), 0.25F);
    EXPECT_EQ(axis.ValueToPosition(0.9F, open), 1.0F);
    axis.SetPositionsCount(5);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 0}));
}

TEST(CParamViewerConfig, StepsOfAReversedAxisAreTakenOnTheWidgetsSide)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetReverse(true);
    axis.SetPositionsCount(3);

    // 1 - 0.75 = 0.25 lies half way between the stops 0 and 0.5, and halves go up.
    EXPECT_EQ(axis.ValueToPosition(0.75F, open), 0.5F);
    EXPECT_EQ(axis.PositionToValue(0.25F), 0.5F);
    EXPECT_EQ(axis.PositionToValue(0.2F), 1.0F);
}

TEST(CParamViewerConfig, CountOfZeroIsOneStopThatReadsMin)
{
    const CParamInfo info = Real(-2.0F, 2.0F);
    CParamViewerConfig axis(info);

    axis.SetPositionsCount(0);

    EXPECT_EQ(axis.GetPositionsCount(), 1);
    EXPECT_EQ(axis.GetVisiblePositions(), 1.0F);
    for (const float position : {0.0F, 0.3F, 1.0F, 5.0F})
    {
        EXPECT_EQ(axis.PositionToValue(position), -2.0F);
    }
    for (const float value : {-2.0F, 1.0F, 100.0F, infinity})
    {
        EXPECT_EQ(axis.ValueToPosition(value, open), 0.0F);
    }
}

TEST(CParamViewerConfig, CountsOfARealHaveNoLimitAndNegativeOnesMeanNoStops)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetPositionsCount(1000000);
    EXPECT_EQ(axis.GetPositionsCount(), 1000000);
    axis.SetPositionsCount(-7);
    EXPECT_EQ(axis.GetPositionsCount(), -1);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 2}));
    axis.SetPositionsCount(-8);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 0}));
    axis.SetPositionsCount(4);
    axis.ResetPositionsCount();
    EXPECT_EQ(axis.GetPositionsCount(), -1);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 2}));
}

TEST(CParamViewerConfig, CountsOfWholeKindsStayWithinTheNaturalOne)
{
    const struct
    {
        CParamInfo info;
        int natural;
    } cases[] = {{Integer(-3.0F, 3.0F), 7},    {Integer(5.0F, 5.0F), 1},      {Integer(5.0F, 1.0F), 1},
                 {Integer(0.0F, 2.9F), 3},     {TwoState(0, 0.0F, 1.0F), 2},  {TwoState(3, 0.0F, 1.0F), 2},
                 {TwoState(0, 0.0F, 9.0F), 2}, {Integer(notANumber, 1.0F), 1}};
    for (const auto& row : cases)
    {
        CParamViewerConfig axis(row.info);
        EXPECT_EQ(axis.GetPositionsCount(), row.natural);
        for (const int count : {-1, -50, 100, row.natural})
        {
            axis.SetPositionsCount(count);
            EXPECT_EQ(axis.GetPositionsCount(), row.natural) << count;
        }
        axis.SetPositionsCount(0);
        EXPECT_EQ(axis.GetPositionsCount(), 1);
        axis.ResetPositionsCount();
        EXPECT_EQ(axis.GetPositionsCount(), row.natural);
    }
}

TEST(CParamViewerConfig, FewerStopsThanIntegersReadWholeValues)
{
    const CParamInfo info = Integer(0.0F, 5.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetPositionsCount(3);

    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_EQ(axis.PositionToValue(0.0F), 0.0F);
    EXPECT_EQ(axis.PositionToValue(0.5F), 3.0F);
    EXPECT_EQ(axis.PositionToValue(1.0F), 5.0F);
}

TEST(CParamViewerConfig, IntegersAreReadRoundedAwayFromZero)
{
    const CParamInfo info = Integer(-3.0F, 3.0F);
    CParamViewerConfig axis(info);

    EXPECT_EQ(axis.PositionToValue(0.0F), -3.0F);
    EXPECT_EQ(axis.PositionToValue(0.5F), 0.0F);
    EXPECT_EQ(axis.PositionToValue(1.0F), 3.0F);

    // Two stops and a constant response of a quarter: -3 + 6 * 0.25 = -1.5.
    const Mirel::Math::CConstantFunction quarter(0.25F);
    axis.SetResponseCurve(&quarter, nullptr, false);
    EXPECT_EQ(axis.PositionToValue(0.0F), -2.0F);
}

TEST(CParamViewerConfig, IntegersBeyondThirtyTwoBitsKeepTheirPlaces)
{
    const CParamInfo info = Integer(0.0F, 2147483648.0F);
    CParamViewerConfig axis(info);

    EXPECT_EQ(axis.GetPositionsCount(), std::numeric_limits<int>::max());
    EXPECT_EQ(axis.PositionToValue(1.0F), 2147483648.0F);
    EXPECT_EQ(axis.PositionToValue(0.5F), 1073741824.0F);
    EXPECT_EQ(axis.ValueToPosition(2147483648.0F, open), 1.0F);
}

TEST(CParamViewerConfig, ValuesFarOutsideASteppedAxisStandAtItsEnds)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetPositionsCount(5);

    for (const float far : {1e9F, 1e20F, infinity})
    {
        EXPECT_EQ(axis.ValueToPosition(far, clamped), 1.0F);
        EXPECT_EQ(axis.ValueToPosition(-far, clamped), 0.0F);
    }
    EXPECT_EQ(axis.ValueToPosition(notANumber, clamped), 0.0F);
}

TEST(CParamViewerConfig, TwoStatesAreReadAboveAndBelowHalfTheRange)
{
    for (const int kind : {0, 3})
    {
        const CParamInfo info = TwoState(kind, 0.0F, 1.0F);
        const CParamViewerConfig axis(info);
        EXPECT_EQ(axis.PositionToValue(0.6F), 1.0F);
        EXPECT_EQ(axis.PositionToValue(0.4F), 0.0F);
        EXPECT_EQ(axis.ValueToPosition(1.0F, open), 1.0F);
        EXPECT_EQ(axis.ValueToPosition(0.0F, open), 0.0F);
    }
}

TEST(CParamViewerConfig, TwoStatesCompareWithHalfTheWidthOfTheRange)
{
    // Of -4 to 0 half the width is 2, above which no value lies.
    const CParamInfo below = TwoState(0, -4.0F, 0.0F);
    EXPECT_EQ(CParamViewerConfig(below).PositionToValue(1.0F), -4.0F);
    // Of 4 to 6 it is 1, above which all lie.
    const CParamInfo above = TwoState(0, 4.0F, 6.0F);
    EXPECT_EQ(CParamViewerConfig(above).PositionToValue(0.0F), 6.0F);
}

TEST(CParamViewerConfig, UnknownKindsAreReadAsReals)
{
    const CParamInfo info(17, 0.0F, 1.0F, 0.0F, "", "", "");
    const CParamViewerConfig axis(info);

    EXPECT_EQ(axis.GetPositionsCount(), -1);
    EXPECT_EQ(axis.PositionToValue(0.3F), 0.3F);
}

TEST(CParamViewerConfig, ZoomSpreadsTheStopsOrOffersMore)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetPositionsCount(5);
    axis.SetZoom(2.5F);

    EXPECT_EQ(axis.GetPositionsCount(), 5);
    EXPECT_FLOAT_EQ(axis.GetVisiblePositions(), 4.0F / 2.5F + 1.0F);

    CAxisEvents events(axis);
    axis.SetZoomPositions(false);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_FALSE(axis.GetZoomPositions());
    EXPECT_EQ(axis.GetPositionsCount(), 11);
    EXPECT_FLOAT_EQ(axis.GetVisiblePositions(), 10.0F / 2.5F + 1.0F);
    // The position 0.3 is 0.12 of the whole axis; of the stops in tenths 0.1 is the nearest.
    EXPECT_FLOAT_EQ(axis.PositionToValue(0.3F), 0.1F);
    EXPECT_FLOAT_EQ(axis.ValueToPosition(0.12F, open), 0.25F);

    axis.SetZoom(1.3F);
    EXPECT_EQ(axis.GetPositionsCount(), 6); // truncation of 4 * 1.3 + 1
    axis.SetZoomPositions(false);
    axis.SetZoom(1e20F);
    EXPECT_EQ(axis.GetPositionsCount(), std::numeric_limits<int>::max());
}

TEST(CParamViewerConfig, ContinuousAxisStaysSoWhateverTheZoom)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    axis.SetZoomPositions(false);
    axis.SetZoom(3.0F);

    EXPECT_EQ(axis.GetPositionsCount(), -1);
    EXPECT_EQ(axis.GetVisiblePositions(), -1.0F);
    EXPECT_FLOAT_EQ(axis.PositionToValue(0.3F), 0.1F);
}
