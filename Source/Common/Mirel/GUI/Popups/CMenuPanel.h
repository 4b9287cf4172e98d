#pragma once

#include "Mirel/GUI/Popups/CMenuLayout.h"
#include "Mirel/GUI/Popups/CPopupWindow.h"

namespace Mirel::GUI
{

class CMenuPanel;

/// What the windows of one open menu tell the presenter. A panel may be destroyed in every call.
class IMenuPanelListener
{
public:
    /// The pointer is on an item from now on, or on none.
    virtual void OnItemHovered(CMenuPanel& panel, int item) = 0;

    /// A button was pressed or released on an item, or on none.
    virtual void OnItemPressed(CMenuPanel& panel, int item) = 0;
    virtual void OnItemReleased(CMenuPanel& panel, int item) = 0;

    /// The pointer moved, on the screen.
    virtual void OnMenuPointerMoved(CPoint screenPosition) = 0;
    virtual void OnMenuKey(const SNativeKeyEvent& event) = 0;
    virtual void OnMenuDismissed() = 0;

    virtual ~IMenuPanelListener() = default;
};

/// The window of one menu, without its sub-menus. It scrolls if the screen is too low for it, and begins with
/// the menu's current item in the middle. GUI thread only.
class CMenuPanel : public CPopupWindow
{
public:
    /// All must outlive the panel. The frame is in device pixels of the screen.
    CMenuPanel(INativePlatform& platform_, const CMenu& menu, const CPopupLook& look_, const CRect& frame_,
               const INativeWindow* owner, IMenuPanelListener& listener_);
    ~CMenuPanel() override;

    const CMenuLayout& GetLayout() const { return layout; }

    int GetSelected() const { return selected; }

    /// Shows which item is the current one, scrolling to it.
    void Select(int item);

    /// Device pixels of the screen; of what is scrolled away, where it would be.
    CRect GetItemFrame(int item) const;

    /// Skin pixels that are scrolled away above.
    int GetScroll() const { return scroll; }
    bool CanScroll() const { return GetLargestScroll() > 0; }

protected:
    void Draw(Graphics::CDrawSurface& surface) override;

private:
    void OnPointerEnter(const SNativeMouseEvent& event) override { OnPointerMove(event); }
    void OnPointerMove(const SNativeMouseEvent& event) override;
    void OnPointerLeave(const SNativeMouseEvent& event) override;
    void OnButtonDown(const SNativeMouseEvent& event) override;
    void OnButtonUp(const SNativeMouseEvent& event) override;
    void OnWheel(const SNativeWheelEvent& event) override;
    bool OnKeyDown(const SNativeKeyEvent& event) override
    {
        listener.OnMenuKey(event);
        return true;
    }
    void OnCloseRequested() override { listener.OnMenuDismissed(); }
    void OnClosed() override { listener.OnMenuDismissed(); }
    void OnScaleChanged(int /*scale*/) override { listener.OnMenuDismissed(); }

    int FindItem(CPoint devicePosition) const;
    int GetLargestScroll() const;
    int GetContentTop() const;
    void ScrollTo(int newScroll);
    void UpdateScrolling(CPoint skinPosition);
    void StopScrolling();
    void DrawItem(Graphics::CDrawSurface& surface, int index) const;
    void DrawScrollArrow(Graphics::CDrawSurface& surface, bool isUpper) const;

    CNativeRunLoop& loop;
    CPopupLook look;
    CMenuLayout layout;
    IMenuPanelListener& listener;
    int selected = CMenuLayout::none;
    int scroll = 0;
    int scrollStep = 0; ///< of the timer
    std::uint64_t timer = 0;
};

} // namespace Mirel::GUI
