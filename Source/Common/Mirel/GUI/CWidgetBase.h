#pragma once

#include "Mirel/GUI/CWidgetRoot.h"
#include "Mirel/GUI/PointMath.h"
#include "Mirel/Layout/ILayoutContent.h"

namespace Mirel::GUI
{

/// A widget as a view of its window: where it stands and whether it is seen. Positions and sizes are skin
/// pixels, from the top left of the parent, y downward. A widget is made hidden, with no size. GUI thread
/// only.
class CWidgetBase : public CWidgetRoot, public virtual Layout::ILayoutContent
{
public:
    CPoint GetPosition() const { return position; }
    void SetPosition(CPoint newPosition);

    /// SetPosition, for the layout.
    void Move(const CPoint& newPosition) override { SetPosition(newPosition); }

    CSize GetSize() const override { return size; }

    /// Children stay where they are from the top, but for those that are not to move in the coordinates of
    /// the windowing system, which run upward.
    void SetSize(const CSize& newSize) override;

    /// Keeps the widget at its distance from the parent's bottom when the parent is resized. False at first.
    void SetShouldNotMoveWhileResize(bool keepBottom_) { keepBottom = keepBottom_; }
    bool ShouldNotMoveWhileResize() const { return keepBottom; }

    void Show(bool newShown) override;
    bool IsShown() const { return shown; }

    /// Shown, with all that it stands in.
    bool IsVisible() const;

    /// One that is not enabled is passed through by the pointer, with all in it, and keeps no focus.
    void Enable(bool newEnabled);
    bool IsEnabled() const { return enabled; }

    /// From 0.0 to 1.0, to which it is clamped; NaN changes nothing. The widget and all in it are blended as
    /// one picture.
    void SetOpacity(float newOpacity);
    float GetOpacity() const { return opacity; }

    /// False if its opacity, or that of one that it stands in, is below 1.0.
    bool IsOpaque() const;

    /// Marks all of the widget, or a part in its coordinates, for painting.
    void Invalidate() { InvalidateRect({CPoint(), size}); }
    void InvalidateRect(const CRect& rect);

    /// Paints at once what the window has marked.
    void Update();

    /// Where the widget stands in its window.
    CPoint GetPositionInWindow() const;

    /// Where its top left stands on the screen, in device pixels; 0, 0 if it is in no window.
    CPoint GetScreenPosition() const;

protected:
    CWidgetBase() = default;

    /// The size has changed; before the events targets hear of it.
    virtual void OnResized() {}

private:
    void KeepBottomOfChildren(int growth);
    void NotifyVisible(bool visible);

    CPoint position;
    CSize size;
    bool shown = false;
    bool enabled = true;
    bool keepBottom = false;
    float opacity = 1.0F;
};

} // namespace Mirel::GUI
