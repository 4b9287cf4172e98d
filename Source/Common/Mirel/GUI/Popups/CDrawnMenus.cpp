#include "Mirel/GUI/Popups/CDrawnMenus.h"

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Popups/PopupPlacing.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr int subMenuDelayMs = 180;
constexpr int dragDistance = 4; ///< Skin pixels.

CSize GetDeviceSize(const CMenu& menu, const CPopupLook& look, const CRect& area, int scale)
{
    const CSize size = CMenuLayout(menu, look).GetSize();
    return {std::min(size.width * scale, area.width), std::min(size.height * scale, area.height)};
}

} // namespace

CDrawnMenus::CDrawnMenus(INativePlatform& platform_, const CPopupLook& look_)
    : platform(platform_),
      look(look_)
{
}

CDrawnMenus::~CDrawnMenus()
{
    CloseAll(nullptr);
}

bool CDrawnMenus::Open(const CMenu& menu, const INativeWindow& owner, CPoint screenPosition,
                       std::function<void()> closed_)
{
    const Core::CLifeToken::CWatch watch(life);
    CloseAll(nullptr);
    if (!watch.IsAlive() || menu.GetItems().empty())
    {
        return false;
    }
    const CRect area = FindPopupArea(platform, screenPosition);
    const CSize size = GetDeviceSize(menu, look, area, platform.GetScale());
    opened = platform.GetPointerPosition();
    isArmed = false;
    closed = std::move(closed_);
    if (!OpenPanel(menu, PlaceMenu(screenPosition, size, area), &owner))
    {
        closed = nullptr;
        return false;
    }
    return true;
}

void CDrawnMenus::Close()
{
    CloseAll(nullptr);
}

bool CDrawnMenus::OpenPanel(const CMenu& menu, const CRect& frame, const INativeWindow* owner)
{
    IMenuPanelListener& listener = *this;
    auto panel = std::make_unique<CMenuPanel>(platform, menu, look, frame, owner, listener);
    const bool isShown = panel->Show();
    if (isShown)
    {
        panels.push_back(std::move(panel));
    }
    return isShown;
}

void CDrawnMenus::OpenSubMenu(int level, int item)
{
    CloseFrom(level + 1);
    CMenuPanel& panel = GetPanel(level);
    const CMenu* const menu = panel.GetLayout().GetItem(item).subMenu.get();
    if (menu == nullptr || menu->GetItems().empty() || !panel.GetLayout().IsSelectable(item))
    {
        return;
    }
    panel.Select(item);
    CRect frame = panel.GetItemFrame(item);
    frame.y -= CMenuLayout::margin * platform.GetScale(); // The first items of both stand side by side.
    const CRect area = FindPopupArea(platform, panel.GetFrame().GetOrigin());
    const CSize size = GetDeviceSize(*menu, look, area, platform.GetScale());
    OpenPanel(*menu, PlaceSubMenu(frame, size, area), panel.GetNativeWindow());
}

void CDrawnMenus::CloseFrom(int level)
{
    StopTimer();
    while (GetPanelCount() > level)
    {
        panels.pop_back();
    }
}

int CDrawnMenus::GetLevel(const CMenuPanel& panel) const
{
    const auto found = std::find_if(panels.begin(), panels.end(),
                                    [&panel](const auto& other) { return other.get() == &panel; });
    return found == panels.end() ? -1 : static_cast<int>(found - panels.begin());
}

void CDrawnMenus::OnItemHovered(CMenuPanel& panel, int item)
{
    const int level = GetLevel(panel);
    const bool isOpen = level + 1 < GetPanelCount();
    const bool isSelectable = panel.GetLayout().IsSelectable(item);
    // On its way to the sub-menu the pointer may leave the menu.
    if (level < 0 || (isOpen && !isSelectable))
    {
        return;
    }
    const int selected = isSelectable ? item : CMenuLayout::none;
    if (selected != panel.GetSelected())
    {
        panel.Select(selected);
        StopTimer();
        timer = platform.GetRunLoop().AddTimer(subMenuDelayMs, [this, level] { FollowHover(level); });
    }
}

void CDrawnMenus::FollowHover(int level)
{
    StopTimer();
    if (level >= GetPanelCount())
    {
        return;
    }
    const int item = GetPanel(level).GetSelected();
    if (item == CMenuLayout::none)
    {
        CloseFrom(level + 1);
    }
    else
    {
        OpenSubMenu(level, item);
    }
}

void CDrawnMenus::StopTimer()
{
    if (timer != 0)
    {
        platform.GetRunLoop().RemoveTimer(std::exchange(timer, 0));
    }
}

void CDrawnMenus::OnItemPressed(CMenuPanel& panel, int item)
{
    isArmed = true;
    const int level = GetLevel(panel);
    if (level >= 0 && panel.GetLayout().IsSelectable(item))
    {
        panel.Select(item);
        if (panel.GetLayout().GetItem(item).subMenu != nullptr)
        {
            OpenSubMenu(level, item);
        }
    }
}

void CDrawnMenus::OnItemReleased(CMenuPanel& panel, int item)
{
    const int level = GetLevel(panel);
    if (isArmed && level >= 0 && panel.GetLayout().IsSelectable(item) &&
        panel.GetLayout().GetItem(item).subMenu == nullptr)
    {
        Choose(level, item);
    }
    else
    {
        isArmed = true;
    }
}

void CDrawnMenus::OnMenuPointerMoved(CPoint screenPosition)
{
    const CPoint way = Minus(screenPosition, opened);
    isArmed = isArmed || std::max(std::abs(way.x), std::abs(way.y)) >= dragDistance * platform.GetScale();
}

void CDrawnMenus::OnMenuKey(const SNativeKeyEvent& event)
{
    if (panels.empty())
    {
        return;
    }
    const int level = GetPanelCount() - 1;
    const int selected = GetTop().GetSelected();
    const ENativeKey key = event.character == U' ' ? ENativeKey::Return : event.key;
    switch (key)
    {
    case ENativeKey::Escape:
        if (level == 0)
        {
            CloseAll(nullptr);
            return;
        }
        CloseFrom(level);
        break;
    case ENativeKey::Left:
        CloseFrom(std::max(level, 1));
        break;
    case ENativeKey::Right:
    case ENativeKey::Return:
        if (selected == CMenuLayout::none)
        {
            break;
        }
        if (GetTop().GetLayout().GetItem(selected).subMenu != nullptr)
        {
            OpenSubMenu(level, selected);
            if (GetPanelCount() > level + 1)
            {
                GetTop().Select(GetTop().GetLayout().FindNext(CMenuLayout::none, 1));
            }
        }
        else if (key == ENativeKey::Return)
        {
            Choose(level, selected);
        }
        break;
    default:
        OnStep(event);
    }
}

void CDrawnMenus::OnStep(const SNativeKeyEvent& event)
{
    CMenuPanel& panel = GetTop();
    const CMenuLayout& layout = panel.GetLayout();
    int item = CMenuLayout::none;
    switch (event.key)
    {
    case ENativeKey::Down:
        item = layout.FindNext(panel.GetSelected(), 1);
        break;
    case ENativeKey::Up:
        item = layout.FindNext(panel.GetSelected(), -1);
        break;
    case ENativeKey::Home:
        item = layout.FindNext(CMenuLayout::none, 1);
        break;
    case ENativeKey::End:
        item = layout.FindNext(CMenuLayout::none, -1);
        break;
    case ENativeKey::Character:
        item = layout.FindByLetter(panel.GetSelected(), event.text);
        break;
    default:
        break;
    }
    if (item != CMenuLayout::none)
    {
        StopTimer();
        panel.Select(item);
    }
}

void CDrawnMenus::Choose(int level, int item)
{
    CloseAll(&GetPanel(level).GetLayout().GetItem(item));
}

/// The windows go before the command runs: it may open a dialog, or another menu.
void CDrawnMenus::CloseAll(const SMenuItem* chosen)
{
    StopTimer();
    const auto report = std::exchange(closed, nullptr);
    CloseFrom(0);
    if (chosen != nullptr && chosen->command)
    {
        chosen->command->Execute();
    }
    if (report)
    {
        report();
    }
}

} // namespace Mirel::GUI
