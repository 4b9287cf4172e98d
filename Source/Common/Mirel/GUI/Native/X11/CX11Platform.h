#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/Native/CClickCounter.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Native/X11/CX11Clipboard.h"
#include "Mirel/GUI/Native/X11/CX11Connection.h"
#include "Mirel/GUI/Native/X11/CX11Cursors.h"
#include "Mirel/GUI/Native/X11/CX11Grabs.h"
#include "Mirel/GUI/Native/X11/CX11Keyboard.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

class CX11Window;

/// The windows of one connection to an X server, fed by a run loop. GUI thread only.
class CX11Platform : public INativePlatform
{
public:
    /// None if the display cannot be opened. An empty display takes that of the environment; a scale of 0
    /// asks the display. The loop must outlive the platform.
    static std::unique_ptr<CX11Platform> Open(CNativeRunLoop& loop, const std::string& display, int scale);

    CX11Platform(const CX11Platform&) = delete;
    CX11Platform& operator=(const CX11Platform&) = delete;
    ~CX11Platform() override;

    std::unique_ptr<INativeWindow> CreateNativeWindow(const SNativeWindowOptions& options,
                                                      INativeWindowSink& sink) override;
    bool HasDisplay() const override { return true; }
    CNativeRunLoop& GetRunLoop() const override { return loop; }
    int GetScale() const override { return scale; }
    std::vector<SNativeScreen> GetScreens() const override;
    CPoint GetPointerPosition() const override;
    std::uint32_t GetModifiers() const override;
    void SetClipboardText(const std::string& text) override;
    void RequestClipboardText(TextReceiver receiver) override;

    CX11Connection& GetConnection() { return *connection; }
    CX11Keyboard& GetKeyboard() { return keyboard; }
    CX11Cursors& GetCursors() { return cursors; }
    CX11Grabs& GetGrabs() { return grabs; }
    CClickCounter& GetClicks() { return clicks; }

    /// Of the latest input event, in the server's milliseconds.
    xcb_timestamp_t GetTime() const { return time; }
    void SetTime(xcb_timestamp_t time_) { time = time_; }

    /// The windows that want to paint are asked to in a later pass of the loop.
    void SchedulePaint();

    void Add(xcb_window_t id, CX11Window& window) { windows[id] = &window; }
    void Remove(xcb_window_t id);

    /// Tells all menus that are shown that the user wants them closed, the latest first.
    void DismissMenus();

    /// The press of a button closed the menus: its release belongs to nobody.
    void Swallow(std::uint8_t button) { swallowed |= 1U << button; }

    /// Whether the release of the button belongs to nobody; asking ends that.
    bool TakeSwallowed(std::uint8_t button);

private:
    CX11Platform(std::unique_ptr<CX11Connection> connection_, CNativeRunLoop& loop_, int scale_);

    CX11Window* Find(xcb_window_t id) const;
    void Dispatch();
    bool IsOutdatedMotion(const xcb_generic_event_t& event) const;
    void Handle(const xcb_generic_event_t& event);
    void HandleTaken(const xcb_generic_event_t& event);
    void UpdateScale();
    void PaintAll();
    void CloseAll();
    template <typename TCall>
    void ForEachWindow(const TCall& call);

    std::unique_ptr<CX11Connection> connection;
    CNativeRunLoop& loop;
    int descriptor;
    int scale;
    bool isScaleFixed;
    bool isPaintScheduled = false;
    bool isDispatchScheduled = false;
    bool isLost = false;
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    std::uint32_t swallowed = 0;
    std::map<xcb_window_t, CX11Window*> windows;
    CX11Keyboard keyboard;
    CX11Cursors cursors;
    CX11Grabs grabs;
    CX11Clipboard clipboard;
    CClickCounter clicks;
    std::shared_ptr<CX11Platform*> self; ///< For calls that wait in the loop: null once this is destroyed.
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
