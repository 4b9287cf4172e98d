#include "CTestInstance.h"
#include "Mirel/Audio/Plugin/IPresets.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>

using namespace Mirel::Audio::Plugin;
using Mirel::Audio::DSP::CLegacyPresetRecord;
using Mirel::Audio::DSP::CLegacyPresets;
using Tests::CTestFilter;
using Tests::CTestInstance;
using Tests::CTestPlaces;

namespace
{

constexpr float firstValues[] = {-0.25f, 1.5f, 9.0f};
constexpr float secondValues[] = {0.75f};

/// Three inputs from -1, -2, -3 to 1, 2, 3.
std::unique_ptr<CTestFilter> FilterWithPresets()
{
    auto filter = std::make_unique<CTestFilter>(3, 0);
    const CLegacyPresetRecord records[] = {{"First", "", firstValues, 3},
                                           {"Second", nullptr, secondValues, 1}};
    filter->presets = std::make_unique<CLegacyPresets>(2, records);
    return filter;
}

TEST(Presets, WithoutAFactoryFileTheFiltersTableIsOffered)
{
    const CTestPlaces places;
    CTestInstance instance(places, FilterWithPresets());
    IPresets& presets = instance.internals.GetPresets();
    ASSERT_EQ(presets.GetCount(), 2);
    EXPECT_STREQ(presets.GetPreset(0).GetName(), "First");
    EXPECT_STREQ(presets.GetPreset(1).GetName(), "Second");
}

TEST(Presets, WithNeitherThereAreNone)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    EXPECT_EQ(instance.internals.GetPresets().GetCount(), 0);
}

TEST(Presets, AnUnreadableFactoryFileIsSilentAndTheTableIsOffered)
{
    for (const char* content : {"", "no document", "<Presets><PresetCount>1"})
    {
        const CTestPlaces places;
        places.WriteData("Presets/factory.presets", content);
        CTestInstance instance(places, FilterWithPresets());
        EXPECT_EQ(instance.internals.GetPresets().GetCount(), 2) << content;
    }
}

TEST(CAudioPluginLegacyPreset, SetsTheParametersBehindTheBypass)
{
    const CTestPlaces places;
    CTestInstance instance(places, FilterWithPresets());
    instance.SetInput(0, 1.0f);
    EXPECT_TRUE(instance.internals.GetPresets().GetPreset(0).Load());
    EXPECT_EQ(instance.GetInput(0), 1.0f);
    EXPECT_EQ(instance.GetInput(1), -0.25f);
    EXPECT_EQ(instance.GetInput(2), 1.5f);
    EXPECT_EQ(instance.GetInput(3), 3.0f); // kept to the range
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "First");
}

TEST(CAudioPluginLegacyPreset, LeavesParametersThatItHasNoValueFor)
{
    const CTestPlaces places;
    CTestInstance instance(places, FilterWithPresets());
    instance.SetInput(2, 1.25f);
    EXPECT_TRUE(instance.internals.GetPresets().GetPreset(1).Load());
    EXPECT_EQ(instance.GetInput(1), 0.75f);
    EXPECT_EQ(instance.GetInput(2), 1.25f);
}

TEST(CAudioPluginLegacyPreset, IgnoresValuesThatTheFilterHasNoParameterFor)
{
    const CTestPlaces places;
    auto filter = std::make_unique<CTestFilter>(1, 0);
    const CLegacyPresetRecord record = {"Long", "", firstValues, 3};
    filter->presets = std::make_unique<CLegacyPresets>(1, &record);
    CTestInstance instance(places, std::move(filter));
    EXPECT_TRUE(instance.internals.GetPresets().GetPreset(0).Load());
    EXPECT_EQ(instance.GetInput(1), -0.25f);
}

constexpr const char* factoryFile =
    "<Presets><PresetCount>2</PresetCount>"
    "<Preset0><version>2</version><progName>Soft</progName><bypass>0</bypass>"
    "<inputParams><paramCount>3</paramCount><param0>0.25</param0><param1>-1</param1><param2>3</param2>"
    "</inputParams></Preset0>"
    "<Preset1><version>2</version><progName>Hard</progName>"
    "<inputParams><paramCount>3</paramCount><param0>1</param0><param1>2</param1><param2>3</param2>"
    "</inputParams></Preset1></Presets>";

TEST(CAudioPluginXMLPresets, OfferTheStatesOfTheFactoryFileByName)
{
    const CTestPlaces places;
    places.WriteData("Presets/factory.presets", factoryFile);
    CTestInstance instance(places, FilterWithPresets());
    IPresets& presets = instance.internals.GetPresets();
    ASSERT_EQ(presets.GetCount(), 2);
    EXPECT_STREQ(presets.GetPreset(0).GetName(), "Soft");
    EXPECT_STREQ(presets.GetPreset(1).GetName(), "Hard");
    EXPECT_TRUE(presets.GetPreset(0).Load());
    EXPECT_EQ(instance.GetInput(1), 0.25f);
    EXPECT_EQ(instance.GetInput(2), -1.0f);
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "Soft");
    EXPECT_TRUE(presets.GetPreset(1).Load());
    EXPECT_EQ(instance.GetInput(2), 2.0f);
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "Hard");
}

TEST(CAudioPluginXMLPresets, ACountAboveTheObjectsGivesNamelessPresetsThatDoNothing)
{
    const CTestPlaces places;
    places.WriteData("Presets/factory.presets",
                     "<Presets><PresetCount>3</PresetCount><Preset1><progName>Only</progName></Preset1>"
                     "</Presets>");
    CTestInstance instance(places);
    IPresets& presets = instance.internals.GetPresets();
    ASSERT_EQ(presets.GetCount(), 3);
    EXPECT_STREQ(presets.GetPreset(0).GetName(), "");
    EXPECT_STREQ(presets.GetPreset(1).GetName(), "Only");
    EXPECT_STREQ(presets.GetPreset(2).GetName(), "");
    const std::string before = instance.SaveText();
    EXPECT_FALSE(presets.GetPreset(0).Load());
    EXPECT_FALSE(presets.GetPreset(2).Load());
    EXPECT_EQ(instance.SaveText(), before);
}

TEST(CAudioPluginXMLPresets, AMissingCountIsNone)
{
    const CTestPlaces places;
    places.WriteData("Presets/factory.presets",
                     "<Presets><Preset0><progName>A</progName></Preset0></Presets>");
    CTestInstance instance(places, FilterWithPresets());
    EXPECT_EQ(instance.internals.GetPresets().GetCount(), 0);
}

TEST(CAudioPluginXMLPresets, ACountThatNothingStandsForCostsNothing)
{
    for (const char* count : {"2147483647", "-5", "100000"})
    {
        const CTestPlaces places;
        places.WriteData("Presets/factory.presets",
                         "<Presets><PresetCount>" + std::string(count) + "</PresetCount></Presets>");
        CTestInstance instance(places);
        EXPECT_LT(instance.internals.GetPresets().GetCount(), 1000) << count;
    }
}

TEST(PresetFiles, AStateComesBackFromItsFile)
{
    const CTestPlaces places;
    const std::string path = places.folder.GetPath("My.preset");
    CTestInstance first(places);
    first.SetInput(0, 1.0f);
    first.SetInput(2, -1.75f);
    first.internals.SetCurrentPresetName("Mine");
    ASSERT_TRUE(SavePreset(first.internals, path.c_str()));
    EXPECT_EQ(places.folder.Read("My.preset"), first.SaveText());
    EXPECT_NE(first.SaveText().find("<Preset><version>2</version><progName>Mine</progName>"),
              std::string::npos);
    CTestInstance second(places);
    ASSERT_TRUE(LoadPreset(path.c_str(), second.internals));
    EXPECT_EQ(second.SaveText(), first.SaveText());
}

TEST(PresetFiles, WhatIsNoDocumentLeavesTheState)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    instance.SetInput(1, 0.75f);
    const std::string before = instance.SaveText();
    EXPECT_FALSE(LoadPreset(places.folder.GetPath("none.preset").c_str(), instance.internals));
    places.folder.Write("bad.preset", "<Preset><version>2</version>");
    EXPECT_FALSE(LoadPreset(places.folder.GetPath("bad.preset").c_str(), instance.internals));
    EXPECT_FALSE(LoadPreset(places.folder.GetPath("").c_str(), instance.internals));
    EXPECT_EQ(instance.SaveText(), before);
}

TEST(PresetFiles, WhereNoFileCanStandNothingIsSaved)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    EXPECT_FALSE(SavePreset(instance.internals, places.folder.GetPath("none/a.preset").c_str()));
    EXPECT_FALSE(SavePreset(instance.internals, places.folder.GetPath("plugins").c_str()));
}

TEST(PresetFiles, AnyRootIsTaken)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    EXPECT_TRUE(instance.LoadText("<Whatever><progName>X</progName></Whatever>"));
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "X");
}

} // namespace
