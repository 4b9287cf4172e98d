#include "Common/Mirel/GUI/Native/X11/CX11Test.h"
#include "Mirel/GUI/Native/X11/X11Screens.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <poll.h>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

using Mirel::Graphics::CRect;
using Mirel::Graphics::CSimple2DRegion;
using Mirel::GUI::CNativeRunLoop;
using Mirel::GUI::CX11Platform;
using Mirel::GUI::ENativeWindowKind;
using Mirel::GUI::ScaleOfResources;
using Mirel::GUI::SNativeScreen;
using Mirel::GUI::SNativeWindowOptions;
using testing::ElementsAre;
using Tests::CRecordingSink;
using Tests::CVirtualDisplay;
using Tests::CX11Probe;

namespace
{

class CX11PlatformTest : public Tests::CX11Test
{
};

int CountDescriptors()
{
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<int>(std::distance(begin(all), end(all)));
}

/// Segments of shared memory that this process made and has not let go.
int CountOwnSegments()
{
    std::ifstream table("/proc/sysvipc/shm");
    std::string line;
    std::getline(table, line);
    int count = 0;
    while (std::getline(table, line))
    {
        std::istringstream fields(line);
        std::string key;
        std::string id;
        std::string mode;
        std::string size;
        long creator = 0;
        fields >> key >> id >> mode >> size >> creator;
        count += creator == getpid() ? 1 : 0;
    }
    return count;
}

TEST_F(CX11PlatformTest, DisplayThatDoesNotExistGivesNone)
{
    EXPECT_EQ(CX11Platform::Open(loop, ":54321", 1), nullptr);
    EXPECT_EQ(CX11Platform::Open(loop, "nonsense", 1), nullptr);
}

TEST_F(CX11PlatformTest, TellsWhatItHas)
{
    EXPECT_TRUE(platform->HasDisplay());
    EXPECT_EQ(&platform->GetRunLoop(), &loop);
    EXPECT_EQ(platform->GetScale(), 1);
    const std::vector<SNativeScreen> screens = platform->GetScreens();
    ASSERT_EQ(screens.size(), 1U);
    EXPECT_EQ(screens[0].bounds, CRect(0, 0, 1280, 800));
    EXPECT_EQ(screens[0].workArea, CRect(0, 0, 1280, 800));
    EXPECT_TRUE(screens[0].isPrimary);
    probe->Move(123, 456);
    EXPECT_EQ(platform->GetPointerPosition(), (Mirel::GUI::CPoint{123, 456}));
}

TEST_F(CX11PlatformTest, PanelsAreLeftOutOfTheWorkArea)
{
    const std::uint32_t areas[] = {0, 0, 1280, 800, 0, 30, 1280, 740};
    const std::uint32_t current = 1;
    const auto write = [&](const char* name, std::uint32_t count, const std::uint32_t* numbers)
    {
        xcb_change_property(probe->Get(), XCB_PROP_MODE_REPLACE, probe->GetRoot(), probe->GetAtom(name),
                            XCB_ATOM_CARDINAL, 32, count, numbers);
        probe->Sync();
    };
    write("_NET_WORKAREA", 8, areas);
    write("_NET_CURRENT_DESKTOP", 1, &current);
    EXPECT_EQ(platform->GetScreens()[0].workArea, CRect(0, 30, 1280, 740));
    write("_NET_WORKAREA", 0, nullptr);
    write("_NET_CURRENT_DESKTOP", 0, nullptr);
}

TEST_F(CX11PlatformTest, ScaleFollowsTheDisplaysResolution)
{
    const auto write = [&](const std::string& resources)
    {
        xcb_change_property(probe->Get(), XCB_PROP_MODE_REPLACE, probe->GetRoot(), XCB_ATOM_RESOURCE_MANAGER,
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(resources.size()),
                            resources.data());
        probe->Sync();
    };
    write("Xft.antialias:\t1\nXft.dpi:\t192\n");
    platform = CX11Platform::Open(loop, display->GetName(), 0);
    EXPECT_EQ(platform->GetScale(), 2);
    CRecordingSink sink;
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {0, 0, 20, 20}), sink, 0x102030);
    write("Xft.dpi:\t288\n");
    ASSERT_TRUE(PumpUntil(sink, "scale"));
    EXPECT_THAT(sink.scales, ElementsAre(3));
    EXPECT_EQ(platform->GetScale(), 3);
    write("");
    EXPECT_TRUE(PumpUntil(sink, "scale", 2));
}

TEST(X11Screens, ScaleIsTheResolutionInWholeMultiplesOf96)
{
    EXPECT_EQ(ScaleOfResources(""), 1);
    EXPECT_EQ(ScaleOfResources("Xft.dpi: 96"), 1);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:\t143\n"), 1);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:\t144\n"), 2);
    EXPECT_EQ(ScaleOfResources("a: b\nXft.dpi:\t192.5\n"), 2);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:384"), 4);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:9600000000"), 4);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:-5"), 1);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:nan"), 1);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:"), 1);
    EXPECT_EQ(ScaleOfResources("Xft.dpi:\t"), 1);
    EXPECT_EQ(ScaleOfResources("MyXft.dpi:192"), 1);
}

TEST_F(CX11PlatformTest, OpenedAndClosedAHundredTimesNothingIsLeft)
{
    const xcb_window_t host = probe->ShowWindow(0, 0, 400, 400);
    const int windows = probe->CountWindows();
    const int segments = CountOwnSegments();
    platform.reset();
    const int descriptors = CountDescriptors();
    for (int i = 0; i < 100; ++i)
    {
        platform = CX11Platform::Open(loop, display->GetName(), 1);
        ASSERT_NE(platform, nullptr);
        CRecordingSink sink;
        SNativeWindowOptions options = Options(ENativeWindowKind::Child, {0, 0, 200, 100});
        options.foreignParent = host;
        auto window = platform->CreateNativeWindow(options, sink);
        sink.window = window.get();
        sink.Paint(0x102030, {200, 100});
        window->Show(true);
        ASSERT_TRUE(PumpUntil(sink, "paint"));
        window->SetSize({300 + i, 200});
        sink.Paint(0x102030, {300 + i, 200});
        ASSERT_TRUE(PumpUntil(sink, "paint", 2));
        window.reset();
        platform.reset();
    }
    probe->Sync();
    EXPECT_EQ(probe->CountWindows(), windows);
    EXPECT_EQ(CountOwnSegments(), segments);
    EXPECT_EQ(CountDescriptors(), descriptors);
}

TEST_F(CX11PlatformTest, WindowsOpenedAndClosedAHundredTimesLeaveNothing)
{
    const int windows = probe->CountWindows();
    const int segments = CountOwnSegments();
    const int descriptors = CountDescriptors();
    for (int i = 0; i < 100; ++i)
    {
        CRecordingSink sink;
        auto window = platform->CreateNativeWindow(Options(ENativeWindowKind::Menu, {0, 0, 50, 50}), sink);
        sink.window = window.get();
        sink.Paint(0x102030, {50, 50});
        window->Show(true);
        ASSERT_TRUE(PumpUntil(sink, "paint"));
    }
    platform->GetPointerPosition();
    EXPECT_EQ(probe->CountWindows(), windows);
    EXPECT_EQ(CountOwnSegments(), segments);
    EXPECT_EQ(CountDescriptors(), descriptors);
}

TEST_F(CX11PlatformTest, SegmentsAreGivenUpWhileTheWindowLivesSoThatACrashLeavesNone)
{
    CRecordingSink sink;
    const int segments = CountOwnSegments();
    const auto window = Open(Options(ENativeWindowKind::TopLevel, {0, 0, 200, 100}), sink, 0x102030);
    EXPECT_TRUE(platform->GetConnection().HasSharedMemory());
    // One is in use: in the table, but marked to go with its last user (mode bit 01000).
    std::ifstream table("/proc/sysvipc/shm");
    std::string line;
    int marked = 0;
    while (std::getline(table, line))
    {
        std::istringstream fields(line);
        std::string key;
        std::string id;
        std::string mode;
        std::string size;
        std::string creator;
        fields >> key >> id >> mode >> size >> creator;
        marked +=
            creator == std::to_string(getpid()) && mode.size() >= 4 && mode[mode.size() - 4] == '1' ? 1 : 0;
    }
    EXPECT_EQ(CountOwnSegments() - segments, 1);
    EXPECT_GE(marked, 1);
}

TEST_F(CX11PlatformTest, SinkMayDestroyThePlatformWithItsWindows)
{
    CRecordingSink sink;
    auto window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 200, 100}), sink, 0x102030);
    sink.onCall = [&](const std::string& name)
    {
        if (name == "down")
        {
            window.reset();
            platform.reset();
        }
    };
    probe->Move(110, 110);
    probe->Click(1);
    probe->Click(1);
    ASSERT_TRUE(PumpUntil(sink, "down"));
    loop.Pump(20);
    EXPECT_EQ(sink.Count("down"), 1);
}

TEST(CX11Platform, LostDisplayClosesTheWindowsAndNothingElse)
{
    CVirtualDisplay display;
    CNativeRunLoop loop;
    const auto platform = CX11Platform::Open(loop, display.GetName(), 0);
    ASSERT_NE(platform, nullptr);
    CRecordingSink first;
    CRecordingSink second;
    SNativeWindowOptions options;
    options.size = {100, 100};
    const auto window = platform->CreateNativeWindow(options, first);
    const auto other = platform->CreateNativeWindow(options, second);
    window->Show(true);
    loop.Pump(50);
    std::string pasted = "nothing yet";
    display.Stop();
    // Writing to a dead server raises a signal that ends most programs.
    first.Paint(0x102030, {100, 100});
    for (int i = 0; i < 100; ++i)
    {
        window->Present(first.picture, CSimple2DRegion(CRect(0, 0, 100, 100)));
        window->SetTitle("title");
    }
    platform->RequestClipboardText([&](const std::string& text) { pasted = text; });
    for (int i = 0; i < 100 && second.Count("closed") == 0; ++i)
    {
        loop.Pump(20);
    }
    EXPECT_EQ(first.Count("closed"), 1);
    EXPECT_EQ(second.Count("closed"), 1);
    EXPECT_FALSE(window->IsOpen());
    EXPECT_EQ(pasted, "");
    EXPECT_EQ(platform->CreateNativeWindow(options, first), nullptr);
    EXPECT_FALSE(platform->GetScreens().empty());
    EXPECT_EQ(platform->GetPointerPosition(), (Mirel::GUI::CPoint{}));
    platform->SetClipboardText("x");
    window->Show(false);
    EXPECT_FALSE(loop.Pump(20)) << "the loop does not spin on the dead connection";
    EXPECT_EQ(first.Count("closed"), 1);
}

TEST(CX11Platform, ProgramThatPollsTheLoopIsWokenByEventsReadWithAnAnswer)
{
    CVirtualDisplay display;
    CNativeRunLoop loop;
    const auto platform = CX11Platform::Open(loop, display.GetName(), 1);
    ASSERT_NE(platform, nullptr);
    const CX11Probe probe(display.GetName());
    CRecordingSink sink;
    SNativeWindowOptions options;
    options.size = {100, 100};
    const auto window = platform->CreateNativeWindow(options, sink);
    window->Show(true);
    while (loop.Pump(100))
    {
    }
    sink.Clear();
    probe.Move(10, 10);
    platform->GetPointerPosition(); // reads the event too
    platform->GetPointerPosition();
    pollfd entry{loop.GetDescriptor(), POLLIN, 0};
    ASSERT_EQ(poll(&entry, 1, 1000), 1);
    loop.OnIdle();
    EXPECT_EQ(sink.Count("enter") + sink.Count("move"), 2);
}

TEST(CX11Platform, WithoutSharedMemoryPixelsGoInTheRequests)
{
    CVirtualDisplay display({"-extension", "MIT-SHM"});
    CNativeRunLoop loop;
    const auto platform = CX11Platform::Open(loop, display.GetName(), 1);
    ASSERT_NE(platform, nullptr);
    EXPECT_FALSE(platform->GetConnection().HasSharedMemory());
    const CX11Probe probe(display.GetName());
    CRecordingSink sink;
    SNativeWindowOptions options;
    options.size = {900, 700};
    const auto window = platform->CreateNativeWindow(options, sink);
    sink.window = window.get();
    sink.Paint(0x304050, options.size);
    window->Show(true);
    for (int i = 0; i < 100 && sink.Count("paint") == 0; ++i)
    {
        loop.Pump(20);
    }
    platform->GetPointerPosition();
    const std::vector<std::uint32_t> pixels = probe.ReadScreen(0, 0, 900, 700);
    int wrong = 0;
    for (int i = 0; i < 900 * 700; ++i)
    {
        const std::uint32_t wanted = CRecordingSink::ColourAt(0x304050, i % 900, i / 900);
        wrong += pixels[static_cast<std::size_t>(i)] == (wanted & 0xFFFFFFU) ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0);
}

TEST(CX11Platform, DisplayOf16BitsIsRefused)
{
    const CVirtualDisplay display({"-screen", "0", "640x480x16"});
    ASSERT_NE(display.GetName(), "");
    CNativeRunLoop loop;
    const auto platform = CX11Platform::Open(loop, display.GetName(), 1);
    EXPECT_EQ(platform, nullptr);
}

} // namespace
