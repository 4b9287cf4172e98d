#pragma once

#include "Mirel/GUI/Native/NativeEvents.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

namespace Mirel::GUI
{

/// What a native window tells its owner; each does nothing by default. GUI thread only, from the run loop or
/// from within an operation of the window. All measures are device pixels. A sink may destroy its window, or
/// any other, in every call.
class INativeWindowSink
{
public:
    virtual ~INativeWindowSink() = default;

    /// The time to paint: after a RequestPaint, or because the screen lost what it showed. The receiver
    /// brings its bitmap up to date and calls INativeWindow::Present with what it painted and with the lost
    /// part, which is empty after a mere request. At most once a pass of the run loop, only while the window
    /// can be seen and only when the pixels presented before have been taken.
    virtual void OnPaint([[maybe_unused]] const Graphics::CSimple2DRegion& lost) {}

    /// The size changed, through SetSize or from outside. What the window showed is lost.
    virtual void OnResized([[maybe_unused]] CSize size) {}

    /// Where the window's top left now stands on the screen; for a child window, in its parent.
    virtual void OnMoved([[maybe_unused]] CPoint position) {}

    /// The user asks to close the window, or clicked outside of a menu window, or pressed elsewhere while it
    /// held the pointer. Nothing happens unless the receiver does it.
    virtual void OnCloseRequested() {}

    /// The window is gone: its foreign parent was destroyed or the display was lost. Every operation on it
    /// does nothing from now on; the object is still the owner's to destroy.
    virtual void OnClosed() {}

    /// The window can be seen from now on, or not any more (hidden, iconified).
    virtual void OnShown() {}
    virtual void OnHidden() {}

    /// Keys go to this window from now on, or not any more.
    virtual void OnFocusIn() {}
    virtual void OnFocusOut() {}

    virtual void OnPointerEnter([[maybe_unused]] const SNativeMouseEvent& event) {}
    virtual void OnPointerLeave([[maybe_unused]] const SNativeMouseEvent& event) {}
    virtual void OnPointerMove([[maybe_unused]] const SNativeMouseEvent& event) {}
    virtual void OnButtonDown([[maybe_unused]] const SNativeMouseEvent& event) {}
    virtual void OnButtonUp([[maybe_unused]] const SNativeMouseEvent& event) {}
    virtual void OnWheel([[maybe_unused]] const SNativeWheelEvent& event) {}

    /// False if nobody had a use for the key: a child window then hands press and release on to the window
    /// that it stands in, whose shortcuts so work while it has the focus.
    virtual bool OnKeyDown([[maybe_unused]] const SNativeKeyEvent& event) { return false; }
    virtual void OnKeyUp([[maybe_unused]] const SNativeKeyEvent& event) {}

    /// The pointer is no longer captured although ReleaseMouse was not called: another program took it, or
    /// the window was hidden.
    virtual void OnCaptureLost() {}

    /// The display has another scale (1 to 4) now.
    virtual void OnScaleChanged([[maybe_unused]] int scale) {}
};

} // namespace Mirel::GUI
