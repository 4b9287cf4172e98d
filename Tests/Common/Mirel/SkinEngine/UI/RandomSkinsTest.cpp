#include "Mirel/SkinEngine/UI/UIElements.h"
#include "UIRig.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

constexpr std::array attributeNames = {"id",          "width",          "height",        "visible",
                                       "display",     "opacity",        "system_widget", "h_align",
                                       "h_position",  "flex",           "param_id",      "x_param_id",
                                       "curve_id",    "x_curve_id",     "string_id",     "param_info_id",
                                       "action_id",   "image",          "thumb_image",   "images_count",
                                       "spacing",     "margin",         "layout_type",   "zoom",
                                       "max_zoom",    "response_curve", "color",         "font_size",
                                       "orientation", "collection_id",  "count",         "item_name",
                                       "cursor",      "text",           "value"};

constexpr std::array attributeValues = {
    "",     "a",     "b",   "$item_id$", "c",   "c.visible",    "p",       "p.info", "s",
    "true", "false", "10",  "-1",        "50%", "1e9",          "nan",     "red",    "i.png",
    "x*x",  "exp1",  "row", "a;b",       "2",   "system::hand", "vertical"};

std::string RandomAttributes()
{
    std::string text;
    const auto count = *rc::gen::inRange(0, 6);
    std::vector<std::string> used;
    for (int i = 0; i < count; ++i)
    {
        const std::string name = *rc::gen::elementOf(attributeNames);
        if (std::find(used.begin(), used.end(), name) == used.end())
        {
            used.push_back(name);
            text.append(" ")
                .append(name)
                .append("='")
                .append(*rc::gen::elementOf(attributeValues))
                .append("'");
        }
    }
    return text;
}

std::string RandomElement()
{
    const auto index = *rc::gen::inRange<std::size_t>(0, std::size(uiElements) + 2);
    return index < std::size(uiElements)    ? uiElements[index].name
           : index == std::size(uiElements) ? "COLLECTION"
                                            : "FOREACH";
}

std::string RandomSkin(int depth)
{
    std::string text;
    const int count = *rc::gen::inRange(0, 4);
    for (int i = 0; i < count; ++i)
    {
        const std::string name = RandomElement();
        text.append("<").append(name).append(RandomAttributes()).append(">");
        text.append(depth > 0 ? RandomSkin(depth - 1) : "").append("</").append(name).append(">");
    }
    return text;
}

RC_GTEST_PROP(RandomSkins, LeaveNothingBehind, ())
{
    Tests::CUIRig rig;
    rig.AddParam("p", -1, 9);
    rig.AddCurve("c");
    rig.AddString("s", "text");
    rig.WriteImage("i.png", 9, 12);
    const int before = rig.model.GetObjects().GetCount();
    const std::string lightMode = *rc::gen::element("true", "false");
    const std::string skin = RandomSkin(3);
    rig.BuildFile("<SKIN light_mode='" + lightMode + "'>" + skin + "</SKIN>");
    for (const char* id :
         {"a.count", "b.count", "a.visible", "b.display", "a.layout_type", "a.zoom", "a.flex"})
    {
        if (auto* param = rig.Find<Tests::CUIRig::ICaptureParam>(id))
        {
            param->SetValue(*rc::gen::element(0.0f, 1.0f, 3.0f));
        }
    }
    rig.model.RemoveObject("p");
    rig.Close();
    RC_ASSERT(rig.light.GetChildCount() == 0);
    RC_ASSERT(rig.window.GetChildCount() == 0);
    RC_ASSERT(rig.light.GetCell().GetCurrentCell() == nullptr);
    RC_ASSERT(rig.model.GetObjects().GetCount() < before);
}

} // namespace
} // namespace Mirel::SkinEngine
