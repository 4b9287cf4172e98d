#include "Common/Mirel/GUI/Native/X11/CX11Test.h"

#include <gmock/gmock.h>
#include <string>

using Mirel::GUI::CX11Platform;

namespace
{

class CX11ClipboardTest : public Tests::CX11Test
{
public:
    void SetUp() override
    {
        CX11Test::SetUp();
        other = CX11Platform::Open(loop, display->GetName(), 1);
        ASSERT_NE(other, nullptr);
    }

    /// Puts text on the clipboard and waits until the server has it: connections do not wait for each other.
    void Copy(const std::string& text) const
    {
        platform->SetClipboardText(text);
        platform->GetPointerPosition();
    }

    /// What a platform gets when it asks.
    std::string Paste(Mirel::GUI::INativePlatform& reader)
    {
        bool isThere = false;
        std::string result;
        reader.RequestClipboardText(
            [&](const std::string& text)
            {
                isThere = true;
                result = text;
            });
        EXPECT_TRUE(PumpUntil([&] { return isThere; }));
        return result;
    }

    std::unique_ptr<CX11Platform> other;
};

TEST_F(CX11ClipboardTest, IsEmptyAtFirst)
{
    EXPECT_EQ(Paste(*platform), "");
}

TEST_F(CX11ClipboardTest, OwnTextComesAtOnce)
{
    platform->SetClipboardText("Skål");
    std::string result;
    platform->RequestClipboardText([&](const std::string& text) { result = text; });
    EXPECT_EQ(result, "Skål");
}

TEST_F(CX11ClipboardTest, TextGoesToOtherPrograms)
{
    Copy("Größe 5");
    EXPECT_EQ(Paste(*other), "Größe 5");
    Copy("");
    EXPECT_EQ(Paste(*other), "");
    const std::string longText(100000, 'x');
    Copy(longText);
    EXPECT_EQ(Paste(*other), longText);
}

TEST_F(CX11ClipboardTest, LaterTextReplacesThatOfOthers)
{
    Copy("first");
    other->SetClipboardText("second");
    Settle();
    EXPECT_EQ(Paste(*platform), "second");
    EXPECT_EQ(Paste(*other), "second");
}

TEST_F(CX11ClipboardTest, AllWhoAskedGetTheText)
{
    Copy("text");
    int count = 0;
    for (int i = 0; i < 3; ++i)
    {
        other->RequestClipboardText([&](const std::string& text) { count += text == "text" ? 1 : 0; });
    }
    EXPECT_TRUE(PumpUntil([&] { return count == 3; }));
}

TEST_F(CX11ClipboardTest, TextGoesWithItsPlatform)
{
    platform->SetClipboardText("text");
    platform->GetPointerPosition();
    platform.reset();
    EXPECT_EQ(Paste(*other), "");
}

TEST_F(CX11ClipboardTest, NobodyIsToldAfterTheEnd)
{
    platform->SetClipboardText("text");
    int count = 0;
    other->RequestClipboardText([&](const std::string&) { ++count; });
    other.reset();
    Settle();
    EXPECT_EQ(count, 0);
}

TEST_F(CX11ClipboardTest, OwnerThatDoesNotAnswerGivesNothing)
{
    const xcb_window_t silent = probe->ShowWindow(0, 0, 1, 1);
    xcb_set_selection_owner(probe->Get(), silent, probe->GetAtom("CLIPBOARD"), XCB_CURRENT_TIME);
    probe->Sync();
    EXPECT_EQ(Paste(*platform), "");
}

/// Another program that owns the selection and hands it over as it likes.
class CX11ForeignOwnerTest : public CX11ClipboardTest
{
public:
    void SetUp() override
    {
        CX11ClipboardTest::SetUp();
        owner = probe->ShowWindow(0, 0, 1, 1);
        xcb_set_selection_owner(probe->Get(), owner, probe->GetAtom("CLIPBOARD"), XCB_CURRENT_TIME);
        probe->Sync();
        platform->RequestClipboardText(
            [this](const std::string& text)
            {
                isThere = true;
                result = text;
            });
    }

    xcb_selection_request_event_t NextRequest()
    {
        Tests::CX11Test::Settle();
        xcb_selection_request_event_t request{};
        while (xcb_generic_event_t* event = xcb_poll_for_event(probe->Get()))
        {
            if ((event->response_type & 0x7F) == XCB_SELECTION_REQUEST)
            {
                const void* record = event;
                request = *static_cast<const xcb_selection_request_event_t*>(record);
            }
            std::free(event); // NOLINT: allocated by the library
        }
        return request;
    }

    void Write(const xcb_selection_request_event_t& request, xcb_atom_t type, std::uint8_t format,
               const std::string& bytes)
    {
        xcb_change_property(probe->Get(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, type,
                            format, static_cast<std::uint32_t>(bytes.size()) * 8U / format, bytes.data());
        probe->Sync();
    }

    void Answer(const xcb_selection_request_event_t& request, bool isDone)
    {
        xcb_selection_notify_event_t answer{};
        answer.response_type = XCB_SELECTION_NOTIFY;
        answer.requestor = request.requestor;
        answer.selection = request.selection;
        answer.target = request.target;
        answer.property = isDone ? request.property : xcb_atom_t{XCB_NONE};
        xcb_send_event(probe->Get(), 0, request.requestor, 0,
                       reinterpret_cast<const char*>(&answer)); // NOLINT
        probe->Sync();
    }

    xcb_window_t owner = 0;
    bool isThere = false;
    std::string result;
};

TEST_F(CX11ForeignOwnerTest, OldProgramsGiveLatin1)
{
    const xcb_selection_request_event_t first = NextRequest();
    EXPECT_EQ(first.target, probe->GetAtom("UTF8_STRING"));
    Answer(first, false);
    const xcb_selection_request_event_t second = NextRequest();
    EXPECT_EQ(second.target, static_cast<xcb_atom_t>(XCB_ATOM_STRING));
    Write(second, XCB_ATOM_STRING, 8,
          "Gr\xF6\xDF"
          "e");
    Answer(second, true);
    EXPECT_TRUE(PumpUntil([&] { return isThere; }));
    EXPECT_EQ(result, "Größe");
}

TEST_F(CX11ForeignOwnerTest, OwnerWithoutTextGivesNothing)
{
    Answer(NextRequest(), false);
    Answer(NextRequest(), false);
    EXPECT_TRUE(PumpUntil([&] { return isThere; }));
    EXPECT_EQ(result, "");
}

TEST_F(CX11ForeignOwnerTest, LongTextsComeInPieces)
{
    const xcb_selection_request_event_t request = NextRequest();
    Write(request, probe->GetAtom("INCR"), 32, std::string("\x04\x00\x00\x00", 4));
    Answer(request, true);
    Settle();
    for (const std::string piece : {"one, ", "two, ", "three"})
    {
        EXPECT_FALSE(isThere);
        Write(request, probe->GetAtom("UTF8_STRING"), 8, piece);
        Settle();
    }
    Write(request, probe->GetAtom("UTF8_STRING"), 8, "");
    EXPECT_TRUE(PumpUntil([&] { return isThere; }));
    EXPECT_EQ(result, "one, two, three");
}

} // namespace
