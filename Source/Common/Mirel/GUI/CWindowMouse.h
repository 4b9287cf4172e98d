#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/Native/NativeEvents.h"

namespace Mirel::GUI
{

class CWindowBase;

/// Which widget of a window gets a mouse event: the one under the pointer, or the one that holds the mouse
/// because a button was pressed on it or it asked for that. Enter and leave are told while no button is held.
/// GUI thread only; handlers may destroy anything, the window included.
class CWindowMouse
{
public:
    explicit CWindowMouse(CWindowBase& window_) : window(window_) {}

    void OnMove(const SNativeMouseEvent& event);

    /// The pointer left the window.
    void OnLeave(const SNativeMouseEvent& event);
    void OnDown(const SNativeMouseEvent& event);
    void OnUp(const SNativeMouseEvent& event);
    void OnWheel(const SNativeWheelEvent& event);

    /// Somebody outside took the mouse.
    void OnCaptureLost();

    bool Capture(CWidget& widget);
    void Release(CWidget& widget);

    /// A widget, and all in it, is out of reach of the mouse from now on. A living one hears that it lost the
    /// mouse; one that is being destroyed hears nothing.
    void Forget(CWidget& widget, bool isAlive);

    /// A cursor was set: shows the one that is right now.
    void RefreshCursor();

    CWidget* GetHover() const { return hover; }

private:
    COSXMouseEvent Translate(const SNativeMouseEvent& event, const CWidget& widget) const;
    CWidget* Find(const SNativeMouseEvent& event) const;
    CWidget* GetHolder() const { return captured != nullptr ? captured : pressed; }
    bool EndStalePress(std::uint32_t heldBefore);
    bool ChangeHover(CWidget* widget, const SNativeMouseEvent& event);
    void ShowCursor(const SNativeMouseEvent& event);
    void UpdateNativeCapture();

    CWindowBase& window;
    CWidget* hover = nullptr;
    CWidget* pressed = nullptr;
    CWidget* captured = nullptr;
    std::uint32_t buttons = 0; ///< Held, as of SNativeMouseEvent.
    SNativeMouseEvent last;
    bool inside = false;
    bool holdsNative = false; ///< The native window was asked to capture.
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
