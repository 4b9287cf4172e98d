#include "Common/Mirel/GUI/Native/X11/CX11Test.h"

#include <gmock/gmock.h>

using Mirel::GUI::ButtonFlag;
using Mirel::GUI::CPoint;
using Mirel::GUI::EMouseButton;
using Mirel::GUI::ENativeWindowKind;
using Mirel::GUI::INativeWindow;
using testing::ElementsAre;
using Tests::CRecordingSink;
namespace ModifierFlags = Mirel::GUI::ModifierFlags;

namespace
{

constexpr int aCode = 38;
constexpr int shiftCode = 50;
constexpr int controlCode = 37;
constexpr int alternateCode = 64;

/// A window of 200 by 100 pixels with its top left at (100, 100).
class CX11InputTest : public Tests::CX11Test
{
public:
    void SetUp() override
    {
        CX11Test::SetUp();
        if (platform != nullptr)
        {
            window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
        }
    }

    std::unique_ptr<INativeWindow> ShowPopup(ENativeWindowKind kind, const CRect& frame,
                                             CRecordingSink& target)
    {
        return Open(Options(kind, frame), target, 0x556677);
    }

    /// Embedded in the window, with the keys.
    std::unique_ptr<INativeWindow> OpenFocusedChild(CRecordingSink& target)
    {
        auto child = Open(ChildOptions(static_cast<xcb_window_t>(window->GetId()), {10, 20, 100, 50}), target,
                          0x334455);
        child->SetFocus();
        EXPECT_TRUE(PumpUntil(target, "focus in"));
        return child;
    }

    CRecordingSink sink;
    std::unique_ptr<INativeWindow> window;
};

TEST_F(CX11InputTest, PointerEntersMovesAndLeaves)
{
    probe->Move(110, 120);
    Settle();
    probe->Move(150, 130);
    Settle();
    probe->Move(99, 130);
    Settle();
    ASSERT_THAT(sink.log, ElementsAre("enter", "move", "move", "leave"));
    EXPECT_EQ(sink.mouse[0].position, (CPoint{10, 20}));
    EXPECT_EQ(sink.mouse[1].position, (CPoint{10, 20}));
    EXPECT_EQ(sink.mouse[2].position, (CPoint{50, 30}));
    EXPECT_EQ(sink.mouse[2].screenPosition, (CPoint{150, 130}));
    EXPECT_EQ(sink.mouse[2].button, EMouseButton::None);
    EXPECT_EQ(sink.mouse[2].clickCount, 0);
    EXPECT_EQ(sink.mouse[3].position, (CPoint{-1, 30}));
}

TEST_F(CX11InputTest, MotionThatCameInTogetherIsToldOnce)
{
    probe->Move(110, 120);
    Settle();
    sink.Clear();
    for (int x = 111; x < 150; ++x)
    {
        probe->Move(x, 120);
    }
    Settle();
    EXPECT_LT(sink.Count("move"), 10);
    ASSERT_FALSE(sink.mouse.empty());
    EXPECT_EQ(sink.mouse.back().position, (CPoint{49, 20}));
}

TEST_F(CX11InputTest, ButtonsAreToldApart)
{
    probe->Move(110, 120);
    const std::pair<int, EMouseButton> buttons[] = {{1, EMouseButton::Left},
                                                    {2, EMouseButton::Middle},
                                                    {3, EMouseButton::Right},
                                                    {8, EMouseButton::Other}};
    for (const auto& [code, button] : buttons)
    {
        Settle();
        sink.Clear();
        probe->Click(code);
        Settle();
        ASSERT_THAT(sink.log, ElementsAre("down", "up"));
        EXPECT_EQ(sink.mouse[0].button, button);
        EXPECT_EQ(sink.mouse[0].buttons, ButtonFlag(button));
        EXPECT_EQ(sink.mouse[0].position, (CPoint{10, 20}));
        EXPECT_EQ(sink.mouse[1].button, button);
        EXPECT_EQ(sink.mouse[1].buttons, 0U);
    }
}

TEST_F(CX11InputTest, ClicksAreCounted)
{
    probe->Move(110, 120);
    Settle();
    sink.Clear();
    probe->Click(1);
    probe->Click(1);
    probe->Click(1);
    Settle();
    ASSERT_THAT(sink.log, ElementsAre("down", "up", "down", "up", "down", "up"));
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_EQ(sink.mouse[static_cast<std::size_t>(i)].clickCount, i / 2 + 1);
    }
}

TEST_F(CX11InputTest, ClickElsewhereCountsAnew)
{
    probe->Move(110, 120);
    probe->Click(1);
    probe->Move(130, 120);
    probe->Click(1);
    Settle();
    EXPECT_EQ(sink.mouse.back().clickCount, 1);
}

TEST_F(CX11InputTest, ModifiersComeWithTheMouse)
{
    probe->Move(110, 120);
    const std::pair<int, std::uint32_t> codes[] = {{shiftCode, ModifierFlags::shift},
                                                   {controlCode, ModifierFlags::control},
                                                   {alternateCode, ModifierFlags::alternate}};
    for (const auto& [code, flag] : codes)
    {
        probe->KeyDown(code);
        probe->Press(1);
        EXPECT_EQ(platform->GetModifiers(), flag);
        probe->Release(1);
        probe->KeyUp(code);
        Settle();
        ASSERT_FALSE(sink.mouse.empty());
        EXPECT_EQ(sink.mouse.back().modifiers, flag);
    }
    EXPECT_EQ(platform->GetModifiers(), 0U);
}

TEST_F(CX11InputTest, WheelTurnsInNotches)
{
    probe->Move(110, 120);
    Settle();
    sink.Clear();
    for (const int button : {4, 5, 6, 7})
    {
        probe->Click(button);
    }
    Settle();
    ASSERT_THAT(sink.log, ElementsAre("wheel", "wheel", "wheel", "wheel"));
    EXPECT_EQ(sink.wheels[0].deltaY, 1.0);
    EXPECT_EQ(sink.wheels[0].deltaX, 0.0);
    EXPECT_EQ(sink.wheels[0].position, (CPoint{10, 20}));
    EXPECT_EQ(sink.wheels[1].deltaY, -1.0);
    EXPECT_EQ(sink.wheels[2].deltaX, 1.0);
    EXPECT_EQ(sink.wheels[2].deltaY, 0.0);
    EXPECT_EQ(sink.wheels[3].deltaX, -1.0);
}

TEST_F(CX11InputTest, HeldButtonKeepsThePointerOutside)
{
    probe->Move(110, 120);
    probe->Press(1);
    Settle();
    sink.Clear();
    probe->Move(50, 60);
    Settle();
    probe->Release(1);
    Settle();
    EXPECT_THAT(sink.log, ElementsAre("leave", "move", "up"));
    EXPECT_EQ(sink.mouse[1].position, (CPoint{-50, -40}));
    EXPECT_EQ(sink.mouse[1].buttons, ButtonFlag(EMouseButton::Left));
    EXPECT_EQ(sink.mouse[2].position, (CPoint{-50, -40}));
}

TEST_F(CX11InputTest, CaptureKeepsThePointerWithoutAButton)
{
    EXPECT_TRUE(window->CaptureMouse());
    EXPECT_TRUE(window->CaptureMouse()) << "a second time changes nothing";
    Settle();
    sink.Clear();
    probe->Move(400, 400);
    Settle();
    probe->Click(1);
    Settle();
    EXPECT_THAT(sink.log, ElementsAre("move", "down", "up")) << "it holds the pointer without being under it";
    EXPECT_EQ(sink.mouse.back().position, (CPoint{300, 300}));
    window->ReleaseMouse();
    sink.Clear();
    probe->Move(410, 400);
    probe->Click(1);
    Settle();
    EXPECT_TRUE(sink.log.empty());
}

TEST_F(CX11InputTest, CaptureDuringADragEndsWithIt)
{
    probe->Move(110, 120);
    probe->Press(1);
    Settle();
    EXPECT_TRUE(window->CaptureMouse());
    probe->Move(400, 500);
    Settle();
    EXPECT_EQ(sink.mouse.back().position, (CPoint{300, 400}));
    probe->Release(1);
    Settle();
    EXPECT_EQ(sink.log.back(), "up");
    window->ReleaseMouse();
    Settle();
    sink.Clear();
    probe->Move(410, 500);
    Settle();
    EXPECT_TRUE(sink.log.empty());
}

TEST_F(CX11InputTest, PointerHeldByAnotherProgramCannotBeCaptured)
{
    const xcb_window_t other = probe->ShowWindow(500, 500, 10, 10);
    std::free(xcb_grab_pointer_reply( // NOLINT: allocated by the library
        probe->Get(),
        xcb_grab_pointer(probe->Get(), 0, other, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
                         XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    EXPECT_FALSE(window->CaptureMouse());
    xcb_ungrab_pointer(probe->Get(), XCB_CURRENT_TIME);
    probe->Sync();
    EXPECT_TRUE(window->CaptureMouse());
}

TEST_F(CX11InputTest, HidingEndsTheCapture)
{
    EXPECT_TRUE(window->CaptureMouse());
    window->Show(false);
    EXPECT_EQ(sink.Count("capture lost"), 1);
    EXPECT_FALSE(window->CaptureMouse()) << "a hidden window captures nothing";
    probe->Click(1);
    Settle();
    EXPECT_EQ(sink.Count("down"), 0);
}

TEST_F(CX11InputTest, FocusComesAndGoes)
{
    const xcb_window_t other = probe->ShowWindow(500, 500, 10, 10);
    probe->Focus(other);
    Settle();
    EXPECT_FALSE(window->HasFocus());
    sink.Clear();
    window->SetFocus();
    ASSERT_TRUE(PumpUntil(sink, "focus in"));
    EXPECT_TRUE(window->HasFocus());
    probe->Focus(other);
    ASSERT_TRUE(PumpUntil(sink, "focus out"));
    EXPECT_FALSE(window->HasFocus());
}

TEST_F(CX11InputTest, WithoutAWindowManagerAShownWindowGetsTheFocus)
{
    EXPECT_TRUE(window->HasFocus());
}

TEST_F(CX11InputTest, EmbeddedWindowTakesTheFocusWhenAsked)
{
    const xcb_window_t host = probe->ShowWindow(400, 400, 200, 200);
    CRecordingSink childSink;
    const auto child = Open(ChildOptions(host, {0, 0, 100, 100}), childSink, 0x334455);
    EXPECT_FALSE(child->HasFocus());
    child->SetFocus();
    ASSERT_TRUE(PumpUntil(childSink, "focus in"));
    ASSERT_TRUE(PumpUntil(sink, "focus out"));
    EXPECT_FALSE(window->HasFocus());
}

TEST_F(CX11InputTest, EmbeddedWindowHandsOnTheKeysThatItHasNoUseFor)
{
    CRecordingSink childSink;
    const auto child = OpenFocusedChild(childSink);
    sink.Clear();
    childSink.Clear();

    probe->Type(aCode);
    Settle();
    EXPECT_THAT(childSink.log, ElementsAre("key down", "key up"));
    EXPECT_THAT(sink.log, ElementsAre());

    childSink.wantsKeys = false;
    probe->Type(aCode);
    Settle();
    EXPECT_THAT(sink.log, ElementsAre("key down", "key up"));
    ASSERT_EQ(sink.keys.size(), 2U);
    EXPECT_EQ(sink.keys[0].text, "a");
    EXPECT_EQ(sink.keys[0].keyCode, static_cast<std::uint32_t>(aCode));
}

TEST_F(CX11InputTest, EmbeddedWindowKeepsTheReleaseOfAKeyThatItTook)
{
    CRecordingSink childSink;
    const auto child = OpenFocusedChild(childSink);
    sink.Clear();
    probe->KeyDown(aCode);
    Settle();
    childSink.wantsKeys = false;
    probe->KeyUp(aCode);
    Settle();
    EXPECT_THAT(sink.log, ElementsAre());
}

TEST_F(CX11InputTest, EmbeddedWindowGivesNothingBackToTheProgramThatSentIt)
{
    const xcb_window_t host = probe->ShowWindow(400, 400, 200, 200);
    const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(probe->Get(), host, XCB_CW_EVENT_MASK, &mask);
    CRecordingSink childSink;
    childSink.wantsKeys = false;
    const auto child = Open(ChildOptions(host, {0, 0, 100, 100}), childSink, 0x334455);
    const auto countPresses = [this]
    {
        int presses = 0;
        while (xcb_generic_event_t* event = xcb_poll_for_event(probe->Get()))
        {
            presses += (event->response_type & 0x7F) == XCB_KEY_PRESS ? 1 : 0;
            std::free(event); // NOLINT: allocated by the library
        }
        return presses;
    };
    xcb_key_press_event_t press{};
    press.response_type = XCB_KEY_PRESS;
    press.detail = aCode;
    press.root = probe->GetRoot();
    press.event = static_cast<xcb_window_t>(child->GetId());
    press.same_screen = 1;
    xcb_send_event(probe->Get(), 0, press.event, 0, reinterpret_cast<const char*>(&press)); // NOLINT
    probe->Sync();
    ASSERT_TRUE(PumpUntil(childSink, "key down"));
    Settle();
    EXPECT_EQ(countPresses(), 0);

    child->SetFocus();
    ASSERT_TRUE(PumpUntil(childSink, "focus in"));
    probe->Type(aCode);
    Settle();
    probe->Sync();
    EXPECT_EQ(countPresses(), 1);
}

TEST_F(CX11InputTest, WindowGivesItsKeysToTheOneEmbeddedInIt)
{
    window->FocusEmbedded();
    Settle();
    EXPECT_TRUE(window->HasFocus()) << "nothing is embedded";
    CRecordingSink childSink;
    const auto child = Open(ChildOptions(static_cast<xcb_window_t>(window->GetId()), {10, 20, 100, 50}),
                            childSink, 0x334455);
    EXPECT_FALSE(child->HasFocus());
    window->FocusEmbedded();
    ASSERT_TRUE(PumpUntil(childSink, "focus in"));
    EXPECT_TRUE(child->HasFocus());
}

TEST_F(CX11InputTest, EmbedderTellsTheFocusByMessages)
{
    const xcb_window_t host = probe->ShowWindow(400, 400, 200, 200);
    CRecordingSink childSink;
    const auto child = Open(ChildOptions(host, {0, 0, 100, 100}), childSink, 0x334455);
    const auto send = [&](std::uint32_t message, std::uint32_t data)
    {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = static_cast<xcb_window_t>(child->GetId());
        event.type = probe->GetAtom("_XEMBED");
        event.data.data32[1] = message;
        event.data.data32[3] = data;
        xcb_send_event(probe->Get(), 0, event.window, 0, reinterpret_cast<const char*>(&event)); // NOLINT
        probe->Sync();
    };
    send(0, host); // embedded
    send(4, 0);    // focus in
    ASSERT_TRUE(PumpUntil(childSink, "focus in"));
    send(5, 0); // focus out
    ASSERT_TRUE(PumpUntil(childSink, "focus out"));
}

TEST_F(CX11InputTest, PopupsTakeNoFocus)
{
    CRecordingSink menuSink;
    const auto menu = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, menuSink);
    CRecordingSink tipSink;
    const auto tip = ShowPopup(ENativeWindowKind::Tooltip, {500, 500, 60, 60}, tipSink);
    EXPECT_TRUE(window->HasFocus());
    EXPECT_EQ(sink.Count("focus out"), 0);
    ExpectShown(0x556677, {400, 400, 60, 60});
    ExpectShown(0x556677, {500, 500, 60, 60});
}

TEST_F(CX11InputTest, TooltipGetsNoInput)
{
    CRecordingSink tipSink;
    const auto tip = ShowPopup(ENativeWindowKind::Tooltip, {500, 500, 60, 60}, tipSink);
    probe->Move(510, 510);
    probe->Click(1);
    Settle();
    EXPECT_TRUE(tipSink.log.empty());
}

TEST_F(CX11InputTest, ClickOutsideOfAMenuAsksItToCloseAndGoesNowhereElse)
{
    CRecordingSink menuSink;
    const auto menu = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, menuSink);
    probe->Move(110, 120); // over the other window
    Settle();
    sink.Clear();
    probe->Click(1);
    Settle();
    EXPECT_EQ(menuSink.Count("close requested"), 1);
    EXPECT_EQ(menuSink.Count("down"), 0);
    EXPECT_TRUE(sink.log.empty());
    probe->Move(700, 700); // over nothing of ours
    probe->Click(1);
    Settle();
    EXPECT_EQ(menuSink.Count("close requested"), 2);
    EXPECT_EQ(menuSink.Count("down"), 0);
}

TEST_F(CX11InputTest, ClickInsideOfAMenuIsItsOwn)
{
    CRecordingSink menuSink;
    const auto menu = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, menuSink);
    probe->Move(405, 406);
    probe->Click(1);
    Settle();
    EXPECT_EQ(menuSink.Count("close requested"), 0);
    EXPECT_EQ(menuSink.Count("down"), 1);
    EXPECT_EQ(menuSink.Count("up"), 1);
    EXPECT_EQ(menuSink.mouse.back().position, (CPoint{5, 6}));
}

TEST_F(CX11InputTest, MenusOfOneTreeShareThePointer)
{
    CRecordingSink firstSink;
    const auto first = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, firstSink);
    CRecordingSink secondSink;
    auto second = ShowPopup(ENativeWindowKind::Menu, {460, 400, 60, 60}, secondSink);
    probe->Move(410, 410);
    probe->Click(1);
    Settle();
    EXPECT_EQ(firstSink.Count("down"), 1);
    EXPECT_EQ(firstSink.Count("close requested") + secondSink.Count("close requested"), 0);
    second.reset();
    probe->Move(470, 410); // where it was
    probe->Click(1);
    Settle();
    EXPECT_EQ(firstSink.Count("close requested"), 1);
}

TEST_F(CX11InputTest, KeysGoToTheLatestMenu)
{
    CRecordingSink menuSink;
    auto menu = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, menuSink);
    sink.Clear();
    probe->Type(38);
    Settle();
    EXPECT_EQ(menuSink.Count("key down"), 1);
    EXPECT_EQ(sink.Count("key down"), 0);
    menu->Show(false);
    Settle();
    probe->Type(38);
    Settle();
    EXPECT_EQ(sink.Count("key down"), 1);
    EXPECT_EQ(menuSink.Count("key down"), 1);
}

TEST_F(CX11InputTest, AfterAMenuThePointerIsFree)
{
    CRecordingSink menuSink;
    auto menu = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, menuSink);
    menu.reset();
    sink.Clear();
    probe->Move(110, 120);
    probe->Click(1);
    Settle();
    EXPECT_EQ(sink.Count("down"), 1);
    EXPECT_EQ(sink.Count("up"), 1);
    EXPECT_EQ(sink.Count("enter"), 1);
}

TEST_F(CX11InputTest, MenuCaptureReturnsToTheMenu)
{
    CRecordingSink menuSink;
    const auto menu = ShowPopup(ENativeWindowKind::Menu, {400, 400, 60, 60}, menuSink);
    EXPECT_TRUE(menu->CaptureMouse());
    menu->ReleaseMouse();
    probe->Move(700, 700);
    probe->Click(1);
    Settle();
    EXPECT_EQ(menuSink.Count("close requested"), 1);
}

TEST_F(CX11InputTest, EventsWaitingBehindACallbackReachALoopThatItRuns)
{
    // A dialog runs the loop from within a press, with the release read already.
    bool isReleased = false;
    sink.onCall = [&](const std::string& name)
    {
        if (name == "down")
        {
            isReleased = PumpUntil(sink, "up");
        }
    };
    probe->Move(110, 120);
    probe->Click(1);
    Settle();
    EXPECT_TRUE(isReleased);
}

} // namespace
