// The parameters that elements have under their identifiers.

#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using Tests::CUIRig;
using Suffixes = std::set<std::string>;

Suffixes Join(std::initializer_list<Suffixes> parts)
{
    Suffixes all;
    for (const Suffixes& part : parts)
    {
        all.insert(part.begin(), part.end());
    }
    return all;
}

const Suffixes placed = {"visible", "display",          "h_align",         "v_align",
                         "flex",    "internal_h_align", "internal_v_align"};
const Suffixes margins = {"h_margin", "v_margin"};
const Suffixes flow = {"h_margin", "v_margin", "layout_type", "spacing"};
const Suffixes seen = {"mouse_over", "focus", "opacity"};
const Suffixes axis = {"zoom", "offset"};
const Suffixes axes = {"x_zoom", "x_offset", "y_zoom", "y_offset"};
const Suffixes pixels = {"x_extra_pixels", "y_extra_pixels"};
const Suffixes curvesAxes = {"x_curve.x_zoom", "x_curve.x_offset", "x_curve.y_zoom", "x_curve.y_offset",
                             "y_curve.x_zoom", "y_curve.x_offset", "y_curve.y_zoom", "y_curve.y_offset"};

TEST(UIExposure, EachElementHasItsProperties)
{
    const Suffixes cell = Join({placed, flow});
    const Suffixes widget = Join({placed, seen});
    const Suffixes control = Join({widget, axis});
    const Suffixes button = Join({control, {"pushed"}});
    struct SRow
    {
        std::string element;
        Suffixes suffixes;
    };
    const SRow rows[] = {
        {"COLUMN", cell},
        {"ROW", cell},
        {"LAYER_STACK", cell},
        {"CELL", cell},
        {"TABLE", Join({placed, margins})},
        {"IMAGE_GROUP_BOX", Join({widget, flow})},
        {"TEXT", widget},
        {"TEXT_FIELD", widget},
        {"IMAGE", widget},
        {"IMAGE_PARAM_BUTTON", button},
        {"INVISIBLE_PARAM_BUTTON", button},
        {"IMAGE_PARAM_TOGGLE_SWITCH", button},
        {"INVISIBLE_PARAM_TOGGLE_SWITCH", button},
        {"IMAGE_PARAM_MENU_BUTTON", button},
        {"INVISIBLE_PARAM_MENU_BUTTON", button},
        {"IMAGE_ACTION_BUTTON", Join({widget, {"pushed"}})},
        {"INVISIBLE_ACTION_BUTTON", Join({widget, {"pushed"}})},
        {"IMAGE_PARAM_KNOB", control},
        {"IMAGE_PARAM_SLIDER", control},
        {"IMAGE_PARAM_METER", control},
        {"IMAGE_PARAM_LINEAR_METER", control},
        {"PARAM_TEXT", widget},
        {"PARAM_TEXT_CONTROL", Join({control, {"value"}})},
        {"TOOLTIP", widget},
        {"PARAM_TOOLTIP", widget},
        {"RULER", control},
        {"CURVE_XSCALE", control},
        {"CURVE_YSCALE", control},
        {"GRID", Join({widget, axes, pixels})},
        {"CURVE_GRID", Join({widget, axes, pixels})},
        {"CURVE_GRAPH", Join({widget, axes, pixels, {"anti_alias"}})},
        {"XY_CURVES_GRAPH",
         Join({widget, curvesAxes, pixels, {"anti_alias", "graph_style", "positions_count"}})},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        rig.AddParam("p");
        rig.AddCurve("c");
        EXPECT_TRUE(rig.Build("<" + row.element +
                              " id='w' param_id='p' param_info_id='p.info' curve_id='c' x_curve_id='c' "
                              "y_curve_id='c' action_id='a' width='20' height='20'/>"))
            << row.element;
        Suffixes found;
        for (const std::string& id : rig.GetIds())
        {
            // Beside its description a parameter has limits, as objects that have none.
            if (id.starts_with("w.") && rig.Has(id + ".info"))
            {
                found.insert(id.substr(2));
            }
        }
        EXPECT_EQ(found, row.suffixes) << row.element;
    }
}

TEST(UIExposure, PropertiesOfAnAxisHaveItsPrefixAndItsLargestZoom)
{
    CUIRig rig;
    rig.AddParam("p");
    EXPECT_TRUE(rig.Build("<IMAGE_PARAM_KNOB id='a' param_id='p' zoom='2' offset='0.25'/>"
                          "<IMAGE_PARAM_KNOB id='b' y_param_id='p' y_zoom='3' y_max_zoom='50' zoom='9'/>"
                          "<IMAGE_PARAM_METER id='c' z_param_id='p' z_offset='0.75'/>"));
    EXPECT_FLOAT_EQ(rig.Value("a.zoom"), 2.0f);
    EXPECT_FLOAT_EQ(rig.Value("a.offset"), 0.25f);
    EXPECT_FLOAT_EQ(rig.Param("a.zoom").GetInfo().GetMin(), 1.0f);
    EXPECT_FLOAT_EQ(rig.Param("a.zoom").GetInfo().GetMax(), 10.0f);
    EXPECT_FLOAT_EQ(rig.Param("a.offset").GetInfo().GetMin(), 0.0f);
    EXPECT_FLOAT_EQ(rig.Param("a.offset").GetInfo().GetMax(), 1.0f);
    EXPECT_FALSE(rig.Has("b.zoom"));
    EXPECT_FLOAT_EQ(rig.Value("b.y_zoom"), 3.0f);
    EXPECT_FLOAT_EQ(rig.Param("b.y_zoom").GetInfo().GetMax(), 50.0f);
    EXPECT_FLOAT_EQ(rig.Value("b.y_offset"), 0.0f);
    EXPECT_FLOAT_EQ(rig.Value("c.z_offset"), 0.75f);
    EXPECT_FLOAT_EQ(rig.Value("c.z_zoom"), 1.0f);
}

TEST(UIExposure, ATooltipInAWidgetCanBeHidden)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<TEXT id='t' value='a'><TOOLTIP id='tip' text='b'/></TEXT>"
                          "<TEXT value='c'><TOOLTIP text='d' visible='false'/></TEXT>"));
    EXPECT_TRUE(rig.Widget(0, 0)->IsShown());
    rig.Param("tip.visible").SetValue(0);
    EXPECT_FALSE(rig.Widget(0, 0)->IsShown());
    rig.Param("tip.visible").SetValue(1);
    rig.Param("t.visible").SetValue(0);
    EXPECT_FALSE(rig.Widget(0, 0)->IsShown());
    EXPECT_FALSE(rig.Widget(1, 0)->IsShown());
}

/// A skin whose parameter "source" sets a property by a link.
std::string Linked(const std::string& body, const std::string& property)
{
    return body + "<PARAM id='source' min='-1000' max='1000'/><PARAM_LINK from='source' to='" + property +
           "' trigger_condition='always'/>";
}

TEST(UIExposure, EachPropertyOfAPlaceFollowsALink)
{
    struct SRow
    {
        std::string property;
        float value;
        std::vector<int> place; ///< Of the box "a" in the row "r", which stands at 180, 145 without the link.
    };
    // Boxes of 20 by 10 in a row of 400 by 300.
    const SRow rows[] = {
        {"r.spacing", 10.0f, {175, 145, 20, 10}},
        {"r.spacing", -4.0f, {182, 145, 20, 10}},
        {"r.layout_type", 1.0f, {190, 140, 20, 10}},
        {"r.layout_type", 2.0f, {190, 145, 20, 10}},
        {"r.internal_h_align", 0.0f, {0, 145, 20, 10}},
        {"r.internal_h_align", 2.0f, {360, 145, 20, 10}},
        {"a.v_align", 0.0f, {180, 0, 20, 10}},
        {"a.v_align", 2.0f, {180, 290, 20, 10}},
        {"a.flex", 1.0f, {0, 145, 380, 10}},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        EXPECT_TRUE(
            rig.Build(Linked("<ROW id='r' width='400' height='300'><TEXT id='a' width='20' height='10'/>"
                             "<TEXT width='20' height='10'/></ROW>",
                             row.property),
                      false));
        rig.Param("source").SetValue(row.value);
        EXPECT_EQ(rig.Place(0), row.place) << row.property << " " << row.value;
    }
}

TEST(UIExposure, MarginsAndAlignmentsOfAColumnFollowALink)
{
    struct SRow
    {
        std::string property;
        float value;
        std::vector<int> place; ///< Of the box "a", which stands at 190, 145 without the link.
    };
    const SRow rows[] = {
        {"c.internal_v_align", 0.0f, {190, 0, 20, 10}}, {"c.internal_v_align", 2.0f, {190, 290, 20, 10}},
        {"a.h_align", 0.0f, {0, 145, 20, 10}},          {"a.h_align", 2.0f, {380, 145, 20, 10}},
        {"c.visible", 0.0f, {190, 145, 20, 10}},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        EXPECT_TRUE(rig.Build(Linked("<COLUMN id='c' width='400' height='300'>"
                                     "<TEXT id='a' width='20' height='10'/></COLUMN>",
                                     row.property),
                              false));
        rig.Param("source").SetValue(row.value);
        EXPECT_EQ(rig.Place(0), row.place) << row.property << " " << row.value;
        EXPECT_EQ(rig.Widget(0)->IsShown(), row.property != "c.visible");
    }
    CUIRig rig;
    EXPECT_TRUE(rig.Build(Linked("<COLUMN id='c' width='400' height='300' internal_v_align='top'>"
                                 "<TEXT id='a' width='20' height='10'/></COLUMN>",
                                 "c.v_margin"),
                          false));
    rig.Param("source").SetValue(12.0f);
    EXPECT_EQ(rig.Place(0), (std::vector<int>{190, 12, 20, 10}));
}

TEST(UIExposure, PropertiesStayWithinTheirRange)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(Linked("<ROW id='r' min_spacing='-5' max_spacing='7'><TEXT width='20' height='10'/>"
                                 "<TEXT id='b' width='20' height='10'/></ROW>",
                                 "r.spacing"),
                          false));
    rig.Param("source").SetValue(500.0f);
    EXPECT_FLOAT_EQ(rig.Value("r.spacing"), 7.0f);
    rig.Param("source").SetValue(-500.0f);
    EXPECT_FLOAT_EQ(rig.Value("r.spacing"), -5.0f);
}

} // namespace
} // namespace Mirel::SkinEngine
