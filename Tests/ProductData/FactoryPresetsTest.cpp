#include "CProductInstance.h"

#include <algorithm>
#include <set>

namespace
{

using namespace Mirel::Audio::Plugin;

// Positions in the list of the plug-in's parameters.
constexpr int stereoMode = 1;
constexpr int viewMode = 2;
constexpr int triggerValue = 5;

struct FactoryPresetsTest : testing::Test
{
    IPreset* Find(const std::string& name)
    {
        IPresets& presets = instance->GetPresets();
        for (int i = 0; i < presets.GetCount(); ++i)
        {
            if (presets.GetPreset(i).GetName() == name)
            {
                return &presets.GetPreset(i);
            }
        }
        return nullptr;
    }

    Tests::CProductInstance instance;
};

} // namespace

TEST_F(FactoryPresetsTest, AllHaveNamesOfTheirOwn)
{
    IPresets& presets = instance->GetPresets();
    std::set<std::string> names;
    for (int i = 0; i < presets.GetCount(); ++i)
    {
        names.insert(presets.GetPreset(i).GetName());
    }
    EXPECT_GE(presets.GetCount(), 10);
    EXPECT_EQ(names.size(), static_cast<std::size_t>(presets.GetCount()));
    EXPECT_EQ(names.count(""), 0U);
}

TEST_F(FactoryPresetsTest, EachLoadsWithinTheRangesOfTheParameters)
{
    IPresets& presets = instance->GetPresets();
    for (int i = 0; i < presets.GetCount(); ++i)
    {
        IPreset& preset = presets.GetPreset(i);
        ASSERT_TRUE(preset.Load()) << preset.GetName();
        EXPECT_EQ(instance->GetCurrentPresetName(), preset.GetName());
        for (int k = 0; k < instance->GetInputParamsInfo().GetCount(); ++k)
        {
            EXPECT_GE(instance.GetInput(k), instance->GetInputParamsInfo()[k].GetMin()) << preset.GetName();
            EXPECT_LE(instance.GetInput(k), instance->GetInputParamsInfo()[k].GetMax()) << preset.GetName();
        }
    }
}

TEST_F(FactoryPresetsTest, LoadingSetsTheParameters)
{
    ASSERT_NE(Find("Kick-drum trigger"), nullptr);
    EXPECT_TRUE(Find("Kick-drum trigger")->Load());
    EXPECT_FLOAT_EQ(instance.GetInput(viewMode), 2.0F);
    EXPECT_FLOAT_EQ(instance.GetInput(triggerValue), 0.3F);
    ASSERT_NE(Find("Mid-side"), nullptr);
    EXPECT_TRUE(Find("Mid-side")->Load());
    EXPECT_FLOAT_EQ(instance.GetInput(stereoMode), 1.0F);
    EXPECT_FLOAT_EQ(instance.GetInput(viewMode), 0.0F);
}

TEST_F(FactoryPresetsTest, BypassStaysAsItIs)
{
    instance->SetInputValue(0, 1.0F);
    EXPECT_TRUE(Find("Slow loop")->Load());
    EXPECT_FLOAT_EQ(instance.GetInput(0), 1.0F);
}
