#include "Mirel/DataModel/Controls/CBaseParamViewer.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/Math/TFunction.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using Mirel::DataModel::Controls::CBaseParamViewer;
using Mirel::DataModel::Objects::CCaptureParam;
using Mirel::Math::SharedFunction;
using Tests::CEventCounter;
using Tests::CFunctionCommand;
using Tests::Real;

namespace Library = Mirel::Math::FunctionsLibrary;

TEST(CBaseParamViewer, BeginsAtThePositionOfTheValue)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    param.SetValue(5.0F);
    const CBaseParamViewer viewer(param);

    EXPECT_EQ(&viewer.GetParam(), &param);
    EXPECT_EQ(&viewer.GetInfo(), &param.GetInfo());
    EXPECT_EQ(viewer.GetPosition(), 0.5F);
}

TEST(CBaseParamViewer, FollowsTheValueAndFiresOnAChangeOfThePosition)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CBaseParamViewer viewer(param);
    CEventCounter changes(viewer.GetPositionChangedEventProvider());

    param.SetValue(5.0F);
    EXPECT_EQ(viewer.GetPosition(), 0.5F);
    EXPECT_EQ(changes.Take(), 1);
    param.SetValue(5.0F);
    param.SetValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(changes.Take(), 0);

    viewer.SetPositionsCount(3);
    EXPECT_EQ(changes.Take(), 0);
    param.SetValue(5.5F);
    EXPECT_EQ(changes.Take(), 0);
    param.SetValue(9.0F);
    EXPECT_EQ(viewer.GetPosition(), 1.0F);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CBaseParamViewer, FollowsEveryChangeOfTheMapping)
{
    CCaptureParam param(Real(1.0F, 101.0F));
    param.SetValue(26.0F);
    CBaseParamViewer viewer(param);
    CEventCounter changes(viewer.GetPositionChangedEventProvider());
    ASSERT_EQ(viewer.GetPosition(), 0.25F);

    viewer.SetReverse(true);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetPosition(), 0.75F);
    viewer.SetReverse(false);

    viewer.SetResponseCurve(&SharedFunction<&Library::Square>(), &SharedFunction<&Library::SquareRoot>(),
                            false);
    EXPECT_EQ(changes.Take(), 2);
    EXPECT_EQ(viewer.GetPosition(), 0.5F);
    viewer.SetResponseCurve(nullptr, nullptr, false);
    changes.Take();

    viewer.SetZoom(2.0F);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetPosition(), 0.5F);
    viewer.SetOffset(0.25F);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetPosition(), 0.25F);
    viewer.SetOffset(1.0F);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetPosition(), 0.0F);
    viewer.SetZoom(1.0F);
    changes.Take();

    param.GetInfo().SetMax(51.0F);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetPosition(), 0.5F);
    viewer.SetLogScale(true);
    EXPECT_EQ(changes.Take(), 1);
    viewer.SetPositionsCount(2);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetPosition(), 1.0F);
}

TEST(CBaseParamViewer, ListenersOfTheAxisFindTheNewPosition)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    param.SetValue(2.0F);
    CBaseParamViewer viewer(param);
    float atZoom = 0.0F;
    float atLayout = 0.0F;
    CFunctionCommand zoom([&] { atZoom = viewer.GetPosition(); });
    CFunctionCommand layout([&] { atLayout = viewer.GetPosition(); });
    viewer.GetZoomChangedEventProvider().Connect(zoom);
    viewer.GetLayoutChangedEventProvider().Connect(layout);

    viewer.SetZoom(2.0F);

    EXPECT_FLOAT_EQ(atZoom, 0.4F);
    EXPECT_FLOAT_EQ(atLayout, 0.4F);
}

TEST(CBaseParamViewer, ListenerThatSetsTheValueAgainIsFollowed)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CBaseParamViewer viewer(param);
    CFunctionCommand atMostHalf(
        [&]
        {
            if (param.GetValue() > 5.0F)
            {
                param.SetValue(5.0F);
            }
        });
    viewer.GetPositionChangedEventProvider().Connect(atMostHalf);
    CEventCounter changes(viewer.GetPositionChangedEventProvider());

    param.SetValue(9.0F);

    EXPECT_EQ(viewer.GetPosition(), 0.5F);
    EXPECT_EQ(changes.Take(), 2);
}

TEST(CBaseParamViewer, CapturesOfTheParameterAreForwarded)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    const CBaseParamViewer viewer(param);
    CEventCounter begins(viewer.GetBeginCaptureEventProvider());
    CEventCounter ends(viewer.GetEndCaptureEventProvider());

    param.BeginCapture();
    EXPECT_TRUE(viewer.IsCaptured());
    param.EndCapture();
    EXPECT_FALSE(viewer.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
}

TEST(CBaseParamViewer, ConnectionsEndWithTheViewer)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    {
        const CBaseParamViewer viewer(param);
    }
    param.SetValue(5.0F); // these would reach freed memory
    param.BeginCapture();
    param.EndCapture();
    param.GetInfo().SetMax(20.0F);
    EXPECT_EQ(param.GetValue(), 5.0F);
}

TEST(CBaseParamViewer, FollowingAllocatesNothing)
{
    CCaptureParam param(Real(0.0F, 10.0F));
    CBaseParamViewer viewer(param);
    CEventCounter changes(viewer.GetPositionChangedEventProvider());

    const Tests::CAllocationCounter allocations;
    param.SetValue(5.0F);
    viewer.SetZoom(3.0F);

    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_EQ(changes.Take(), 2);
}
