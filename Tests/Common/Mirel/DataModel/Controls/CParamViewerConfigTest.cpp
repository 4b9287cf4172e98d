#include "Mirel/DataModel/Controls/CParamViewerConfig.h"

#include "Common/Mirel/DataModel/Controls/AxisEvents.h"
#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

using Mirel::DataModel::Controls::CParamViewerConfig;
using Mirel::DataModel::Objects::CParamInfo;
using Mirel::Math::IFunction;
using Mirel::Math::SharedFunction;
using Tests::CAxisEvents;
using Tests::Integer;
using Tests::Real;
using Tests::TwoState;

namespace Library = Mirel::Math::FunctionsLibrary;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr bool clamped = true;
constexpr bool open = false;

/// A function that counts the objects alive.
class CCountedFunction : public Mirel::Math::CConstantFunction
{
public:
    explicit CCountedFunction(int& alive_) : CConstantFunction(0.25F), alive(alive_) { ++alive; }
    CCountedFunction(const CCountedFunction&) = delete;
    CCountedFunction& operator=(const CCountedFunction&) = delete;
    ~CCountedFunction() override { --alive; }

private:
    int& alive;
};

using Counts = std::vector<int>;

} // namespace

TEST(CParamViewerConfig, BeginsLinearUnzoomedWithTheNaturalCount)
{
    const CParamInfo info = Real(0.0F, 10.0F, 4.0F);
    const CParamViewerConfig axis(info);

    EXPECT_EQ(&axis.GetInfo(), &info);
    EXPECT_FALSE(axis.IsReversed());
    EXPECT_FALSE(axis.IsLogScale());
    EXPECT_EQ(axis.GetZoom(), 1.0F);
    EXPECT_EQ(axis.GetOffset(), 0.0F);
    EXPECT_TRUE(axis.GetZoomPositions());
    EXPECT_EQ(axis.GetPositionsCount(), -1);
    EXPECT_EQ(axis.GetVisiblePositions(), -1.0F);
    EXPECT_EQ(axis.GetResponseCurve()(0.3F), 0.3F);
    EXPECT_EQ(axis.GetInverseCurve()(0.3F), 0.3F);

    const CParamInfo steps = Integer(-3.0F, 3.0F);
    EXPECT_EQ(CParamViewerConfig(steps).GetPositionsCount(), 7);
    for (const int kind : {0, 3})
    {
        const CParamInfo states = TwoState(kind, 0.0F, 1.0F);
        EXPECT_EQ(CParamViewerConfig(states).GetPositionsCount(), 2);
    }
}

TEST(CParamViewerConfig, LinearAxisMapsTheRangeToZeroToOneAndBack)
{
    const CParamInfo info = Real(-10.0F, 30.0F);
    const CParamViewerConfig axis(info);

    EXPECT_EQ(axis.ValueToPosition(-10.0F, open), 0.0F);
    EXPECT_FLOAT_EQ(axis.ValueToPosition(0.0F, open), 0.25F);
    EXPECT_FLOAT_EQ(axis.ValueToPosition(30.0F, open), 1.0F);
    EXPECT_EQ(axis.PositionToValue(0.0F), -10.0F);
    EXPECT_EQ(axis.PositionToValue(0.25F), 0.0F);
    EXPECT_EQ(axis.PositionToValue(1.0F), 30.0F);
}

TEST(CParamViewerConfig, ClampKeepsPositionsWithinTheWidget)
{
    const CParamInfo info = Real(0.0F, 10.0F);
    const CParamViewerConfig axis(info);

    EXPECT_FLOAT_EQ(axis.ValueToPosition(20.0F, open), 2.0F);
    EXPECT_EQ(axis.ValueToPosition(20.0F, clamped), 1.0F);
    EXPECT_FLOAT_EQ(axis.ValueToPosition(-5.0F, open), -0.5F);
    EXPECT_EQ(axis.ValueToPosition(-5.0F, clamped), 0.0F);
    EXPECT_EQ(axis.ValueToPosition(infinity, clamped), 1.0F);
    EXPECT_EQ(axis.ValueToPosition(-infinity, clamped), 0.0F);
    EXPECT_EQ(axis.ValueToPosition(notANumber, clamped), 0.0F);
    EXPECT_NE(axis.ValueToPosition(notANumber, open), axis.ValueToPosition(notANumber, open));
}

TEST(CParamViewerConfig, ReversedAxisRunsFromMaxToMin)
{
    const CParamInfo info = Real(0.0F, 10.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetReverse(true);

    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_TRUE(axis.IsReversed());
    EXPECT_FLOAT_EQ(axis.ValueToPosition(2.5F, open), 0.75F);
    EXPECT_EQ(axis.PositionToValue(0.75F), 2.5F);
    axis.SetReverse(true);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 0}));
}

TEST(CParamViewerConfig, LogScalePutsTheGeometricMeanInTheMiddle)
{
    const CParamInfo info = Real(10.0F, 1000.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetLogScale(true);

    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_TRUE(axis.IsLogScale());
    EXPECT_EQ(axis.ValueToPosition(10.0F, open), 0.0F);
    EXPECT_NEAR(axis.ValueToPosition(100.0F, open), 0.5F, 1e-6);
    EXPECT_NEAR(axis.ValueToPosition(1000.0F, open), 1.0F, 1e-6);
    EXPECT_NEAR(axis.PositionToValue(0.5F), 100.0F, 1e-4);
    EXPECT_EQ(axis.PositionToValue(0.0F), 10.0F);
    EXPECT_NEAR(axis.PositionToValue(1.0F), 1000.0F, 1e-3);
    axis.SetLogScale(true);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 0}));
}

TEST(CParamViewerConfig, LogScaleOfANegativeRangeRunsTowardsZero)
{
    const CParamInfo info = Real(-1000.0F, -10.0F);
    CParamViewerConfig axis(info);
    axis.SetLogScale(true);

    EXPECT_NEAR(axis.ValueToPosition(-100.0F, open), 0.5F, 1e-6);
    EXPECT_NEAR(axis.PositionToValue(0.5F), -100.0F, 1e-4);
}

TEST(CParamViewerConfig, RangeWithoutALogarithmStandsAtItsMin)
{
    for (const CParamInfo& info : {Real(0.0F, 10.0F), Real(-10.0F, 0.0F), Real(-10.0F, 10.0F)})
    {
        CParamViewerConfig axis(info);
        axis.SetLogScale(true);
        for (const float value : {info.GetMin(), 5.0F, info.GetMax()})
        {
            EXPECT_EQ(axis.ValueToPosition(value, open), 0.0F) << info.GetMin() << " at " << value;
        }
        for (const float position : {0.0F, 0.5F, 1.0F})
        {
            EXPECT_EQ(axis.PositionToValue(position), info.GetMin());
        }
    }
}

TEST(CParamViewerConfig, ValuesWithoutALogarithmStandAtTheBeginning)
{
    const CParamInfo info = Real(1.0F, 100.0F);
    CParamViewerConfig axis(info);
    axis.SetLogScale(true);

    EXPECT_EQ(axis.ValueToPosition(0.0F, clamped), 0.0F);
    EXPECT_EQ(axis.ValueToPosition(-1.0F, clamped), 0.0F);
}

TEST(CParamViewerConfig, EmptyRangeIsMappedByDistance)
{
    const CParamInfo info = Real(5.0F, 5.0F);
    CParamViewerConfig axis(info);
    for (const bool logScale : {false, true})
    {
        axis.SetLogScale(logScale);
        EXPECT_EQ(axis.ValueToPosition(5.0F, open), 0.0F);
        EXPECT_EQ(axis.ValueToPosition(0.0F, clamped), 0.0F);
        EXPECT_EQ(axis.PositionToValue(0.0F), 5.0F);
        EXPECT_EQ(axis.PositionToValue(1.0F), 5.0F);
    }
    axis.SetLogScale(false);
    EXPECT_EQ(axis.ValueToPosition(5.5F, open), 0.5F);
}

TEST(CParamViewerConfig, ResponseCurveBendsTheWayToTheValueAndTheInverseTheWayBack)
{
    const CParamInfo info = Real(0.0F, 100.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);
    const IFunction& square = SharedFunction<&Library::Square>();
    const IFunction& root = SharedFunction<&Library::SquareRoot>();

    axis.SetResponseCurve(&square, &root, false);

    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_EQ(&axis.GetResponseCurve(), &square);
    EXPECT_EQ(&axis.GetInverseCurve(), &root);
    EXPECT_EQ(axis.PositionToValue(0.5F), 25.0F);
    EXPECT_EQ(axis.ValueToPosition(25.0F, open), 0.5F);
    axis.SetReverse(true);
    EXPECT_EQ(axis.PositionToValue(0.25F), 56.25F);
    EXPECT_EQ(axis.ValueToPosition(56.25F, open), 0.25F);
}

TEST(CParamViewerConfig, SettingTheSameCurvesFiresAgain)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetResponseCurve(nullptr, nullptr, false);
    axis.SetResponseCurve(nullptr, nullptr, false);

    EXPECT_EQ(events.Take(), (Counts{0, 0, 2}));
}

TEST(CParamViewerConfig, EachCurveCanBeLeftOut)
{
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);

    axis.SetResponseCurve(&SharedFunction<&Library::Square>(), nullptr, false);
    EXPECT_EQ(axis.PositionToValue(0.5F), 0.25F);
    EXPECT_EQ(axis.ValueToPosition(0.5F, open), 0.5F);

    axis.SetResponseCurve(nullptr, &SharedFunction<&Library::Square>(), false);
    EXPECT_EQ(axis.PositionToValue(0.5F), 0.5F);
    EXPECT_EQ(axis.ValueToPosition(0.5F, open), 0.25F);
}

TEST(CParamViewerConfig, OwnedCurvesGoWithTheAxisOrTheirSuccessors)
{
    int alive = 0;
    const CParamInfo info = Real(0.0F, 1.0F);
    CCountedFunction borrowed(alive);
    {
        CParamViewerConfig axis(info);
        axis.SetResponseCurve(new CCountedFunction(alive), new CCountedFunction(alive), true);
        EXPECT_EQ(alive, 3);
        auto* both = new CCountedFunction(alive);
        axis.SetResponseCurve(both, both, true);
        EXPECT_EQ(alive, 2);
        EXPECT_EQ(axis.PositionToValue(0.9F), 0.25F);
        EXPECT_EQ(axis.ValueToPosition(0.9F, open), 0.25F);
        axis.SetResponseCurve(&borrowed, &borrowed, false);
        EXPECT_EQ(alive, 1);
        axis.SetResponseCurve(new CCountedFunction(alive), new CCountedFunction(alive), true);
    }
    EXPECT_EQ(alive, 1);
}

TEST(CParamViewerConfig, OwnedIdentitiesAreTakenAndChangeNothing)
{
    using Identity = Mirel::Math::TFunction<&Library::Identity>;
    const CParamInfo info = Real(0.0F, 1.0F);
    CParamViewerConfig axis(info);

    axis.SetResponseCurve(new Identity(), new Identity(), true);
    EXPECT_EQ(axis.PositionToValue(0.3F), 0.3F);
    auto* both = new Identity();
    axis.SetResponseCurve(both, both, true);
    EXPECT_EQ(axis.ValueToPosition(0.3F, open), 0.3F);
    EXPECT_EQ(axis.GetResponseCurve()(7.0F), 7.0F);
}

TEST(CParamViewerConfig, ZoomShowsAWindowOfTheAxis)
{
    const CParamInfo info = Real(0.0F, 10.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetZoom(4.0F);
    EXPECT_EQ(events.Take(), (Counts{1, 0, 1}));
    EXPECT_EQ(axis.GetZoom(), 4.0F);
    EXPECT_EQ(axis.PositionToValue(1.0F), 2.5F);
    EXPECT_FLOAT_EQ(axis.ValueToPosition(5.0F, open), 2.0F);
    EXPECT_EQ(axis.ValueToPosition(5.0F, clamped), 1.0F);

    axis.SetOffset(1.0F);
    EXPECT_EQ(events.Take(), (Counts{0, 1, 1}));
    EXPECT_EQ(axis.GetOffset(), 1.0F);
    EXPECT_EQ(axis.PositionToValue(0.0F), 7.5F);
    EXPECT_EQ(axis.PositionToValue(1.0F), 10.0F);
    EXPECT_FLOAT_EQ(axis.ValueToPosition(5.0F, open), -1.0F);

    axis.SetZoom(4.0F);
    axis.SetOffset(1.0F);
    axis.SetZoom(notANumber);
    axis.SetOffset(notANumber);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 0}));
    EXPECT_EQ(axis.GetZoom(), 4.0F);
    EXPECT_EQ(axis.GetOffset(), 1.0F);
}

TEST(CParamViewerConfig, ZoomTwoAtTheEndReadsTheMiddleAtPositionZero)
{
    const CParamInfo info = Real(0.0F, 10.0F);
    CParamViewerConfig axis(info);

    axis.SetOffset(1.0F);
    axis.SetZoom(2.0F);

    EXPECT_EQ(axis.PositionToValue(0.0F), 5.0F);
}

TEST(CParamViewerConfig, ZoomBelowOneStoresOneAndFires)
{
    const CParamInfo info = Real(0.0F, 10.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    axis.SetZoom(0.5F);

    EXPECT_EQ(axis.GetZoom(), 1.0F);
    EXPECT_EQ(axis.PositionToValue(0.5F), 5.0F);
    EXPECT_EQ(events.Take(), (Counts{1, 0, 1}));
}

TEST(CParamViewerConfig, ZoomEventComesBeforeTheLayoutEventAndBothFindTheNewMapping)
{
    const CParamInfo info = Real(0.0F, 10.0F);
    CParamViewerConfig axis(info);
    std::string order;
    Tests::CFunctionCommand zoom([&] { order += axis.PositionToValue(1.0F) == 5.0F ? "z" : "?"; });
    Tests::CFunctionCommand offset([&] { order += axis.PositionToValue(1.0F) == 10.0F ? "o" : "?"; });
    Tests::CFunctionCommand layout([&] { order += "l"; });
    axis.GetLayoutChangedEventProvider().Connect(layout);
    axis.GetZoomChangedEventProvider().Connect(zoom);
    axis.GetOffsetChangedEventProvider().Connect(offset);

    axis.SetZoom(2.0F);
    axis.SetOffset(1.0F);

    EXPECT_EQ(order, "zlol");
}

TEST(CParamViewerConfig, PositionsOfDefaultMinAndMaxAreClampedToTheWidget)
{
    const CParamInfo info = Real(0.0F, 10.0F, 4.0F);
    CParamViewerConfig axis(info);
    EXPECT_FLOAT_EQ(axis.GetDefaultPosition(), 0.4F);
    EXPECT_EQ(axis.GetMinPosition(), 0.0F);
    EXPECT_FLOAT_EQ(axis.GetMaxPosition(), 1.0F);

    axis.SetReverse(true);
    EXPECT_FLOAT_EQ(axis.GetDefaultPosition(), 0.6F);
    EXPECT_EQ(axis.GetMinPosition(), 0.0F);
    EXPECT_FLOAT_EQ(axis.GetMaxPosition(), 1.0F);

    axis.SetReverse(false);
    axis.SetZoom(2.0F);
    axis.SetOffset(1.0F);
    EXPECT_EQ(axis.GetDefaultPosition(), 0.0F);

    const CParamInfo outside = Real(0.0F, 10.0F, 40.0F);
    EXPECT_EQ(CParamViewerConfig(outside).GetDefaultPosition(), 1.0F);
}

TEST(CParamViewerConfig, AxisFollowsTheRangeOfItsDescription)
{
    CParamInfo info = Real(0.0F, 10.0F);
    CParamViewerConfig axis(info);
    CAxisEvents events(axis);

    info.SetMax(20.0F);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_FLOAT_EQ(axis.ValueToPosition(5.0F, open), 0.25F);
    EXPECT_EQ(axis.PositionToValue(0.5F), 10.0F);

    info.SetMin(10.0F);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 1}));
    EXPECT_EQ(axis.PositionToValue(0.5F), 15.0F);

    axis.SetLogScale(true);
    info.SetMax(1000.0F);
    EXPECT_NEAR(axis.PositionToValue(0.5F), 100.0F, 1e-4);
    EXPECT_EQ(events.Take(), (Counts{0, 0, 2}));

    info.SetName("Other");
    info.SetDefault(11.0F);
    info.CopyFrom(CParamInfo(info));
    EXPECT_EQ(events.Take(), (Counts{0, 0, 0}));
}

TEST(CParamViewerConfig, NaturalCountFollowsTheDescriptionAndAChosenOneItsLimit)
{
    CParamInfo info = Integer(0.0F, 10.0F);
    CParamViewerConfig natural(info);
    CParamViewerConfig chosen(info);
    chosen.SetPositionsCount(5);

    info.SetMax(20.0F);
    EXPECT_EQ(natural.GetPositionsCount(), 21);
    EXPECT_EQ(chosen.GetPositionsCount(), 5);
    EXPECT_EQ(natural.PositionToValue(0.05F), 1.0F);

    info.SetMax(3.0F);
    EXPECT_EQ(natural.GetPositionsCount(), 4);
    EXPECT_EQ(chosen.GetPositionsCount(), 4);

    info.SetType(2);
    EXPECT_EQ(natural.GetPositionsCount(), -1);
    EXPECT_EQ(natural.PositionToValue(0.5F), 1.5F);
    info.SetType(0);
    EXPECT_EQ(natural.GetPositionsCount(), 2);
}

TEST(CParamViewerConfig, EndOfTheAxisEndsItsConnection)
{
    CParamInfo info = Real(0.0F, 10.0F);
    {
        const CParamViewerConfig axis(info);
    }
    info.SetMax(20.0F); // would reach freed memory
    EXPECT_EQ(info.GetMax(), 20.0F);
}

TEST(CParamViewerConfig, MappingAllocatesNothing)
{
    const CParamInfo info = Integer(1.0F, 1000.0F);
    CParamViewerConfig axis(info);
    axis.SetResponseCurve(&SharedFunction<&Library::NormExp3>(), &SharedFunction<&Library::NormLog3>(),
                          false);
    axis.SetZoomPositions(false);
    axis.SetZoom(3.0F);
    axis.SetReverse(true);
    for (const bool logScale : {false, true})
    {
        axis.SetLogScale(logScale);
        const Tests::CAllocationCounter allocations;
        const float value = axis.PositionToValue(0.3F);
        const float position = axis.ValueToPosition(value, clamped);
        EXPECT_EQ(allocations.GetCount(), 0U);
        EXPECT_GE(position, 0.0F);
    }
}
