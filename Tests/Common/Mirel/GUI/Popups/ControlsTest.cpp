#include "Mirel/GUI/Controls/CListBox.h"
#include "Mirel/GUI/Controls/CPushButton.h"
#include "Mirel/GUI/Controls/CTextField.h"
#include "PopupRig.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;

namespace
{

/// A window with one light tree and its user.
class CControlsTest : public testing::Test
{
public:
    CControlsTest()
    {
        root = new CLightWidget();
        adapter = new CLightWidgetAdapter(root, true);
        adapter->Show(true);
        rig.window->SetContent(adapter, true);
    }

    /// In skin pixels of the window.
    void Click(int x, int y) { rig.ClickAt({1000 + x, 1000 + y}); }

    void DoubleClick(int x, int y)
    {
        rig.platform.MovePointer({1000 + x, 1000 + y});
        for (int i = 0; i < 2; ++i)
        {
            rig.platform.PressButton(EMouseButton::Left);
            rig.platform.ReleaseButton(EMouseButton::Left);
        }
        rig.Rest();
    }

    void Drag(CPoint from, CPoint to)
    {
        rig.platform.MovePointer(Plus(from, {1000, 1000}));
        rig.platform.PressButton(EMouseButton::Left);
        rig.platform.MovePointer(Plus(to, {1000, 1000}));
        rig.platform.ReleaseButton(EMouseButton::Left);
        rig.Rest();
    }

    template <class Control>
    void Place(Control& control, CSize size)
    {
        control.SetSize(size);
        control.Move({10, 10});
        adapter->SetFocus();
        control.SetFocus();
        rig.platform.Pump();
    }

    using CPoint = Mirel::GUI::CPoint;
    using CSize = Mirel::GUI::CSize;

    Tests::CPopupRig rig;
    CLightWidget* root;
    CLightWidgetAdapter* adapter;
};

TEST_F(CControlsTest, ButtonIsPushedByClickReturnAndSpace)
{
    int pushes = 0;
    CPushButton button(root, Tests::TestLook(), "Go", [&pushes] { ++pushes; });
    Place(button, {80, 24});
    Click(20, 20);
    EXPECT_EQ(pushes, 1);
    rig.PressKey(ENativeKey::Return);
    rig.Type(" ");
    EXPECT_EQ(pushes, 3);
    rig.Type("x");
    Drag({20, 20}, {200, 200});
    EXPECT_EQ(pushes, 3);
    DoubleClick(20, 20);
    EXPECT_EQ(pushes, 5);
    button.Enable(false);
    Click(20, 20);
    EXPECT_EQ(pushes, 5);
}

TEST_F(CControlsTest, ButtonMayGoInItsHandler)
{
    std::unique_ptr<CPushButton> button;
    button = std::make_unique<CPushButton>(root, Tests::TestLook(), "Go", [&button] { button.reset(); });
    Place(*button, {80, 24});
    Click(20, 20);
    EXPECT_EQ(button, nullptr);
}

TEST_F(CControlsTest, FieldTakesWhatIsTyped)
{
    int changes = 0;
    CTextField field(root, Tests::TestLook());
    field.SetChangeHandler([&changes] { ++changes; });
    Place(field, {120, 24});
    rig.Type("ab");
    SNativeKeyEvent composed;
    composed.text = "\u00e9"; // of a compose sequence
    rig.platform.PressKey(composed);
    EXPECT_EQ(field.GetText(), "ab\u00e9");
    EXPECT_EQ(changes, 3);
    rig.PressKey(ENativeKey::Backspace);
    rig.PressKey(ENativeKey::Home);
    rig.PressKey(ENativeKey::Delete);
    EXPECT_EQ(field.GetText(), "b");
    field.SetText("set");
    EXPECT_EQ(changes, 5);
}

TEST_F(CControlsTest, FieldUsesTheClipboard)
{
    CTextField field(root, Tests::TestLook());
    Place(field, {120, 24});
    field.SetText("tarn well");
    rig.PressShortcut('a');
    rig.PressShortcut('c');
    rig.PressKey(ENativeKey::End);
    rig.PressShortcut('v');
    EXPECT_EQ(field.GetText(), "tarn welltarn well");
    rig.PressShortcut('a');
    rig.PressShortcut('x');
    EXPECT_EQ(field.GetText(), "");
    std::string kept;
    rig.platform.RequestClipboardText([&kept](const std::string& text) { kept = text; });
    EXPECT_EQ(kept, "tarn welltarn well");
    rig.platform.SetClipboardText("two\nlines");
    rig.PressShortcut('v');
    EXPECT_EQ(field.GetText(), "two lines");
}

TEST_F(CControlsTest, FieldSelectsWithShiftAndMouse)
{
    CTextField field(root, Tests::TestLook());
    Place(field, {200, 24});
    field.SetText("alpha beta");
    rig.platform.SetModifiers(ModifierFlags::shift);
    rig.PressKey(ENativeKey::Left);
    rig.PressKey(ENativeKey::Left);
    rig.platform.SetModifiers(0);
    EXPECT_EQ(field.GetEditing().GetSelectedText(), "ta");
    Click(12, 20);
    EXPECT_EQ(field.GetEditing().GetCaret(), 0U);
    Click(190, 20);
    EXPECT_EQ(field.GetEditing().GetCaret(), 10U);
    Drag({190, 20}, {12, 20});
    EXPECT_EQ(field.GetEditing().GetSelectedText(), "alpha beta");
    DoubleClick(25, 20);
    EXPECT_EQ(field.GetEditing().GetSelectedText(), "alpha");
    rig.platform.Pump();
    EXPECT_TRUE(Tests::Shows(rig.Native(), Tests::TestLook().accent));
}

TEST_F(CControlsTest, FieldShowsTheCaretOfALongText)
{
    CTextField field(root, Tests::TestLook());
    Place(field, {60, 24});
    rig.Type("a text that is much too long for the field");
    Click(65, 20);
    EXPECT_GT(field.GetEditing().GetCaret(), 35U) << "the end is what is seen";
    rig.PressKey(ENativeKey::Home);
    Click(12, 20);
    EXPECT_EQ(field.GetEditing().GetCaret(), 0U);
}

TEST_F(CControlsTest, FieldThatGetsItsSizeAfterItsTextShowsTheText)
{
    CTextField field(root, Tests::TestLook());
    field.SetText("early");
    Place(field, {120, 24});
    Click(12, 20);
    EXPECT_EQ(field.GetEditing().GetCaret(), 0U);
}

TEST_F(CControlsTest, FieldConfirmsByReturnAndLeavesEscapeAlone)
{
    int confirmed = 0;
    CTextField field(root, Tests::TestLook());
    field.SetConfirmHandler([&confirmed] { ++confirmed; });
    Place(field, {60, 24});
    rig.PressKey(ENativeKey::Return);
    rig.PressKey(ENativeKey::Escape);
    EXPECT_EQ(confirmed, 1);
    field.SetWrong(true);
    rig.Type("1");
    EXPECT_FALSE(field.IsWrong());
}

std::vector<CListBox::SItem> MakeItems(int count)
{
    std::vector<CListBox::SItem> items;
    items.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        items.push_back({std::string(1, static_cast<char>('a' + i % 26)) + std::to_string(i), i % 2 == 0});
    }
    return items;
}

TEST_F(CControlsTest, ListSelectsByMouseAndKeys)
{
    int selects = 0;
    int activations = 0;
    CListBox list(root, Tests::TestLook());
    list.SetSelectHandler([&selects] { ++selects; });
    list.SetActivateHandler([&activations] { ++activations; });
    list.SetItems(MakeItems(5));
    Place(list, {150, 200});
    EXPECT_EQ(list.GetSelected(), CListBox::none);
    Click(30, 11 + list.GetRowHeight() * 2 + 3);
    EXPECT_EQ(list.GetSelected(), 2);
    rig.PressKey(ENativeKey::Down);
    rig.PressKey(ENativeKey::Down);
    rig.PressKey(ENativeKey::Down);
    EXPECT_EQ(list.GetSelected(), 4);
    rig.PressKey(ENativeKey::Home);
    EXPECT_EQ(list.GetSelected(), 0);
    rig.Type("D");
    EXPECT_EQ(list.GetSelected(), 3);
    EXPECT_EQ(selects, 5);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(activations, 1);
    DoubleClick(30, 11 + list.GetRowHeight() + 3);
    EXPECT_EQ(activations, 2);
    EXPECT_EQ(list.GetSelected(), 1);
    Click(30, 205);
    EXPECT_EQ(list.GetSelected(), 1);
}

TEST_F(CControlsTest, ListScrolls)
{
    CListBox list(root, Tests::TestLook());
    list.SetItems(MakeItems(100));
    Place(list, {150, 2 + 5 * list.GetRowHeight()});
    rig.platform.MovePointer({1030, 1030});
    rig.platform.TurnWheel(-1.0);
    EXPECT_EQ(list.GetFirstRow(), 3);
    rig.PressKey(ENativeKey::End);
    EXPECT_EQ(list.GetSelected(), 99);
    EXPECT_EQ(list.GetFirstRow(), 95);
    rig.PressKey(ENativeKey::PageUp);
    EXPECT_EQ(list.GetSelected(), 95);
    const int bar = 10 + 150 - 6;
    Click(bar, 12);
    EXPECT_EQ(list.GetFirstRow(), 90);
    rig.PressKey(ENativeKey::Home);
    Drag({bar, 14}, {bar, 300});
    EXPECT_EQ(list.GetFirstRow(), 95);
    list.SetItems(MakeItems(2));
    EXPECT_EQ(list.GetFirstRow(), 0);
    EXPECT_EQ(list.GetSelected(), CListBox::none);
}

} // namespace
