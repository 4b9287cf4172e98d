#include "Mirel/GUI/CWindow.h"

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/CCustomWidget.h"
#include "Mirel/GUI/CFrameWindow.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;
using namespace Tests;

namespace
{

/// A platform that refuses all windows.
class CRefusingPlatform : public COffscreenPlatform
{
public:
    using COffscreenPlatform::COffscreenPlatform;

    std::unique_ptr<INativeWindow> CreateNativeWindow(const SNativeWindowOptions& /*options*/,
                                                      INativeWindowSink& /*sink*/) override
    {
        return nullptr;
    }
};

} // namespace

TEST(CWindow, ContentHasTheSizeOfTheWindow)
{
    CWindowRig rig({120, 80}, 2);
    CCustomWidget content;
    rig.window->SetContent(&content, false);
    EXPECT_EQ(content.GetSize(), CSize({120, 80}));
    rig.window->SetSize({50, 40});
    EXPECT_EQ(rig.Native().GetSize(), CSize({100, 80}));
    EXPECT_EQ(content.GetSize(), CSize({50, 40}));
    rig.window->SetContent(nullptr, false);
}

TEST(CWindow, EventsFireOnResizeMoveAndClose)
{
    CWindowRig rig;
    CEventCounter resized(rig.window->GetResizedEvent());
    CEventCounter moved(rig.window->GetMovedEvent());
    CEventCounter closing(rig.window->GetClosingEvent());
    rig.window->SetSize({70, 70});
    rig.window->SetSize({70, 70});
    rig.window->SetPosition({5, 6});
    rig.window->SetPosition({5, 6});
    rig.platform.AskToClose();
    EXPECT_EQ(resized.Take(), 1);
    EXPECT_EQ(moved.Take(), 1);
    EXPECT_EQ(closing.Take(), 1);
    EXPECT_TRUE(rig.window->IsShown());
}

TEST(CWindow, OwnedContentGoesWithTheWindowAndBorrowedStays)
{
    CCustomWidget borrowed;
    CCustomWidget parent;
    CCustomWidget child;
    parent.AddChild(&child, false);
    {
        CWindowRig rig;
        rig.window->SetContent(new CCustomWidget(), true);
        rig.window->SetContent(&borrowed, false);
        rig.window->SetContent(&child, false);
        EXPECT_EQ(rig.window->GetContent(), &borrowed);
        EXPECT_EQ(borrowed.GetWindow(), rig.window.get());
        parent.AddChild(&borrowed, false);
        EXPECT_EQ(borrowed.GetParent(), nullptr);
    }
    EXPECT_EQ(borrowed.GetWindow(), nullptr);
    CWindowRig rig;
    auto* const content = new CCustomWidget();
    rig.window->SetContent(content, true);
    delete content;
    EXPECT_EQ(rig.window->GetContent(), nullptr);
}

TEST(CWindow, LostPixelsArePresentedAgainWithoutPainting)
{
    CLightRig rig;
    rig.background->TakeDraws();
    rig.Native().Lose({10, 10, 20, 20});
    rig.platform.Pump();
    EXPECT_EQ(rig.background->TakeDraws(), 0);
    EXPECT_EQ(rig.Native().TakePresented().GetBounds(), CRect(10, 10, 20, 20));
}

TEST(CWindow, PaintsInThePassOfTheRunLoopToo)
{
    CLightRig rig;
    rig.root->Invalidate();
    rig.loop.Pump(0);
    EXPECT_EQ(rig.Native().TakePresented().GetBounds(), CRect(0, 0, 100, 100));
}

TEST(CWindow, HiddenWindowsDoNotPaint)
{
    CLightRig rig;
    rig.window->Show(false);
    rig.root->Invalidate();
    rig.adapter->Update();
    EXPECT_FALSE(rig.platform.Pump());
    EXPECT_EQ(rig.background->TakeDraws(), 0);
    rig.window->Show(true);
    EXPECT_TRUE(rig.platform.Pump());
    EXPECT_EQ(rig.background->TakeDraws(), 1);
}

TEST(CWindow, ChangeOfScaleKeepsTheSizeInSkinPixels)
{
    CLightRig rig({100, 50});
    CNotingLight a(rig.root, {10, 10, 5, 5}, "a", rig.script, {0, 0, 255});
    rig.platform.ChangeScale(3);
    rig.platform.Pump();
    EXPECT_EQ(rig.Native().GetSize(), CSize({300, 150}));
    EXPECT_EQ(rig.adapter->GetSize(), CSize({100, 50}));
    EXPECT_EQ(rig.PixelAt(44, 44), 0x0000FFU);
    EXPECT_EQ(rig.PixelAt(45, 45), 0U);
}

TEST(CWindow, PointsRoundDownToSkinPixels)
{
    CWindowRig rig({100, 100}, 4);
    EXPECT_EQ(rig.window->ToSkin({7, 8}), CPoint({1, 2}));
    EXPECT_EQ(rig.window->ToSkin({-1, -4}), CPoint({-1, -1}));
    EXPECT_EQ(rig.window->ToSkin({-5, 0}), CPoint({-2, 0}));
    rig.window->SetPosition({1000, 2000});
    EXPECT_EQ(rig.window->ToScreen({3, 4}), CPoint({1012, 2016}));
}

TEST(CWindow, RefusedWindowDoesNothing)
{
    CNativeRunLoop loop;
    CRefusingPlatform platform(loop);
    CFrameWindow window(platform, "x", {10, 10});
    CCustomWidget content;
    window.SetContent(&content, false);
    window.Show(true);
    window.SetSize({5, 5});
    window.SetPosition({1, 1});
    window.SetTitle("y");
    window.Center();
    window.SetOpacity(0.5F);
    window.PaintNow();
    content.Show(true);
    content.SetSize({5, 5});
    content.Invalidate();
    EXPECT_FALSE(window.RunModal(nullptr));
    EXPECT_FALSE(window.IsShown());
    EXPECT_EQ(window.GetSize(), CSize());
}

TEST(CWindow, ModalWindowKeepsInputFromTheOther)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 10, 30, 30}, "a", rig.script);
    CFrameWindow dialog(rig.platform, "question", {20, 20}, false, rig.window.get());
    dialog.SetPosition({500, 500});
    rig.loop.Post(
        [&]
        {
            rig.Click(20, 20);
            dialog.Show(false);
        });
    EXPECT_TRUE(dialog.RunModal(rig.window.get()));
    EXPECT_EQ(rig.TakeScript(), "");
    rig.Rest();
    rig.Click(21, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.down a.up a.click ");
}

TEST(CFrameWindow, HasATitleLimitsAndAMiddle)
{
    CNativeRunLoop loop;
    COffscreenPlatform platform(loop, 2);
    CFrameWindow window(platform, "scope", {100, 50});
    auto& native = static_cast<COffscreenWindow&>(*window.GetNativeWindow());
    EXPECT_EQ(native.GetTitle(), "scope");
    EXPECT_EQ(native.GetSize(), CSize({200, 100}));
    window.SetSizeLimits({80, 40}, {150, 0});
    native.ResizeByUser({100, 5000});
    EXPECT_EQ(window.GetSize(), CSize({80, 2500}));
    native.ResizeByUser({1000, 10});
    EXPECT_EQ(window.GetSize(), CSize({150, 40}));
    window.Center();
    EXPECT_EQ(window.GetPosition(), CPoint({(4096 - 300) / 2, (4096 - 80) / 2}));
}

TEST(CWindow, WindowTakenAwayIsHarmless)
{
    CLightRig rig;
    rig.Native().CloseFromOutside();
    rig.root->Invalidate();
    rig.window->SetSize({10, 10});
    rig.window->Show(true);
    EXPECT_FALSE(rig.window->IsShown());
    EXPECT_FALSE(rig.platform.Pump());
}
