#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "CTestInstance.h"
#include "MIDIMappingRig.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"
#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Mirel::Audio::Plugin;
using Tests::Bind;
using Tests::Controller;
using Tests::CTestInstance;
using Tests::CTestPlaces;

namespace
{

/// A shell's parameter: stores what it is asked for and writes down how.
class CShellOutput : public virtual IOutputParam
{
public:
    float GetValue() const override { return value; }
    void SetValue(float newValue) override
    {
        value = newValue;
        ++sets;
    }
    void Automate(float newValue) override
    {
        value = newValue;
        ++automations;
    }

    float value = 0.0f;
    int sets = 0;
    int automations = 0;
};

class CShellInput : public virtual Mirel::Core::TIValue<float>
{
public:
    float GetValue() const override { return value; }
    void SetValue(float newValue) override { value = newValue; }

    float value = 0.0f;
};

std::string TextOf(const Mirel::DataModel::Objects::IConstParamInfo& info, float value)
{
    char* text = nullptr;
    info.GetValueToText().ToText(value, text);
    const std::unique_ptr<char[]> owner(text);
    return text == nullptr ? "" : text;
}

TEST(CAudioPluginInternalsBase, PutsBypassBeforeTheFiltersParameters)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    const auto& infos = instance.internals.GetInputParamsInfo();
    ASSERT_EQ(infos.GetCount(), 4);
    EXPECT_STREQ(infos[0].GetName(), "Bypass");
    EXPECT_EQ(infos[0].GetType(), 0);
    EXPECT_EQ(infos[0].GetMin(), 0.0f);
    EXPECT_EQ(infos[0].GetMax(), 1.0f);
    EXPECT_EQ(infos[0].GetDefault(), 0.0f);
    EXPECT_EQ(TextOf(infos[0], 0.0f), "Off");
    EXPECT_EQ(TextOf(infos[0], 1.0f), "On");
    EXPECT_STREQ(infos[1].GetName(), "In 0");
    EXPECT_STREQ(infos[3].GetName(), "In 2");
    EXPECT_EQ(instance.internals.GetHostData(), 7);
}

TEST(CAudioPluginInternalsBase, OfTheOscilloscopeHasItsSevenParameters)
{
    const CTestPlaces places;
    auto filter = PluginsFilters::CreateTopLevelFilter();
    auto settings = Tests::MakeSettings(places, *filter);
    CAudioPluginInternalsBase internals(std::move(filter), std::move(settings), 0);
    const auto& infos = internals.GetInputParamsInfo();
    const std::vector<std::string> names = {"Bypass", "Stereo Mode",   "View Mode",        "Sync",
                                            "Delay",  "Trigger Value", "Trigger Direction"};
    ASSERT_EQ(infos.GetCount(), 7);
    for (int i = 0; i < 7; ++i)
    {
        EXPECT_EQ(infos[i].GetName(), names[static_cast<std::size_t>(i)]);
        EXPECT_EQ(internals.GetInputValues()[i].GetValue(), infos[i].GetDefault());
    }
    EXPECT_EQ(internals.GetOutputParamsInfo().GetCount(), 0);
    EXPECT_EQ(internals.GetInputMIDISettings().GetCount(), 7);
    EXPECT_EQ(internals.GetOutputMIDISettings().GetCount(), 0);
    EXPECT_EQ(internals.GetPresets().GetCount(), 0);
    EXPECT_TRUE(internals.InitFilter(44100.0));
    EXPECT_TRUE(internals.GetOutputDataSync().IsOutputDue());
    EXPECT_EQ(internals.GetOutputDataSync().GetRefreshRate(), 50.0);
}

TEST(CAudioPluginInternalsBase, StartsWithTheNameUserAndTheGlobalSettings)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "User");
    EXPECT_TRUE(instance.internals.GetUseDefaultInputMIDI().GetValue());
    EXPECT_TRUE(instance.internals.GetUseDefaultOutputMIDI().GetValue());
    EXPECT_TRUE(instance.internals.GetUseDefaultOutputAutomation().GetValue());
}

TEST(CAudioPluginInternalsBase, AFilterWithoutAClockGetsOne)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    ASSERT_TRUE(instance.internals.InitFilter(44100.0));
    auto& sync = instance.internals.GetOutputDataSync();
    EXPECT_TRUE(sync.IsOutputDue()); // the first block after an initialisation
    sync.Reset();
    instance.internals.AddProcessedSamples(881);
    EXPECT_FALSE(sync.IsOutputDue());
    instance.internals.AddProcessedSamples(1);
    EXPECT_TRUE(sync.IsOutputDue()); // 44100 / 50
}

TEST(CAudioPluginInternalsBase, AFilterWithAClockCountsForItself)
{
    const CTestPlaces places;
    auto filter = CTestInstance::MakeFilter();
    filter->sync.emplace();
    CTestInstance instance(places, std::move(filter));
    ASSERT_TRUE(instance.internals.InitFilter(44100.0));
    EXPECT_EQ(&instance.internals.GetOutputDataSync(), &*instance.filter->sync);
    EXPECT_EQ(instance.filter->sync->GetRefreshRate(), 50.0);
    instance.filter->sync->Reset();
    instance.internals.AddProcessedSamples(100000);
    EXPECT_FALSE(instance.filter->sync->IsOutputDue());
}

TEST(CAudioPluginInternalsBase, FollowsTheRefreshRateOfTheSettings)
{
    const CTestPlaces places;
    auto filter = CTestInstance::MakeFilter();
    filter->sync.emplace();
    CTestInstance instance(places, std::move(filter));
    instance.internals.GetDefaultSettings().SetOutputRefreshRate(10.0);
    EXPECT_EQ(instance.filter->sync->GetRefreshRate(), 10.0);
}

TEST(CAudioPluginInternalsBase, SaysWhenTheFilterCannotRun)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.filter->runsAtAnyRate = false;
    EXPECT_FALSE(instance.internals.InitFilter(1.0));
}

TEST(CAudioPluginInternalsBase, SetsValuesThroughTheShellsParameters)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    Mirel::Containers::TDynamicCollection<CShellInput, IInputParam> inputs;
    Mirel::Containers::TDynamicCollection<CShellOutput, IOutputParam> outputs;
    for (int i = 0; i < 4; ++i)
    {
        inputs.Add();
    }
    outputs.Add();
    outputs.Add();
    instance.internals.Init(inputs, outputs);
    instance.SetInput(1, 0.75f);
    EXPECT_EQ(inputs[1].value, 0.75f);
    EXPECT_EQ(instance.GetInput(1), 0.5f); // the shell decides what is stored
    EXPECT_NE(instance.SaveText().find("<param0>0.75</param0>"), std::string::npos);
    instance.LoadKeys("<inputParams><param0>-0.5</param0></inputParams>");
    EXPECT_EQ(inputs[1].value, -0.5f);
}

TEST(CAudioPluginInternalsBase, IgnoresInputsThatAreNotThere)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.SetInput(-1, 1.0f);
    instance.SetInput(4, 1.0f);
    instance.SetInput(1, std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(instance.GetInput(1), 0.5f);
}

/// An instance with the shell's outputs, all of which rest at 0.25 and 0.75.
class COutputsTest : public testing::Test
{
protected:
    COutputsTest()
    {
        outputs.Add();
        outputs.Add();
        instance.internals.Init(instance.internals.GetInputValues(), outputs);
        instance.filter->SetOutput(0, 0.25f);
        instance.filter->SetOutput(1, 0.75f);
    }

    CTestPlaces places;
    CTestInstance instance{places};
    Mirel::Containers::TDynamicCollection<CShellOutput, IOutputParam> outputs;
    Tests::CRecordingMIDIOutput midi;
};

TEST_F(COutputsTest, AreSetWithoutAutomation)
{
    instance.internals.PublishOutputParams(&midi);
    EXPECT_EQ(outputs[0].value, 0.25f);
    EXPECT_EQ(outputs[1].value, 0.75f);
    EXPECT_EQ(outputs[0].sets + outputs[1].sets, 2);
    EXPECT_EQ(outputs[0].automations + outputs[1].automations, 0);
    EXPECT_TRUE(midi.events.empty());
}

TEST_F(COutputsTest, GoOutThroughAutomationWhereItIsEnabled)
{
    instance.internals.GetDefaultSettings().GetOutputAutomationSettings()[1].SetEnabled(true);
    instance.internals.PublishOutputParams(nullptr);
    EXPECT_EQ(outputs[0].sets, 1);
    EXPECT_EQ(outputs[0].automations, 0);
    EXPECT_EQ(outputs[1].sets, 0);
    EXPECT_EQ(outputs[1].automations, 1);
}

TEST_F(COutputsTest, SendTheirControllers)
{
    Bind(instance.internals.GetDefaultSettings().GetOutputMIDISettings()[1], 2, 10);
    instance.internals.PublishOutputParams(&midi);
    ASSERT_EQ(midi.events.size(), 1U);
    EXPECT_EQ(midi.events[0].status, 0xB1);
    EXPECT_EQ(midi.events[0].data1, 10);
    EXPECT_EQ(midi.events[0].data2, 95); // 0.75 * 127 + 0.5
    EXPECT_EQ(outputs[1].value, 0.75f);
}

TEST_F(COutputsTest, FollowThePresetsSettingsWhereTheGlobalOnesDoNotApply)
{
    auto& internals = instance.internals;
    Bind(internals.GetDefaultSettings().GetOutputMIDISettings()[0], 1, 1);
    Bind(internals.GetOutputMIDISettings()[1], 1, 2);
    internals.GetOutputAutomationSettings()[0].SetEnabled(true);
    internals.GetUseDefaultOutputMIDI().SetValue(false);
    internals.GetUseDefaultOutputAutomation().SetValue(false);
    internals.PublishOutputParams(&midi);
    ASSERT_EQ(midi.events.size(), 1U);
    EXPECT_EQ(midi.events[0].data1, 2);
    EXPECT_EQ(outputs[0].automations, 1);
}

TEST_F(COutputsTest, ArePublishedWithoutAnAllocation)
{
    Bind(instance.internals.GetDefaultSettings().GetOutputMIDISettings()[0], 1, 1);
    Bind(instance.internals.GetDefaultSettings().GetInputMIDISettings()[1], 1, 1);
    const Tests::CAllocationCounter allocations;
    instance.internals.PublishOutputParams(&midi);
    instance.internals.ProcessMIDI(Controller(1, 1, 3));
    instance.internals.AddProcessedSamples(64);
    static_cast<void>(instance.internals.GetOutputDataSync().IsOutputDue());
    EXPECT_EQ(allocations.GetCount(), 0U);
}

TEST(CAudioPluginInternalsBase, MovesItsInputsByTheSettingsThatApply)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    Bind(internals.GetDefaultSettings().GetInputMIDISettings()[1], 0, 7);
    Bind(internals.GetInputMIDISettings()[2], 0, 7);
    internals.ProcessMIDI(Controller(4, 7, 0));
    EXPECT_EQ(instance.GetInput(1), -1.0f);
    EXPECT_EQ(instance.GetInput(2), 0.5f);
    EXPECT_EQ(internals.GetLastMIDIMessage().GetChannel(), 4);
    internals.GetUseDefaultInputMIDI().SetValue(false);
    internals.ProcessMIDI(Controller(4, 7, 0));
    EXPECT_EQ(instance.GetInput(2), -2.0f);
}

TEST(CAudioPluginInternalsBase, ControllersReachTheBypassToo)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    Bind(instance.internals.GetDefaultSettings().GetInputMIDISettings()[0], 0, 1);
    instance.internals.ProcessMIDI(Controller(1, 1, 127));
    EXPECT_NEAR(instance.GetInput(0), 1.0f, 1e-6f);
}

TEST(CAudioPluginInternalsBase, ResetsThePresetsMIDISettingsToTheGlobalOnes)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    internals.GetDefaultSettings().GetInputMIDISettings()[1].SetNumber(11);
    internals.GetDefaultSettings().GetOutputMIDISettings()[1].SetNumber(12);
    internals.GetInputMIDISettings()[1].SetNumber(99);
    internals.ResetPresetMIDISettings();
    EXPECT_EQ(internals.GetInputMIDISettings()[1].GetNumber(), 11);
    EXPECT_EQ(internals.GetOutputMIDISettings()[1].GetNumber(), 12);
}

} // namespace
