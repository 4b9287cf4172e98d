// Items whose own widgets change the count of their collection, and so take themselves away.

#include "SkinWindowRig.h"

#include "rapidcheck/gtest.h"
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

/// Outside of a test of its own.
struct CWindow : SkinWindowRig
{
    void TestBody() override {}

    /// Items of one row, which are 30 pixels wide and high.
    bool OpenItems(const std::string& body, int count = 3)
    {
        const bool opened =
            Open("width='300' height='60'", "<ROW width='300' height='60' internal_h_align='left'>"
                                            "<COLLECTION id='c' max_count='6' count='" +
                                                std::to_string(count) + "'>" + body + "</COLLECTION></ROW>");
        frame.Show(true);
        platform.Pump();
        return opened;
    }

    std::vector<std::uint8_t> Picture()
    {
        const Graphics::CBitmap& picture = frame.PaintPicture();
        const std::ptrdiff_t bytes =
            std::ptrdiff_t{picture.GetContext()->GetStride()} * picture.GetSize().height;
        return {picture.GetData(), picture.GetData() + bytes};
    }

    void Click(int x, int y)
    {
        platform.MovePointer({x, y});
        platform.PressButton(GUI::EMouseButton::Left);
        platform.ReleaseButton(GUI::EMouseButton::Left);
        platform.Wait(10000);
    }
};

TEST(UICollectionInput, AButtonOfAnItemMayTakeTheItemAway)
{
    CWindow rig;
    ASSERT_TRUE(
        rig.OpenItems("<INVISIBLE_PARAM_BUTTON param_id='c.count' loop='true' width='30' height='30'/>"))
        << rig.AllMessages();
    for (const float expected : {4.0f, 5.0f, 6.0f, 0.0f})
    {
        rig.Click(45, 30);
        EXPECT_FLOAT_EQ(rig.ParamValue("c.count"), expected);
    }
    rig.Click(45, 30);
    EXPECT_FLOAT_EQ(rig.ParamValue("c.count"), 0.0f);
}

TEST(UICollectionInput, ASwitchOfAnItemMayTakeTheItemAway)
{
    CWindow rig;
    ASSERT_TRUE(rig.OpenItems("<INVISIBLE_PARAM_TOGGLE_SWITCH param_id='c.count' width='30' height='30'/>"))
        << rig.AllMessages();
    rig.Click(15, 30);
    rig.Click(15, 30);
    const float count = rig.ParamValue("c.count");
    EXPECT_TRUE(count == 0.0f || count == 6.0f) << count;
}

std::string AnyControl()
{
    const std::string element = *rc::gen::element<std::string>(
        "INVISIBLE_PARAM_BUTTON loop='true'", "INVISIBLE_PARAM_BUTTON", "INVISIBLE_PARAM_TOGGLE_SWITCH",
        "INVISIBLE_PARAM_MENU_BUTTON", "PARAM_TEXT_CONTROL pixel_range='20'");
    return "<" + element + " param_id='c.count' width='30' height='30' cursor='system::hand'/>";
}

void Gesture(CWindow& rig)
{
    switch (*rc::gen::inRange(0, 7))
    {
    case 0:
        rig.platform.PressButton(GUI::EMouseButton::Left);
        break;
    case 1:
        rig.platform.ReleaseButton(GUI::EMouseButton::Left);
        break;
    case 2:
        rig.platform.PressButton(GUI::EMouseButton::Right);
        break;
    case 3:
        rig.platform.ReleaseButton(GUI::EMouseButton::Right);
        break;
    case 4:
        rig.platform.TurnWheel(*rc::gen::inRange(-3, 4));
        break;
    default:
        rig.platform.MovePointer({*rc::gen::inRange(0, 120), *rc::gen::inRange(0, 60)});
    }
    rig.platform.Pump();
}

RC_GTEST_PROP(UICollectionInput, AnyGestureOnTheControlsOfItemsLeavesTheSkinAsTheCountHasIt, ())
{
    const std::string body = AnyControl() + "<TEXT value='$item_id$' width='9' height='9'/>" + AnyControl();
    CWindow rig;
    RC_ASSERT(rig.OpenItems(body));
    const int gestures = *rc::gen::inRange(0, 40);
    for (int i = 0; i < gestures; ++i)
    {
        Gesture(rig);
    }
    rig.platform.ReleaseButton(GUI::EMouseButton::Left);
    rig.platform.ReleaseButton(GUI::EMouseButton::Right);
    rig.platform.MovePointer({250, 55});
    const float count = rig.ParamValue("c.count");
    RC_ASSERT(count >= 0.0f && count <= 6.0f);
    CWindow fresh;
    RC_ASSERT(fresh.OpenItems(body, static_cast<int>(count)));
    RC_ASSERT(rig.Picture() == fresh.Picture());
    rig.window->CloseSkin();
}

} // namespace
} // namespace Mirel::SkinEngine
