#include "AAXPlugin/CAAXPluginParamAdapter.h"

#include "AAXPlugin/AAXExtAutomationDelegate.h"
#include "AAXPlugin/CRecordingAutomation.h"
#include "AAXPlugin/ParamInfo.h"
#include "Mirel/Audio/Plugin/CParamValue.h"
#include "Support/EventCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace
{

using namespace MirelExt::AAXPlugin;
using EDirection = CAAXPluginParamAdapter::EDirection;
using Mirel::Audio::Plugin::CParamValue;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CEventCounter;
using Tests::CRecordingAutomation;

class ParamAdapter : public testing::Test
{
protected:
    void Link(CAAXPluginParamAdapter& adapter, const char* prefix)
    {
        automation.Set(TACFReference<IAAXAutomationDelegate>(host.Get()));
        parameter = adapter.MakeParameter(prefix);
        parameter->SetAutomation(&automation);
    }

    Mirel::DataModel::Objects::CParamInfo info = Tests::ParamInfo(2, 0.0F, 4.0F, 1.0F, "Depth");
    CParamValue value{info};
    CAudioThreadMark audioThread;
    AAXExtAutomationDelegate automation;
    TACFReference<CRecordingAutomation> host =
        TACFReference<CRecordingAutomation>::Adopt(new CRecordingAutomation);
    CAAXPluginParamAdapter input{info, value, EDirection::Input, "P3", audioThread};
    CAAXPluginParamAdapter output{info, value, EDirection::Output, "P4", audioThread};
    std::unique_ptr<CAAXPluginParameter> parameter;
};

TEST_F(ParamAdapter, WithoutAHostValuesAreSetDirectly)
{
    EXPECT_EQ(input.GetValue(), 1.0F);
    input.SetValue(2.0F);
    EXPECT_EQ(value.GetValue(), 2.0F);
    output.SetValue(3.0F);
    EXPECT_EQ(value.GetValue(), 3.0F);
    output.Automate(0.0F);
    EXPECT_EQ(value.GetValue(), 0.0F);
    input.BeginCapture();
    input.EndCapture();
}

TEST_F(ParamAdapter, ParameterHasTheIdentifierAndTheName)
{
    input.SetIdentifier("MasterBypassID");
    Link(input, "");
    EXPECT_EQ(parameter->GetIdentifier(), "MasterBypassID");
    EXPECT_EQ(parameter->GetName(), "Depth");
    Link(output, "OUT:");
    EXPECT_EQ(parameter->GetIdentifier(), "P4");
    EXPECT_EQ(parameter->GetName(), "OUT:Depth");
    EXPECT_EQ(&output.GetInfo(), &info);
}

TEST_F(ParamAdapter, ValueOfTheHostIsSeenAndTold)
{
    Link(input, "");
    CEventCounter changes(input.GetValueChangedEventProvider());
    parameter->SetValue(3.0F);
    EXPECT_EQ(input.GetValue(), 3.0F);
    EXPECT_EQ(changes.Take(), 1);
    parameter->SetValue(3.0F);
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(ParamAdapter, ValueOfTheFrameworkGoesThroughTheHost)
{
    Link(input, "");
    input.SetValue(2.0F);
    EXPECT_EQ(input.GetValue(), 1.0F);
    EXPECT_THAT(host->calls, ElementsAre("touch P3", "value P3 0.500000", "release P3"));
}

TEST_F(ParamAdapter, GestureOfTheEditorIsBeginValueEnd)
{
    Link(input, "");
    CEventCounter begins(input.GetBeginCaptureEventProvider());
    CEventCounter ends(input.GetEndCaptureEventProvider());
    input.BeginCapture();
    EXPECT_TRUE(input.IsCaptured());
    input.SetValue(2.0F);
    input.SetValue(4.0F);
    input.EndCapture();
    EXPECT_FALSE(input.IsCaptured());
    EXPECT_THAT(host->calls, ElementsAre("touch P3", "value P3 0.500000", "value P3 1.000000", "release P3"));
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
}

TEST_F(ParamAdapter, OutputIsSetAsItIsAndAutomatedThroughTheHost)
{
    Link(output, "OUT:");
    output.SetValue(2.0F);
    EXPECT_EQ(output.GetValue(), 2.0F);
    EXPECT_THAT(host->calls, IsEmpty());
    output.Automate(4.0F);
    EXPECT_THAT(host->calls, ElementsAre("touch P4", "value P4 1.000000", "release P4"));
}

TEST_F(ParamAdapter, ChangeOnTheAudioThreadIsToldOnDelivery)
{
    Link(input, "");
    CEventCounter changes(input.GetValueChangedEventProvider());
    {
        const CAudioThreadMark::CScope scope(audioThread);
        parameter->SetValue(2.0F);
        parameter->SetValue(3.0F);
    }
    EXPECT_EQ(changes.Take(), 0);
    input.DeliverChange();
    EXPECT_EQ(changes.Take(), 1);
    input.DeliverChange();
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(ParamAdapter, OtherThreadsTellTheirChangesWhileAudioRuns)
{
    Link(input, "");
    CEventCounter changes(input.GetValueChangedEventProvider());
    const CAudioThreadMark::CScope scope(audioThread);
    std::thread([this] { parameter->SetValue(2.0F); }).join();
    EXPECT_EQ(changes.Take(), 1);
}

} // namespace
