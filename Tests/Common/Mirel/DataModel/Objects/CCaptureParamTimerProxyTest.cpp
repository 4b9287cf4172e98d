#include "Mirel/DataModel/Objects/CCaptureParamTimerProxy.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace Mirel::DataModel;
using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFakeTimerProvider;
using Tests::CFunctionCommand;
using Tests::CRangeParam;

namespace
{
using CStringProxy = TConstCaptureObjectTimerProxy<const char*, IConstStringInfo, CStringInfo>;
using CCurveProxy = TConstCaptureObjectTimerProxy<const Mirel::Math::IFunction&, IConstCurveInfo, CCurveInfo>;
} // namespace

TEST(CConstCaptureParamTimerProxy, FollowsByTimerAndNotByEvent)
{
    CRangeParam source(0.0f, 10.0f, 4.0f);
    CFakeTimerProvider timer;
    const CConstCaptureParamTimerProxy proxy(source, &timer);
    CEventCounter changes(proxy.GetValueChangedEventProvider());
    EXPECT_EQ(proxy.GetValue(), 4.0f);
    EXPECT_EQ(proxy.GetInfo().GetMax(), 10.0f);

    source.SetValue(5.0f);
    source.SetValue(6.0f);
    EXPECT_EQ(proxy.GetValue(), 4.0f);
    EXPECT_EQ(changes.Take(), 0);
    timer.Tick();
    EXPECT_EQ(proxy.GetValue(), 6.0f);
    EXPECT_EQ(changes.Take(), 1);
    timer.Tick();
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CConstCaptureParamTimerProxy, FollowsTheCaptureWithTheChangesInside)
{
    CRangeParam source(0.0f, 10.0f);
    CFakeTimerProvider timer;
    const CConstCaptureParamTimerProxy proxy(source, &timer);
    std::string trace;
    CFunctionCommand begun([&] { trace += "begin "; });
    CFunctionCommand changed([&] { trace += "change "; });
    CFunctionCommand ended([&] { trace += "end "; });
    proxy.GetBeginCaptureEventProvider().Connect(begun);
    proxy.GetValueChangedEventProvider().Connect(changed);
    proxy.GetEndCaptureEventProvider().Connect(ended);

    source.BeginCapture();
    source.SetValue(1.0f);
    EXPECT_FALSE(proxy.IsCaptured());
    timer.Tick();
    EXPECT_TRUE(proxy.IsCaptured());
    source.SetValue(2.0f);
    source.EndCapture();
    timer.Tick();
    EXPECT_FALSE(proxy.IsCaptured());
    EXPECT_EQ(trace, "begin change change end ");
}

TEST(CConstCaptureParamTimerProxy, TakesUpACaptureThatHolds)
{
    CRangeParam source(0.0f, 10.0f);
    source.BeginCapture();
    const CConstCaptureParamTimerProxy proxy(source, nullptr);
    EXPECT_TRUE(proxy.IsCaptured());
}

TEST(CConstCaptureParamTimerProxy, TakesOverAChangedDescription)
{
    CRangeParam source(0.0f, 10.0f);
    CFakeTimerProvider timer;
    const CConstCaptureParamTimerProxy proxy(source, &timer);
    CEventCounter changes(proxy.GetInfo().GetChangedEventProvider());
    source.GetInfo().SetMax(20.0f);
    source.GetInfo().SetName("Level");
    EXPECT_EQ(changes.Take(), 0);
    timer.Tick(2);
    EXPECT_EQ(proxy.GetInfo().GetMax(), 20.0f);
    EXPECT_STREQ(proxy.GetInfo().GetName(), "Level");
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CConstCaptureParamTimerProxy, DisabledItStandsStill)
{
    CRangeParam source(0.0f, 10.0f);
    CFakeTimerProvider timer;
    CConstCaptureParamTimerProxy proxy(source, &timer);
    CEventCounter switches(proxy.GetEnableChangedEventProvider());
    proxy.SetRefreshTime(20);
    EXPECT_EQ(proxy.GetRefreshTime(), 20);
    proxy.Enable(false);
    EXPECT_TRUE(timer.periods.empty());
    proxy.SetRefreshTime(30);
    proxy.Enable(true);
    proxy.Enable(true);
    EXPECT_EQ(timer.trace, "+50-+20-+30");
    EXPECT_EQ(switches.Take(), 2);
}

TEST(CConstCaptureParamTimerProxy, DestructionEndsItsConnections)
{
    CRangeParam source(0.0f, 10.0f);
    CFakeTimerProvider timer;
    auto proxy = std::make_unique<CConstCaptureParamTimerProxy>(source, &timer);
    proxy.reset();
    EXPECT_TRUE(timer.periods.empty());
    source.SetValue(1.0f);
    source.GetInfo().SetMax(20.0f);
}

TEST(CCaptureParamTimerProxy, WritesAtOnceAndShowsWhatBecameOfIt)
{
    CRangeParam source(0.0f, 10.0f);
    CFakeTimerProvider timer;
    CCaptureParamTimerProxy proxy(source, &timer);
    CEventCounter changes(proxy.GetValueChangedEventProvider());
    proxy.BeginCapture();
    EXPECT_TRUE(source.IsCaptured());
    EXPECT_TRUE(proxy.IsCaptured());
    proxy.SetValue(12.0f);
    EXPECT_EQ(source.GetValue(), 10.0f);
    EXPECT_EQ(proxy.GetValue(), 10.0f);
    EXPECT_EQ(changes.Take(), 1);
    proxy.EndCapture();
    EXPECT_FALSE(source.IsCaptured());
    EXPECT_FALSE(proxy.IsCaptured());
}

TEST(TConstCaptureObjectTimerProxy, KeepsItsOwnCopyOfAText)
{
    CCaptureString source;
    CFakeTimerProvider timer;
    const CStringProxy proxy(source, &timer);
    CEventCounter changes(proxy.GetValueChangedEventProvider());
    source.SetValue("one");
    timer.Tick();
    EXPECT_STREQ(proxy.GetValue(), "one");
    EXPECT_NE(proxy.GetValue(), source.GetValue());
    timer.Tick();
    EXPECT_EQ(changes.Take(), 1);
}

TEST(TConstCaptureObjectTimerProxy, ClonesAFunctionOnlyAfterAnEvent)
{
    CCaptureCurve source;
    CFakeTimerProvider timer;
    const CCurveProxy proxy(source, &timer);
    CEventCounter changes(proxy.GetValueChangedEventProvider());
    EXPECT_EQ(proxy.GetValue()(0.0f), 0.0f);
    timer.Tick();
    EXPECT_EQ(changes.Take(), 0);
    source.SetValue(Mirel::Math::CConstantFunction(3.0f));
    EXPECT_EQ(proxy.GetValue()(0.0f), 0.0f);
    timer.Tick(2);
    EXPECT_EQ(proxy.GetValue()(0.0f), 3.0f);
    EXPECT_EQ(changes.Take(), 1);
}
