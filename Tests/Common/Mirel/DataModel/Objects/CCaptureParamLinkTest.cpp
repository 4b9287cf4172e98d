#include "Mirel/DataModel/Objects/CCaptureParamLink.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <tuple>
#include <utility>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFreeParam;
using Tests::CFunctionCommand;
using Tests::CLambdaFunction;
using Tests::CRangeParam;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

void Wire(CCaptureParamLink& link, const IConstCaptureParam& source, ICaptureParam& target)
{
    link.SetSource(&source);
    link.SetTarget(&target);
}

enum EResponse
{
    ResponseNone,
    ResponseCurve,
    ResponseFormula,
};

double ModelResponse(EResponse response, double x)
{
    switch (response)
    {
    case ResponseNone:
        break;
    case ResponseCurve:
        return x * x;
    case ResponseFormula:
        return 1.5 * x - 0.25;
    }
    return x;
}

/// normalized, reverse, diff, on modify, response, source captured, source without width, target without
/// width
using Setting = std::tuple<bool, bool, bool, bool, EResponse, bool, bool, bool>;

/// What a link does, told again in double precision and without objects.
class CModelLink
{
public:
    CModelLink(const Setting& setting, double sourceMin_, double sourceMax_, double targetMin_,
               double targetMax_, double target_)
        : target(target_),
          sourceMin(sourceMin_),
          sourceMax(sourceMax_),
          targetMin(targetMin_),
          targetMax(targetMax_)
    {
        bool captured = false;
        bool flatSource = false;
        bool flatTarget = false;
        std::tie(normalized, reverse, diff, onModify, response, captured, flatSource, flatTarget) = setting;
    }

    void Change(double value)
    {
        const bool same = !(value < last) && !(value > last);
        if (!(onModify && same))
        {
            Write(diff ? target + Transformed(value) - Transformed(last) : Transformed(value));
        }
        last = value;
    }

    double target;
    int writes = 0;

private:
    double Transformed(double x) const
    {
        if (!normalized)
        {
            const double y = ModelResponse(response, x);
            return reverse ? targetMax - y + targetMin : y;
        }
        const double width = sourceMax - sourceMin;
        double y = ModelResponse(response, (x - sourceMin) / (width > 0.0 ? width : 1.0));
        y = reverse ? 1.0 - y : y;
        y = y < 0.0 ? 0.0 : y;
        y = y > 1.0 ? 1.0 : y;
        return targetMin + y * (targetMax - targetMin);
    }

    void Write(double value)
    {
        ++writes;
        if (!std::isnan(value))
        {
            target = std::fmin(std::fmax(value, targetMin), targetMax);
        }
    }

    double sourceMin;
    double sourceMax;
    double targetMin;
    double targetMax;
    bool normalized = false;
    bool reverse = false;
    bool diff = false;
    bool onModify = false;
    EResponse response = ResponseNone;
    double last = 0.0;
};

class CCaptureParamLinkSettings : public testing::TestWithParam<Setting>
{
};

} // namespace

TEST_P(CCaptureParamLinkSettings, WritesWhatTheSettingsSay)
{
    const auto [normalized, reverse, diff, onModify, response, captured, flatSource, flatTarget] = GetParam();
    const double sourceMax = flatSource ? 1.0 : 10.0;
    const double sourceMin = flatSource ? 1.0 : -2.0;
    const double targetMin = 100.0;
    const double targetMax = flatTarget ? targetMin : 200.0;
    CFreeParam source(static_cast<float>(sourceMin), static_cast<float>(sourceMax));
    CRangeParam target(static_cast<float>(targetMin), static_cast<float>(targetMax), 150.0f);
    CModelLink model(GetParam(), sourceMin, sourceMax, targetMin, targetMax, flatTarget ? targetMin : 150.0);
    CCaptureParamLink link;
    link.SetNormalized(normalized);
    link.SetReverse(reverse);
    link.SetDiff(diff);
    link.SetOnModifyOnly(onModify);
    if (response == ResponseCurve)
    {
        link.SetResponse(GetResponsePair(8).function, false);
    }
    else if (response == ResponseFormula)
    {
        link.SetResponse(new CLambdaFunction([](float x) { return 1.5f * x - 0.25f; }), true);
    }
    if (captured)
    {
        source.BeginCapture();
    }
    CEventCounter writes(target.GetSetEventProvider());

    constexpr float first = 3.0f;
    source.Fire(first);
    Wire(link, source, target);
    link.Enable(true);
    if (!onModify)
    {
        model.Change(static_cast<double>(first));
    }
    EXPECT_EQ(target.IsCaptured(), captured);
    EXPECT_NEAR(target.GetValue(), model.target, 1e-3);

    for (const float value : {2.5f, 2.5f, 7.0f, -3.0f, 12.0f, 0.5f, notANumber, 4.0f, 4.0f, 1.0f, notANumber,
                              notANumber, 0.0f, 130.0f, 9.0f})
    {
        source.Fire(value);
        model.Change(static_cast<double>(value));
        EXPECT_NEAR(target.GetValue(), model.target, 1e-3) << value;
        EXPECT_EQ(writes.Take(), std::exchange(model.writes, 0)) << value;
    }

    captured ? source.EndCapture() : source.BeginCapture();
    EXPECT_EQ(target.IsCaptured(), !captured);
    link.Enable(false);
    EXPECT_FALSE(target.IsCaptured());
}

INSTANTIATE_TEST_SUITE_P(All, CCaptureParamLinkSettings,
                         testing::Combine(testing::Bool(), testing::Bool(), testing::Bool(), testing::Bool(),
                                          testing::Values(ResponseNone, ResponseCurve, ResponseFormula),
                                          testing::Bool(), testing::Bool(), testing::Bool()));

TEST(CCaptureParamLink, BeginsPlainForwardWithoutDiff)
{
    const CCaptureParamLink link;
    EXPECT_FALSE(link.IsNormalized());
    EXPECT_FALSE(link.IsReverse());
    EXPECT_FALSE(link.IsDiff());
    EXPECT_FALSE(link.IsOnModifyOnly());
    EXPECT_FALSE(link.IsEnabled());
    EXPECT_EQ(link.GetLastSourceValue(), 0.0f);
    EXPECT_EQ(link.GetResponse()(0.3f), 0.3f);
}

TEST(CCaptureParamLink, NormalizedReverseMirrorsThePosition)
{
    CRangeParam source(0.0f, 10.0f);
    CRangeParam target(100.0f, 200.0f);
    CCaptureParamLink link;
    link.SetNormalized(true);
    link.SetReverse(true);
    Wire(link, source, target);
    link.Enable(true);
    source.SetValue(2.5f);
    EXPECT_EQ(target.GetValue(), 175.0f);
}

TEST(CCaptureParamLink, PlainReverseMirrorsTheValueInTheTargetsRange)
{
    CRangeParam source(0.0f, 1000.0f);
    CRangeParam target(100.0f, 200.0f);
    CCaptureParamLink link;
    link.SetReverse(true);
    Wire(link, source, target);
    link.Enable(true);
    source.SetValue(130.0f);
    EXPECT_EQ(target.GetValue(), 170.0f);
}

TEST(CCaptureParamLink, NormalizedSourceWithoutWidthGivesItsOffsetClamped)
{
    CFreeParam source(4.0f, 4.0f);
    CRangeParam target(100.0f, 200.0f);
    CCaptureParamLink link;
    link.SetNormalized(true);
    Wire(link, source, target);
    link.Enable(true);
    source.Fire(4.25f);
    EXPECT_EQ(target.GetValue(), 125.0f);
    source.Fire(9.0f);
    EXPECT_EQ(target.GetValue(), 200.0f);
    source.Fire(0.0f);
    EXPECT_EQ(target.GetValue(), 100.0f);
}

TEST(CCaptureParamLink, OnModifyIgnoresARepeatedValueAndWithoutItTheTargetIsWrittenAgain)
{
    CFreeParam source(0.0f, 10.0f);
    CRangeParam target(0.0f, 10.0f);
    CCaptureParamLink link;
    Wire(link, source, target);
    link.Enable(true);
    source.Fire(5.0f);
    CEventCounter writes(target.GetSetEventProvider());
    source.Fire(5.0f);
    EXPECT_EQ(writes.Take(), 1);

    link.SetOnModifyOnly(true);
    target.SetValue(1.0f);
    writes.Take();
    source.Fire(5.0f);
    EXPECT_EQ(writes.Take(), 0);
    EXPECT_EQ(target.GetValue(), 1.0f);
    source.Fire(6.0f);
    EXPECT_EQ(target.GetValue(), 6.0f);
}

TEST(CCaptureParamLink, DiffLeavesRoomForOtherWriters)
{
    CRangeParam source(0.0f, 10.0f);
    CRangeParam target(0.0f, 100.0f);
    CCaptureParamLink link;
    link.SetDiff(true);
    Wire(link, source, target);
    link.Enable(true);
    source.SetValue(3.0f);
    EXPECT_EQ(target.GetValue(), 3.0f);
    target.SetValue(50.0f);
    source.SetValue(5.0f);
    EXPECT_EQ(target.GetValue(), 52.0f);
    source.SetValue(0.0f);
    EXPECT_EQ(target.GetValue(), 47.0f);
}

TEST(CCaptureParamLink, WithoutATargetTheSourceValueIsRemembered)
{
    CRangeParam source(0.0f, 10.0f);
    CRangeParam target(0.0f, 100.0f, 20.0f);
    CCaptureParamLink link;
    link.SetDiff(true);
    link.SetOnModifyOnly(true);
    link.SetSource(&source);
    link.Enable(true);
    source.SetValue(4.0f);
    EXPECT_EQ(link.GetLastSourceValue(), 4.0f);
    link.SetTarget(&target);
    source.SetValue(5.0f);
    EXPECT_EQ(target.GetValue(), 21.0f);
}

TEST(CCaptureParamLink, SettersUpdateAndFireOnAChangeOnly)
{
    CRangeParam source(0.0f, 10.0f, 2.0f);
    CRangeParam target(0.0f, 100.0f);
    CCaptureParamLink link;
    Wire(link, source, target);
    link.Enable(true);
    CEventCounter changes(link.GetChangedEventProvider());
    CEventCounter writes(target.GetSetEventProvider());

    link.SetNormalized(false);
    link.SetReverse(false);
    link.SetDiff(false);
    link.SetResponse(nullptr, false);
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(writes.Take(), 0);

    link.SetNormalized(true);
    EXPECT_EQ(target.GetValue(), 20.0f);
    link.SetReverse(true);
    EXPECT_EQ(target.GetValue(), 80.0f);
    const auto* square = GetResponsePair(8).function;
    link.SetResponse(square, false);
    EXPECT_FLOAT_EQ(target.GetValue(), 96.0f);
    link.SetResponse(square, false);
    link.SetDiff(true);
    EXPECT_FLOAT_EQ(target.GetValue(), 96.0f);
    EXPECT_EQ(changes.Take(), 4);
    EXPECT_EQ(writes.Take(), 4);
}

TEST(CCaptureParamLink, SettersOfAnOnModifyOrDisabledLinkWriteNothing)
{
    CRangeParam source(0.0f, 10.0f, 2.0f);
    CRangeParam target(0.0f, 100.0f);
    CCaptureParamLink link;
    Wire(link, source, target);
    CEventCounter changes(link.GetChangedEventProvider());
    link.SetNormalized(true);
    EXPECT_EQ(target.GetValue(), 0.0f);
    link.SetOnModifyOnly(true);
    link.Enable(true);
    link.SetReverse(true);
    EXPECT_EQ(target.GetValue(), 0.0f);
    EXPECT_EQ(changes.Take(), 4);
}

TEST(CCaptureParamLink, AnOwnedResponseDiesWithTheLinkOrItsSuccessor)
{
    int deaths = 0;
    CLambdaFunction borrowed([](float x) { return x; }, &deaths);
    {
        CCaptureParamLink link;
        link.SetResponse(new CLambdaFunction([](float x) { return x; }, &deaths), true);
        link.SetResponse(new CLambdaFunction([](float x) { return x; }, &deaths), true);
        EXPECT_EQ(deaths, 1);
        link.SetResponse(&borrowed, false);
        EXPECT_EQ(deaths, 2);
        link.SetResponse(new CLambdaFunction([](float x) { return x; }, &deaths), true);
        EXPECT_EQ(deaths, 2);
    }
    EXPECT_EQ(deaths, 3);
}

TEST(CCaptureParamLink, TwoLinksThatFaceEachOtherSettle)
{
    for (const bool diff : {false, true})
    {
        CRangeParam a(0.0f, 10.0f);
        CRangeParam b(0.0f, 10.0f);
        CCaptureParamLink there;
        CCaptureParamLink back;
        for (CCaptureParamLink* link : {&there, &back})
        {
            link->SetDiff(diff);
            link->Enable(true);
        }
        Wire(there, a, b);
        Wire(back, b, a);
        CEventCounter changes(a.GetValueChangedEventProvider());
        a.SetValue(4.0f);
        EXPECT_EQ(b.GetValue(), 4.0f);
        // A diff link adds the movement that came back.
        EXPECT_EQ(a.GetValue(), diff ? 8.0f : 4.0f);
        EXPECT_EQ(changes.Take(), diff ? 2 : 1);
        a.BeginCapture();
        EXPECT_TRUE(b.IsCaptured());
        a.EndCapture();
        EXPECT_FALSE(b.IsCaptured());
    }
}

TEST(CCaptureParamLink, TheTargetsListenerMayDestroyTheLink)
{
    CRangeParam source(0.0f, 10.0f);
    CRangeParam target(0.0f, 10.0f);
    auto link = std::make_unique<CCaptureParamLink>();
    Wire(*link, source, target);
    link->Enable(true);
    CFunctionCommand destroy([&] { link.reset(); });
    target.GetValueChangedEventProvider().Connect(destroy);
    source.SetValue(1.0f);
    EXPECT_EQ(link, nullptr);

    link = std::make_unique<CCaptureParamLink>();
    Wire(*link, source, target);
    target.SetValue(0.0f);
    link = std::make_unique<CCaptureParamLink>();
    Wire(*link, source, target);
    link->SetOnModifyOnly(true);
    link->Enable(true);
    link->SetOnModifyOnly(false);
    link->SetReverse(true);
    EXPECT_EQ(link, nullptr);
    target.GetValueChangedEventProvider().Disconnect(&destroy);
}

TEST(CCaptureParamLink, UpdatesAllocateNothing)
{
    CRangeParam source(0.0f, 10.0f);
    CRangeParam target(0.0f, 10.0f);
    CCaptureParamLink link;
    link.SetNormalized(true);
    Wire(link, source, target);
    link.Enable(true);
    const Tests::CAllocationCounter allocations;
    source.SetValue(1.0f);
    source.SetValue(2.0f);
    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_EQ(target.GetValue(), 2.0f);
}
