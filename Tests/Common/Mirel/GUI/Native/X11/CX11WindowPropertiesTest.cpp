#include "Common/Mirel/GUI/Native/X11/CX11Test.h"

#include <gmock/gmock.h>
#include <string>
#include <xcb/xcb.h>

using Mirel::GUI::ENativeWindowKind;
using Mirel::GUI::SNativeWindowOptions;
using testing::ElementsAre;
using Tests::CRecordingSink;

namespace
{

class CX11WindowPropertiesTest : public Tests::CX11Test
{
};

TEST_F(CX11WindowPropertiesTest, TellsItsTitleInUtf8)
{
    CRecordingSink sink;
    SNativeWindowOptions options = Options(ENativeWindowKind::TopLevel, {0, 0, 50, 50});
    options.title = "Skål";
    const auto window = platform->CreateNativeWindow(options, sink);
    Settle();
    const auto id = static_cast<xcb_window_t>(window->GetId());
    EXPECT_EQ(probe->ReadProperty(id, "_NET_WM_NAME"), "Skål");
    window->SetTitle("Größe");
    Settle();
    EXPECT_EQ(probe->ReadProperty(id, "_NET_WM_NAME"), "Größe");
    EXPECT_EQ(probe->ReadProperty(id, "WM_NAME"), "Größe");
}

TEST_F(CX11WindowPropertiesTest, TellsTheWindowManagerItsKind)
{
    const auto typeOf = [&](ENativeWindowKind kind)
    {
        CRecordingSink sink;
        const auto window = platform->CreateNativeWindow(Options(kind, {0, 0, 50, 50}), sink);
        Settle();
        return ReadNumbers(*window, "_NET_WM_WINDOW_TYPE");
    };
    const auto atom = [&](const std::string& name) { return std::uint32_t{probe->GetAtom(name)}; };
    EXPECT_THAT(typeOf(ENativeWindowKind::TopLevel), ElementsAre(atom("_NET_WM_WINDOW_TYPE_NORMAL")));
    EXPECT_THAT(typeOf(ENativeWindowKind::Dialog), ElementsAre(atom("_NET_WM_WINDOW_TYPE_DIALOG")));
    EXPECT_THAT(typeOf(ENativeWindowKind::Menu), ElementsAre(atom("_NET_WM_WINDOW_TYPE_POPUP_MENU")));
    EXPECT_THAT(typeOf(ENativeWindowKind::Tooltip), ElementsAre(atom("_NET_WM_WINDOW_TYPE_TOOLTIP")));
}

TEST_F(CX11WindowPropertiesTest, DialogIsModalAndInFrontOfItsOwner)
{
    CRecordingSink sink;
    const auto owner =
        platform->CreateNativeWindow(Options(ENativeWindowKind::TopLevel, {0, 0, 50, 50}), sink);
    SNativeWindowOptions options = Options(ENativeWindowKind::Dialog, {0, 0, 50, 50});
    options.owner = owner.get();
    const auto dialog = platform->CreateNativeWindow(options, sink);
    Settle();
    EXPECT_THAT(ReadNumbers(*dialog, "WM_TRANSIENT_FOR"),
                ElementsAre(static_cast<std::uint32_t>(owner->GetId())));
    EXPECT_THAT(ReadNumbers(*dialog, "_NET_WM_STATE"),
                ElementsAre(std::uint32_t{probe->GetAtom("_NET_WM_STATE_MODAL")}));
    dialog->SetOwner(nullptr);
    Settle();
    EXPECT_THAT(ReadNumbers(*dialog, "WM_TRANSIENT_FOR"), ElementsAre());
    options.owner = nullptr;
    options.foreignOwner = probe->ShowWindow(0, 0, 20, 20);
    const auto other = platform->CreateNativeWindow(options, sink);
    Settle();
    EXPECT_THAT(ReadNumbers(*other, "WM_TRANSIENT_FOR"),
                ElementsAre(static_cast<std::uint32_t>(options.foreignOwner)));
}

TEST_F(CX11WindowPropertiesTest, DialogOfAnEmbeddedWindowIsInFrontOfTheHostsWindow)
{
    const xcb_window_t frame = probe->ShowWindow(100, 100, 300, 300);
    const xcb_window_t host = probe->ShowWindow(0, 0, 300, 300, false, frame);
    const xcb_window_t inner = probe->ShowWindow(0, 0, 200, 200, false, host);
    CRecordingSink sink;
    const auto child = platform->CreateNativeWindow(ChildOptions(inner, {0, 0, 100, 100}), sink);
    EXPECT_EQ(child->GetTopLevelId(), frame) << "nobody manages windows";
    const std::uint32_t normal[] = {1, 0};
    const xcb_atom_t state = probe->GetAtom("WM_STATE");
    xcb_change_property(probe->Get(), XCB_PROP_MODE_REPLACE, host, state, state, 32, 2, normal);
    probe->Sync();
    EXPECT_EQ(child->GetTopLevelId(), host) << "the window manager's frame is not the window";
    SNativeWindowOptions options = Options(ENativeWindowKind::Dialog, {0, 0, 50, 50});
    options.owner = child.get();
    const auto dialog = platform->CreateNativeWindow(options, sink);
    Settle();
    EXPECT_THAT(ReadNumbers(*dialog, "WM_TRANSIENT_FOR"), ElementsAre(host));
    EXPECT_EQ(dialog->GetTopLevelId(), dialog->GetId());
}

TEST_F(CX11WindowPropertiesTest, TellsTheSizesThatTheUserMayChoose)
{
    // Words of WM_NORMAL_HINTS: 0 flags, 5 and 6 smallest, 7 and 8 largest; flag 16 smallest, 32 largest.
    CRecordingSink sink;
    const auto window =
        platform->CreateNativeWindow(Options(ENativeWindowKind::TopLevel, {0, 0, 50, 40}), sink);
    window->SetSizeLimits({20, 10}, {0, 300});
    Settle();
    std::vector<std::uint32_t> hints = ReadNumbers(*window, "WM_NORMAL_HINTS");
    ASSERT_GE(hints.size(), 9U);
    EXPECT_EQ(hints[0] & 48U, 48U);
    EXPECT_EQ(hints[5], 20U);
    EXPECT_EQ(hints[6], 10U);
    EXPECT_EQ(hints[7], 32767U);
    EXPECT_EQ(hints[8], 300U);
    window->SetSizeLimits({}, {});
    Settle();
    EXPECT_EQ(ReadNumbers(*window, "WM_NORMAL_HINTS")[0] & 48U, 0U);

    SNativeWindowOptions options = Options(ENativeWindowKind::Dialog, {0, 0, 50, 40});
    options.isResizable = false;
    const auto fixed = platform->CreateNativeWindow(options, sink);
    fixed->SetSize({70, 60});
    Settle();
    hints = ReadNumbers(*fixed, "WM_NORMAL_HINTS");
    EXPECT_THAT(std::vector<std::uint32_t>(hints.begin() + 5, hints.begin() + 9),
                ElementsAre(70U, 60U, 70U, 60U));
}

TEST_F(CX11WindowPropertiesTest, TellsItsOpacity)
{
    CRecordingSink sink;
    const auto window =
        platform->CreateNativeWindow(Options(ENativeWindowKind::TopLevel, {0, 0, 50, 40}), sink);
    window->SetOpacity(0.5F);
    Settle();
    EXPECT_THAT(ReadNumbers(*window, "_NET_WM_WINDOW_OPACITY"), ElementsAre(0x80000000U));
    window->SetOpacity(-1.0F);
    Settle();
    EXPECT_THAT(ReadNumbers(*window, "_NET_WM_WINDOW_OPACITY"), ElementsAre(0U));
    window->SetOpacity(1.0F);
    Settle();
    EXPECT_THAT(ReadNumbers(*window, "_NET_WM_WINDOW_OPACITY"), ElementsAre());
    EXPECT_FALSE(window->CanBeTransparent()) << "nobody blends windows on this display";
}

TEST_F(CX11WindowPropertiesTest, BlendsWhereSomebodyDoes)
{
    CRecordingSink sink;
    const auto window =
        platform->CreateNativeWindow(Options(ENativeWindowKind::TopLevel, {0, 0, 50, 40}), sink);
    const xcb_window_t compositor = probe->ShowWindow(0, 0, 1, 1);
    xcb_set_selection_owner(probe->Get(), compositor, probe->GetAtom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    probe->Sync();
    EXPECT_TRUE(window->CanBeTransparent());
}

TEST_F(CX11WindowPropertiesTest, WindowManagerAsksToClose)
{
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
    const auto id = static_cast<xcb_window_t>(window->GetId());
    const std::vector<std::uint32_t> protocols = ReadNumbers(*window, "WM_PROTOCOLS");
    EXPECT_THAT(protocols, testing::Contains(std::uint32_t{probe->GetAtom("WM_DELETE_WINDOW")}));
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = id;
    message.type = probe->GetAtom("WM_PROTOCOLS");
    message.data.data32[0] = probe->GetAtom("WM_DELETE_WINDOW");
    xcb_send_event(probe->Get(), 0, id, 0, reinterpret_cast<const char*>(&message)); // NOLINT
    probe->Sync();
    EXPECT_TRUE(PumpUntil(sink, "close requested"));
    EXPECT_TRUE(window->IsOpen());
}

} // namespace
