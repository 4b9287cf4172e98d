#include "ModelRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::ElementsAre;
using Tests::CModelRig;

constexpr const char* params = "<PARAM id='a' max='10' default='2'/><PARAM id='b' min='0' max='10'/>"
                               "<PARAM id='n' max='1' default='0.25'/><PARAM id='m' max='1' default='0.5'/>"
                               "<STRING id='s'/>";

/// What the target has when the file is built.
float ValueAfter(const std::string& element, const std::string& id)
{
    CModelRig rig;
    rig.Build(params + element);
    return rig.Value(id);
}

TEST(LinkElements, ModifyWaitsForAChange)
{
    for (const char* trigger : {"", "trigger_condition='modify'"})
    {
        CModelRig rig;
        EXPECT_TRUE(rig.Build(std::string(params) + "<PARAM_LINK from='a' to='b' " + trigger + "/>"));
        EXPECT_FLOAT_EQ(rig.Value("b"), 0) << trigger;
        rig.Param("a").SetValue(3);
        EXPECT_FLOAT_EQ(rig.Value("b"), 3) << trigger;
    }
    for (const char* trigger :
         {"trigger_condition='Modify'", "trigger_condition=''", "trigger_condition='x'"})
    {
        EXPECT_FLOAT_EQ(ValueAfter(std::string("<PARAM_LINK from='a' to='b' ") + trigger + "/>", "b"), 2)
            << trigger;
    }
}

TEST(LinkElements, ResponseCurvesAreThoseOfTheirTable)
{
    const double x = 0.25;
    const struct
    {
        const char* name;
        double y;
    } rows[] = {
        {"log3", std::log(1000 * x + 1) / std::log(1001)},
        {"log2", std::log(100 * x + 1) / std::log(101)},
        {"log1", std::log(10 * x + 1) / std::log(11)},
        {"square_root", 0.5},
        {"log", std::log(x + 1) / std::log(2)},
        {"linear", x},
        {"exp", std::exp(x * std::log(2)) - 1},
        {"square", x * x},
        {"exp1", (std::exp(x * std::log(11)) - 1) / 10},
        {"exp2", (std::exp(x * std::log(101)) - 1) / 100},
        {"exp3", (std::exp(x * std::log(1001)) - 1) / 1000},
        {"Log3", x},
        {"", x},
    };
    for (const auto& row : rows)
    {
        const std::string curve = std::string("response_curve='") + row.name + "'";
        EXPECT_NEAR(ValueAfter("<PARAM_LINK from='n' to='m' trigger_condition='all' " + curve + "/>", "m"),
                    row.y, 1e-6)
            << row.name;
        EXPECT_NEAR(ValueAfter("<PARAM_CONNECTION id1='n' id2='m' " + curve + "/>", "m"), row.y, 1e-6)
            << row.name;
    }
    EXPECT_NEAR(ValueAfter("<PARAM_LINK from='n' to='m' trigger_condition='all'/>", "m"), x, 1e-6);
}

TEST(LinkElements, AFormulaComesBeforeTheResponseCurve)
{
    const std::string link = "<PARAM_LINK from='a' to='b' trigger_condition='all' response_curve='square' ";
    EXPECT_FLOAT_EQ(ValueAfter(link + "/>", "b"), 4);
    EXPECT_FLOAT_EQ(ValueAfter(link + "formula='x+1'/>", "b"), 3);
    EXPECT_FLOAT_EQ(ValueAfter(link + "formula='v*4' variable='v'/>", "b"), 8);
}

TEST(LinkElements, ALinkWithABadFormulaStaysConnected)
{
    CModelRig rig;
    EXPECT_FALSE(rig.Build(
        std::string(params) +
        "<PARAM_LINK from='a' to='b' trigger_condition='all' formula='q' response_curve='square'/>"));
    EXPECT_FLOAT_EQ(rig.Value("b"), 2);
}

TEST(LinkElements, OnlyTrueReversesAndOnlyFalseDisables)
{
    const std::string link = "<PARAM_LINK from='a' to='b' trigger_condition='all' ";
    EXPECT_FLOAT_EQ(ValueAfter(link + "reverse='true'/>", "b"), 8);
    EXPECT_FLOAT_EQ(ValueAfter(link + "reverse='1'/>", "b"), 2);
    EXPECT_FLOAT_EQ(ValueAfter(link + "reverse='True'/>", "b"), 2);
    EXPECT_FLOAT_EQ(ValueAfter(link + "enabled='false'/>", "b"), 0);
    EXPECT_FLOAT_EQ(ValueAfter(link + "enabled='0'/>", "b"), 2);
    EXPECT_FLOAT_EQ(
        ValueAfter("<PARAM_LINK from='n' to='b' trigger_condition='all' normalized='true'/>", "b"), 2.5f);
    EXPECT_FLOAT_EQ(ValueAfter("<PARAM_LINK from='n' to='b' trigger_condition='all' normalized='yes'/>", "b"),
                    0.25f);
}

TEST(LinkElements, DiffAddsMovements)
{
    for (const auto& [mode, expected] :
         {std::pair("diff", 9.0f), std::pair("normal", 4.0f), std::pair("x", 4.0f)})
    {
        CModelRig rig;
        EXPECT_TRUE(rig.Build(std::string(params) +
                              "<PARAM_LINK from='a' to='b' trigger_condition='all' mode='" + mode + "'/>"));
        rig.Param("b").SetValue(7);
        rig.Param("a").SetValue(4);
        EXPECT_FLOAT_EQ(rig.Value("b"), expected) << mode;
    }
}

TEST(LinkElements, ConstraintCorrectsTheSideThatMoved)
{
    for (const auto& [constraint, expected] :
         {std::pair("constraint='true'", 1.0f), std::pair("", 1.0f), std::pair("constraint='false'", 6.0f)})
    {
        CModelRig rig;
        EXPECT_TRUE(
            rig.Build(std::string(params) + "<PARAM_CONNECTION id1='a' id2='m' " + constraint + "/>"));
        rig.Param("a").SetValue(6);
        EXPECT_FLOAT_EQ(rig.Value("m"), 1) << constraint;
        EXPECT_FLOAT_EQ(rig.Value("a"), expected) << constraint;
    }
}

TEST(LinkElements, MuxFunctionsCombineParameters)
{
    const struct
    {
        const char* name;
        float value; ///< Of 2 and 7.
    } rows[] = {{"mean", 4.5f}, {"", 4.5f},   {"other", 4.5f},  {"max", 7},  {"min", 2},
                {"-max", -7},   {"-min", -2}, {"-mean", -4.5f}, {"&lt;", 1}, {"&lt;=", 1},
                {">", 0},       {">=", 0},    {"=", 0}};
    for (const auto& row : rows)
    {
        CModelRig rig;
        EXPECT_TRUE(rig.Build(
            std::string("<PARAM id='a' max='10' default='2'/><PARAM id='b' max='10' default='7'/>"
                        "<PARAM id='t' min='-10' max='10'/>"
                        "<PARAM_MULTI_LINK from='a;b' to='t' trigger_condition='all' mux_function='") +
            row.name + "'/>"));
        EXPECT_FLOAT_EQ(rig.Value("t"), row.value) << row.name;
    }
}

TEST(LinkElements, MuxFunctionsCombineCurves)
{
    const struct
    {
        const char* name;
        float value; ///< Of 6 and 2.
    } rows[] = {{"+", 8}, {"-", 4}, {"/", 3}, {"*", 12}};
    const std::string curves =
        "<CURVE id='a' y_max='99' y_default='6'/><CURVE id='b' y_max='99' y_default='2'/>"
        "<CURVE id='t'/><CURVE_MULTI_LINK from='a;b' to='t' trigger_condition='all' ";
    for (const auto& row : rows)
    {
        CModelRig rig;
        EXPECT_TRUE(rig.Build(curves + "mux_function='" + row.name + "'/>"));
        EXPECT_FLOAT_EQ(rig.Find<IConstCaptureCurve>("t")->GetValue()(0), row.value) << row.name;
    }
    // Without an operation the first curve is handed on.
    for (const char* none : {"/>", "mux_function='%'/>"})
    {
        CModelRig rig;
        EXPECT_TRUE(rig.Build(curves + none));
        EXPECT_FLOAT_EQ(rig.Find<IConstCaptureCurve>("t")->GetValue()(0), 6) << none;
    }
}

TEST(LinkElements, TriggersLimitWhatMultiLinksHandOn)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(std::string(params) +
                          "<PARAM_MULTI_LINK from='a' to='b' trigger_min='3' trigger_max='5'/>"));
    rig.Param("b").SetValue(4);
    rig.Param("a").SetValue(1);
    EXPECT_FLOAT_EQ(rig.Value("b"), 4);
    rig.Param("a").SetValue(4.5f);
    EXPECT_FLOAT_EQ(rig.Value("b"), 4.5f);
    rig.Param("a").SetValue(6);
    EXPECT_FLOAT_EQ(rig.Value("b"), 4.5f);

    // A trigger that is no number is 0.
    CModelRig zero;
    EXPECT_TRUE(zero.Build(std::string(params) + "<PARAM_MULTI_LINK from='a' to='b' trigger_max='x'/>"));
    zero.Param("a").SetValue(1);
    EXPECT_FLOAT_EQ(zero.Value("b"), 0);
}

std::string TextAfter(const std::string& attributes)
{
    CModelRig rig;
    rig.Build("<PARAM id='p' max='2000' default='1234.5' unit='Hz'/><STRING id='t'/>"
              "<PARAM_TO_STRING_LINK from='p' to='t' trigger_condition='all' " +
              attributes + "/>");
    return rig.Text("t");
}

TEST(LinkElements, ValuesBecomeTexts)
{
    EXPECT_EQ(TextAfter(""), "1234.50 Hz");
    EXPECT_EQ(TextAfter("content='{value}'"), "1234.5");
    EXPECT_EQ(TextAfter("content='{value}' value_format='.3'"), "1234.500");
    EXPECT_EQ(TextAfter("content='{value}' value_format='+8.0'"), "   +1234");
    EXPECT_EQ(TextAfter("content='{value}' value_format='.3s'"), "1234.5");
    EXPECT_EQ(TextAfter("content='{value}{unit}' value_suffix='true' value_format='.2'"), "1.23kHz");
    EXPECT_EQ(TextAfter("content='{value}' value_suffix='1'"), "1234.5");
    EXPECT_EQ(TextAfter("content='{value}' significant_digits='3'"), "1230.0");
    EXPECT_EQ(TextAfter("content='{value}' significant_digits='x'"), "1234.5");
}

TEST(LinkElements, AFormatThatPrintsNoNumberIsReported)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(std::string(params) +
                          "<PARAM_TO_STRING_LINK from='a' to='s' value_format='5.5.5' content='{value}'/>"));
    EXPECT_EQ(rig.TakeMessages().size(), 1U);
}

TEST(LinkElements, SeparatorsJoinTexts)
{
    const std::string strings = "<STRING id='a' default='A'/><STRING id='b' default='B'/><STRING id='t'/>"
                                "<STRING_MULTI_LINK from='a;b;' to='t' trigger_condition='all' ";
    CModelRig joined;
    EXPECT_TRUE(joined.Build(strings + "separator=''/>"));
    EXPECT_EQ(joined.Text("t"), "AB");
    CModelRig first;
    EXPECT_TRUE(first.Build(strings + "/>"));
    EXPECT_EQ(first.Text("t"), "A");
}

TEST(LinkElements, WithoutADurationAnAnimatedLinkJumps)
{
    EXPECT_FLOAT_EQ(ValueAfter("<PARAM_ANIMATED_LINK from='a' to='b' trigger_condition='all'/>", "b"), 2);
    EXPECT_FLOAT_EQ(
        ValueAfter("<PARAM_ANIMATED_LINK from='a' to='b' trigger_condition='all' duration_ms='9'/>", "b"), 0);
}

TEST(LinkElements, RefreshTimesAreShownAndSet)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(std::string(params) +
                          "<PARAM_ANIMATOR id='an' param_id='b' duration_ms='100' refresh_time_ms='20'/>"
                          "<PARAM_ANIMATOR id='bad' param_id='a' refresh_time_ms='0'/>"
                          "<CURVE_FROM_PARAM_OVER_TIME id='h' param_id='a' refresh_time_ms='-5'/>"));
    EXPECT_FLOAT_EQ(rig.Value("an.refresh_time_ms"), 20);
    EXPECT_FLOAT_EQ(rig.Value("bad.refresh_time_ms"), 50);
    EXPECT_FLOAT_EQ(rig.Value("h.refresh_time_ms"), 50);
    rig.timer.trace.clear();
    rig.Param("an.refresh_time_ms").SetValue(35);
    EXPECT_EQ(rig.timer.trace, "-+35");
}

TEST(LinkElements, HistoriesArePausedByTheirSwitch)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build(std::string(params) + "<CURVE_FROM_PARAM_OVER_TIME id='h' param_id='a' paused='true'/>"));
    EXPECT_TRUE(rig.timer.periods.empty());
    rig.Param("h.paused").SetValue(0);
    EXPECT_EQ(rig.timer.periods.size(), 1U);
    EXPECT_FLOAT_EQ(rig.Value("h.paused"), 0);
}

TEST(LinkElements, ListsThatAreTooLongAreRefused)
{
    std::string ids = "a";
    for (int i = 0; i < 5000; ++i)
    {
        ids += ";a";
    }
    CModelRig rig;
    EXPECT_FALSE(rig.Build(std::string(params) + "<PARAM_MULTI_LINK from='" + ids + "' to='b'/>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: Cannot create link, too many identifiers in a list.",
                                                "0: Fatal error: model parsing failed"));
}

} // namespace
} // namespace Mirel::SkinEngine
