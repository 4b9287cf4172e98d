#include "Common/Mirel/GUI/Native/X11/CX11Test.h"

#include <array>
#include <gmock/gmock.h>
#include <string>
#include <xcb/xcb.h>

using Mirel::Graphics::CRect;
using Mirel::Graphics::CSimple2DRegion;
using Mirel::GUI::CPoint;
using Mirel::GUI::CSize;
using Mirel::GUI::ENativeWindowKind;
using Mirel::GUI::INativeWindow;
using testing::ElementsAre;
using Tests::CRecordingSink;

namespace
{

class CX11WindowTest : public Tests::CX11Test
{
};

TEST_F(CX11WindowTest, IsMadeHiddenAndTellsWhenItIsShown)
{
    CRecordingSink sink;
    const auto window =
        platform->CreateNativeWindow(Options(ENativeWindowKind::TopLevel, {10, 20, 100, 50}), sink);
    ASSERT_NE(window, nullptr);
    Settle();
    EXPECT_EQ(sink.Count("shown"), 0);
    EXPECT_FALSE(window->IsShown());
    EXPECT_TRUE(window->IsOpen());
    EXPECT_NE(window->GetId(), 0U);
    window->Show(true);
    EXPECT_TRUE(window->IsShown());
    EXPECT_TRUE(PumpUntil(sink, "shown"));
    window->Show(false);
    EXPECT_TRUE(PumpUntil(sink, "hidden"));
    EXPECT_FALSE(window->IsShown());
}

TEST_F(CX11WindowTest, ShowsThePresentedPixelsExactly)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 321, 203}), sink, 0x102030);
    ExpectShown(0x102030, {40, 30, 321, 203});
}

TEST_F(CX11WindowTest, PresentsOnlyTheDirtyRectangles)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 200, 100}), sink, 0x102030);
    sink.Paint(0xA0B0C0, {200, 100});
    sink.Mark({10, 20, 30, 40});
    sink.Mark({150, 5, 7, 1});
    ASSERT_TRUE(PumpUntil(sink, "paint"));
    Settle();
    EXPECT_EQ(sink.Count("paint"), 1);
    ExpectShown(0xA0B0C0, {50, 50, 30, 40}, {10, 20});
    ExpectShown(0xA0B0C0, {190, 35, 7, 1}, {150, 5});
    ExpectShown(0x102030, {40, 30, 200, 5});
    ExpectShown(0x102030, {80, 50, 110, 50}, {40, 20});
    ExpectShown(0x102030, {40, 90, 200, 40}, {0, 60});
}

TEST_F(CX11WindowTest, PresentsManyScatteredRectangles)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {0, 0, 200, 200}), sink, 0x102030);
    sink.Paint(0x0F0F0F, {200, 200});
    for (int i = 0; i < 50; ++i)
    {
        sink.Mark({i * 4, i * 4, 2, 2});
    }
    ASSERT_TRUE(PumpUntil(sink, "paint"));
    for (int i = 0; i < 50; ++i)
    {
        ExpectShown(0x0F0F0F, {i * 4, i * 4, 2, 2}, {i * 4, i * 4});
    }
}

TEST_F(CX11WindowTest, PresentLeavesOutWhatLiesOutside)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 100, 80}), sink, 0x102030);
    sink.Paint(0x405060, {60, 200});
    window->Present(sink.picture, CSimple2DRegion(CRect(-10, -10, 500, 500)));
    ExpectShown(0x405060, {40, 30, 60, 80});
    ExpectShown(0x102030, {100, 30, 40, 80}, {60, 0});
}

TEST_F(CX11WindowTest, PixelsAreTakenBeforePresentReturns)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 600, 400}), sink, 0x102030);
    const CSimple2DRegion all(CRect(0, 0, 600, 400));
    for (int i = 0; i < 20; ++i)
    {
        sink.Paint(0x111111U * static_cast<std::uint32_t>(i % 8), {600, 400});
        window->Present(sink.picture, all);
        sink.Paint(0xFFFFFF, {600, 400});
    }
    ExpectShown(0x333333, {40, 30, 600, 400});
}

TEST_F(CX11WindowTest, OtherBitmapsThanThoseOf32BitsAreNotPresented)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 50, 50}), sink, 0x102030);
    const Mirel::Graphics::CDIBBitmap shallow(24, {50, 50});
    const Mirel::Graphics::CDIBBitmap empty(32);
    window->Present(shallow, CSimple2DRegion(CRect(0, 0, 50, 50)));
    window->Present(empty, CSimple2DRegion(CRect(0, 0, 50, 50)));
    ExpectShown(0x102030, {40, 30, 50, 50});
}

TEST_F(CX11WindowTest, RequestsOfOnePassGiveOnePaintWithNothingLost)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 50, 50}), sink, 0x102030);
    for (int i = 0; i < 10; ++i)
    {
        window->RequestPaint();
    }
    EXPECT_EQ(sink.Count("paint"), 0);
    ASSERT_TRUE(PumpUntil(sink, "paint"));
    Settle();
    ASSERT_EQ(sink.lost.size(), 1U);
    EXPECT_TRUE(sink.lost[0].IsEmpty());
}

TEST_F(CX11WindowTest, HiddenWindowIsNotAskedToPaint)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 50, 50}), sink, 0x102030);
    window->Show(false);
    ASSERT_TRUE(PumpUntil(sink, "hidden"));
    window->RequestPaint();
    Settle();
    EXPECT_EQ(sink.Count("paint"), 0);
    window->Show(true);
    EXPECT_TRUE(PumpUntil(sink, "paint"));
}

TEST_F(CX11WindowTest, UncoveredPartIsLostAndPaintedAgain)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
    const xcb_window_t cover = probe->ShowWindow(150, 120, 60, 40);
    Settle();
    EXPECT_EQ(probe->ReadPixel(170, 130), 0U);
    sink.Clear();
    probe->Destroy(cover);
    ASSERT_TRUE(PumpUntil(sink, "paint"));
    Settle();
    CSimple2DRegion lost;
    for (const CSimple2DRegion& part : sink.lost)
    {
        lost.Union(part);
    }
    EXPECT_EQ(lost.GetBounds(), CRect(50, 20, 60, 40));
    ExpectShown(0x102030, {100, 100, 200, 100});
}

TEST_F(CX11WindowTest, SetSizeTellsAtOnceAndOnlyOnce)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
    window->SetSize({200, 100});
    EXPECT_TRUE(sink.sizes.empty());
    window->SetSize({240, 130});
    EXPECT_THAT(sink.sizes, ElementsAre(CSize{240, 130}));
    EXPECT_EQ(window->GetSize(), (CSize{240, 130}));
    sink.Paint(0x506070, {240, 130});
    ASSERT_TRUE(PumpUntil(sink, "paint"));
    Settle();
    EXPECT_EQ(sink.sizes.size(), 1U);
    EXPECT_EQ(sink.lost[0].GetBounds(), CRect(0, 0, 240, 130));
    ExpectShown(0x506070, {100, 100, 240, 130});
}

TEST_F(CX11WindowTest, QuickSizesDoNotComeBackFromThePast)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
    for (int i = 1; i <= 20; ++i)
    {
        window->SetSize({200 + i, 100});
        window->SetPosition({100 + i, 100});
        loop.Pump(0);
    }
    Settle();
    EXPECT_EQ(sink.sizes.size(), 20U);
    EXPECT_EQ(sink.places.size(), 20U);
    EXPECT_EQ(window->GetSize(), (CSize{220, 100}));
    EXPECT_EQ(window->GetPosition(), (CPoint{120, 100}));
}

TEST_F(CX11WindowTest, SidesBelowOneCountAsOne)
{
    CRecordingSink sink;
    const auto window = platform->CreateNativeWindow(Options(ENativeWindowKind::Menu, {0, 0, 0, -5}), sink);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->GetSize(), (CSize{1, 1}));
    window->SetSize({-3, 20});
    EXPECT_EQ(window->GetSize(), (CSize{1, 20}));
}

TEST_F(CX11WindowTest, OutsideResizeAndMoveAreTold)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
    const std::array<std::uint32_t, 4> values = {111, 122, 150, 90};
    xcb_configure_window(probe->Get(), static_cast<xcb_window_t>(window->GetId()),
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
    probe->Sync();
    ASSERT_TRUE(PumpUntil(sink, "moved"));
    EXPECT_THAT(sink.sizes, ElementsAre(CSize{150, 90}));
    EXPECT_THAT(sink.places, ElementsAre(CPoint{111, 122}));
    EXPECT_EQ(window->GetScreenPosition(), (CPoint{111, 122}));
}

TEST_F(CX11WindowTest, LivesInAForeignWindow)
{
    const xcb_window_t host = probe->ShowWindow(200, 150, 400, 300);
    CRecordingSink sink;
    const auto window = Open(ChildOptions(host, {20, 30, 100, 60}), sink, 0x708090);
    ASSERT_NE(window, nullptr);
    ExpectShown(0x708090, {220, 180, 100, 60});
    EXPECT_EQ(window->GetPosition(), (CPoint{20, 30}));
    EXPECT_EQ(window->GetScreenPosition(), (CPoint{220, 180}));
    EXPECT_THAT(ReadNumbers(*window, "_XEMBED_INFO"), ElementsAre(0U, 1U));
    EXPECT_FALSE(window->CanBeTransparent());
}

TEST_F(CX11WindowTest, LivesInAForeignWindowOf32BitsDepth)
{
    const xcb_window_t host = probe->ShowWindow(200, 150, 400, 300, true);
    CRecordingSink sink;
    const auto window = Open(ChildOptions(host, {0, 0, 100, 60}), sink, 0x708090);
    ASSERT_NE(window, nullptr);
    ExpectShown(0x708090, {200, 150, 100, 60});
}

TEST_F(CX11WindowTest, ForeignWindowThatDoesNotExistGivesNone)
{
    CRecordingSink sink;
    const xcb_window_t host = probe->ShowWindow(200, 150, 400, 300);
    probe->Destroy(host);
    EXPECT_EQ(platform->CreateNativeWindow(ChildOptions(host, {0, 0, 10, 10}), sink), nullptr);
    EXPECT_EQ(platform->CreateNativeWindow(ChildOptions(0, {0, 0, 10, 10}), sink), nullptr);
}

TEST_F(CX11WindowTest, SurvivesTheEndOfTheForeignWindow)
{
    const xcb_window_t host = probe->ShowWindow(200, 150, 400, 300);
    CRecordingSink sink;
    const auto window = Open(ChildOptions(host, {0, 0, 100, 60}), sink, 0x708090);
    probe->Destroy(host);
    ASSERT_TRUE(PumpUntil(sink, "closed"));
    EXPECT_FALSE(window->IsOpen());
    EXPECT_FALSE(window->IsShown());
    EXPECT_EQ(window->GetId(), 0U);
    sink.Clear();
    window->Show(true);
    window->Raise();
    window->SetSize({5, 5});
    window->SetPosition({5, 5});
    window->SetTitle("x");
    window->SetOpacity(0.5F);
    window->SetFocus();
    window->SetCursor(Mirel::GUI::ECursorShape::Hand);
    window->RequestPaint();
    window->Present(sink.picture, CSimple2DRegion(CRect(0, 0, 5, 5)));
    EXPECT_FALSE(window->CaptureMouse());
    window->ReleaseMouse();
    window->SetOwner(nullptr);
    Settle();
    EXPECT_TRUE(sink.log.empty());
    EXPECT_EQ(window->GetSize(), (CSize{100, 60}));
    const auto next = Open(Options(ENativeWindowKind::TopLevel, {40, 30, 50, 50}), sink, 0x102030);
    ExpectShown(0x102030, {40, 30, 50, 50});
}

TEST_F(CX11WindowTest, SinkMayDestroyItsWindowInEveryCall)
{
    for (const std::string call : {"paint", "shown", "focus in", "resized", "closed", "hidden", "enter",
                                   "move", "down", "up", "wheel", "key down", "close requested"})
    {
        const xcb_window_t host = probe->ShowWindow(200, 150, 400, 300);
        CRecordingSink sink;
        auto window = platform->CreateNativeWindow(ChildOptions(host, {0, 0, 100, 60}), sink);
        ASSERT_NE(window, nullptr);
        sink.onCall = [&](const std::string& name)
        {
            if (name == call)
            {
                sink.window = nullptr;
                window.reset();
            }
        };
        const auto id = static_cast<xcb_window_t>(window->GetId());
        window->Show(true);
        Settle();
        if (window != nullptr)
        {
            window->SetFocus();
            window->SetSize({90, 50});
        }
        Settle();
        probe->Move(210, 160);
        probe->Move(212, 160);
        probe->Click(1);
        probe->Click(4);
        probe->Type(38);
        Settle();
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = id;
        message.type = probe->GetAtom("WM_PROTOCOLS");
        message.data.data32[0] = probe->GetAtom("WM_DELETE_WINDOW");
        xcb_send_event(probe->Get(), 0, id, 0, reinterpret_cast<const char*>(&message)); // NOLINT
        Settle();
        if (window != nullptr)
        {
            window->Show(false);
        }
        Settle();
        probe->Destroy(host);
        Settle();
        EXPECT_EQ(window, nullptr) << call;
        EXPECT_EQ(sink.Count(call), 1);
        probe->Move(1270, 790);
    }
}

TEST_F(CX11WindowTest, RaisesAboveOthers)
{
    CRecordingSink low;
    CRecordingSink high;
    const auto lower = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 50, 50}), low, 0x102030);
    const auto upper = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 50, 50}), high, 0x909090);
    ExpectShown(0x909090, {100, 100, 50, 50});
    lower->Raise();
    ASSERT_TRUE(PumpUntil(low, "paint"));
    Settle();
    ExpectShown(0x102030, {100, 100, 50, 50});
}

TEST_F(CX11WindowTest, CursorsComeFromShapesAndPictures)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 50, 50}), sink, 0x102030);
    for (int shape = 0; shape <= static_cast<int>(Mirel::GUI::ECursorShape::OpenHand); ++shape)
    {
        const auto cursor = static_cast<Mirel::GUI::ECursorShape>(shape);
        EXPECT_NE(platform->GetCursors().Find(cursor), static_cast<xcb_cursor_t>(XCB_NONE)) << shape;
        window->SetCursor(cursor);
    }
    sink.Paint(0x123456, {16, 16});
    EXPECT_NE(platform->GetCursors().Create(sink.picture, {3, 4}), static_cast<xcb_cursor_t>(XCB_NONE));
    EXPECT_EQ(platform->GetCursors().Create(sink.picture, {16, 4}), static_cast<xcb_cursor_t>(XCB_NONE));
    const Mirel::Graphics::CDIBBitmap shallow(24, {16, 16});
    EXPECT_EQ(platform->GetCursors().Create(shallow, {0, 0}), static_cast<xcb_cursor_t>(XCB_NONE));
    window->SetCursor(sink.picture, {3, 4});
    window->SetCursor(sink.picture, {99, 4});
    window->SetCursor(Mirel::GUI::ECursorShape::Normal);
    Settle();
    EXPECT_TRUE(window->IsOpen());
}

} // namespace
