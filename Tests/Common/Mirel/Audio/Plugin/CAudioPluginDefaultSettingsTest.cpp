#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"
#include "CTestInstance.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

using namespace Mirel::Audio::Plugin;
using Mirel::Serialization::CMemDataObject;
using Tests::CTestFilter;
using Tests::CTestPlaces;

namespace
{

/// Settings of a filter with two inputs and one output.
class CDefaultSettingsTest : public testing::Test
{
protected:
    std::unique_ptr<CAudioPluginDefaultSettings> Make() { return Tests::MakeSettings(places, filter); }

    CTestPlaces places;
    CTestFilter filter{2, 1};
};

void ExpectFactoryValues(const CAudioPluginDefaultSettings& settings, const CTestPlaces& places)
{
    EXPECT_EQ(settings.GetSkinFile(), places.DataPath("Skins/default.xml"));
    EXPECT_EQ(settings.GetOutputRefreshRate(), 50.0);
    ASSERT_EQ(settings.GetInputMIDISettings().GetCount(), 3);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_FALSE(settings.GetInputMIDISettings()[i].IsEnabled());
    }
    ASSERT_EQ(settings.GetOutputMIDISettings().GetCount(), 1);
    EXPECT_FALSE(settings.GetOutputMIDISettings()[0].IsEnabled());
    ASSERT_EQ(settings.GetOutputAutomationSettings().GetCount(), 1);
    EXPECT_FALSE(settings.GetOutputAutomationSettings()[0].IsEnabled());
}

TEST_F(CDefaultSettingsTest, AMissingFileLeavesTheFactoryValues)
{
    ExpectFactoryValues(*Make(), places);
}

TEST_F(CDefaultSettingsTest, ADamagedFileLeavesTheFactoryValues)
{
    for (const char* content :
         {"", "text", "<GlobalSettings>", "<GlobalSettings><outputRefreshRate>20", "<a/><b", "\xFF\xFE"})
    {
        places.WriteSettings(content);
        ExpectFactoryValues(*Make(), places);
        EXPECT_EQ(places.ReadSettings(), content);
    }
}

TEST_F(CDefaultSettingsTest, BindingsStartOverTheRangesWithBypassFirst)
{
    const auto settings = Make();
    EXPECT_EQ(settings->GetInputMIDISettings()[0].GetMin(), 0.0f);
    EXPECT_EQ(settings->GetInputMIDISettings()[0].GetMax(), 1.0f);
    EXPECT_EQ(settings->GetInputMIDISettings()[2].GetMin(), -2.0f);
    EXPECT_EQ(settings->GetInputMIDISettings()[2].GetMax(), 2.0f);
    EXPECT_EQ(settings->GetInputMIDISettings()[2].GetChannel(), 0);
    EXPECT_EQ(settings->GetOutputMIDISettings()[0].GetChannel(), 1);
}

TEST_F(CDefaultSettingsTest, WritesItsKeysInOrder)
{
    CTestFilter none(0, 0);
    const auto settings = Tests::MakeSettings(places, none);
    settings->Save();
    EXPECT_EQ(places.ReadSettings(),
              "<?xml version=\"1.0\" encoding=\"utf-8\" ?>"
              "<GlobalSettings><version>3</version><skinFile>default.xml</skinFile>"
              "<inputCCSettings><itemCount>1</itemCount><item0><channel>0</channel><version>1</version>"
              "<number>65</number><enabled>0</enabled><curve>Linear</curve><min>0</min><max>1</max></item0>"
              "</inputCCSettings>"
              "<outputCCSettings><itemCount>0</itemCount></outputCCSettings>"
              "<outputAutomationSettings><itemCount>0</itemCount></outputAutomationSettings>"
              "<outputRefreshRate>50</outputRefreshRate></GlobalSettings>");
}

TEST_F(CDefaultSettingsTest, AnAutomationSettingHasItsVersionAndSwitch)
{
    const auto settings = Make();
    settings->GetOutputAutomationSettings()[0].SetEnabled(true);
    settings->Save();
    EXPECT_NE(places.ReadSettings().find("<outputAutomationSettings><itemCount>1</itemCount><item0>"
                                         "<version>1</version><enabled>1</enabled></item0>"
                                         "</outputAutomationSettings>"),
              std::string::npos);
}

TEST_F(CDefaultSettingsTest, LoadsWhateverTheRootIsCalled)
{
    for (const char* file : {"<GlobalSettings><outputRefreshRate>25</outputRefreshRate></GlobalSettings>",
                             "<Root><outputRefreshRate>25</outputRefreshRate></Root>",
                             "<Anything><outputRefreshRate>25</outputRefreshRate></Anything>"})
    {
        places.WriteSettings(file);
        EXPECT_EQ(Make()->GetOutputRefreshRate(), 25.0) << file;
    }
}

TEST_F(CDefaultSettingsTest, LoadBeginsWithTheFactoryValues)
{
    const auto settings = Make();
    settings->SetOutputRefreshRate(10.0);
    settings->SetSkinFile("/somewhere/skin.xml");
    settings->GetInputMIDISettings()[1].SetEnabled(true);
    settings->GetOutputMIDISettings()[0].SetEnabled(true);
    settings->GetOutputAutomationSettings()[0].SetEnabled(true);
    settings->Load();
    ExpectFactoryValues(*settings, places);
}

TEST_F(CDefaultSettingsTest, ReadsTheRestWhenAKeyIsMissingButSaysSo)
{
    const auto settings = Make();
    CMemDataObject all;
    ASSERT_TRUE(settings->Serialize(all));
    EXPECT_TRUE(settings->Deserialize(all));
    for (const char* key : {"version", "skinFile", "inputCCSettings", "outputCCSettings",
                            "outputAutomationSettings", "outputRefreshRate"})
    {
        CMemDataObject part;
        ASSERT_TRUE(settings->Serialize(part));
        part.Remove(key);
        EXPECT_FALSE(settings->Deserialize(part)) << key;
    }
    CMemDataObject rateOnly;
    rateOnly.Write("outputRefreshRate", 12.5);
    EXPECT_FALSE(settings->Deserialize(rateOnly));
    EXPECT_EQ(settings->GetOutputRefreshRate(), 12.5);
    EXPECT_EQ(settings->GetSkinFile(), places.DataPath("Skins/default.xml"));
}

TEST_F(CDefaultSettingsTest, AListOfAnotherLengthIsTakenAsFarAsItGoes)
{
    const auto settings = Make();
    places.WriteSettings("<R><inputCCSettings><itemCount>9</itemCount><item0><number>3</number></item0>"
                         "<item8><number>4</number></item8></inputCCSettings></R>");
    settings->Load();
    EXPECT_EQ(settings->GetInputMIDISettings().GetCount(), 3);
    EXPECT_EQ(settings->GetInputMIDISettings()[0].GetNumber(), 3);
    EXPECT_EQ(settings->GetInputMIDISettings()[1].GetNumber(), 65);
    places.WriteSettings("<R><inputCCSettings><itemCount>1</itemCount><item0><number>3</number></item0>"
                         "<item1><number>4</number></item1></inputCCSettings></R>");
    settings->Load();
    EXPECT_EQ(settings->GetInputMIDISettings()[1].GetNumber(), 65);
}

TEST_F(CDefaultSettingsTest, ASkinIsWrittenRelativeToTheDefaultSkinsFolder)
{
    struct SCase
    {
        std::string skin;
        std::string written;
    };
    const std::vector<SCase> cases = {
        {places.DataPath("Skins/default.xml"), "default.xml"},
        {places.DataPath("Skins/dark/skin.xml"), "dark/skin.xml"},
        {places.DataPath("Other/skin.xml"), "../Other/skin.xml"},
        {"", ""},
    };
    for (const SCase& each : cases)
    {
        const auto settings = Make();
        settings->SetSkinFile(each.skin);
        settings->Save();
        EXPECT_NE(places.ReadSettings().find("<skinFile>" + each.written + "</skinFile>"), std::string::npos)
            << places.ReadSettings();
        EXPECT_EQ(Make()->GetSkinFile(), each.skin);
    }
}

TEST_F(CDefaultSettingsTest, ASkinFarAwayComesBackToo)
{
    const auto settings = Make();
    settings->SetSkinFile("/usr/share/skins/one.xml");
    settings->Save();
    EXPECT_EQ(places.ReadSettings().find("/usr/share/skins/one.xml</skinFile>") == std::string::npos, false);
    EXPECT_EQ(Make()->GetSkinFile(), "/usr/share/skins/one.xml");
}

TEST_F(CDefaultSettingsTest, AnAbsoluteSkinInTheFileStaysAbsolute)
{
    places.WriteSettings("<R><skinFile>/usr/share/../skins/one.xml</skinFile></R>");
    EXPECT_EQ(Make()->GetSkinFile(), "/usr/skins/one.xml");
}

TEST_F(CDefaultSettingsTest, APathThatNoFileCanHaveIsNotTaken)
{
    places.WriteSettings("<R><skinFile>" + std::string(5000, 'x') + "</skinFile></R>");
    EXPECT_EQ(Make()->GetSkinFile(), places.DataPath("Skins/default.xml"));
}

TEST_F(CDefaultSettingsTest, APathInAnotherEncodingDoesNotCostTheOtherSettings)
{
    const auto settings = Make();
    settings->SetSkinFile("/skins/\xFF.xml");
    settings->SetOutputRefreshRate(30.0);
    settings->Save();
    const auto loaded = Make();
    EXPECT_EQ(loaded->GetOutputRefreshRate(), 30.0);
    EXPECT_EQ(loaded->GetSkinFile(), places.DataPath("Skins/default.xml"));
}

TEST_F(CDefaultSettingsTest, ARateThatIsNoRateIsIgnored)
{
    const auto settings = Make();
    for (const double rate : {-1.0, std::numeric_limits<double>::infinity(), std::nan("")})
    {
        settings->SetOutputRefreshRate(rate);
        EXPECT_EQ(settings->GetOutputRefreshRate(), 50.0);
    }
    settings->SetOutputRefreshRate(0.0);
    EXPECT_EQ(settings->GetOutputRefreshRate(), 0.0);
}

TEST_F(CDefaultSettingsTest, FiresOnChangesOnly)
{
    const auto settings = Make();
    Tests::CEventCounter rates(settings->GetOutputRefreshRateChangedEventProvider());
    Tests::CEventCounter skins(settings->GetSkinFileChangedEventProvider());
    settings->SetOutputRefreshRate(50.0);
    settings->SetSkinFile(settings->GetSkinFile());
    EXPECT_EQ(rates.Take() + skins.Take(), 0);
    settings->SetOutputRefreshRate(51.0);
    settings->SetSkinFile("/a.xml");
    EXPECT_EQ(rates.Take(), 1);
    EXPECT_EQ(skins.Take(), 1);
}

TEST_F(CDefaultSettingsTest, OfTwoInstancesThatSaveTheLaterWins)
{
    const auto first = Make();
    const auto second = Make();
    first->SetOutputRefreshRate(10.0);
    first->GetInputMIDISettings()[0].SetEnabled(true);
    second->SetOutputRefreshRate(20.0);
    first->Save();
    second->Save();
    const auto third = Make();
    EXPECT_EQ(third->GetOutputRefreshRate(), 20.0);
    EXPECT_FALSE(third->GetInputMIDISettings()[0].IsEnabled());
    EXPECT_EQ(first->GetOutputRefreshRate(), 10.0); // each reads the file at its own creation only
}

TEST_F(CDefaultSettingsTest, WithoutAUserFolderNothingIsSavedOrLost)
{
    CAudioPluginDefaultSettings settings(places.ModulePath(), filter.GetInputParamsInfo(),
                                         filter.GetOutputParamsInfo(), "");
    ExpectFactoryValues(settings, places);
    settings.SetOutputRefreshRate(10.0);
    settings.Save();
    settings.Load();
    EXPECT_EQ(settings.GetOutputRefreshRate(), 10.0);
    EXPECT_STREQ(settings.GetPreferencesFile(), "");
}

/// A product with values of its own.
class CProductSettings : public CAudioPluginDefaultSettings
{
public:
    CProductSettings(const CTestPlaces& places, const CTestFilter& filter)
        : CAudioPluginDefaultSettings(places.ModulePath(), filter.GetInputParamsInfo(),
                                      filter.GetOutputParamsInfo(), places.PreferencesFolder())
    {
        Load();
    }

    const char* GetDefaultSkinFile() const override { return "/product/skins/own.xml"; }
    double GetDefaultOutputRefreshRate() const override { return 30.0; }
    void SetDefaultInputMIDISettings(CMIDICCSettings& list) const override { list[0].SetEnabled(true); }
};

TEST_F(CDefaultSettingsTest, AProductOverridesTheFactoryValues)
{
    const CProductSettings settings(places, filter);
    EXPECT_EQ(settings.GetSkinFile(), "/product/skins/own.xml");
    EXPECT_EQ(settings.GetOutputRefreshRate(), 30.0);
    EXPECT_TRUE(settings.GetInputMIDISettings()[0].IsEnabled());
    settings.Save();
    EXPECT_NE(places.ReadSettings().find("<skinFile>own.xml</skinFile>"), std::string::npos);
}

std::string TextOf(const CAudioPluginDefaultSettings& settings)
{
    Mirel::Serialization::CXmlDataObject document("GlobalSettings");
    EXPECT_TRUE(settings.Serialize(document));
    std::string text;
    EXPECT_TRUE(document.SaveToText(text));
    return text;
}

TEST_F(CDefaultSettingsTest, SavesThatText)
{
    const auto settings = Make();
    settings->SetOutputRefreshRate(33.0);
    settings->Save();
    EXPECT_EQ(places.ReadSettings(), TextOf(*settings));
}

RC_GTEST_PROP(CDefaultSettings, ComeBackFromTheTextAndAreWrittenTheSameAgain, ())
{
    static const CTestPlaces places; // one folder for all cases: they write nothing to it
    const CTestFilter filter(2, 2);
    const auto settings = Tests::MakeSettings(places, filter);
    for (CMIDICCSetting& each : settings->GetInputMIDISettings())
    {
        each.SetChannel(*rc::gen::inRange(0, 17));
        each.SetNumber(*rc::gen::inRange(0, 128));
        each.SetEnabled(*rc::gen::arbitrary<bool>());
        each.SetCurve(*rc::gen::inRange(0, 13));
        each.SetMin(*rc::gen::arbitrary<float>());
    }
    for (CAutomationSetting& each : settings->GetOutputAutomationSettings())
    {
        each.SetEnabled(*rc::gen::arbitrary<bool>());
    }
    settings->SetOutputRefreshRate(std::abs(*rc::gen::arbitrary<double>()));
    const std::string saved = TextOf(*settings);

    Mirel::Serialization::CXmlDataObject document("Root");
    RC_ASSERT(document.LoadFromMemory(saved.data(), saved.size()));
    const auto loaded = Tests::MakeSettings(places, filter);
    RC_ASSERT(loaded->Deserialize(document));
    RC_ASSERT(!(loaded->GetOutputRefreshRate() < settings->GetOutputRefreshRate() ||
                loaded->GetOutputRefreshRate() > settings->GetOutputRefreshRate()));
    for (int i = 0; i < 2; ++i)
    {
        RC_ASSERT(loaded->GetOutputAutomationSettings()[i].IsEnabled() ==
                  settings->GetOutputAutomationSettings()[i].IsEnabled());
    }
    RC_ASSERT(TextOf(*loaded) == saved);
}

} // namespace
