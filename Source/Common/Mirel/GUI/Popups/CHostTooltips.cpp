#include "Mirel/GUI/Popups/CHostTooltips.h"

#include "Mirel/GUI/CWindowBase.h"

#include <utility>

namespace Mirel::GUI
{

CHostTooltips::CHostTooltips(CLightWidgetAdapter& host_, ITooltipPresenter& presenter_)
    : host(host_),
      presenter(presenter_)
{
    host.AddEventsTarget(this);
}

CHostTooltips::~CHostTooltips()
{
    host.RemoveEventsTarget(this);
    presenter.Hide();
}

void CHostTooltips::Set(CLightWidget& widget, Source source, bool showOnClick)
{
    tips[&widget] = {std::move(source), showOnClick};
}

void CHostTooltips::Remove(CLightWidget& widget)
{
    tips.erase(&widget);
    if (current == &widget)
    {
        current = nullptr;
        presenter.Hide();
    }
}

void CHostTooltips::Refresh(CLightWidget& widget)
{
    if (current == &widget)
    {
        presenter.SetTipText(tips.at(&widget).source().text);
    }
}

void CHostTooltips::OnHide(const COSXOpenEvent& /*event*/)
{
    current = nullptr;
    presenter.Hide();
}

bool CHostTooltips::OnNativeEvent(const COSXNativeNSEvent& event)
{
    if (const auto* const mouse = std::get_if<const SNativeMouseEvent*>(&event.event); mouse != nullptr)
    {
        OnMouse(**mouse);
    }
    else
    {
        presenter.Hide();
    }
    return false;
}

void CHostTooltips::OnMouse(const SNativeMouseEvent& event)
{
    CLightWidget* const under = Find(event.position);
    const bool isButton = event.button != EMouseButton::None;
    if (isButton)
    {
        presenter.Hide();
        current = under;
        const bool isPress = (event.buttons & ButtonFlag(event.button)) != 0;
        if (isPress && under != nullptr && tips.at(under).showOnClick)
        {
            Show(under, true, event.screenPosition);
        }
    }
    else if (event.buttons == 0 && under != current)
    {
        current = under;
        Show(under, false, event.screenPosition);
    }
}

void CHostTooltips::Show(CLightWidget* widget, bool atOnce, CPoint screenPosition)
{
    presenter.Hide();
    const CWindowBase* const window = host.GetWindow();
    if (widget == nullptr || window == nullptr || window->GetNativeWindow() == nullptr)
    {
        return;
    }
    STooltip tip = tips.at(widget).source();
    if (atOnce)
    {
        tip.delayMs = 0;
    }
    if (!tip.text.empty())
    {
        presenter.ShowTip(tip, *window->GetNativeWindow(), screenPosition);
    }
}

/// The innermost of those with a tooltip that the place is on, whether they take the mouse or not.
CLightWidget* CHostTooltips::Find(CPoint devicePosition) const
{
    const CWindowBase* const window = host.GetWindow();
    if (window == nullptr)
    {
        return nullptr;
    }
    const CPoint place = Minus(window->ToSkin(devicePosition), host.GetPositionInWindow());
    CLightWidget* found = nullptr;
    for (const auto& [widget, tip] : tips)
    {
        const bool isOver =
            widget->IsVisible() && CRect(widget->GetAbsolutePosition(), widget->GetSize()).Contains(place);
        if (isOver && (found == nullptr || widget->StandsIn(*found)))
        {
            found = widget;
        }
    }
    return found;
}

} // namespace Mirel::GUI
