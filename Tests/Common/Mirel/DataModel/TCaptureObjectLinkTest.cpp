#include "Mirel/DataModel/TCaptureObjectLink.h"

#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel;
using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;

namespace
{

using CStringLink = TCaptureObjectLink<IConstCaptureString, ICaptureString>;
using CCurveLink = TCaptureObjectLink<IConstCaptureCurve, ICaptureCurve>;

/// Leaves captures where they are.
class CQuietLink : public TBaseCaptureObjectLink<IConstCaptureString, ICaptureParam>
{
public:
    CQuietLink() : TBaseCaptureObjectLink(false) {}
    void Update() override { ++updates; }

    int updates = 0;
};

class CStringLinkTest : public testing::Test
{
protected:
    void Wire()
    {
        link->SetSource(&source);
        link->SetTarget(&target);
    }

    void WireAndEnable()
    {
        Wire();
        link->Enable(true);
    }

    CCaptureString source;
    CCaptureString target;
    std::unique_ptr<CStringLink> link = std::make_unique<CStringLink>();
};

} // namespace

TEST_F(CStringLinkTest, HandsTheValueOn)
{
    WireAndEnable();
    source.SetValue("one");
    EXPECT_STREQ(target.GetValue(), "one");
    source.SetValue("two");
    EXPECT_STREQ(target.GetValue(), "two");
}

TEST_F(CStringLinkTest, BeginsDisabledAndDoesNothingThen)
{
    Wire();
    EXPECT_FALSE(link->IsEnabled());
    source.SetValue("one");
    EXPECT_STREQ(target.GetValue(), "");
}

TEST_F(CStringLinkTest, EnablingUpdatesOnce)
{
    source.SetValue("one");
    WireAndEnable();
    EXPECT_STREQ(target.GetValue(), "one");
}

TEST_F(CStringLinkTest, EnablingAnOnModifyLinkWaitsForAChange)
{
    source.SetValue("one");
    link->SetOnModifyOnly(true);
    WireAndEnable();
    EXPECT_STREQ(target.GetValue(), "");
    source.SetValue("two");
    EXPECT_STREQ(target.GetValue(), "two");
}

TEST_F(CStringLinkTest, DisablingCutsTheConnection)
{
    WireAndEnable();
    link->Enable(false);
    source.SetValue("one");
    EXPECT_STREQ(target.GetValue(), "");
}

TEST_F(CStringLinkTest, EnablingTwiceConnectsOnce)
{
    CCaptureString text;
    CQuietLink counting;
    counting.SetSource(&text);
    counting.Enable(true);
    counting.Enable(true);
    EXPECT_EQ(counting.updates, 1);
    text.SetValue("one");
    EXPECT_EQ(counting.updates, 2);
}

TEST_F(CStringLinkTest, IsInertWithoutSourceOrTarget)
{
    link->Enable(true);
    link->Update();
    link->SetSource(&source);
    source.SetValue("one");
    source.BeginCapture();
    source.EndCapture();
    link->SetSource(nullptr);
    link->SetTarget(&target);
    link->Update();
    EXPECT_STREQ(target.GetValue(), "");
}

TEST_F(CStringLinkTest, AnObjectGivenToAnEnabledLinkIsConnectedAtOnce)
{
    source.SetValue("one");
    link->Enable(true);
    Wire();
    EXPECT_STREQ(target.GetValue(), "one");

    CCaptureString other;
    link->SetSource(&other);
    EXPECT_STREQ(target.GetValue(), "");
    source.SetValue("two");
    EXPECT_STREQ(target.GetValue(), "");
    other.SetValue("three");
    EXPECT_STREQ(target.GetValue(), "three");
    link->SetSource(nullptr);
}

TEST_F(CStringLinkTest, CapturesGoThrough)
{
    WireAndEnable();
    source.BeginCapture();
    EXPECT_TRUE(target.IsCaptured());
    source.EndCapture();
    EXPECT_FALSE(target.IsCaptured());
}

TEST_F(CStringLinkTest, EnablingPassesOnACaptureThatHolds)
{
    source.BeginCapture();
    WireAndEnable();
    EXPECT_TRUE(target.IsCaptured());
}

TEST_F(CStringLinkTest, DisablingEndsAForwardedCapture)
{
    WireAndEnable();
    source.BeginCapture();
    link->Enable(false);
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_TRUE(source.IsCaptured());

    // One that did not come through the link stays.
    target.BeginCapture();
    source.EndCapture();
    link->Enable(true);
    link->Enable(false);
    EXPECT_TRUE(target.IsCaptured());
}

TEST_F(CStringLinkTest, AnotherTargetTakesTheCaptureOver)
{
    CCaptureString other;
    WireAndEnable();
    source.BeginCapture();
    link->SetTarget(&other);
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_TRUE(other.IsCaptured());
    link.reset();
    EXPECT_FALSE(other.IsCaptured());
}

TEST_F(CStringLinkTest, DestructionDisconnects)
{
    WireAndEnable();
    link.reset();
    source.SetValue("one");
    source.BeginCapture();
    EXPECT_STREQ(target.GetValue(), "");
    EXPECT_FALSE(target.IsCaptured());
}

TEST_F(CStringLinkTest, EverySettingFires)
{
    CEventCounter changes(link->GetChangedEventProvider());
    CEventCounter switches(link->GetEnableChangedEventProvider());
    link->Enable(true);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(switches.Take(), 1);
    link->Enable(true);
    link->SetOnModifyOnly(false);
    EXPECT_EQ(changes.Take(), 0);
    link->SetOnModifyOnly(true);
    EXPECT_EQ(changes.Take(), 1);
    link->Enable(false);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CStringLinkTest, TheTargetsListenerMayDestroyTheLink)
{
    CFunctionCommand destroy([this] { link.reset(); });
    WireAndEnable();
    target.GetValueChangedEventProvider().Connect(destroy);
    source.SetValue("one");
    EXPECT_EQ(link, nullptr);
    EXPECT_STREQ(target.GetValue(), "one");
    target.GetValueChangedEventProvider().Disconnect(&destroy);
}

TEST_F(CStringLinkTest, TheTargetsListenerMayDestroyTheLinkWhileItIsEnabledOrRewired)
{
    CFunctionCommand destroy([this] { link.reset(); });
    source.SetValue("one");
    source.BeginCapture();
    target.GetBeginCaptureEventProvider().Connect(destroy);
    WireAndEnable();
    EXPECT_EQ(link, nullptr);
    EXPECT_FALSE(target.IsCaptured());
    target.GetBeginCaptureEventProvider().Disconnect(&destroy);

    target.GetEndCaptureEventProvider().Connect(destroy);
    link = std::make_unique<CStringLink>();
    WireAndEnable();
    link->SetTarget(nullptr);
    EXPECT_EQ(link, nullptr);
    link = std::make_unique<CStringLink>();
    WireAndEnable();
    link->Enable(false);
    EXPECT_EQ(link, nullptr);
    target.GetEndCaptureEventProvider().Disconnect(&destroy);
}

TEST_F(CStringLinkTest, TheTargetsListenerMayDisableTheLinkWhileItIsBeingEnabled)
{
    CFunctionCommand disable([this] { link->Enable(false); });
    source.SetValue("one");
    source.BeginCapture();
    target.GetBeginCaptureEventProvider().Connect(disable);
    WireAndEnable();
    EXPECT_FALSE(link->IsEnabled());
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_STREQ(target.GetValue(), "");
    target.GetBeginCaptureEventProvider().Disconnect(&disable);
}

TEST(TBaseCaptureObjectLink, CapturesStayWithTheSourceWhereTheyAreNotForwarded)
{
    CCaptureString source;
    CCaptureParam target;
    CQuietLink link;
    link.SetSource(&source);
    link.SetTarget(&target);
    source.BeginCapture();
    link.Enable(true);
    EXPECT_FALSE(target.IsCaptured());
    source.EndCapture();
    source.BeginCapture();
    EXPECT_FALSE(target.IsCaptured());
    target.BeginCapture();
    link.Enable(false);
    EXPECT_TRUE(target.IsCaptured());
}

TEST(TCaptureObjectLink, ACurveIsClonedByTheTarget)
{
    CCaptureCurve target;
    {
        CCaptureCurve source;
        CCurveLink link;
        link.SetSource(&source);
        link.SetTarget(&target);
        link.Enable(true);
        source.SetValue(Mirel::Math::CConstantFunction(3.0f));
        EXPECT_NE(&source.GetValue(), &target.GetValue());
    }
    EXPECT_EQ(target.GetValue()(0.0f), 3.0f);
}

TEST(TCaptureObjectLink, AnObjectMayBeLinkedToItself)
{
    CCaptureString text;
    CStringLink link;
    link.SetSource(&text);
    link.SetTarget(&text);
    link.Enable(true);
    text.SetValue("one");
    text.BeginCapture();
    text.EndCapture();
    EXPECT_STREQ(text.GetValue(), "one");
}
