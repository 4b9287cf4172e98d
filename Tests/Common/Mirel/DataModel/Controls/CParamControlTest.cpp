#include "Mirel/DataModel/Controls/CParamControl.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using Mirel::DataModel::Controls::CParamControl;
using Mirel::DataModel::Objects::CCaptureParam;
using Tests::CEventCounter;
using Tests::Integer;
using Tests::Real;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

} // namespace

TEST(CParamControl, SetPositionWritesTheValueAtThePosition)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);

    control.SetPosition(0.25F);

    EXPECT_EQ(param.GetValue(), 2.5F);
    EXPECT_EQ(control.GetPosition(), 0.25F);
}

TEST(CParamControl, PositionsAreClampedAndNaNIsIgnored)
{
    CCaptureParam param(Real(1.0F, 10.0F));
    CParamControl control(param);

    control.SetPosition(7.0F);
    EXPECT_EQ(param.GetValue(), 10.0F);
    control.SetPosition(-7.0F);
    EXPECT_EQ(param.GetValue(), 1.0F);
    control.SetPosition(0.5F);
    CEventCounter sets(param.GetSetEventProvider());
    control.SetPosition(notANumber);
    EXPECT_EQ(param.GetValue(), 5.5F);
    EXPECT_EQ(sets.Take(), 0);
}

TEST(CParamControl, ZoomedControlReachesItsWindowOnly)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);
    control.SetZoom(2.0F);
    control.SetOffset(1.0F);

    control.SetPosition(-1.0F);
    EXPECT_EQ(param.GetValue(), 5.0F);
}

TEST(CParamControl, SetDefaultWritesTheDefaultOfTheDescription)
{
    CCaptureParam param(Real(0.0F, 10.0F, 4.0F));
    CParamControl control(param);

    control.SetDefault();

    EXPECT_EQ(param.GetValue(), 4.0F);
}

TEST(CParamControl, ControlThatIsNotEditableWritesNothingAndStillFollows)
{
    CCaptureParam param(Real(0.0F, 10.0F, 4.0F));
    CParamControl control(param);
    CEventCounter changes(control.GetEditableChangedEventProvider());
    CEventCounter sets(param.GetSetEventProvider());
    EXPECT_TRUE(control.IsEditable());

    control.SetEditable(false);
    control.SetEditable(false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_FALSE(control.IsEditable());
    control.SetPosition(0.5F);
    control.SetDefault();
    EXPECT_EQ(sets.Take(), 0);

    param.SetValue(10.0F);
    EXPECT_EQ(control.GetPosition(), 1.0F);
    control.SetEditable(true);
    control.SetPosition(0.5F);
    EXPECT_EQ(param.GetValue(), 5.0F);
}

TEST(CParamControl, EditIsOneGestureOfTheControlAndOneCaptureOfTheParameter)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);
    CEventCounter begins(control.GetEditCapture().GetBeginCaptureEventProvider());
    CEventCounter ends(control.GetEditCapture().GetEndCaptureEventProvider());
    CEventCounter paramBegins(param.GetBeginCaptureEventProvider());
    CEventCounter paramEnds(param.GetEndCaptureEventProvider());

    control.BeginEdit();
    control.BeginEdit();
    control.SetPosition(0.5F);
    EXPECT_TRUE(param.IsCaptured());
    EXPECT_TRUE(control.IsCaptured());
    EXPECT_TRUE(control.GetEditCapture().IsCaptured());
    control.EndEdit();
    control.EndEdit();

    EXPECT_FALSE(param.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
    EXPECT_EQ(paramBegins.Take(), 1);
    EXPECT_EQ(paramEnds.Take(), 1);
}

TEST(CParamControl, CaptureByTheHostIsNotAnEdit)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);

    param.BeginCapture();
    EXPECT_TRUE(control.IsCaptured());
    EXPECT_FALSE(control.GetEditCapture().IsCaptured());
    control.EndEdit();
    EXPECT_TRUE(param.IsCaptured());
}

TEST(CParamControl, EditOpenAtTheEndOfTheControlIsClosed)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CEventCounter ends(param.GetEndCaptureEventProvider());
    {
        CParamControl control(param);
        control.BeginEdit();
    }
    EXPECT_FALSE(param.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
}

TEST(CParamControl, FineModeMultipliesTheStopsAndTakesThemBack)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);
    control.SetPositionsCount(5);
    control.SetFineRatio(10);
    CEventCounter layouts(control.GetLayoutChangedEventProvider());

    control.SetFineMode(true);
    EXPECT_TRUE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 41);
    EXPECT_EQ(layouts.Take(), 1);
    control.SetFineMode(true);
    EXPECT_EQ(control.GetPositionsCount(), 41);

    control.SetFineMode(false);
    EXPECT_FALSE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 5);
    EXPECT_EQ(layouts.Take(), 1);
    control.SetFineMode(false);
    EXPECT_EQ(control.GetPositionsCount(), 5);
    EXPECT_EQ(layouts.Take(), 0);
}

TEST(CParamControl, FineModeWorksOnTheStoredCountUnderZoom)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);
    control.SetPositionsCount(5);
    control.SetZoomPositions(false);
    control.SetZoom(2.0F);
    control.SetFineRatio(3);

    control.SetFineMode(true);
    EXPECT_TRUE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 12 * 2 + 1);
    control.SetFineMode(false);
    EXPECT_EQ(control.GetPositionsCount(), 4 * 2 + 1);
}

TEST(CParamControl, FineModeOfAContinuousAxisLeavesTheCount)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CParamControl control(param);
    control.SetFineRatio(10);
    CEventCounter layouts(control.GetLayoutChangedEventProvider());

    control.SetFineMode(true);
    EXPECT_TRUE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), -1);
    control.SetFineMode(false);
    EXPECT_FALSE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), -1);
    EXPECT_EQ(layouts.Take(), 0);
}

TEST(CParamControl, FineModeStaysOffWhereTheNaturalCountHasNoRoom)
{
    CCaptureParam param(Integer(0.0F, 20.0F));
    CParamControl control(param);
    control.SetPositionsCount(5);
    control.SetFineRatio(6);
    CEventCounter layouts(control.GetLayoutChangedEventProvider());

    control.SetFineMode(true); // wants 25 of 21
    EXPECT_FALSE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 5);
    EXPECT_EQ(layouts.Take(), 0);

    control.SetFineRatio(5);
    control.SetFineMode(true); // wants 21 of 21
    EXPECT_TRUE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 21);
}

TEST(CParamControl, FineModeStaysOffWhereTheCountWouldOverflow)
{
    CCaptureParam param(Real(0.0F, 1.0F));
    CParamControl control(param);
    control.SetPositionsCount(1000000);
    control.SetFineRatio(1000000);

    control.SetFineMode(true);

    EXPECT_FALSE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 1000000);
}

TEST(CParamControl, OneStopHasNothingToRefine)
{
    CCaptureParam param(Real(0.0F, 1.0F));
    CParamControl control(param);
    control.SetPositionsCount(1);
    control.SetFineRatio(10);

    control.SetFineMode(true);
    EXPECT_TRUE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 1);
}

TEST(CParamControl, FineRatioIsAtLeastOne)
{
    CCaptureParam param(Real(0.0F, 1.0F));
    CParamControl control(param);
    EXPECT_EQ(control.GetFineRatio(), 1);
    control.SetFineRatio(0);
    EXPECT_EQ(control.GetFineRatio(), 1);
    control.SetFineRatio(8);
    EXPECT_EQ(control.GetFineRatio(), 8);
    control.SetFineRatio(-3);
    EXPECT_EQ(control.GetFineRatio(), 1);
}

TEST(CParamControl, FineRatioChangedInFineModeChangesTheStops)
{
    CCaptureParam param(Real(0.0F, 1.0F));
    CParamControl control(param);
    control.SetPositionsCount(5);
    control.SetFineRatio(2);
    control.SetFineMode(true);
    ASSERT_EQ(control.GetPositionsCount(), 9);

    control.SetFineRatio(10);
    EXPECT_TRUE(control.IsFineMode());
    EXPECT_EQ(control.GetPositionsCount(), 41);

    CEventCounter layouts(control.GetLayoutChangedEventProvider());
    control.SetFineRatio(10);
    EXPECT_EQ(layouts.Take(), 0);
}

TEST(CParamControl, FineRatioTooLargeForTheParameterEndsFineMode)
{
    CCaptureParam param(Integer(0.0F, 10.0F));
    CParamControl control(param);
    control.SetPositionsCount(6);
    control.SetFineRatio(2);
    control.SetFineMode(true);
    ASSERT_TRUE(control.IsFineMode());

    control.SetFineRatio(3);

    EXPECT_FALSE(control.IsFineMode());
    EXPECT_EQ(control.GetFineRatio(), 3);
    EXPECT_EQ(control.GetPositionsCount(), 6);
}

TEST(CParamControl, SteppedControlWritesStops)
{
    CCaptureParam param(Integer(-3.0F, 3.0F));
    CParamControl control(param);

    control.SetPosition(0.4F);

    EXPECT_EQ(param.GetValue(), -1.0F); // 0.4 of 6 steps is 2.4
    EXPECT_FLOAT_EQ(control.GetPosition(), 2.0F / 6.0F);
}

TEST(CParamControl, EachNoticeOfTheRightButtonIsTold)
{
    CCaptureParam param(Real(0.0F, 1.0F));
    CParamControl control(param);
    CEventCounter notices(control.GetRightClickEventProvider());

    control.NotifyRightClick(true);
    EXPECT_EQ(notices.Take(), 1);
    EXPECT_TRUE(control.IsRightDown());
    control.NotifyRightClick(true);
    EXPECT_EQ(notices.Take(), 1);
    control.NotifyRightClick(false);
    EXPECT_EQ(notices.Take(), 1);
    EXPECT_FALSE(control.IsRightDown());
}

TEST(CParamControl, ConnectionsEndWithTheControl)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    {
        CParamControl control(param);
    }
    param.SetValue(5.0F); // these would reach freed memory
    param.BeginCapture();
    EXPECT_EQ(param.GetValue(), 5.0F);
}
