#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"

#include "Common/Mirel/GUI/Native/CRecordingSink.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/NativePlatformFactory.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Mirel::GUI;
using Tests::CRecordingSink;

namespace
{

class COffscreen : public testing::Test
{
protected:
    std::unique_ptr<INativeWindow> Make(CRecordingSink& sink, CPoint position,
                                        ENativeWindowKind kind = ENativeWindowKind::TopLevel)
    {
        SNativeWindowOptions options;
        options.kind = kind;
        options.position = position;
        options.size = {100, 100};
        auto window = platform.CreateNativeWindow(options, sink);
        window->Show(true);
        return window;
    }

    CNativeRunLoop loop;
    COffscreenPlatform platform{loop};
    CRecordingSink first;
    CRecordingSink second;
};

} // namespace

TEST_F(COffscreen, ClickCountsFollowTimeAndPlace)
{
    const auto window = Make(first, {0, 0});
    platform.MovePointer({50, 50});
    for (int i = 0; i < 3; ++i)
    {
        platform.PressButton(EMouseButton::Left);
        platform.ReleaseButton(EMouseButton::Left);
    }
    EXPECT_EQ(first.mouse.back().clickCount, 3);
    platform.Wait(5000);
    platform.PressButton(EMouseButton::Left);
    platform.ReleaseButton(EMouseButton::Left);
    EXPECT_EQ(first.mouse.back().clickCount, 1);
    platform.MovePointer({90, 90});
    platform.PressButton(EMouseButton::Left);
    EXPECT_EQ(first.mouse.back().clickCount, 1);
    EXPECT_EQ(first.mouse.back().buttons, ButtonFlag(EMouseButton::Left));
}

TEST_F(COffscreen, FrontWindowsAreHitAndHeldButtonsGrab)
{
    const auto back = Make(first, {0, 0});
    const auto front = Make(second, {50, 0});
    platform.MovePointer({75, 10});
    EXPECT_EQ(second.mouse.back().position, CPoint({25, 10}));
    const auto before = first.mouse.size();
    platform.PressButton(EMouseButton::Left);
    platform.MovePointer({10, 10});
    EXPECT_EQ(first.mouse.size(), before);
    EXPECT_EQ(second.mouse.back().position, CPoint({-40, 10}));
    platform.ReleaseButton(EMouseButton::Left);
    EXPECT_EQ(first.mouse.back().position, CPoint({10, 10}));
}

TEST_F(COffscreen, PressOutsideOfAMenuAsksToCloseIt)
{
    const auto window = Make(first, {0, 0});
    const auto menu = Make(second, {200, 200}, ENativeWindowKind::Menu);
    platform.MovePointer({50, 50});
    const auto before = first.mouse.size();
    platform.PressButton(EMouseButton::Left);
    EXPECT_EQ(first.mouse.size(), before);
    EXPECT_EQ(second.log.back(), "close requested");
}

TEST_F(COffscreen, PressOutsideAsksAllMenusToCloseTheLatestFirst)
{
    const auto window = Make(first, {0, 0});
    const auto menu = Make(second, {200, 200}, ENativeWindowKind::Menu);
    const auto subMenu = Make(second, {300, 200}, ENativeWindowKind::Menu);
    platform.MovePointer({50, 50});
    platform.PressButton(EMouseButton::Left);
    EXPECT_EQ(std::count(second.log.begin(), second.log.end(), "close requested"), 2);
}

TEST_F(COffscreen, MenuHoldsTheKeysAndWhatWasPressedBefore)
{
    const auto window = Make(first, {0, 0});
    platform.MovePointer({50, 50});
    platform.PressButton(EMouseButton::Left);
    const auto menu = Make(second, {200, 200}, ENativeWindowKind::Menu);
    platform.MovePointer({210, 210});
    platform.ReleaseButton(EMouseButton::Left);
    platform.PressKey({});
    EXPECT_EQ(first.mouse.back().button, EMouseButton::None) << "left, and told of no release";
    EXPECT_TRUE(first.keys.empty());
    EXPECT_GE(second.mouse.size(), 2U);
    EXPECT_EQ(second.mouse.back().buttons, 0U);
    EXPECT_EQ(second.keys.size(), 1U);
}

TEST_F(COffscreen, FocusGoesToTheWindowShownLast)
{
    const auto a = Make(first, {0, 0});
    EXPECT_TRUE(a->HasFocus());
    const auto b = Make(second, {0, 0});
    EXPECT_TRUE(b->HasFocus());
    EXPECT_FALSE(a->HasFocus());
    const auto tip = Make(first, {0, 0}, ENativeWindowKind::Tooltip);
    EXPECT_TRUE(b->HasFocus());
    b->Show(false);
    EXPECT_FALSE(b->HasFocus());
}

TEST_F(COffscreen, PaintRequestsAreCoalesced)
{
    const auto window = Make(first, {0, 0});
    platform.Pump();
    first.lost.clear();
    window->RequestPaint();
    window->RequestPaint();
    EXPECT_TRUE(platform.Pump());
    EXPECT_FALSE(platform.Pump());
    ASSERT_EQ(first.lost.size(), 1U);
    EXPECT_TRUE(first.lost[0].IsEmpty());
}

TEST_F(COffscreen, ClipboardAndScreens)
{
    platform.SetClipboardText("text");
    std::string got;
    platform.RequestClipboardText([&got](const std::string& text) { got = text; });
    EXPECT_EQ(got, "text");
    ASSERT_EQ(platform.GetScreens().size(), 1U);
    EXPECT_TRUE(platform.GetScreens()[0].isPrimary);
    EXPECT_FALSE(platform.HasDisplay());
}

TEST_F(COffscreen, ScaleIsFrom1To4)
{
    EXPECT_EQ(COffscreenPlatform(loop, 0).GetScale(), 1);
    EXPECT_EQ(COffscreenPlatform(loop, 3).GetScale(), 3);
    EXPECT_EQ(COffscreenPlatform(loop, 9).GetScale(), 4);
}

TEST_F(COffscreen, FactoryGivesItWhereNoDisplayIsWanted)
{
    SNativePlatformOptions options;
    options.isOffscreen = true;
    options.scale = 2;
    const auto made = CreateNativePlatform(loop, options);
    ASSERT_NE(made, nullptr);
    EXPECT_FALSE(made->HasDisplay());
    EXPECT_EQ(made->GetScale(), 2);
}

TEST_F(COffscreen, FactoryFallsBackOnItWithoutAnXServer)
{
    SNativePlatformOptions options;
    options.display = "no such display";
    const auto made = CreateNativePlatform(loop, options);
    ASSERT_NE(made, nullptr);
    EXPECT_FALSE(made->HasDisplay());
}
