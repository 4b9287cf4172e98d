#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/CWindowFocus.h"
#include "Mirel/GUI/CWindowMouse.h"
#include "Mirel/GUI/CWindowPainter.h"
#include "Mirel/GUI/CWindowRoot.h"

namespace Mirel::GUI
{

/// A window with a tree of widgets in it: paints them and hands out its input. Sizes and positions of widgets
/// are skin pixels. GUI thread only; handlers may destroy the window.
class CWindowBase : public CWindowRoot, private INativeWindowSink
{
public:
    /// A hidden window of the size of the options; their scale is that of the platform.
    CWindowBase(INativePlatform& platform_, const SNativeWindowOptions& options);
    ~CWindowBase() override;

    /// Null for none. The content is given the window's size, and moved to its top left; an owned one goes
    /// with the window. One that stands in a parent or in another window is ignored.
    void SetContent(CWidget* newContent, bool owned);
    CWidget* GetContent() const { return content.Get(); }

    /// Of the content, in skin pixels; 0, 0 for a window that the platform refused.
    CSize GetContentSize() const;

    /// To be painted when the platform says so.
    void InvalidateWindow(const CRect& rect);

    /// Paints now what is marked, if the window can be seen.
    void PaintNow();

    /// All of the window as it is now, in device pixels, whether it can be seen or not. Valid until the next
    /// change.
    const Graphics::CBitmap& PaintPicture();

    bool SetFocusWidget(CWidget* widget) { return focus.Set(widget); }
    CWidget* GetFocusWidget() const { return focus.Get(); }
    bool CaptureMouse(CWidget& widget) { return mouse.Capture(widget); }
    void ReleaseMouse(CWidget& widget) { mouse.Release(widget); }

    /// While blocked no input reaches the widgets, and the window is not asked to close: another one has to
    /// be answered first. Blocks add up; each is to be taken back once.
    void SetInputBlocked(bool blocked);
    bool IsInputBlocked() const { return inputBlocks > 0; }

    /// Null for the normal one. Until the pointer moves to another widget.
    void ShowCursor(const CCursor* cursor);

    /// For the widgets of the window.
    void OnWidgetRemoved(CWidget& widget);
    void OnWidgetDestroyed(CWidget& widget);
    void OnWidgetHidden(CWidget& widget);
    void OnWidgetDisabled(CWidget& widget);
    void OnCursorChanged() { mouse.RefreshCursor(); }

    /// Tells the events targets of the widget of input. False if one of them handled it, or if the window or
    /// the widget went.
    bool Announce(CWidget& widget, const COSXNativeNSEvent& event);

    void TakeNativeFocus();
    bool CaptureNative();
    void ReleaseNative();

    /// For code that calls out to handlers.
    const Core::CLifeToken& GetLifeToken() const { return life; }

protected:
    /// The native window has another size; skin pixels.
    virtual void OnWindowResized(CSize /*size*/) {}
    virtual void OnWindowMoved(CPoint /*devicePosition*/) {}
    virtual void OnWindowCloseRequested() {}

    /// The native window is gone, not by the toolkit's doing.
    virtual void OnWindowLost() {}

private:
    void OnPaint(const Graphics::CSimple2DRegion& lost) override;
    void OnResized(CSize size) override;
    void OnMoved(CPoint position) override { OnWindowMoved(position); }
    void OnCloseRequested() override;
    void OnClosed() override { OnWindowLost(); }
    void OnShown() override { RequestPaint(); }
    void OnPointerEnter(const SNativeMouseEvent& event) override;
    void OnPointerLeave(const SNativeMouseEvent& event) override;
    void OnPointerMove(const SNativeMouseEvent& event) override;
    void OnButtonDown(const SNativeMouseEvent& event) override;
    void OnButtonUp(const SNativeMouseEvent& event) override;
    void OnWheel(const SNativeWheelEvent& event) override;
    void OnFocusIn() override { focus.OnNativeFocus(true); }
    void OnFocusOut() override { focus.OnNativeFocus(false); }
    bool OnKeyDown(const SNativeKeyEvent& event) override;
    void OnKeyUp(const SNativeKeyEvent& event) override;
    void OnCaptureLost() override { mouse.OnCaptureLost(); }
    void OnScaleChanged(int newScale) override;

    void RequestPaint();
    void FitContent();
    void Forget(CWidget& widget, bool isAlive);

    CWindowPainter painter;
    CWindowMouse mouse;
    CWindowFocus focus;
    Core::TOwnership<CWidget> content;
    int inputBlocks = 0;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
