#include "Mirel/Audio/Plugin/CMIDICCSetting.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <string>

using namespace Mirel::Audio::Plugin;
using Mirel::DataModel::Objects::CParamInfo;
using Mirel::Serialization::CMemDataObject;
using Mirel::Serialization::CXmlDataObject;

namespace
{

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

constexpr const char* curveNames[] = {"Log3", "Log2",   "Log1", "Log0", "Square Root", "Log", "Linear",
                                      "Exp",  "Square", "Exp0", "Exp1", "Exp2",        "Exp3"};

std::string SavedText(const CMIDICCSetting& setting)
{
    CXmlDataObject document("S");
    EXPECT_TRUE(setting.Serialize(document));
    std::string text;
    EXPECT_TRUE(document.SaveToText(text));
    return text.substr(text.find("<S>"));
}

bool LoadKeys(CMIDICCSetting& setting, const std::string& keys)
{
    CXmlDataObject document("S");
    const std::string text = "<S>" + keys + "</S>";
    EXPECT_TRUE(document.LoadFromMemory(text.data(), text.size()));
    return setting.Deserialize(document);
}

bool IsSame(const CMIDICCSetting& a, const CMIDICCSetting& b)
{
    return a.GetChannel() == b.GetChannel() && a.GetNumber() == b.GetNumber() &&
           a.IsEnabled() == b.IsEnabled() && a.GetCurve() == b.GetCurve() &&
           !(a.GetMin() < b.GetMin() || a.GetMin() > b.GetMin()) &&
           !(a.GetMax() < b.GetMax() || a.GetMax() > b.GetMax());
}

TEST(CMIDICCSetting, StartsDisabledOnEveryChannelWithAStraightLine)
{
    const CMIDICCSetting setting;
    EXPECT_FALSE(setting.IsEnabled());
    EXPECT_EQ(setting.GetChannel(), 0);
    EXPECT_EQ(setting.GetNumber(), 65);
    EXPECT_EQ(setting.GetCurve(), 6);
    EXPECT_EQ(setting.GetMin(), 0.0f);
    EXPECT_EQ(setting.GetMax(), 1.0f);
}

TEST(CMIDICCSetting, OfAParameterRunsOverItsRange)
{
    const CMIDICCSetting setting(CParamInfo(2, -3.0f, 9.0f, 1.0f, "P", "", ""));
    EXPECT_EQ(setting.GetMin(), -3.0f);
    EXPECT_EQ(setting.GetMax(), 9.0f);
}

TEST(CMIDICCSetting, WritesItsKeysInOrder)
{
    CMIDICCSetting setting;
    setting.SetChannel(3);
    setting.SetNumber(7);
    setting.SetEnabled(true);
    setting.SetCurve(4);
    setting.SetMin(-1.0f);
    setting.SetMax(0.5f);
    EXPECT_EQ(SavedText(setting),
              "<S><channel>3</channel><version>1</version><number>7</number><enabled>1</enabled>"
              "<curve>Square Root</curve><min>-1</min><max>0.5</max></S>");
}

TEST(CMIDICCSetting, NamesItsCurvesInSettings)
{
    for (int code = 0; code < 13; ++code)
    {
        CMIDICCSetting setting;
        EXPECT_TRUE(LoadKeys(setting, "<channel>0</channel><number>1</number><enabled>0</enabled><curve>" +
                                          std::string(curveNames[code]) +
                                          "</curve><min>0</min><max>1</max>"));
        EXPECT_EQ(setting.GetCurve(), code) << curveNames[code];
        EXPECT_NE(SavedText(setting).find("<curve>" + std::string(curveNames[code]) + "</curve>"),
                  std::string::npos);
    }
}

TEST(CMIDICCSetting, EvaluatesTheChosenCurve)
{
    CMIDICCSetting setting;
    EXPECT_FLOAT_EQ(setting.EvaluateCurve(0.25f), 0.25f);
    setting.SetCurve(8); // Square
    EXPECT_FLOAT_EQ(setting.EvaluateCurve(0.25f), 0.0625f);
    setting.SetCurve(4); // Square Root
    EXPECT_FLOAT_EQ(setting.EvaluateCurve(0.25f), 0.5f);
}

TEST(CMIDICCSetting, KeepsWhatIsMissingOrMalformed)
{
    CMIDICCSetting setting;
    setting.SetNumber(9);
    setting.SetCurve(2);
    setting.SetMax(4.0f);
    EXPECT_FALSE(LoadKeys(setting, "<channel>5</channel><number>abc</number><curve>Bent</curve>"));
    EXPECT_EQ(setting.GetChannel(), 5);
    EXPECT_EQ(setting.GetNumber(), 9);
    EXPECT_EQ(setting.GetCurve(), 2);
    EXPECT_EQ(setting.GetMax(), 4.0f);
}

TEST(CMIDICCSetting, KeepsToItsRanges)
{
    CMIDICCSetting setting;
    LoadKeys(setting, "<channel>17</channel><number>128</number>");
    EXPECT_EQ(setting.GetChannel(), 16);
    EXPECT_EQ(setting.GetNumber(), 127);
    LoadKeys(setting, "<channel>-1</channel><number>-2147483648</number>");
    EXPECT_EQ(setting.GetChannel(), 0);
    EXPECT_EQ(setting.GetNumber(), 0);
    setting.SetCurve(13);
    setting.SetCurve(-1);
    EXPECT_EQ(setting.GetCurve(), 6);
}

TEST(CMIDICCSetting, IgnoresWhatIsNotFinite)
{
    CMIDICCSetting setting;
    for (const float value : {notANumber, infinity, -infinity})
    {
        CMemDataObject data;
        data.Write("min", value);
        data.Write("max", value);
        setting.Deserialize(data);
        EXPECT_EQ(setting.GetMin(), 0.0f);
        EXPECT_EQ(setting.GetMax(), 1.0f);
    }
}

TEST(CMIDICCSetting, FiresOnChangesOnly)
{
    CMIDICCSetting setting;
    Tests::CEventCounter changes(setting.GetChangedEventProvider());
    setting.SetChannel(2);
    setting.SetNumber(3);
    setting.SetEnabled(true);
    setting.SetCurve(1);
    setting.SetMin(0.5f);
    setting.SetMax(2.0f);
    EXPECT_EQ(changes.Take(), 6);
    setting.SetChannel(2);
    setting.SetNumber(3);
    setting.SetEnabled(true);
    setting.SetCurve(1);
    setting.SetMin(0.5f);
    setting.SetMax(2.0f);
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CMIDICCSetting, AnAssignmentFiresOnceAndKeepsTheListeners)
{
    CMIDICCSetting source;
    source.SetNumber(1);
    source.SetEnabled(true);
    CMIDICCSetting target;
    Tests::CEventCounter changes(target.GetChangedEventProvider());
    target = source;
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_TRUE(IsSame(target, source));
    target = source;
    EXPECT_EQ(changes.Take(), 0);
    target.SetNumber(2);
    EXPECT_EQ(changes.Take(), 1);
}

RC_GTEST_PROP(CMIDICCSetting, ComesBackFromEveryForm, ())
{
    CMIDICCSetting setting;
    setting.SetChannel(*rc::gen::inRange(0, 17));
    setting.SetNumber(*rc::gen::inRange(0, 128));
    setting.SetEnabled(*rc::gen::arbitrary<bool>());
    setting.SetCurve(*rc::gen::inRange(0, 13));
    setting.SetMin(*rc::gen::arbitrary<float>());
    setting.SetMax(*rc::gen::arbitrary<float>());

    CMemDataObject memory;
    RC_ASSERT(setting.Serialize(memory));
    CMIDICCSetting fromMemory;
    RC_ASSERT(fromMemory.Deserialize(memory));
    RC_ASSERT(IsSame(setting, fromMemory));

    const std::string text = SavedText(setting);
    CXmlDataObject document("S");
    RC_ASSERT(document.LoadFromMemory(text.data(), text.size()));
    CMIDICCSetting fromText;
    RC_ASSERT(fromText.Deserialize(document));
    RC_ASSERT(IsSame(setting, fromText));
}

} // namespace
