#include "Mirel/Core/CEnable.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace Mirel::DataModel
{
namespace
{

using namespace Objects;
using Tests::CEventCounter;

CParamInfo Range(float min, float max)
{
    return {2, min, max, min, "Name", "Hz", ""};
}

TEST(TCaptureValueWrapper, ShowsASwitchAsAParameter)
{
    Core::CEnable light(false);
    CCaptureParamWrapper param(
        Range(0.0f, 1.0f), [&light] { return light.IsEnabled() ? 1.0f : 0.0f; },
        [&light](float value) { light.Enable(value >= 0.5f); }, &light.GetEnableChangedEventProvider());
    CEventCounter changes(param.GetValueChangedEventProvider());
    EXPECT_EQ(param.GetValue(), 0.0f);
    param.SetValue(1.0f);
    EXPECT_TRUE(light.IsEnabled());
    EXPECT_EQ(changes.Take(), 1);
    light.Enable(false);
    EXPECT_EQ(param.GetValue(), 0.0f);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(param.GetInfo().GetUnit(), "Hz");
}

TEST(TCaptureValueWrapper, FiresItselfWhereTheOtherObjectHasNoEvent)
{
    float held = 0.0f;
    CCaptureParamWrapper param(
        Range(0.0f, 1.0f), [&held] { return held; }, [&held](float value) { held = value; }, nullptr);
    CEventCounter changes(param.GetValueChangedEventProvider());
    param.SetValue(0.5f);
    param.SetValue(0.5f);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(held, 0.5f);
}

TEST(TCaptureValueWrapper, KeepsNumbersToTheRangeAndIgnoresWhatIsNone)
{
    float held = 0.0f;
    int sets = 0;
    CCaptureParamWrapper param(
        Range(-1.0f, 2.0f), [&held] { return held; },
        [&](float value)
        {
            held = value;
            ++sets;
        },
        nullptr);
    param.SetValue(100.0f);
    EXPECT_EQ(held, 2.0f);
    param.SetValue(-100.0f);
    EXPECT_EQ(held, -1.0f);
    param.SetValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(held, -1.0f);
    EXPECT_EQ(sets, 2);
}

TEST(TCaptureValueWrapper, PassesCapturesOn)
{
    Core::CCapture held;
    CCaptureParamWrapper param(
        Range(0.0f, 1.0f), [] { return 0.0f; }, [](float) {}, nullptr, &held);
    CEventCounter begun(param.GetBeginCaptureEventProvider());
    param.BeginCapture();
    EXPECT_TRUE(held.IsCaptured());
    EXPECT_TRUE(param.IsCaptured());
    EXPECT_EQ(begun.Take(), 1);
    param.EndCapture();
    EXPECT_FALSE(held.IsCaptured());
    EXPECT_FALSE(param.IsCaptured());
}

TEST(TCaptureValueWrapper, WrapsTextsToo)
{
    std::string held = "before";
    TCaptureValueWrapper<const char*, IConstStringInfo, CStringInfo> text(
        CStringInfo(), [&held] { return held.c_str(); }, [&held](const char* value) { held = value; },
        nullptr);
    text.SetValue("after");
    EXPECT_STREQ(text.GetValue(), "after");
}

TEST(TConstCaptureValueWrapper, IsReadAndNeverCaptured)
{
    float held = 0.25f;
    const CConstCaptureParamWrapper param(
        Range(0.0f, 1.0f), [&held] { return held; }, nullptr);
    EXPECT_EQ(param.GetValue(), 0.25f);
    held = 0.5f;
    EXPECT_EQ(param.GetValue(), 0.5f);
    EXPECT_FALSE(param.IsCaptured());
}

} // namespace
} // namespace Mirel::DataModel
