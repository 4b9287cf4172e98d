#include "Mirel/Audio/Plugin/CParamValue.h"
#include "Mirel/Audio/Plugin/CSharedFlag.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::Audio::Plugin;
using Mirel::DataModel::Objects::CParamInfo;

namespace
{

TEST(CParamValue, StartsAtTheDefault)
{
    EXPECT_EQ(CParamValue(CParamInfo(2, -1.0f, 1.0f, 0.25f, "P", "", "")).GetValue(), 0.25f);
}

TEST(CParamValue, KeepsToTheRangeAndIgnoresNaN)
{
    CParamValue value(CParamInfo(2, -1.0f, 1.0f, 0.0f, "P", "", ""));
    value.SetValue(-7.0f);
    EXPECT_EQ(value.GetValue(), -1.0f);
    value.SetValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(value.GetValue(), -1.0f);
    value.SetValue(std::numeric_limits<float>::infinity());
    EXPECT_EQ(value.GetValue(), 1.0f);
    value.SetValue(-0.5f);
    EXPECT_EQ(value.GetValue(), -0.5f);
}

TEST(CParamValue, KeepsTheRangeThatItWasMadeWith)
{
    CParamInfo info(2, -1.0f, 1.0f, 0.0f, "P", "", "");
    CParamValue value(info);
    info.SetMax(5.0f);
    value.SetValue(3.0f);
    EXPECT_EQ(value.GetValue(), 1.0f);
}

TEST(CSharedFlag, FiresOnChangesOnly)
{
    CSharedFlag flag(true);
    Tests::CEventCounter changes(flag.GetValueChangedEventProvider());
    flag.SetValue(true);
    EXPECT_EQ(changes.Take(), 0);
    flag.SetValue(false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_FALSE(flag.GetValue());
}

} // namespace
