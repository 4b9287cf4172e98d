#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/Native/INativeWindow.h"
#include "Mirel/GUI/Native/INativeWindowSink.h"
#include "Mirel/GUI/Native/X11/CX11Presenter.h"

#include <bitset>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

class CX11Platform;

/// A window of the X server. Once the server has destroyed it, or is gone, it has no id and does nothing. GUI
/// thread only.
class CX11Window : public INativeWindow
{
public:
    /// No window, and so no id, if the server refuses.
    CX11Window(CX11Platform& platform_, const SNativeWindowOptions& options, INativeWindowSink& sink_);
    CX11Window(const CX11Window&) = delete;
    CX11Window& operator=(const CX11Window&) = delete;
    ~CX11Window() override;

    NativeWindowId GetId() const override { return id; }
    NativeWindowId GetTopLevelId() const override;
    bool IsOpen() const override { return id != XCB_NONE; }
    void Show(bool show) override;
    bool IsShown() const override { return shown; }
    void Raise() override;
    void SetPosition(CPoint position_) override;
    CPoint GetPosition() const override { return position; }
    CPoint GetScreenPosition() const override;
    void SetSize(CSize size_) override;
    CSize GetSize() const override { return size; }
    void SetSizeLimits(CSize smallest_, CSize largest_) override;
    void SetTitle(const std::string& title) override;
    void SetOwner(const INativeWindow* owner) override;
    void SetOpacity(float opacity_) override;
    bool CanBeTransparent() const override;
    void SetFocus() override;
    bool HasFocus() const override { return focused; }
    void FocusEmbedded() override;
    bool CaptureMouse() override;
    void ReleaseMouse() override;
    void SetCursor(ECursorShape shape) override;
    void SetCursor(const Graphics::CBitmap& picture, CPoint hotSpot) override;
    void RequestPaint() override;
    void Present(const Graphics::CBitmap& bitmap, const Graphics::CSimple2DRegion& region) override;

    INativeWindowSink& GetSink() const { return sink; }
    ENativeWindowKind GetKind() const { return kind; }

    /// One of the window's own events. It may destroy the window.
    void HandleEvent(const xcb_generic_event_t& event);

    /// The server has read a buffer. False if it is not this window's.
    bool HandleTaken(xcb_shm_seg_t segment);

    /// Asks the sink to paint, if there is something to paint and the server is ready for it.
    void PaintIfDue();

    /// A place that an event tells in this window's coordinates.
    bool IsInside(CPoint place) const;

    /// The window does not exist any more, or cannot be reached.
    void Close();

private:
    bool Create(const SNativeWindowOptions& options);
    bool IsTop() const { return kind == ENativeWindowKind::TopLevel || kind == ENativeWindowKind::Dialog; }
    void Configure(std::uint16_t mask, const std::uint32_t* values);
    void WriteHints() const;
    void ChangeSize(CSize size_);
    void ReplaceCursor(xcb_cursor_t cursor, xcb_cursor_t owned);
    void LoseEverything();
    void Map();
    void Withdraw();

    void OnExposed(const xcb_expose_event_t& event);
    void OnConfigured(const xcb_configure_notify_event_t& event, bool isSynthetic, std::uint32_t sequence);
    void OnMapped(bool isMapped);
    void OnFocus(bool isIn, std::uint8_t mode, std::uint8_t detail);
    void OnClientMessage(const xcb_client_message_event_t& event);
    void OnEmbedding(const xcb_client_message_event_t& event);
    void ChangeFocus(bool focused_);
    void OnKey(const xcb_key_press_event_t& event, bool isDown);
    void HandOn(xcb_key_press_event_t event);
    void OnCrossing(const xcb_enter_notify_event_t& event, bool isIn);
    void OnMotion(const xcb_motion_notify_event_t& event);
    void OnButton(const xcb_button_press_event_t& event, bool isDown);
    void OnWheel(const xcb_button_press_event_t& event);

    CX11Platform& platform;
    CX11Connection& connection;
    INativeWindowSink& sink;
    ENativeWindowKind kind;
    xcb_window_t id = XCB_NONE;
    xcb_window_t parent = XCB_NONE;   ///< Of a child.
    xcb_window_t embedder = XCB_NONE; ///< Who embeds this window by messages.
    std::bitset<256> handedOn;        ///< By key code: the press went on to the parent.
    std::unique_ptr<CX11Presenter> presenter;
    CPoint position;
    CSize size;
    CSize smallest;
    CSize largest;
    bool isResizable;
    bool isPlaced;
    float opacity = 1.0F;
    ECursorShape cursorShape = ECursorShape::Normal;
    bool hasShape = false;               ///< cursorShape is what it shows
    xcb_cursor_t ownCursor = XCB_NONE;   ///< of a picture
    std::uint32_t configureSequence = 0; ///< Events older than the latest request tell of the past.
    bool shown = false;
    bool mapped = false;
    bool reparented = false; ///< The window manager put a frame around it.
    bool focused = false;
    bool pointerInside = false;
    bool paintWanted = false;
    Graphics::CSimple2DRegion lost;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
