#include "Mirel/DataModel/Objects/CCaptureParamToStringLink.h"

#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;

namespace
{

class CCaptureParamToStringLinkTest : public testing::Test
{
protected:
    CCaptureParamToStringLinkTest() { param.SetValue(440.0F); }

    void Wire()
    {
        link->SetSource(&param);
        link->SetTarget(&string);
    }

    void WireAndEnable()
    {
        Wire();
        link->Enable(true);
    }

    CCaptureParam param{CParamInfo(2, 0.0F, 1000.0F, 100.0F, "Frequency", "Hz", "")};
    CCaptureString string;
    std::unique_ptr<CCaptureParamToStringLink> link = std::make_unique<CCaptureParamToStringLink>();
};

} // namespace

TEST_F(CCaptureParamToStringLinkTest, TextIsThatOfTheParametersConverterABlankAndTheUnit)
{
    WireAndEnable();
    EXPECT_STREQ(string.GetValue(), "440.00 Hz");
    param.GetInfo().SetValueToText(new CParamValueToText("%.0f", false, "<{value}>"), true);
    EXPECT_STREQ(string.GetValue(), "<440> Hz");
    param.SetValue(20.0F);
    EXPECT_STREQ(string.GetValue(), "<20> Hz");
}

TEST_F(CCaptureParamToStringLinkTest, FormatIsOneDecimalWhereThePatternAsksForTheNumber)
{
    WireAndEnable();
    EXPECT_STREQ(link->GetConverter().GetFormat(), "%.1f");
    EXPECT_STREQ(link->GetConverter().GetPattern(), "{text_value} {unit}");
    EXPECT_FALSE(link->GetConverter().IsMetric());
    EXPECT_EQ(link->GetConverter().GetSignificantDigits(), -1);
    link->GetConverter().SetPattern("{value}");
    EXPECT_STREQ(string.GetValue(), "440.0");
}

TEST_F(CCaptureParamToStringLinkTest, FormatAndPatternCanBeReplacedAndShowAtOnce)
{
    WireAndEnable();
    CEventCounter changes(link->GetChangedEventProvider());
    link->GetConverter().SetPattern("{name}: {value}{unit} of {max}");
    EXPECT_STREQ(string.GetValue(), "Frequency: 440.0Hz of 1000.0");
    link->GetConverter().SetFormat("%.3f");
    EXPECT_STREQ(string.GetValue(), "Frequency: 440.000Hz of 1000.000");
    link->GetConverter().SetFormat("%.0f");
    link->GetConverter().SetMetric(true);
    EXPECT_STREQ(string.GetValue(), "Frequency: 440Hz of 1k");
    link->GetConverter().SetSignificantDigits(1);
    EXPECT_STREQ(string.GetValue(), "Frequency: 400Hz of 1k");
    EXPECT_EQ(changes.Take(), 5);
    link->GetConverter().SetSignificantDigits(1);
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(CCaptureParamToStringLinkTest, ConverterMayBeSetBeforeTheLinkIsWired)
{
    link->GetConverter().SetFormat("%.2f");
    link->GetConverter().SetPattern("{value}");
    WireAndEnable();
    EXPECT_STREQ(string.GetValue(), "440.00");
}

TEST_F(CCaptureParamToStringLinkTest, DescriptionFollowsTheParameters)
{
    WireAndEnable();
    param.GetInfo().SetUnit("kHz");
    EXPECT_STREQ(string.GetValue(), "440.00 kHz");
    EXPECT_STREQ(link->GetConverter().GetParamInfo().GetUnit(), "kHz");

    CCaptureParam other(CParamInfo(1, 0.0F, 8.0F, 0.0F, "Count", "pcs", ""));
    other.SetValue(3.0F);
    link->SetSource(&other);
    EXPECT_STREQ(string.GetValue(), "3 pcs");
    param.GetInfo().SetUnit("Hz");
    param.SetValue(1.0F);
    EXPECT_STREQ(string.GetValue(), "3 pcs");
    link->SetSource(nullptr);
}

TEST_F(CCaptureParamToStringLinkTest, NothingHappensWithoutSourceOrTarget)
{
    link->Enable(true);
    link->Update();
    link->SetSource(&param);
    param.SetValue(20.0F);
    param.GetInfo().SetUnit("kHz");
    link->Update();
    link->SetSource(nullptr);
    link->SetTarget(&string);
    link->Update();
    link->GetConverter().SetFormat("%.3f");
    EXPECT_STREQ(string.GetValue(), "");
}

TEST_F(CCaptureParamToStringLinkTest, CaptureStaysOnTheParameter)
{
    param.BeginCapture();
    WireAndEnable();
    EXPECT_FALSE(string.IsCaptured());
    param.EndCapture();
    param.BeginCapture();
    EXPECT_FALSE(string.IsCaptured());
}

TEST_F(CCaptureParamToStringLinkTest, TheSameTextFiresNothing)
{
    WireAndEnable();
    CEventCounter changes(string.GetValueChangedEventProvider());
    param.SetValue(440.001F);
    EXPECT_EQ(changes.Take(), 0);
    param.SetValue(440.25F);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CCaptureParamToStringLinkTest, OnModifyOnlyWaitsForAChangeOfTheParameterOrItsDescription)
{
    link->SetOnModifyOnly(true);
    WireAndEnable();
    link->GetConverter().SetPattern("{value}");
    EXPECT_STREQ(string.GetValue(), "");
    param.SetValue(20.0F);
    EXPECT_STREQ(string.GetValue(), "20.0");
    link->GetConverter().SetPattern("{unit}");
    EXPECT_STREQ(string.GetValue(), "20.0");
    param.GetInfo().SetUnit("kHz");
    EXPECT_STREQ(string.GetValue(), "kHz");
}

TEST_F(CCaptureParamToStringLinkTest, DisabledLinkIsSilentAndUpdatesOnRequestWithTheCurrentDescription)
{
    WireAndEnable();
    link->Enable(false);
    CEventCounter changes(link->GetChangedEventProvider());
    param.SetValue(20.0F);
    param.GetInfo().SetUnit("kHz");
    EXPECT_STREQ(string.GetValue(), "440.00 Hz");
    link->Update();
    EXPECT_STREQ(string.GetValue(), "20.00 kHz");
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(CCaptureParamToStringLinkTest, LeavesNoConnectionBehind)
{
    WireAndEnable();
    link.reset();
    param.SetValue(20.0F);
    param.GetInfo().SetUnit("kHz");
    EXPECT_STREQ(string.GetValue(), "440.00 Hz");
}

TEST_F(CCaptureParamToStringLinkTest, TheStringsListenerMayDestroyTheLink)
{
    WireAndEnable();
    Tests::CFunctionCommand destroying([this] { link.reset(); });
    string.GetValueChangedEventProvider().Connect(destroying);
    param.SetValue(20.0F);
    EXPECT_EQ(link, nullptr);
    EXPECT_STREQ(string.GetValue(), "20.00 Hz");
}

TEST_F(CCaptureParamToStringLinkTest, TheStringsListenerMayDestroyTheLinkOnAChangeOfTheDescription)
{
    WireAndEnable();
    Tests::CFunctionCommand destroying([this] { link.reset(); });
    string.GetValueChangedEventProvider().Connect(destroying);
    param.GetInfo().SetUnit("kHz");
    EXPECT_EQ(link, nullptr);
    EXPECT_STREQ(string.GetValue(), "440.00 kHz");
}
