#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/TArgCommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/GUI/CCursor.h"
#include "Mirel/GUI/CLightKeyboardTarget.h"
#include "Mirel/GUI/CLightMouseTarget.h"
#include "Mirel/GUI/PointMath.h"
#include "Mirel/Graphics/IGraphics.h"
#include "Mirel/Layout/ILayoutContent.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Mirel::GUI
{

class CLightWidgetLayoutCell;
class CWidget;
class ILightWidgetHost;

/// A widget without a native view: a node of a tree that draws through its parent and gets input from it. The
/// tree lives in a host (CLightWidgetAdapter), which paints it and feeds it input.
///
/// Children are not owned; a widget that is destroyed leaves its parent and lets its children go. Positions
/// are pixels in the parent, the size is that of the graphics. GUI thread only. Handlers of input may change
/// the tree and destroy any widget; so may listeners of a widget's events, except for that widget.
class CLightWidget : public virtual Layout::ILayoutContent, public virtual Core::IEnable
{
public:
    class CRecursiveGraphics;

    /// Without a picture, and a child of the parent at once if that is given.
    explicit CLightWidget(CLightWidget* parent_ = nullptr);

    /// The same with graphics (see SetGraphics).
    CLightWidget(CLightWidget* parent_, Graphics::IGraphics* graphics_, bool graphicsOwned);
    CLightWidget(const CLightWidget&) = delete;
    CLightWidget& operator=(const CLightWidget&) = delete;
    ~CLightWidget() override;

    /// A widget that is not enabled is hit as before and gets enter, leave, move and what ends a gesture, but
    /// no presses, clicks, wheel or keys.
    bool IsEnabled() const override { return enabled; }
    Core::IEventProvider& GetEnableChangedEventProvider() const override { return enabledChanged; }
    Core::IEventProvider& GetEnabledChangedEvent() const { return enabledChanged; }
    void Enable(bool enable) override;

    /// The widget that a press on this one gives the focus to: itself if it takes focus on clicks and has a
    /// keyboard target, else none.
    virtual CLightWidget* GetFocusTarget();

    void Show(bool newShown) override;
    bool IsShown() const { return shown; }
    Core::IEventProvider& GetShownChangedEvent() const { return shownChanged; }

    /// Shown, with all around it, the host included.
    bool IsVisible() const;

    void Move(const CPoint& newPosition) override;
    void MoveBy(CPoint delta);
    CPoint GetPosition() const { return position; }
    Core::IEventProvider& GetMovedEvent() const { return moved; }

    /// Of the graphics.
    CSize GetSize() const final;
    void SetSize(const CSize& newSize) override;

    /// Fires after each change of the graphics' size, whoever made it.
    Core::IEventProvider& GetSizeChangedEvent() const { return sizeChanged; }

    /// Joins the parent, with the present position and the given place in depth (see AddChild).
    void Attach(CLightWidget& newParent, bool front = false);

    /// True if what lies beneath may be seen: the graphics are not opaque, or the opacity is below 1.0.
    bool IsTransparent() const;

    /// Whether a press takes the keyboard focus. True at first; no effect without a keyboard target.
    void SetFocusOnClick(bool newFocusOnClick) { focusOnClick = newFocusOnClick; }
    bool GetFocusOnClick() const { return focusOnClick; }

    /// Takes the focus without a press. Does nothing outside of a host.
    void SetFocus();
    bool HasFocus() const;
    Core::IEventProvider& GetFocusChangedEvent() const { return keyboard.GetFocusChangedEvent(); }

    /// Whether the pointer is over the widget; events come and go with OnMouseEnter and OnMouseLeave.
    bool IsMouseOver() const { return mouse.IsMouseOver(); }
    Core::IEventProvider& GetMouseOverChangedEvent() const { return mouse.GetMouseOverChangedEvent(); }

    /// From 0.0 to 1.0, to which it is clamped; NaN changes nothing. The widget and all below it are blended
    /// as one picture.
    float GetOpacity() const { return opacity; }
    void SetOpacity(float newOpacity);
    Core::IEventProvider& GetOpacityChangedEvent() const { return opacityChanged; }

    /// Asks for a repaint of the whole widget.
    void Invalidate();

    /// The same for a part, in the widget's coordinates.
    void InvalidateRect(const CRect& rect);

    /// Null for the cursor of the host.
    void SetCursor(CSharedCursor newCursor);
    const CSharedCursor& GetCursor() const { return cursor; }

    /// The sum of its own position and those of all around it, up to the host.
    CPoint GetAbsolutePosition() const;

    CLightWidget* GetParent() const { return parent; }

    /// Leaves the present parent and joins another, behind its front children; null for none.
    void SetParent(CLightWidget* newParent);

    /// The native-backed widget that the tree lives in; null if there is none.
    CWidget* GetRootWidget() const;

    /// Front children stand before all others; among their own kind children stand in the order of joining,
    /// the first at the back. Takes the child from its present parent. Null, the widget itself and one that
    /// it stands in are ignored.
    void AddChild(CLightWidget* child, bool front = false);

    /// Lets the next children that are no front ones join behind that child, each before the one that joins
    /// next; null for the back. Until MoveInsertionPointToEnd, and as long as the child stays.
    void SetInsertionPoint(const CLightWidget* child);
    void MoveInsertionPointToEnd() { insertionPoint = atEnd; }

    /// False if it is no child of this widget.
    bool RemoveChild(CLightWidget* child);

    /// Removes all children.
    void Clear();

    int GetChildCount() const { return static_cast<int>(children.size()); }

    /// From the back; null out of range.
    CLightWidget* GetChild(int index) const;
    bool IsInFront() const { return front; }

    /// True for the widget itself and all that it stands in.
    bool StandsIn(const CLightWidget& other) const;

    /// The area of the widget in the layout, made at the first call, owned by the widget.
    CLightWidgetLayoutCell& GetCell();

    /// What the widget itself draws; never null.
    Graphics::IGraphics* GetGraphics() const { return graphics.Get(); }

    /// Null for no picture, which nothing hits. Graphics that are not owned must be replaced before they die.
    void SetGraphics(Graphics::IGraphics* newGraphics, bool owned);

    /// The drawing of the widget with all below it.
    CRecursiveGraphics& GetRecursiveGraphics() { return *recursive; }
    const CRecursiveGraphics& GetRecursiveGraphics() const { return *recursive; }

    /// Whether the widget keeps a picture of itself and all below it, drawn again only after a change.
    void SetBuffered(bool buffered);
    bool IsBuffered() const;

    /// Whether the pointer sees the widget. True at first; no effect without a mouse target.
    void SetMouseSensitive(bool newMouseSensitive) { mouseSensitive = newMouseSensitive; }
    bool IsMouseSensitive() const { return mouseSensitive; }

    /// What handles the widget's input; null for nothing. Targets that are not owned must be replaced before
    /// they die.
    void SetMouseTarget(CMouseTarget* target, bool owned) { mouse.SetTarget(target, owned); }
    CMouseTarget* GetMouseTarget() const { return mouse.GetTarget(); }
    void SetKeyboardTarget(CKeyboardTarget* target, bool owned) { keyboard.SetTarget(target, owned); }
    CKeyboardTarget* GetKeyboardTarget() const { return keyboard.GetTarget(); }

    /// The way of the host to those targets.
    CLightMouseTarget& GetInnerMouseTarget() { return mouse; }
    CLightKeyboardTarget& GetInnerKeyboardTarget() { return keyboard; }

    /// Gets all mouse events until ReleaseMouse or the release of the last button; a press does that by
    /// itself. False if there is no host or another widget holds the mouse.
    bool CaptureMouse();
    void ReleaseMouse();

    /// For the host of which this is the root; null when it lets go.
    void SetHost(ILightWidgetHost* newHost);

    /// Of the tree; null if it has none.
    ILightWidgetHost* GetHost() const;

    /// For code that calls out to handlers.
    const Core::CLifeToken& GetLifeToken() const { return life; }

private:
    static constexpr std::ptrdiff_t atEnd = -1;

    CRect GetArea() const { return {CPoint(), GetSize()}; }
    CRect GetFrame() const { return {position, GetSize()}; }
    void MarkDirty();
    void InvalidateAround(const CRect& rect);
    CRect WithoutCovered(CRect rect, const CLightWidget& child) const;
    std::ptrdiff_t FindChild(const CLightWidget& child) const;
    void Insert(CLightWidget& child, bool childFront);
    void Unlink(CLightWidget& child);
    void OnGraphicsChanged(const CRect& rect);

    bool shown = true;
    bool enabled = true;
    bool mouseSensitive = true;
    bool focusOnClick = true;
    bool front = false;
    CPoint position;
    CSize knownSize;
    float opacity = 1.0F;
    mutable Core::CEventProvider enabledChanged;
    mutable Core::CEventProvider shownChanged;
    mutable Core::CEventProvider moved;
    mutable Core::CEventProvider opacityChanged;
    mutable Core::CEventProvider sizeChanged;
    CSharedCursor cursor;
    CLightWidget* parent = nullptr;
    ILightWidgetHost* host = nullptr; ///< Of a root only.
    std::vector<CLightWidget*> children;
    std::ptrdiff_t insertionPoint = atEnd; ///< Among the children.
    CLightMouseTarget mouse;
    CLightKeyboardTarget keyboard;
    Core::TArgCommand<CLightWidget, const CRect&> onGraphicsChanged;
    Core::TOwnership<Graphics::IGraphics> graphics;
    std::unique_ptr<CRecursiveGraphics> recursive;
    std::unique_ptr<CLightWidgetLayoutCell> cell;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
