#include "Mirel/DataModel/Objects/CCaptureParam.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;
using Tests::RangeInfo;

namespace
{
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
} // namespace

TEST(CCaptureParam, BeginsAtZeroWhateverItsRange)
{
    const CCaptureParam param(RangeInfo(10.0f, 20.0f));
    EXPECT_EQ(param.GetValue(), 0.0f);
    EXPECT_FALSE(param.IsCaptured());
}

TEST(CCaptureParam, KeepsACopyOfItsDescription)
{
    CParamInfo info = RangeInfo(10.0f, 20.0f);
    const CCaptureParam param(info);
    info.SetMax(30.0f);
    EXPECT_EQ(param.GetInfo().GetMin(), 10.0f);
    EXPECT_EQ(param.GetInfo().GetMax(), 20.0f);
}

TEST(CCaptureParam, AChangeFiresBothEventsAndTheSetLast)
{
    CCaptureParam param(RangeInfo(0.0f, 10.0f));
    std::string trace;
    CFunctionCommand changed([&] { trace += param.GetValue() == 5.0f ? "changed " : "early "; });
    CFunctionCommand set([&] { trace += "set "; });
    param.GetValueChangedEventProvider().Connect(changed);
    param.GetSetEventProvider().Connect(set);
    param.SetValue(5.0f);
    EXPECT_EQ(trace, "changed set ");
    param.SetValue(5.0f);
    EXPECT_EQ(trace, "changed set set ");
}

TEST(CCaptureParam, ValuesBeyondTheRangeAreClamped)
{
    CCaptureParam param(RangeInfo(-1.0f, 10.0f));
    CEventCounter changes(param.GetValueChangedEventProvider());
    CEventCounter sets(param.GetSetEventProvider());
    param.SetValue(11.0f);
    EXPECT_EQ(param.GetValue(), 10.0f);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(sets.Take(), 1);
    // The stored value does not move.
    param.SetValue(12.0f);
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(sets.Take(), 1);
    param.SetValue(-std::numeric_limits<float>::infinity());
    EXPECT_EQ(param.GetValue(), -1.0f);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CCaptureParam, TheMaximumWinsInARangeUpsideDown)
{
    CCaptureParam param(RangeInfo(10.0f, 5.0f));
    param.SetValue(7.0f);
    EXPECT_EQ(param.GetValue(), 5.0f);
}

TEST(CCaptureParam, NaNIsNotStored)
{
    CCaptureParam param(RangeInfo(0.0f, 10.0f));
    param.SetValue(5.0f);
    CEventCounter changes(param.GetValueChangedEventProvider());
    CEventCounter sets(param.GetSetEventProvider());
    param.SetValue(notANumber);
    EXPECT_EQ(param.GetValue(), 5.0f);
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(sets.Take(), 1);
}

TEST(CCaptureParam, AListenerThatSetsTheValueAgainIsNotCalledForItsOwnChange)
{
    CCaptureParam param(RangeInfo(0.0f, 10.0f));
    int calls = 0;
    CFunctionCommand limit(
        [&]
        {
            ++calls;
            param.SetValue(3.0f);
        });
    param.GetValueChangedEventProvider().Connect(limit);
    CEventCounter sets(param.GetSetEventProvider());
    param.SetValue(5.0f);
    EXPECT_EQ(param.GetValue(), 3.0f);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(sets.Take(), 2);
}

TEST(CCaptureParam, CapturesDoNotNest)
{
    CCaptureParam param;
    CEventCounter begins(param.GetBeginCaptureEventProvider());
    CEventCounter ends(param.GetEndCaptureEventProvider());
    param.EndCapture();
    EXPECT_EQ(ends.Take(), 0);
    param.BeginCapture();
    param.BeginCapture();
    EXPECT_TRUE(param.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    param.EndCapture();
    param.EndCapture();
    EXPECT_FALSE(param.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
}

TEST(CCaptureParam, SettingAllocatesNothing)
{
    CCaptureParam param(RangeInfo(0.0f, 10.0f));
    CEventCounter changes(param.GetValueChangedEventProvider());
    const Tests::CAllocationCounter allocations;
    param.SetValue(5.0f);
    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_EQ(changes.Take(), 1);
}
