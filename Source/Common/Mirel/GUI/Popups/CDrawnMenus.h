#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"
#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Popups/CMenuPanel.h"

#include <memory>
#include <vector>

namespace Mirel::GUI
{

/// Menus in popup windows that the toolkit draws. An item is chosen by a click, by dragging to it with the
/// button that opened the menu, or by the keys: arrows, return or space, escape, first letters. GUI thread
/// only; a command may destroy the object.
class CDrawnMenus : public IMenuPresenter, private IMenuPanelListener
{
public:
    /// The platform must outlive the object.
    CDrawnMenus(INativePlatform& platform_, const CPopupLook& look_);
    CDrawnMenus(const CDrawnMenus&) = delete;
    CDrawnMenus& operator=(const CDrawnMenus&) = delete;

    /// An open menu goes; closed is called.
    ~CDrawnMenus() override;

    bool Open(const CMenu& menu, const INativeWindow& owner, CPoint screenPosition,
              std::function<void()> closed_) override;
    void Close() override;

    bool IsOpen() const { return !panels.empty(); }

    /// The open windows, the menu first, then its sub-menus.
    int GetPanelCount() const { return static_cast<int>(panels.size()); }
    CMenuPanel& GetPanel(int level) const { return *panels[static_cast<std::size_t>(level)]; }

private:
    void OnItemHovered(CMenuPanel& panel, int item) override;
    void OnItemPressed(CMenuPanel& panel, int item) override;
    void OnItemReleased(CMenuPanel& panel, int item) override;
    void OnMenuPointerMoved(CPoint screenPosition) override;
    void OnMenuKey(const SNativeKeyEvent& event) override;
    void OnMenuDismissed() override { Close(); }

    int GetLevel(const CMenuPanel& panel) const;
    CMenuPanel& GetTop() const { return *panels.back(); }
    bool OpenPanel(const CMenu& menu, const CRect& frame, const INativeWindow* owner);
    void OpenSubMenu(int level, int item);
    void CloseFrom(int level);
    void FollowHover(int level);
    void StopTimer();
    void OnStep(const SNativeKeyEvent& event);
    void Choose(int level, int item);
    void CloseAll(const SMenuItem* chosen);

    INativePlatform& platform;
    CPopupLook look;
    std::vector<std::unique_ptr<CMenuPanel>> panels;
    std::function<void()> closed;
    CPoint opened;        ///< Where the pointer was.
    bool isArmed = false; ///< A release chooses: it is not the end of the click that opened the menu.
    std::uint64_t timer = 0;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
