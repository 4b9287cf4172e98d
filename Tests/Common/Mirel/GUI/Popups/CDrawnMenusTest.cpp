#include "Mirel/GUI/Popups/CDrawnMenus.h"

#include "PopupRig.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;
using Tests::CFunctionCommand;
using Tests::CPopupRig;

namespace
{

class CDrawnMenusTest : public testing::Test
{
public:
    CDrawnMenusTest() { Fill(menu); }

    void Fill(CMenu& filled)
    {
        Add(filled, "Undo");
        Add(filled, "Redo").isEnabled = false;
        filled.AddSeparator();
        Add(filled, "Skin").isChecked = true;
        CMenu& sub = filled.AddSubMenu("Presets");
        Add(sub, "Alpha");
        Add(sub, "Beta");
        CMenu& deeper = sub.AddSubMenu("More");
        Add(deeper, "Gamma");
        Add(filled, "Quit").shortcut = "Ctrl+Q";
    }

    SMenuItem& Add(CMenu& to, const std::string& text)
    {
        return to.AddItem(text, new CFunctionCommand([this, text] { script += text + " "; }), true);
    }

    bool Open(Mirel::GUI::CPoint place = {1010, 1010}) { return Open(menu, place); }

    bool Open(const CMenu& shown, Mirel::GUI::CPoint place)
    {
        rig.platform.MovePointer(place);
        return menus.Open(shown, *rig.window->GetNativeWindow(), place, [this] { script += "closed "; });
    }

    Mirel::GUI::CPoint PlaceOf(int level, int item) const
    {
        return CPopupRig::MiddleOf(menus.GetPanel(level).GetItemFrame(item));
    }

    int Selected(int level) const { return menus.GetPanel(level).GetSelected(); }

    std::string TakeScript() { return std::exchange(script, std::string()); }

    static constexpr int undo = 0;
    static constexpr int redo = 1;
    static constexpr int separator = 2;
    static constexpr int skin = 3;
    static constexpr int presets = 4;
    static constexpr int quit = 5;

    CPopupRig rig;
    CMenu menu;
    CDrawnMenus menus{rig.platform, Tests::TestLook()};
    std::string script;
};

TEST_F(CDrawnMenusTest, OpensAWindowAtThePlaceAndDrawsItsItems)
{
    ASSERT_TRUE(Open());
    rig.platform.Pump();
    ASSERT_EQ(rig.platform.GetWindowCount(), 2);
    const COffscreenWindow& window = *rig.platform.GetWindow(1);
    EXPECT_EQ(window.GetKind(), ENativeWindowKind::Menu);
    EXPECT_EQ(window.GetPosition(), (Mirel::GUI::CPoint{1010, 1010}));
    EXPECT_TRUE(window.IsShown());
    EXPECT_TRUE(Tests::Shows(window, Tests::TestLook().background));
    EXPECT_TRUE(Tests::Shows(window, Tests::TestLook().border));
    EXPECT_FALSE(Tests::Shows(window, Tests::TestLook().accent));
}

TEST_F(CDrawnMenusTest, EmptyMenuDoesNotOpen)
{
    const CMenu empty;
    EXPECT_FALSE(Open(empty, {1010, 1010}));
    EXPECT_EQ(TakeScript(), "");
}

TEST_F(CDrawnMenusTest, ClickRunsTheCommandAfterTheWindowsAreGoneThenReports)
{
    int windows = 0;
    menu.AddItem("Last", new CFunctionCommand([&] { windows = rig.platform.GetWindowCount(); }), true);
    ASSERT_TRUE(Open());
    rig.ClickAt(PlaceOf(0, 6));
    EXPECT_EQ(windows, 1);
    EXPECT_EQ(TakeScript(), "closed ");
    EXPECT_FALSE(menus.IsOpen());
    ASSERT_TRUE(Open());
    rig.ClickAt(PlaceOf(0, undo));
    EXPECT_EQ(TakeScript(), "Undo closed ");
}

TEST_F(CDrawnMenusTest, DisabledItemsAndSeparatorsDoNothing)
{
    ASSERT_TRUE(Open());
    rig.ClickAt(PlaceOf(0, redo));
    rig.ClickAt(PlaceOf(0, separator));
    EXPECT_TRUE(menus.IsOpen());
    EXPECT_EQ(Selected(0), CMenuLayout::none);
    EXPECT_EQ(TakeScript(), "");
}

TEST_F(CDrawnMenusTest, HoverSelectsAndLeavingClears)
{
    ASSERT_TRUE(Open());
    rig.platform.MovePointer(PlaceOf(0, skin));
    EXPECT_EQ(Selected(0), skin);
    rig.platform.Pump();
    EXPECT_TRUE(Tests::Shows(*rig.platform.GetWindow(1), Tests::TestLook().accent));
    rig.platform.MovePointer({1001, 1001});
    EXPECT_EQ(Selected(0), CMenuLayout::none);
}

TEST_F(CDrawnMenusTest, PressOutsideClosesWithoutAChoice)
{
    ASSERT_TRUE(Open());
    rig.ClickAt({1005, 1005});
    EXPECT_FALSE(menus.IsOpen());
    EXPECT_EQ(TakeScript(), "closed ");
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
}

TEST_F(CDrawnMenusTest, DragFromTheOpeningPressChoosesOnRelease)
{
    rig.platform.MovePointer({1010, 1010});
    rig.platform.PressButton(EMouseButton::Left);
    ASSERT_TRUE(Open());
    rig.platform.MovePointer(PlaceOf(0, skin));
    EXPECT_EQ(Selected(0), skin);
    rig.platform.ReleaseButton(EMouseButton::Left);
    EXPECT_EQ(TakeScript(), "Skin closed ");
}

TEST_F(CDrawnMenusTest, ReleaseOfTheOpeningClickLeavesItOpen)
{
    // The pointer is on an item at once, as with a menu that opens under it.
    rig.platform.MovePointer({1030, 1022});
    rig.platform.PressButton(EMouseButton::Left);
    ASSERT_TRUE(menus.Open(menu, *rig.window->GetNativeWindow(), {1010, 1010}, nullptr));
    rig.platform.MovePointer({1031, 1022});
    rig.platform.ReleaseButton(EMouseButton::Left);
    EXPECT_TRUE(menus.IsOpen());
    EXPECT_EQ(TakeScript(), "");
    rig.platform.ReleaseButton(EMouseButton::Left);
    rig.ClickAt(PlaceOf(0, undo));
    EXPECT_EQ(TakeScript(), "Undo ");
}

TEST_F(CDrawnMenusTest, KeysStepOverWhatCannotBeChosenAndRoundTheEnds)
{
    ASSERT_TRUE(Open());
    rig.PressKey(ENativeKey::Down);
    EXPECT_EQ(Selected(0), undo);
    rig.PressKey(ENativeKey::Down);
    EXPECT_EQ(Selected(0), skin);
    rig.PressKey(ENativeKey::Up);
    rig.PressKey(ENativeKey::Up);
    EXPECT_EQ(Selected(0), quit);
    rig.PressKey(ENativeKey::Home);
    EXPECT_EQ(Selected(0), undo);
    rig.PressKey(ENativeKey::End);
    EXPECT_EQ(Selected(0), quit);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(TakeScript(), "Quit closed ");
}

TEST_F(CDrawnMenusTest, SpaceChooses)
{
    menu.SetCurrent(skin);
    ASSERT_TRUE(Open());
    rig.Type(" ");
    EXPECT_EQ(TakeScript(), "Skin closed ");
}

TEST_F(CDrawnMenusTest, FirstLetterSelects)
{
    ASSERT_TRUE(Open());
    rig.Type("p");
    EXPECT_EQ(Selected(0), presets);
    rig.Type("R");
    EXPECT_EQ(Selected(0), presets) << "a disabled item";
    rig.Type("S");
    EXPECT_EQ(Selected(0), skin);
    rig.Type("x");
    EXPECT_EQ(Selected(0), skin);
}

TEST_F(CDrawnMenusTest, KeysOpenAndCloseSubMenus)
{
    ASSERT_TRUE(Open());
    rig.Type("p");
    rig.PressKey(ENativeKey::Right);
    ASSERT_EQ(menus.GetPanelCount(), 2);
    EXPECT_EQ(Selected(1), 0);
    rig.Type("m");
    rig.PressKey(ENativeKey::Return);
    ASSERT_EQ(menus.GetPanelCount(), 3);
    rig.PressKey(ENativeKey::Escape);
    ASSERT_EQ(menus.GetPanelCount(), 2);
    rig.PressKey(ENativeKey::Left);
    ASSERT_EQ(menus.GetPanelCount(), 1);
    rig.PressKey(ENativeKey::Left);
    ASSERT_EQ(menus.GetPanelCount(), 1);
    rig.PressKey(ENativeKey::Escape);
    EXPECT_FALSE(menus.IsOpen());
    EXPECT_EQ(TakeScript(), "closed ");
}

TEST_F(CDrawnMenusTest, HoverOpensASubMenuAfterAWhileAndItsItemIsChosen)
{
    ASSERT_TRUE(Open());
    rig.platform.MovePointer(PlaceOf(0, presets));
    EXPECT_EQ(menus.GetPanelCount(), 1);
    ASSERT_TRUE(Tests::PumpUntil(rig.loop, [&] { return menus.GetPanelCount() == 2; }));
    const auto parent = menus.GetPanel(0).GetItemFrame(presets);
    EXPECT_EQ(menus.GetPanel(1).GetFrame().x, parent.x + parent.width);
    rig.platform.MovePointer(PlaceOf(1, 1));
    EXPECT_EQ(Selected(0), presets) << "stays while its sub-menu is open";
    EXPECT_EQ(Selected(1), 1);
    rig.ClickAt(PlaceOf(1, 1));
    EXPECT_EQ(TakeScript(), "Beta closed ");
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
}

TEST_F(CDrawnMenusTest, HoverOfAnotherItemClosesTheSubMenu)
{
    ASSERT_TRUE(Open());
    rig.ClickAt(PlaceOf(0, presets));
    ASSERT_EQ(menus.GetPanelCount(), 2);
    rig.platform.MovePointer(PlaceOf(0, undo));
    EXPECT_TRUE(Tests::PumpUntil(rig.loop, [&] { return menus.GetPanelCount() == 1; }));
    EXPECT_EQ(Selected(0), undo);
}

TEST_F(CDrawnMenusTest, StaysInsideOfTheScreen)
{
    ASSERT_TRUE(Open({4090, 4090}));
    const auto frame = menus.GetPanel(0).GetFrame();
    EXPECT_LE(frame.x + frame.width, 4096);
    EXPECT_LE(frame.y + frame.height, 4096);
    rig.ClickAt(PlaceOf(0, presets));
    ASSERT_EQ(menus.GetPanelCount(), 2);
    EXPECT_LE(menus.GetPanel(1).GetFrame().x + menus.GetPanel(1).GetFrame().width,
              frame.x + CMenuLayout::margin)
        << "at the left of its menu";
}

TEST_F(CDrawnMenusTest, MenuTallerThanTheScreenScrolls)
{
    CMenu tall;
    for (int i = 0; i < 400; ++i)
    {
        Add(tall, "Item " + std::to_string(i));
    }
    ASSERT_TRUE(Open(tall, {1010, 1010}));
    CMenuPanel& panel = menus.GetPanel(0);
    EXPECT_EQ(panel.GetFrame().y, 0);
    EXPECT_EQ(panel.GetFrame().height, 4096);
    ASSERT_TRUE(panel.CanScroll());
    rig.PressKey(ENativeKey::End);
    const int end = panel.GetLayout().GetSize().height - 4096;
    EXPECT_GT(panel.GetScroll(), end - 40);
    const auto last = panel.GetItemFrame(399);
    EXPECT_LE(last.y + last.height, 4096 - 16);
    rig.ClickAt(CPopupRig::MiddleOf(last));
    EXPECT_EQ(TakeScript(), "Item 399 closed ");
    ASSERT_TRUE(Open(tall, {1010, 1010}));
    rig.platform.MovePointer({1020, 2000});
    rig.platform.TurnWheel(-1.0);
    const int turned = menus.GetPanel(0).GetScroll();
    EXPECT_GT(turned, 0);
    rig.platform.MovePointer({1020, 4090});
    EXPECT_TRUE(Tests::PumpUntil(rig.loop, [&] { return menus.GetPanel(0).GetScroll() > turned; }));
    rig.platform.MovePointer({1020, 3});
    EXPECT_TRUE(Tests::PumpUntil(rig.loop, [&] { return menus.GetPanel(0).GetScroll() == 0; }));
}

TEST_F(CDrawnMenusTest, OpensAtTheCurrentItem)
{
    menu.SetCurrent(presets);
    ASSERT_TRUE(Open());
    EXPECT_EQ(Selected(0), presets);
    rig.PressKey(ENativeKey::Down);
    EXPECT_EQ(Selected(0), quit);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(TakeScript(), "Quit closed ");
    for (const int none : {-2, -1, redo, separator, quit + 1})
    {
        menu.SetCurrent(none);
        ASSERT_TRUE(Open());
        EXPECT_EQ(Selected(0), CMenuLayout::none) << none;
        menus.Close();
    }
}

TEST_F(CDrawnMenusTest, MenuTallerThanTheScreenOpensWithTheCurrentItemInSight)
{
    CMenu tall;
    for (int i = 0; i < 400; ++i)
    {
        Add(tall, "Item " + std::to_string(i));
    }
    for (const int current : {0, 200, 399})
    {
        tall.SetCurrent(current);
        ASSERT_TRUE(Open(tall, {1010, 1010}));
        const CMenuPanel& panel = menus.GetPanel(0);
        const auto place = panel.GetItemFrame(current);
        const int middle = place.y + place.height / 2;
        if (current == 200)
        {
            EXPECT_NEAR(middle, 2048, 1);
        }
        EXPECT_GT(middle, 16) << current;
        EXPECT_LT(middle, 4096 - 16) << current;
        rig.PressKey(ENativeKey::Return);
        EXPECT_EQ(TakeScript(), "Item " + std::to_string(current) + " closed ");
    }
}

TEST_F(CDrawnMenusTest, AnotherMenuTakesThePlaceOfTheOpenOne)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(Open());
    EXPECT_EQ(TakeScript(), "closed ");
    EXPECT_EQ(rig.platform.GetWindowCount(), 2);
}

TEST_F(CDrawnMenusTest, CommandMayDestroyThePresenter)
{
    auto own = std::make_unique<CDrawnMenus>(rig.platform, Tests::TestLook());
    bool reported = false;
    CMenu small;
    small.AddItem("Go", new CFunctionCommand([&] { own.reset(); }), true);
    ASSERT_TRUE(own->Open(small, *rig.window->GetNativeWindow(), {1010, 1010}, [&] { reported = true; }));
    rig.PressKey(ENativeKey::Down);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(own, nullptr);
    EXPECT_TRUE(reported);
}

TEST_F(CDrawnMenusTest, WidgetThatOpenedTheMenuByAPressHearsThatItIsOver)
{
    auto* widget = new CWidget();
    std::string mouse;
    Tests::CNotingMouse target("w", mouse);
    widget->SetMouseTarget(&target, false);
    widget->SetSize({400, 300});
    widget->Show(true);
    rig.window->SetContent(widget, true);
    target.onCall = [this](const std::string& call)
    {
        if (call == "down")
        {
            Open();
        }
    };
    rig.platform.MovePointer({1010, 1010});
    mouse.clear();
    rig.platform.PressButton(EMouseButton::Left);
    rig.platform.MovePointer(PlaceOf(0, undo));
    rig.platform.ReleaseButton(EMouseButton::Left);
    EXPECT_EQ(TakeScript(), "Undo closed ");
    rig.platform.MovePointer({1100, 1200});
    EXPECT_NE(mouse.find("w.lost"), std::string::npos) << mouse;
    rig.window->SetContent(nullptr, false);
}

TEST_F(CDrawnMenusTest, ScaledMenuIsAsManyTimesLarger)
{
    CPopupRig large(2);
    CDrawnMenus scaled(large.platform, Tests::TestLook());
    ASSERT_TRUE(scaled.Open(menu, *large.window->GetNativeWindow(), {1010, 1010}, nullptr));
    ASSERT_TRUE(Open());
    EXPECT_EQ(scaled.GetPanel(0).GetFrame().width, 2 * menus.GetPanel(0).GetFrame().width);
    EXPECT_EQ(scaled.GetPanel(0).GetFrame().height, 2 * menus.GetPanel(0).GetFrame().height);
    large.ClickAt(CPopupRig::MiddleOf(scaled.GetPanel(0).GetItemFrame(skin)));
    EXPECT_EQ(TakeScript(), "Skin ");
}

TEST_F(CDrawnMenusTest, OpenAndCloseLeavesNoWindows)
{
    for (int i = 0; i < 100; ++i)
    {
        ASSERT_TRUE(Open());
        rig.Type("p");
        rig.PressKey(ENativeKey::Right);
        rig.platform.Pump();
        menus.Close();
    }
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
}

} // namespace
