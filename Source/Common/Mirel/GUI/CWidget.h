#pragma once

#include "Mirel/GUI/CCursor.h"
#include "Mirel/GUI/CNativeKeyboardTarget.h"
#include "Mirel/GUI/CNativeMouseTarget.h"
#include "Mirel/GUI/CWidgetBase.h"

#include <memory>
#include <string>

namespace Mirel::GUI
{

class CLightWidget;
class CWidgetLayoutCell;

/// A native-backed widget: a view of its window with input targets. It draws through its events targets (see
/// AddEventsTarget). Owned by its parent or by whoever made it, as AddChild says.
///
/// GUI thread only. Handlers of input may change the tree and destroy any widget or window, their own
/// included.
class CWidget : public CWidgetBase
{
public:
    CWidget();
    ~CWidget() override;

    /// Whether a point, in the widget's coordinates, is on the widget itself. Everywhere in its area here.
    virtual bool HitTest(CPoint point) const;

    /// The root of the light widgets that live in this one; null if it hosts none.
    virtual CLightWidget* GetLightRoot() const { return nullptr; }

    /// Sends keys here; false if the widget is not in a window, hidden or not enabled.
    bool SetFocus();
    bool HasFocus() const;

    /// Whether a press takes the focus. True at first; no effect without a keyboard target.
    void SetFocusOnClick(bool newFocusOnClick) { focusOnClick = newFocusOnClick; }
    bool GetFocusOnClick() const { return focusOnClick; }

    /// Gets all mouse events of the window until ReleaseMouse. False if it is not in a window or another
    /// widget has captured the mouse.
    bool CaptureMouse();
    void ReleaseMouse();

    /// Null for the cursor of the parent.
    void SetCursor(CSharedCursor newCursor);
    const CSharedCursor& GetCursor() const { return cursor; }

    /// UTF-8; empty for none. Of a host of light widgets CHostTooltips shows it.
    void SetTooltip(const std::string& newTooltip) { tooltip = newTooltip; }
    const std::string& GetTooltip() const { return tooltip; }

    /// Null for none. Targets that are not owned must be replaced before they die; an owned one that is
    /// replaced in its own handler lives until that returns.
    void SetMouseTarget(CMouseTarget* target, bool owned) { mouse.SetTarget(target, owned); }
    CMouseTarget* GetMouseTarget() const { return mouse.GetTarget(); }
    void SetKeyboardTarget(CKeyboardTarget* target, bool owned) { keyboard.SetTarget(target, owned); }
    CKeyboardTarget* GetKeyboardTarget() const { return keyboard.GetTarget(); }

    /// The way of the window to those targets.
    CNativeMouseTarget& GetNativeMouseTarget() { return mouse; }
    CNativeKeyboardTarget& GetNativeKeyboardTarget() { return keyboard; }

    /// The area of the widget in the layout, made at the first call, owned by the widget.
    CWidgetLayoutCell& GetCell();

    /// Whether Draw leaves no pixel of the area as it was, so that what lies beneath need not be drawn.
    virtual bool CoversItsArea() const { return false; }

    /// Draws the widget itself, its children come after. Sends OnDraw to the events targets.
    virtual void Draw(const COSXNativeDrawEvent& event);

protected:
    void OnResized() override;
    CWidget& AsWidget() override { return *this; }

private:
    CNativeMouseTarget mouse;
    CNativeKeyboardTarget keyboard;
    bool focusOnClick = true;
    CSharedCursor cursor;
    std::string tooltip;
    std::unique_ptr<CWidgetLayoutCell> cell;
};

} // namespace Mirel::GUI
