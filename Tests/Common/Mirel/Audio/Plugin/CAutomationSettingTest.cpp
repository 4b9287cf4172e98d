#include "Mirel/Audio/Plugin/CAutomationSetting.h"
#include "Mirel/Serialization/CMemDataObject.h"

#include <gtest/gtest.h>

using namespace Mirel::Audio::Plugin;
using Mirel::Serialization::CMemDataObject;

TEST(CAutomationSetting, IsDisabledAtFirst)
{
    EXPECT_FALSE(CAutomationSetting().IsEnabled());
}

TEST(CAutomationSetting, WritesItsVersionAndWhetherItIsEnabled)
{
    CAutomationSetting setting;
    setting.SetEnabled(true);
    CMemDataObject data;
    ASSERT_TRUE(setting.Serialize(data));

    int version = 0;
    bool enabled = false;
    EXPECT_TRUE(data.Read("version", version));
    EXPECT_EQ(version, 1);
    EXPECT_TRUE(data.Read("enabled", enabled));
    EXPECT_TRUE(enabled);
    EXPECT_EQ(data.GetCount(), 2);
}

TEST(CAutomationSetting, KeepsItsValueWithoutTheKey)
{
    CAutomationSetting setting;
    setting.SetEnabled(true);
    EXPECT_FALSE(setting.Deserialize(CMemDataObject()));
    EXPECT_TRUE(setting.IsEnabled());
}
