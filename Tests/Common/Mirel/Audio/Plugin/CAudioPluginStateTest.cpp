// The state of an instance: what is written, in which order, and what a state does to the instance that loads
// it.

#include "CTestInstance.h"
#include "Common/Mirel/Serialization/Values.h"
#include "MIDIMappingRig.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>

using namespace Mirel::Audio::Plugin;
using namespace Mirel::Serialization;
using Tests::Bind;
using Tests::CTestFilter;
using Tests::CTestInstance;
using Tests::CTestPlaces;

namespace
{

constexpr const char* declaration = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>";

TEST(State, WritesItsKeysInOrder)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.SetInput(0, 1.0f);
    instance.SetInput(1, -0.25f);
    EXPECT_EQ(instance.SaveText(),
              std::string(declaration) +
                  "<Preset><version>2</version><progName>User</progName><bypass>1</bypass>"
                  "<inputParams><paramCount>3</paramCount><param0>-0.25</param0>"
                  "<param1>0.5</param1><param2>0.5</param2></inputParams>"
                  "<MIDIInputDefault>1</MIDIInputDefault>"
                  "<MIDIOutputDefault>1</MIDIOutputDefault>"
                  "<GUI /><model />"
                  "<AutomationOutputDefault>1</AutomationOutputDefault></Preset>");
}

TEST(State, WritesThePresetsOwnSettingsWhereTheyApply)
{
    const CTestPlaces places;
    CTestInstance instance(places, std::make_unique<CTestFilter>(0, 1));
    auto& internals = instance.internals;
    internals.GetUseDefaultInputMIDI().SetValue(false);
    internals.GetUseDefaultOutputMIDI().SetValue(false);
    internals.GetUseDefaultOutputAutomation().SetValue(false);
    internals.GetOutputAutomationSettings()[0].SetEnabled(true);
    EXPECT_EQ(
        instance.SaveText(),
        std::string(declaration) +
            "<Preset><version>2</version><progName>User</progName>"
            "<MIDIInputDefault>0</MIDIInputDefault><MIDIInputSettings><settingCount>1</settingCount>"
            "<setting0><channel>0</channel><version>1</version><number>65</number>"
            "<enabled>0</enabled><curve>Linear</curve><min>0</min><max>1</max></setting0>"
            "</MIDIInputSettings>"
            "<MIDIOutputDefault>0</MIDIOutputDefault><MIDIOutputSettings>"
            "<settingCount>1</settingCount>"
            "<setting0><channel>1</channel><version>1</version><number>65</number>"
            "<enabled>0</enabled><curve>Linear</curve><min>0</min><max>1</max></setting0>"
            "</MIDIOutputSettings>"
            "<GUI /><model />"
            "<AutomationOutputDefault>0</AutomationOutputDefault><AutomationOutputSettings>"
            "<settingCount>1</settingCount><setting0><version>1</version><enabled>1</enabled></setting0>"
            "</AutomationOutputSettings></Preset>");
}

TEST(State, AFilterWithoutParametersHasNoInputsInItsState)
{
    const CTestPlaces places;
    CTestInstance instance(places, std::make_unique<CTestFilter>(0, 0));
    CMemDataObject state;
    EXPECT_TRUE(instance.internals.Serialize(state));
    EXPECT_FALSE(state.Exists("bypass"));
    EXPECT_FALSE(state.Exists("inputParams"));
}

TEST(State, OfAFutureVersionLoads)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    EXPECT_TRUE(instance.LoadKeys("<version>99</version><progName>New</progName><bypass>1</bypass>"));
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "New");
    EXPECT_EQ(instance.GetInput(0), 1.0f);
}

TEST(State, WithoutANameIsCalledDefault)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.LoadKeys("");
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "Default");
    instance.LoadKeys("<progName></progName>");
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "");
    instance.LoadKeys("<progName>" + std::string(5000, 'x') + "</progName>");
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "Default");
}

TEST(State, WithoutBypassLeavesBypass)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.SetInput(0, 1.0f);
    instance.LoadKeys("<progName>A</progName>");
    EXPECT_EQ(instance.GetInput(0), 1.0f);
    instance.LoadKeys("<bypass>abc</bypass>");
    EXPECT_EQ(instance.GetInput(0), 1.0f);
}

TEST(State, ParametersThatAreMissingGoBackToTheirDefaults)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    for (const char* keys : {"", "<inputParams></inputParams>",
                             "<inputParams><paramCount>1</paramCount><param0>0.5</param0></inputParams>",
                             "<inputParams><param1>abc</param1></inputParams>"})
    {
        instance.SetInput(1, -0.75f);
        instance.SetInput(2, 1.25f);
        instance.LoadKeys(keys);
        EXPECT_EQ(instance.GetInput(1), 0.5f) << keys;
        EXPECT_EQ(instance.GetInput(2), 0.5f) << keys;
    }
}

TEST(State, ValuesAreKeptToTheirRanges)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.LoadKeys("<bypass>-3</bypass><inputParams><param0>100</param0><param1>-1e30</param1>"
                      "<param2>2.5</param2></inputParams>");
    EXPECT_EQ(instance.GetInput(0), 0.0f);
    EXPECT_EQ(instance.GetInput(1), 1.0f);
    EXPECT_EQ(instance.GetInput(2), -2.0f);
    EXPECT_EQ(instance.GetInput(3), 2.5f);
}

TEST(State, NotANumberLeavesTheValueAndInfinityIsKeptToTheRange)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.SetInput(1, 0.75f);
    CMemDataObject state;
    state.Write("bypass", std::numeric_limits<float>::quiet_NaN());
    WriteObject(state, "inputParams",
                [](IWriteDataStream& stream)
                {
                    return stream.Write("param0", std::numeric_limits<float>::quiet_NaN()) &&
                           stream.Write("param1", std::numeric_limits<float>::infinity());
                });
    EXPECT_TRUE(instance.internals.Deserialize(state));
    EXPECT_EQ(instance.GetInput(0), 0.0f);
    EXPECT_EQ(instance.GetInput(1), 0.75f);
    EXPECT_EQ(instance.GetInput(2), 2.0f);
}

TEST(State, WithTheGlobalSettingsLeavesThePresetsListsAlone)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    Bind(internals.GetInputMIDISettings()[1], 3, 4);
    internals.GetOutputAutomationSettings()[0].SetEnabled(true);
    instance.LoadKeys(
        "<MIDIInputDefault>1</MIDIInputDefault><MIDIInputSettings><settingCount>2</settingCount>"
        "<setting1><number>9</number></setting1></MIDIInputSettings>");
    EXPECT_EQ(internals.GetInputMIDISettings()[1].GetNumber(), 4);
    EXPECT_TRUE(internals.GetInputMIDISettings()[1].IsEnabled());
    EXPECT_TRUE(internals.GetOutputAutomationSettings()[0].IsEnabled());
}

TEST(State, AMissingSwitchMeansTheGlobalSettings)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    internals.GetUseDefaultInputMIDI().SetValue(false);
    internals.GetUseDefaultOutputMIDI().SetValue(false);
    internals.GetUseDefaultOutputAutomation().SetValue(false);
    Tests::CEventCounter input(internals.GetUseDefaultInputMIDI().GetValueChangedEventProvider());
    Tests::CEventCounter output(internals.GetUseDefaultOutputMIDI().GetValueChangedEventProvider());
    Tests::CEventCounter automation(internals.GetUseDefaultOutputAutomation().GetValueChangedEventProvider());
    instance.LoadKeys("");
    EXPECT_TRUE(internals.GetUseDefaultInputMIDI().GetValue());
    EXPECT_TRUE(internals.GetUseDefaultOutputMIDI().GetValue());
    EXPECT_TRUE(internals.GetUseDefaultOutputAutomation().GetValue());
    EXPECT_EQ(input.Take(), 1);
    EXPECT_EQ(output.Take(), 1);
    EXPECT_EQ(automation.Take(), 1);
    instance.LoadKeys("");
    EXPECT_EQ(input.Take() + output.Take() + automation.Take(), 0);
}

TEST(State, APartialListLeavesTheGlobalSettingsInTheRest)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    internals.GetDefaultSettings().GetInputMIDISettings()[1].SetNumber(20);
    internals.GetDefaultSettings().GetInputMIDISettings()[1].SetMax(0.25f);
    internals.GetDefaultSettings().GetInputMIDISettings()[2].SetNumber(30);
    internals.GetInputMIDISettings()[2].SetNumber(99);
    instance.LoadKeys(
        "<MIDIInputDefault>0</MIDIInputDefault><MIDIInputSettings><settingCount>2</settingCount>"
        "<setting1><number>9</number></setting1></MIDIInputSettings>");
    EXPECT_FALSE(internals.GetUseDefaultInputMIDI().GetValue());
    EXPECT_EQ(internals.GetInputMIDISettings()[1].GetNumber(), 9);
    EXPECT_EQ(internals.GetInputMIDISettings()[1].GetMax(), 0.25f);
    EXPECT_EQ(internals.GetInputMIDISettings()[2].GetNumber(), 30);
}

TEST(State, AMissingListIsTheGlobalOne)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    internals.GetDefaultSettings().GetOutputMIDISettings()[1].SetNumber(20);
    internals.GetDefaultSettings().GetOutputAutomationSettings()[1].SetEnabled(true);
    instance.LoadKeys("<MIDIOutputDefault>0</MIDIOutputDefault>"
                      "<AutomationOutputDefault>0</AutomationOutputDefault>");
    EXPECT_EQ(internals.GetOutputMIDISettings()[1].GetNumber(), 20);
    EXPECT_TRUE(internals.GetOutputAutomationSettings()[1].IsEnabled());
}

TEST(State, KeepsThePartsOfTheEditorAndTheModel)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    const std::string parts =
        "<GUI><useDefault>0</useDefault><skinFile>a/b.xml</skinFile></GUI>"
        "<model><state><version>2</version><paramStates><paramCount>1</paramCount>"
        "<param0><name>zoom</name><value>0.5</value></param0></paramStates></state></model>";
    instance.LoadKeys(parts);
    EXPECT_NE(instance.SaveText().find(parts), std::string::npos) << instance.SaveText();
}

TEST(State, WithoutTheEditorAndTheModelResetsThem)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.LoadKeys("<GUI><a>1</a></GUI><model><b>2</b></model>");
    instance.LoadKeys("");
    EXPECT_NE(instance.SaveText().find("<GUI /><model />"), std::string::npos) << instance.SaveText();
}

TEST(State, APartThatCouldNotBeWrittenAgainIsNotKept)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    // Three million apostrophes take six bytes each once they are escaped.
    const std::string much(std::size_t{3} << 20U, '\'');
    EXPECT_TRUE(instance.LoadKeys("<progName>A</progName><model><b>" + much + "</b></model>"));
    const std::string saved = instance.SaveText();
    EXPECT_NE(saved.find("<progName>A</progName>"), std::string::npos);
    EXPECT_NE(saved.find("<model />"), std::string::npos);
}

TEST(State, UnparsableTextLeavesTheInstance)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.SetInput(1, 0.125f);
    const std::string before = instance.SaveText();
    for (const char* text : {"", "x", "<Preset>", "<Preset><bypass>1</bypass>", "<a></b>"})
    {
        EXPECT_FALSE(instance.LoadText(text)) << text;
        EXPECT_EQ(instance.SaveText(), before);
    }
}

} // namespace
