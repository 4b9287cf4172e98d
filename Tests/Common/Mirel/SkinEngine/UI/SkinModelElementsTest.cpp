// What a skin may have of the model dialect.

#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Mirel::SkinEngine
{
namespace
{

using testing::Contains;
using Tests::CUIRig;

constexpr const char* zoomParam = "<PARAM id='zoom' min='1' max='10' default='3'/>";
constexpr const char* graph = "<CURVE_GRAPH id='g' curve_id='c' width='10' height='10'/>";
constexpr const char* link = "<PARAM_LINK from='zoom' to='g.x_zoom' trigger_condition='always'/>";

struct SkinModelElements : testing::Test
{
    SkinModelElements() { rig.AddCurve("c"); }

    CUIRig rig;
};

TEST_F(SkinModelElements, APropertyFollowsAParameterOfTheSkin)
{
    ASSERT_TRUE(rig.Build(std::string(zoomParam) + graph + link));
    EXPECT_FLOAT_EQ(rig.Value("g.x_zoom"), 3.0f);
    rig.Param("zoom").SetValue(5.0f);
    EXPECT_FLOAT_EQ(rig.Value("g.x_zoom"), 5.0f);
}

TEST_F(SkinModelElements, ALinkMayStandBeforeWhatItNames)
{
    ASSERT_TRUE(rig.Build(std::string(link) + graph + zoomParam));
    EXPECT_FLOAT_EQ(rig.Value("g.x_zoom"), 3.0f);
}

TEST_F(SkinModelElements, ALinkExposesThePropertyThatItNamesAndNoOther)
{
    ASSERT_TRUE(rig.Build(std::string(zoomParam) + graph + link, false));
    EXPECT_TRUE(rig.Has("g.x_zoom"));
    EXPECT_FALSE(rig.Has("g.y_zoom"));
}

TEST_F(SkinModelElements, APropertyFollowsTheModelAroundTheSkin)
{
    rig.AddParam("zoom", 1.0f, 10.0f).SetValue(2.0f);
    ASSERT_TRUE(rig.Build(std::string(graph) + link, false));
    EXPECT_FLOAT_EQ(rig.Value("g.x_zoom"), 2.0f);
}

TEST_F(SkinModelElements, AFormulaReadsProperties)
{
    ASSERT_TRUE(
        rig.Build(std::string(graph) +
                      "<FORMULA_PARAM id='twice' min='0' max='20' formula='2 * g.x_zoom' exposed='true'/>",
                  false));
    rig.Param("g.x_zoom").SetValue(4.0f);
    EXPECT_FLOAT_EQ(rig.Value("twice"), 8.0f);
}

TEST_F(SkinModelElements, ObjectsOfTheSkinGoWithIt)
{
    auto& outer = rig.AddParam("outer", 1.0f, 10.0f);
    ASSERT_TRUE(rig.Build(std::string(zoomParam) + graph +
                          "<PARAM_LINK from='outer' to='g.x_zoom' trigger_condition='always'/>"));
    rig.Close();
    EXPECT_FALSE(rig.Has("zoom"));
    outer.SetValue(5.0f); // Its link is gone, and must not be reached.
    EXPECT_TRUE(rig.Has("outer"));
}

TEST_F(SkinModelElements, ALinkThatNamesNothingFailsTheSkin)
{
    EXPECT_FALSE(rig.Build(std::string(zoomParam) + link));
    EXPECT_THAT(rig.TakeMessages(), Contains("0: g.x_zoom: Unknown identifier (object does not exist)."));
}

TEST_F(SkinModelElements, ItemsOfCollectionsHaveLinksOfTheirOwn)
{
    ASSERT_TRUE(rig.Build(std::string(zoomParam) +
                              "<COLLECTION id='graphs' item_name='graph' count='2'>"
                              "<CURVE_GRAPH id='$graph$' curve_id='c' width='10' height='10'/>"
                              "<PARAM_LINK from='zoom' to='$graph$.x_zoom' trigger_condition='always'/>"
                              "</COLLECTION>",
                          false));
    EXPECT_FLOAT_EQ(rig.Value("graphs[0].x_zoom"), 3.0f);
    rig.Param("zoom").SetValue(6.0f);
    EXPECT_FLOAT_EQ(rig.Value("graphs[1].x_zoom"), 6.0f);
}

} // namespace
} // namespace Mirel::SkinEngine
