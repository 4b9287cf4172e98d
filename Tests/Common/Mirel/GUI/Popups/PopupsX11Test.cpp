#include "Common/Mirel/GUI/Native/X11/CX11Test.h"
#include "Mirel/GUI/CFrameWindow.h"
#include "Mirel/GUI/DrawnDialogs/CAlertDialog.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialogs.h"
#include "Mirel/GUI/Popups/CDrawnMenus.h"
#include "Mirel/GUI/Popups/CDrawnTooltips.h"
#include "PopupRig.h"
#include "Support/CFunctionCommand.h"

#include <optional>

using namespace Mirel::GUI;

namespace
{

/// The same windows on a real display.
class CPopupsX11 : public Tests::CX11Test
{
public:
    void SetUp() override
    {
        CX11Test::SetUp();
        SNativeWindowOptions options = Options(ENativeWindowKind::TopLevel, {100, 100, 300, 200});
        window = std::make_unique<CWindow>(*platform, options);
        window->Show(true);
        Settle();
        Add("One");
        Add("Two");
        menu.AddSubMenu("More").AddItem("Deep", new Tests::CFunctionCommand([this] { script += "Deep "; }),
                                        true);
    }

    void TearDown() override { window.reset(); }

    void Add(const std::string& text)
    {
        menu.AddItem(text, new Tests::CFunctionCommand([this, text] { script += text + " "; }), true);
    }

    bool OpenMenu(CDrawnMenus& menus)
    {
        const bool isOpen = menus.Open(menu, *window->GetNativeWindow(), {150, 150}, [this] { ++closed; });
        Settle();
        return isOpen;
    }

    void MoveTo(CPoint place)
    {
        probe->Move(place.x, place.y);
        Settle();
    }

    bool ScreenShows(const CRect& rect, Mirel::Graphics::CColor color) const
    {
        const auto pixels = probe->ReadScreen(rect.x, rect.y, rect.width, rect.height);
        return std::find(pixels.begin(), pixels.end(), color.Pack()) != pixels.end();
    }

    std::unique_ptr<CWindow> window;
    CMenu menu;
    std::string script;
    int closed = 0;
};

TEST_F(CPopupsX11, MenuOpensAndAnItemIsClicked)
{
    CDrawnMenus menus(*platform, Tests::TestLook());
    ASSERT_TRUE(OpenMenu(menus));
    const CRect frame = menus.GetPanel(0).GetFrame();
    EXPECT_TRUE(PumpUntil([&] { return ScreenShows(frame, Tests::TestLook().border); }));
    EXPECT_TRUE(ScreenShows(frame, Tests::TestLook().background));
    MoveTo(Tests::CPopupRig::MiddleOf(menus.GetPanel(0).GetItemFrame(1)));
    EXPECT_TRUE(PumpUntil([&] { return ScreenShows(frame, Tests::TestLook().accent); }));
    probe->Press(1);
    probe->Release(1);
    EXPECT_TRUE(PumpUntil([&] { return script == "Two "; })) << script;
    EXPECT_EQ(closed, 1);
}

TEST_F(CPopupsX11, SubMenuIsReachedByTheMouse)
{
    CDrawnMenus menus(*platform, Tests::TestLook());
    ASSERT_TRUE(OpenMenu(menus));
    MoveTo(Tests::CPopupRig::MiddleOf(menus.GetPanel(0).GetItemFrame(2)));
    ASSERT_TRUE(PumpUntil([&] { return menus.GetPanelCount() == 2; }));
    Settle();
    MoveTo(Tests::CPopupRig::MiddleOf(menus.GetPanel(1).GetItemFrame(0)));
    probe->Click(1);
    EXPECT_TRUE(PumpUntil([&] { return script == "Deep "; })) << script;
}

TEST_F(CPopupsX11, PressDragReleaseChooses)
{
    CDrawnMenus menus(*platform, Tests::TestLook());
    MoveTo({150, 150});
    probe->Press(1);
    Settle();
    ASSERT_TRUE(OpenMenu(menus));
    MoveTo(Tests::CPopupRig::MiddleOf(menus.GetPanel(0).GetItemFrame(0)));
    probe->Release(1);
    EXPECT_TRUE(PumpUntil([&] { return script == "One "; })) << script;
}

TEST_F(CPopupsX11, PressOutsideAndEscapeClose)
{
    CDrawnMenus menus(*platform, Tests::TestLook());
    ASSERT_TRUE(OpenMenu(menus));
    MoveTo({600, 600});
    probe->Click(1);
    EXPECT_TRUE(PumpUntil([&] { return closed == 1; }));
    ASSERT_TRUE(OpenMenu(menus));
    constexpr int escape = 9;
    probe->Type(escape);
    EXPECT_TRUE(PumpUntil([&] { return closed == 2; }));
    EXPECT_EQ(script, "");
}

TEST_F(CPopupsX11, TooltipShowsAndGoes)
{
    CDrawnTooltips tips(*platform, Tests::TestLook());
    MoveTo({200, 150});
    STooltip tip;
    tip.text = "Time per division";
    tip.delayMs = 10;
    tip.showTimeMs = 0;
    tips.ShowTip(tip, *window->GetNativeWindow(), {200, 150});
    ASSERT_TRUE(PumpUntil([&] { return tips.GetWindow() != nullptr; }));
    const CRect frame = tips.GetWindow()->GetFrame();
    EXPECT_TRUE(PumpUntil([&] { return ScreenShows(frame, Tests::TestLook().text); }));
    MoveTo({900, 700});
    EXPECT_TRUE(PumpUntil([&] { return tips.GetWindow() == nullptr; }));
}

TEST_F(CPopupsX11, AlertIsModalAndAnsweredByAClick)
{
    CDrawnDialogs dialogs(*platform, Tests::TestLook(), window.get());
    std::optional<EMessageAnswer> answer;
    SMessage message;
    message.title = "Error";
    message.text = "Could not load skin. Please choose a valid skin file.";
    message.buttons = EMessageButtons::YesNo;
    const auto id = dialogs.ShowMessage(message, window->GetNativeWindow()->GetId(),
                                        [&](EMessageAnswer given) { answer = given; });
    ASSERT_NE(id, 0U);
    Settle();
    EXPECT_TRUE(window->IsInputBlocked());
    const auto& alert = static_cast<const CAlertDialog&>(*dialogs.Find(id));
    const CRect place(alert.GetButton(1)->GetAbsolutePosition(), alert.GetButton(1)->GetSize());
    MoveTo(alert.ToScreen(Tests::CPopupRig::MiddleOf(place)));
    probe->Click(1);
    EXPECT_TRUE(PumpUntil([&] { return answer == EMessageAnswer::No; }));
    EXPECT_FALSE(window->IsInputBlocked());
}

TEST_F(CPopupsX11, AlertIsAnsweredByTheKeys)
{
    CDrawnDialogs dialogs(*platform, Tests::TestLook(), window.get());
    std::optional<EMessageAnswer> answer;
    SMessage message;
    message.text = "Loading global skin.";
    ASSERT_NE(dialogs.ShowMessage(message, 0, [&](EMessageAnswer given) { answer = given; }), 0U);
    Settle();
    constexpr int returnKey = 36;
    probe->Type(returnKey);
    EXPECT_TRUE(PumpUntil([&] { return answer == EMessageAnswer::Yes; }));
}

TEST_F(CPopupsX11, OpenAndCloseLeavesNoWindows)
{
    CDrawnMenus menus(*platform, Tests::TestLook());
    CDrawnTooltips tips(*platform, Tests::TestLook());
    CDrawnDialogs dialogs(*platform, Tests::TestLook(), window.get());
    Settle();
    const int before = probe->CountWindows();
    for (int i = 0; i < 100; ++i)
    {
        menus.Open(menu, *window->GetNativeWindow(), {150, 150}, nullptr);
        loop.Pump(0);
        menus.Close();
        tips.Show("Tip", *window->GetNativeWindow(), {150, 150});
        loop.Pump(0);
        tips.Hide();
        dialogs.Cancel(dialogs.ShowMessage({}, 0, nullptr));
        loop.Pump(0);
    }
    Settle();
    EXPECT_EQ(probe->CountWindows(), before);
}

} // namespace
