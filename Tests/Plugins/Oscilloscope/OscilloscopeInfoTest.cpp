#include "Plugins/Oscilloscope/COscilloscope.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>

using namespace PluginsFilters;
using namespace Mirel::DataModel::Objects;

namespace
{

std::string Text(const IConstParamInfo& info, float value)
{
    char* text = nullptr;
    info.GetValueToText().ToText(value, text);
    const std::unique_ptr<char[]> owned(text);
    return owned.get();
}

struct SRow
{
    const char* name;
    int type;
    float min;
    float max;
    const char* unit;
    const char* zero;
    const char* one;
};

void ExpectAxis(const IConstParamInfo& info, const std::string& name, float min, float max,
                const std::string& unit)
{
    EXPECT_EQ(info.GetName(), name);
    EXPECT_EQ(info.GetType(), 2);
    EXPECT_EQ(info.GetMin(), min);
    EXPECT_EQ(info.GetMax(), max);
    EXPECT_EQ(info.GetUnit(), unit);
}

} // namespace

TEST(OscilloscopeInfo, FiveParametersInOrderWithTheirRangesAndTexts)
{
    const COscilloscope scope;
    const SRow rows[] = {
        {"View Mode", 1, 0, 2, "", "Flow", "Loop"},       {"Sync", 3, 0, 1, "", "0", "1"},
        {"Delay", 2, 0, 300, "ms", "0.0", "1.0"},         {"Trigger Value", 2, -1, 1, "", "0.00", "1.00"},
        {"Trigger Direction", 2, 0, 1, "", "Up", "Down"},
    };
    const auto& params = scope.GetInputParamsInfo();
    ASSERT_EQ(params.GetCount(), 5);
    for (int i = 0; i < 5; ++i)
    {
        SCOPED_TRACE(rows[i].name);
        EXPECT_STREQ(params[i].GetName(), rows[i].name);
        EXPECT_EQ(params[i].GetType(), rows[i].type);
        EXPECT_EQ(params[i].GetMin(), rows[i].min);
        EXPECT_EQ(params[i].GetMax(), rows[i].max);
        EXPECT_EQ(params[i].GetDefault(), 0.0f);
        EXPECT_STREQ(params[i].GetUnit(), rows[i].unit);
        EXPECT_EQ(Text(params[i], 0.0f), rows[i].zero);
        EXPECT_EQ(Text(params[i], 1.0f), rows[i].one);
    }
    EXPECT_EQ(Text(params[0], 2.0f), "Trigger");
}

TEST(OscilloscopeInfo, TwoCurvesWithTheirAxesAndNothingElseGoesOut)
{
    const COscilloscope scope;
    const auto& curves = scope.GetOutputCurvesInfo();
    ASSERT_EQ(curves.GetCount(), 2);
    EXPECT_STREQ(curves[0].GetName(), "Waveform");
    ExpectAxis(curves[0].GetXInfo(), "Time", -1.0f, 0.0f, "s");
    ExpectAxis(curves[0].GetYInfo(), "Value", -1.0f, 1.0f, "");
    EXPECT_STREQ(curves[1].GetName(), "Histogram");
    ExpectAxis(curves[1].GetXInfo(), "Values", -1.0f, 1.0f, "");
    ExpectAxis(curves[1].GetYInfo(), "Normalized", 0.0f, 1.0f, "");
    EXPECT_EQ(scope.GetOutputParamsInfo().GetCount(), 0);
    EXPECT_EQ(scope.GetOutputStringsInfo().GetCount(), 0);
    EXPECT_EQ(scope.GetOutputSurfacesInfo().GetCount(), 0);
}

TEST(OscilloscopeInfo, ProductAndProcess)
{
    const COscilloscope scope;
    EXPECT_STREQ(scope.GetProductInfo().GetName(), "Oscilloscope");
    EXPECT_STREQ(scope.GetProductInfo().GetVersion(), "2.0");
    EXPECT_STREQ(scope.GetProductInfo().GetDescription(), "Audio Oscilloscope");
    ASSERT_EQ(scope.GetProcessInfo().GetInputs().GetCount(), 1);
    EXPECT_STREQ(scope.GetProcessInfo().GetInputs()[0].GetName(), "In");
    EXPECT_EQ(scope.GetProcessInfo().GetOutputs().GetCount(), 0);
}

TEST(OscilloscopeInfo, EachInstanceHasATableOfItsOwn)
{
    COscilloscope changed;
    changed.GetInputParamsInfo()[0].SetName("Other");

    EXPECT_STREQ(std::as_const(changed).GetInputParamsInfo()[0].GetName(), "Other");
    EXPECT_STREQ(std::as_const(*std::make_unique<COscilloscope>()).GetInputParamsInfo()[0].GetName(),
                 "View Mode");
}
