#include "Host/Live/CParameterMenu.h"

#include "Common/Mirel/GUI/Popups/PopupRig.h"
#include "Host/InstanceRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Host
{
namespace
{

using testing::ElementsAre;

/// A window of the host without a display, and an instance of the module as it ships.
class CParameterMenuTest : public testing::Test
{
protected:
    bool Open(const char* id)
    {
        const bool isOpen = menu.Open(id, *popups.window->GetNativeWindow());
        popups.platform.Pump();
        return isOpen;
    }

    /// The texts from the top: a checked one in brackets, a disabled one in parentheses, "-" for a line.
    std::vector<std::string> Items() const
    {
        std::vector<std::string> texts;
        for (const Mirel::GUI::SMenuItem& item : menu.GetMenu().GetItems())
        {
            texts.push_back(item.isSeparator  ? "-"
                            : item.isChecked  ? "[" + item.text + "]"
                            : !item.isEnabled ? "(" + item.text + ")"
                                              : item.text);
        }
        return texts;
    }

    /// The user's click on an item, counted from the top.
    void Choose(int item)
    {
        popups.ClickAt(Tests::CPopupRig::MiddleOf(menu.GetMenus().GetPanel(0).GetItemFrame(item)));
    }

    double Value(const char* id) { return Tests::CInstanceRig::GetValue(rig.Get(), id); }
    void Set(const char* id, double normalized)
    {
        rig.Get().GetParameters().SetParameterValue(id, normalized);
    }

    Tests::CInstanceRig rig;
    Tests::CPopupRig popups;
    CParameterMenu menu{rig.Get().GetParameters(), popups.platform, Tests::TestLook()};
};

TEST_F(CParameterMenuTest, OffersTheValuesOfAParameterWithFewSteps)
{
    Set("P2", 1.0);
    ASSERT_TRUE(Open("P2"));
    EXPECT_THAT(Items(),
                ElementsAre("(View Mode: Trigger)", "-", "Flow", "Loop", "[Trigger]", "-", "Set to Default"));
    constexpr int loop = 3;
    Choose(loop);
    EXPECT_EQ(Value("P2"), 0.5);
    EXPECT_FALSE(menu.GetMenus().IsOpen());
}

TEST_F(CParameterMenuTest, SetsTheDefault)
{
    Set("P2", 1.0);
    ASSERT_TRUE(Open("P2"));
    constexpr int setToDefault = 6;
    Choose(setToDefault);
    EXPECT_EQ(Value("P2"), 0.0);
}

TEST_F(CParameterMenuTest, TheBypassIsAParameterLikeTheOthers)
{
    ASSERT_TRUE(Open("MasterBypassID"));
    constexpr int on = 3;
    Choose(on);
    EXPECT_EQ(Value("MasterBypassID"), 1.0);
}

/// The delay goes from 0 to 300 ms.
TEST_F(CParameterMenuTest, AContinuousValueIsTyped)
{
    constexpr int enterValue = 2;
    ASSERT_TRUE(Open("P4"));
    Choose(enterValue);
    ASSERT_NE(menu.GetDialog(), nullptr);
    EXPECT_EQ(menu.GetDialog()->GetField().GetEditing().GetSelectedText(),
              menu.GetDialog()->GetField().GetText());
    popups.Type("much");
    popups.PressKey(Mirel::GUI::ENativeKey::Return);
    ASSERT_NE(menu.GetDialog(), nullptr) << "no value: there is another try";
    EXPECT_TRUE(menu.GetDialog()->GetField().IsWrong());
    popups.Type("150");
    popups.PressKey(Mirel::GUI::ENativeKey::Return);
    EXPECT_EQ(menu.GetDialog(), nullptr);
    EXPECT_NEAR(Value("P4"), 0.5, 1e-6);
}

TEST_F(CParameterMenuTest, ADialogLeftByEscapeChangesNothing)
{
    constexpr int enterValue = 2;
    Set("P4", 0.25);
    ASSERT_TRUE(Open("P4"));
    Choose(enterValue);
    popups.Type("150");
    popups.PressKey(Mirel::GUI::ENativeKey::Escape);
    EXPECT_EQ(menu.GetDialog(), nullptr);
    EXPECT_NEAR(Value("P4"), 0.25, 1e-6);
}

TEST_F(CParameterMenuTest, OpensForOneParameterAtATime)
{
    ASSERT_TRUE(Open("P2"));
    ASSERT_TRUE(Open("P1"));
    EXPECT_EQ(menu.GetMenus().GetPanelCount(), 1);
    EXPECT_EQ(Items().front().substr(0, 13), "(Stereo Mode:");
    EXPECT_FALSE(Open("P77")) << "the instance has no such parameter";
}

} // namespace
} // namespace Host
