#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using Mirel::DataModel::Controls::CBaseParamTextViewer;
using Mirel::DataModel::Objects::CCaptureParam;
using Mirel::DataModel::Objects::CEnumToText;
using Tests::CEventCounter;

TEST(CBaseParamTextViewer, ShowsTheConvertersTextAndFollowsTheValue)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    const CBaseParamTextViewer viewer(param);
    CEventCounter changes(viewer.GetTextChangedEventProvider());
    EXPECT_EQ(&viewer.GetParam(), &param);
    EXPECT_EQ(&viewer.GetInfo(), &param.GetInfo());
    EXPECT_STREQ(viewer.GetText(), "0.00");

    param.SetValue(2.5F);
    EXPECT_STREQ(viewer.GetText(), "2.50");
    EXPECT_EQ(changes.Take(), 1);
    param.SetValue(2.501F);
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CBaseParamTextViewer, FollowsTheDescription)
{
    CCaptureParam param(Tests::Integer(0.0F, 1.0F));
    const CBaseParamTextViewer viewer(param);
    CEventCounter changes(viewer.GetTextChangedEventProvider());
    CEnumToText names({"Up", "Down"});

    param.GetInfo().SetValueToText(&names, false);
    EXPECT_STREQ(viewer.GetText(), "Up");
    EXPECT_EQ(changes.Take(), 1);
    param.GetInfo().SetName("Direction");
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CBaseParamTextViewer, ListenerThatSetsTheValueAgainIsFollowed)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    const CBaseParamTextViewer viewer(param);
    Tests::CFunctionCommand back([&] { param.SetValue(1.0F); });
    viewer.GetTextChangedEventProvider().Connect(back);

    param.SetValue(5.0F);

    EXPECT_STREQ(viewer.GetText(), "1.00");
}

TEST(CBaseParamTextViewer, CapturesAreForwardedAndConnectionsEndWithTheViewer)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    {
        const CBaseParamTextViewer viewer(param);
        CEventCounter begins(viewer.GetBeginCaptureEventProvider());
        param.BeginCapture();
        EXPECT_TRUE(viewer.IsCaptured());
        EXPECT_EQ(begins.Take(), 1);
    }
    param.EndCapture(); // these would reach freed memory
    param.SetValue(5.0F);
    param.GetInfo().SetUnit("s");
    EXPECT_EQ(param.GetValue(), 5.0F);
}
