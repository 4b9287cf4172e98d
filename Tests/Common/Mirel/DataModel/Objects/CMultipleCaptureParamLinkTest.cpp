#include "Mirel/DataModel/Objects/CMultipleCaptureParamLink.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;
using Tests::CRangeParam;

namespace
{

/// Two sources and two targets of different ranges, wired but not enabled.
class CMultipleCaptureParamLinkTest : public testing::Test
{
protected:
    CMultipleCaptureParamLinkTest()
    {
        link->AddSource(&first);
        link->AddSource(&second);
        link->AddTarget(&near);
        link->AddTarget(&far);
    }

    CRangeParam first{0.0f, 10.0f};
    CRangeParam second{0.0f, 100.0f};
    CRangeParam near{0.0f, 50.0f};
    CRangeParam far{100.0f, 300.0f};
    std::unique_ptr<CMultipleCaptureParamLink> link = std::make_unique<CMultipleCaptureParamLink>();
};

} // namespace

TEST_F(CMultipleCaptureParamLinkTest, BeginsDisabledAsAPlainMean)
{
    EXPECT_FALSE(link->IsEnabled());
    EXPECT_EQ(link->GetFunction(), EMuxFunction::Mean);
    EXPECT_FALSE(link->IsNormalized());
    EXPECT_FALSE(link->IsReverse());
    EXPECT_FALSE(link->GetTriggerMin().has_value());
    EXPECT_FALSE(link->GetTriggerMax().has_value());
    first.SetValue(5.0f);
    EXPECT_EQ(near.GetValue(), 0.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, AChangeOfAnySourceWritesEveryTarget)
{
    link->Enable(true);
    first.SetValue(10.0f);
    EXPECT_EQ(near.GetValue(), 5.0f);
    EXPECT_EQ(far.GetValue(), 100.0f);
    second.SetValue(60.0f);
    EXPECT_EQ(near.GetValue(), 35.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, NormalizedTakesEachSourceInItsOwnRange)
{
    link->SetNormalized(true);
    link->Enable(true);
    first.SetValue(5.0f);
    second.SetValue(25.0f);
    // The mean of 0.5 and 0.25.
    EXPECT_EQ(near.GetValue(), 18.75f);
    EXPECT_EQ(far.GetValue(), 175.0f);
    link->SetReverse(true);
    EXPECT_EQ(near.GetValue(), 31.25f);
    link->SetFunction(EMuxFunction::MinusMax);
    // 1 - max is 0.5, and reversed again 0.5.
    EXPECT_EQ(far.GetValue(), 200.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, PlainReverseMirrorsInEachTargetsRange)
{
    link->SetReverse(true);
    link->SetFunction(EMuxFunction::Max);
    link->Enable(true);
    second.SetValue(40.0f);
    EXPECT_EQ(near.GetValue(), 10.0f);
    EXPECT_EQ(far.GetValue(), 300.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, EnablingUpdatesUnlessOnModifyOnly)
{
    first.SetValue(10.0f);
    link->SetOnModifyOnly(true);
    link->Enable(true);
    EXPECT_EQ(near.GetValue(), 0.0f);
    link->SetOnModifyOnly(false);
    link->Enable(false);
    link->Enable(true);
    EXPECT_EQ(near.GetValue(), 5.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, OnlyASourceWithinTheTriggerActs)
{
    link->SetTriggerMin(4.0f);
    link->SetTriggerMax(8.0f);
    near.SetValue(5.0f);
    link->SetFunction(EMuxFunction::Max);
    link->Enable(true);
    for (const float outside : {3.0f, 9.0f})
    {
        first.SetValue(outside);
        EXPECT_EQ(near.GetValue(), 5.0f) << outside;
    }
    first.SetValue(8.0f);
    EXPECT_EQ(near.GetValue(), 8.0f);
    first.SetValue(4.0f);
    EXPECT_EQ(near.GetValue(), 4.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, OnlyATargetWithinTheTriggerIsWritten)
{
    link->SetFunction(EMuxFunction::Max);
    link->SetTriggerMin(2.0f);
    near.SetValue(1.0f);
    far.SetValue(250.0f);
    link->Enable(true);
    first.SetValue(7.0f);
    EXPECT_EQ(near.GetValue(), 1.0f);
    EXPECT_EQ(far.GetValue(), 100.0f);
    near.SetValue(2.0f);
    first.SetValue(8.0f);
    EXPECT_EQ(near.GetValue(), 8.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, WithoutASourceInParticularOneHasToPassTheTrigger)
{
    link->SetTriggerMax(-1.0f);
    first.SetValue(10.0f);
    near.SetValue(20.0f);
    link->Enable(true);
    link->Update();
    EXPECT_EQ(near.GetValue(), 20.0f);
    link->SetTriggerMax(20.0f);
    EXPECT_EQ(near.GetValue(), 5.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, TheSourceThatChangedIsNotWritten)
{
    link->AddTarget(&first);
    link->AddTarget(&second);
    link->SetNormalized(true);
    link->SetFunction(EMuxFunction::Max);
    link->SetOnModifyOnly(true);
    link->Enable(true);
    first.SetValue(4.0f);
    EXPECT_EQ(first.GetValue(), 4.0f);
    EXPECT_FLOAT_EQ(second.GetValue(), 40.0f);
    EXPECT_FLOAT_EQ(near.GetValue(), 20.0f);
}

TEST_F(CMultipleCaptureParamLinkTest, CapturesOfASourceGoToEveryOtherObject)
{
    link->AddTarget(&first);
    link->Enable(true);
    first.BeginCapture();
    EXPECT_TRUE(near.IsCaptured());
    EXPECT_TRUE(far.IsCaptured());
    first.EndCapture();
    EXPECT_FALSE(near.IsCaptured());
    second.BeginCapture();
    EXPECT_TRUE(first.IsCaptured());
    link->Enable(false);
    EXPECT_FALSE(first.IsCaptured());
    EXPECT_FALSE(near.IsCaptured());
    EXPECT_FALSE(far.IsCaptured());
    EXPECT_TRUE(second.IsCaptured());
    link->Enable(true);
    EXPECT_TRUE(far.IsCaptured());
    link.reset();
    EXPECT_FALSE(far.IsCaptured());
}

TEST_F(CMultipleCaptureParamLinkTest, ObjectsComeAndGoWhileItIsEnabled)
{
    CRangeParam third(0.0f, 10.0f, 9.0f);
    CRangeParam other(0.0f, 10.0f);
    link->Enable(true);
    link->AddSource(nullptr);
    link->AddTarget(nullptr);
    link->AddSource(&third);
    EXPECT_EQ(near.GetValue(), 3.0f);
    link->AddTarget(&other);
    EXPECT_EQ(other.GetValue(), 3.0f);
    third.BeginCapture();
    EXPECT_TRUE(other.IsCaptured());
    link->RemoveTarget(&other);
    EXPECT_FALSE(other.IsCaptured());
    link->AddTarget(&other);
    EXPECT_TRUE(other.IsCaptured());
    link->RemoveSource(&third);
    EXPECT_FALSE(other.IsCaptured());
    EXPECT_FALSE(near.IsCaptured());
    first.SetValue(4.0f);
    EXPECT_EQ(other.GetValue(), 2.0f);
    third.SetValue(1.0f);
    EXPECT_EQ(other.GetValue(), 2.0f);
    EXPECT_EQ(link->GetSources().size(), 2U);
    EXPECT_EQ(link->GetTargets().size(), 3U);
}

TEST_F(CMultipleCaptureParamLinkTest, SettersFireOnAChangeOnly)
{
    CEventCounter changes(link->GetChangedEventProvider());
    link->SetFunction(EMuxFunction::Mean);
    link->SetNormalized(false);
    link->SetReverse(false);
    link->SetTriggerMin(std::nullopt);
    link->SetOnModifyOnly(false);
    link->Enable(false);
    EXPECT_EQ(changes.Take(), 0);
    link->SetFunction(EMuxFunction::Max);
    link->SetNormalized(true);
    link->SetReverse(true);
    link->SetTriggerMin(1.0f);
    link->SetTriggerMin(1.0f);
    link->SetTriggerMin(std::numeric_limits<float>::quiet_NaN());
    link->SetTriggerMax(2.0f);
    link->SetTriggerMax(std::nullopt);
    link->SetOnModifyOnly(true);
    link->Enable(true);
    EXPECT_EQ(changes.Take(), 8);
}

TEST_F(CMultipleCaptureParamLinkTest, AListenerOfATargetMayChangeOrDestroyTheLink)
{
    link->Enable(true);
    CFunctionCommand drop([this] { link->RemoveTarget(&far); });
    near.GetValueChangedEventProvider().Connect(drop);
    second.SetValue(80.0f);
    EXPECT_EQ(far.GetValue(), 100.0f);
    near.GetValueChangedEventProvider().Disconnect(&drop);

    for (Mirel::Core::IEventProvider* event :
         {&near.GetValueChangedEventProvider(), &near.GetBeginCaptureEventProvider(),
          &near.GetEndCaptureEventProvider()})
    {
        link = std::make_unique<CMultipleCaptureParamLink>();
        link->AddSource(&first);
        link->AddSource(&second);
        link->AddTarget(&near);
        link->AddTarget(&far);
        link->Enable(true);
        CFunctionCommand destroy([this] { link.reset(); });
        event->Connect(destroy);
        second.SetValue(second.GetValue() - 10.0f);
        second.BeginCapture();
        second.EndCapture();
        EXPECT_EQ(link, nullptr);
        event->Disconnect(&destroy);
    }
}

TEST_F(CMultipleCaptureParamLinkTest, AListenerThatRewiresTheLinkLeavesNoTargetInTheWrongCapture)
{
    link->Enable(true);
    CFunctionCommand disable([this] { link->Enable(false); });
    near.GetBeginCaptureEventProvider().Connect(disable);
    first.BeginCapture();
    EXPECT_FALSE(near.IsCaptured());
    EXPECT_FALSE(far.IsCaptured());
    near.GetBeginCaptureEventProvider().Disconnect(&disable);
    first.EndCapture();
    link->Enable(true);

    CRangeParam more(0.0f, 1.0f);
    CFunctionCommand add([&] { link->AddTarget(&more); });
    near.GetBeginCaptureEventProvider().Connect(add);
    first.BeginCapture();
    EXPECT_TRUE(far.IsCaptured());
    EXPECT_TRUE(more.IsCaptured());
    near.GetBeginCaptureEventProvider().Disconnect(&add);
    near.GetEndCaptureEventProvider().Connect(add);
    first.EndCapture();
    EXPECT_FALSE(far.IsCaptured());
    EXPECT_FALSE(more.IsCaptured());
    near.GetEndCaptureEventProvider().Disconnect(&add);
    link.reset();
}

TEST_F(CMultipleCaptureParamLinkTest, AListenerMayDestroyTheLinkWhileItIsDisabled)
{
    first.BeginCapture();
    second.BeginCapture();
    link->Enable(true);
    CFunctionCommand destroy(
        [this]
        {
            link.reset();
            second.SetValue(20.0f);
        });
    near.GetEndCaptureEventProvider().Connect(destroy);
    link->Enable(false);
    EXPECT_EQ(link, nullptr);
    near.GetEndCaptureEventProvider().Disconnect(&destroy);
}

TEST_F(CMultipleCaptureParamLinkTest, UpdatesAllocateNothingOnceWarm)
{
    link->Enable(true);
    first.SetValue(1.0f);
    const Tests::CAllocationCounter allocations;
    first.SetValue(2.0f);
    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_EQ(near.GetValue(), 1.0f);
}
