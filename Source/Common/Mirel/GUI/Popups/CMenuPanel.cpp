#include "Mirel/GUI/Popups/CMenuPanel.h"

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <cmath>

namespace Mirel::GUI
{

namespace
{

constexpr int arrowStrip = 16; ///< Of a menu that scrolls, at its top and bottom.
constexpr int scrollPeriodMs = 40;
constexpr int scrollPixels = 11;

} // namespace

CMenuPanel::CMenuPanel(INativePlatform& platform_, const CMenu& menu, const CPopupLook& look_,
                       const CRect& frame_, const INativeWindow* owner, IMenuPanelListener& listener_)
    : CPopupWindow(platform_, ENativeWindowKind::Menu, frame_, owner),
      loop(platform_.GetRunLoop()),
      look(look_),
      layout(menu, look_),
      listener(listener_)
{
    if (layout.IsSelectable(menu.GetCurrent()))
    {
        selected = menu.GetCurrent();
        const CRect rect = layout.GetItemRect(selected);
        const int toMiddle = rect.y + arrowStrip - (GetSkinSize().height - rect.height) / 2;
        scroll = std::clamp(toMiddle, 0, GetLargestScroll());
    }
}

CMenuPanel::~CMenuPanel()
{
    StopScrolling();
}

void CMenuPanel::Select(int item)
{
    if (item == selected)
    {
        return;
    }
    selected = item;
    if (item != CMenuLayout::none && CanScroll())
    {
        const CRect rect = layout.GetItemRect(item);
        const int lowest = rect.y;
        const int highest = rect.y + rect.height + 2 * arrowStrip - GetSkinSize().height;
        ScrollTo(std::clamp(scroll, std::min(highest, lowest), lowest));
    }
    Invalidate();
}

CRect CMenuPanel::GetItemFrame(int item) const
{
    const CRect rect = layout.GetItemRect(item);
    const int factor = GetScale();
    return {GetFrame().x + rect.x * factor, GetFrame().y + (rect.y + GetContentTop()) * factor,
            rect.width * factor, rect.height * factor};
}

void CMenuPanel::OnPointerMove(const SNativeMouseEvent& event)
{
    listener.OnMenuPointerMoved(event.screenPosition);
    UpdateScrolling(ToSkin(event.position));
    listener.OnItemHovered(*this, FindItem(event.position));
}

void CMenuPanel::OnPointerLeave(const SNativeMouseEvent& /*event*/)
{
    StopScrolling();
    listener.OnItemHovered(*this, CMenuLayout::none);
}

void CMenuPanel::OnButtonDown(const SNativeMouseEvent& event)
{
    listener.OnItemPressed(*this, FindItem(event.position));
}

void CMenuPanel::OnButtonUp(const SNativeMouseEvent& event)
{
    listener.OnItemReleased(*this, FindItem(event.position));
}

void CMenuPanel::OnWheel(const SNativeWheelEvent& event)
{
    constexpr double pixelsPerNotch = 3 * 23;
    if (CanScroll())
    {
        ScrollTo(scroll - Core::TruncateToInt32(std::round(event.deltaY * pixelsPerNotch)));
        listener.OnItemHovered(*this, FindItem(event.position));
    }
}

int CMenuPanel::FindItem(CPoint devicePosition) const
{
    const CPoint place = ToSkin(devicePosition);
    const CSize size = GetSkinSize();
    const int strip = CanScroll() ? arrowStrip : 0;
    const bool isInside =
        place.x >= 0 && place.x < size.width && place.y >= strip && place.y < size.height - strip;
    return isInside ? layout.Find(place.y - GetContentTop()) : CMenuLayout::none;
}

int CMenuPanel::GetLargestScroll() const
{
    const int missing = layout.GetSize().height - GetSkinSize().height;
    return missing > 0 ? missing + 2 * arrowStrip : 0;
}

/// Where the first item's margin begins, in the window.
int CMenuPanel::GetContentTop() const
{
    return CanScroll() ? arrowStrip - scroll : 0;
}

void CMenuPanel::ScrollTo(int newScroll)
{
    const int wanted = std::clamp(newScroll, 0, GetLargestScroll());
    if (wanted != scroll)
    {
        scroll = wanted;
        Invalidate();
    }
}

void CMenuPanel::UpdateScrolling(CPoint skinPosition)
{
    const int height = GetSkinSize().height;
    int step = 0;
    if (CanScroll())
    {
        step = skinPosition.y < arrowStrip ? -scrollPixels : step;
        step = skinPosition.y >= height - arrowStrip ? scrollPixels : step;
    }
    if (step == scrollStep)
    {
        return;
    }
    StopScrolling();
    scrollStep = step;
    if (step != 0)
    {
        timer = loop.AddTimer(scrollPeriodMs, [this] { ScrollTo(scroll + scrollStep); });
    }
}

void CMenuPanel::StopScrolling()
{
    if (timer != 0)
    {
        loop.RemoveTimer(timer);
        timer = 0;
    }
    scrollStep = 0;
}

void CMenuPanel::Draw(Graphics::CDrawSurface& surface)
{
    const CSize size = GetSkinSize();
    surface.SetFillColor(look.background);
    surface.FillRect({CPoint(), size});
    const int strip = CanScroll() ? arrowStrip : 1;
    surface.SaveState();
    surface.ClipToRect({0, strip, size.width, size.height - 2 * strip});
    for (int i = 0; i < layout.GetCount(); ++i)
    {
        DrawItem(surface, i);
    }
    surface.RestoreState();
    if (CanScroll())
    {
        DrawScrollArrow(surface, true);
        DrawScrollArrow(surface, false);
    }
    DrawFrame(surface, {CPoint(), size}, look.border);
}

void CMenuPanel::DrawItem(Graphics::CDrawSurface& surface, int index) const
{
    const SMenuItem& item = layout.GetItem(index);
    CRect rect = layout.GetItemRect(index);
    rect.y += GetContentTop();
    if (item.isSeparator)
    {
        surface.SetFillColor(look.border);
        surface.FillRect({rect.x + CMenuLayout::margin, rect.y + rect.height / 2,
                          rect.width - 2 * CMenuLayout::margin, 1});
        return;
    }
    Graphics::CColor color = item.isEnabled ? look.text : look.disabledText;
    if (index == selected)
    {
        surface.SetFillColor(look.accent);
        surface.FillRect(rect);
        color = look.onAccent;
    }
    const CRect text = {rect.x + CMenuLayout::textLeft, rect.y,
                        rect.width - CMenuLayout::textLeft - CMenuLayout::arrowWidth, rect.height};
    DrawLabel(surface, look.font, item.text, text, color);
    DrawLabel(surface, look.font, item.shortcut, text, color, Graphics::ETextHAlign::Right);
    if (item.isChecked)
    {
        DrawCheckMark(surface, {rect.x + 6, rect.y + (rect.height - 12) / 2, 12, 12}, color);
    }
    if (item.subMenu != nullptr)
    {
        DrawArrow(surface, {rect.x + rect.width - 12, rect.y + (rect.height - 9) / 2}, EArrow::Right, color);
    }
}

void CMenuPanel::DrawScrollArrow(Graphics::CDrawSurface& surface, bool isUpper) const
{
    const CSize size = GetSkinSize();
    const bool canMove = isUpper ? scroll > 0 : scroll < GetLargestScroll();
    const int top = isUpper ? 0 : size.height - arrowStrip;
    DrawArrow(surface, {size.width / 2 - 4, top + 5}, isUpper ? EArrow::Up : EArrow::Down,
              canMove ? look.text : look.disabledText);
}

} // namespace Mirel::GUI
