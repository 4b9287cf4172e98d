#include "Mirel/GUI/Popups/CHostTooltips.h"

#include "Mirel/GUI/CWindowBase.h"

#include <utility>

namespace Mirel::GUI
{

CHostTooltips::CHostTooltips(CLightWidgetAdapter& host_, ITooltipPresenter& presenter_, CWidget* behind_)
    : host(host_),
      presenter(presenter_),
      behind(behind_)
{
    host.AddEventsTarget(this);
    if (behind != nullptr)
    {
        behind->AddEventsTarget(this);
    }
}

CHostTooltips::~CHostTooltips()
{
    host.RemoveEventsTarget(this);
    if (behind != nullptr)
    {
        behind->RemoveEventsTarget(this);
    }
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
        presenter.SetTipText(GetTip(widget).text);
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
        if (isPress && under != nullptr && ShowsOnClick(*under))
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

void CHostTooltips::Show(CLightWidget* widget, bool forPress, CPoint screenPosition)
{
    presenter.Hide();
    const CWindowBase* const window = host.GetWindow();
    if (widget == nullptr || window == nullptr || window->GetNativeWindow() == nullptr)
    {
        return;
    }
    STooltip tip = GetTip(*widget);
    if (forPress)
    {
        tip.delayMs = 0;
        tip.isForPress = true;
    }
    if (!tip.text.empty())
    {
        presenter.ShowTip(tip, *window->GetNativeWindow(), screenPosition);
    }
}

/// The host stands behind all, by its root, if it has a tooltip of its own.
CLightWidget* CHostTooltips::Find(CPoint devicePosition) const
{
    const CWindowBase* const window = host.GetWindow();
    CLightWidget* const root = host.GetLightRoot();
    if (window == nullptr || root == nullptr || !host.IsVisible())
    {
        return nullptr;
    }
    const CPoint place = Minus(window->ToSkin(devicePosition), host.GetPositionInWindow());
    CLightWidget* const found = FindIn(*root, place);
    const bool isOnHost = CRect(CPoint(), host.GetSize()).Contains(place);
    return found == nullptr && isOnHost && !host.GetTooltip().empty() ? root : found;
}

/// The innermost and foremost of those with a tooltip that the place is on, whether they take the mouse or
/// not.
CLightWidget* CHostTooltips::FindIn(CLightWidget& widget, CPoint place) const
{
    place = Minus(place, widget.GetPosition());
    if (!widget.IsShown() || !CRect(CPoint(), widget.GetSize()).Contains(place))
    {
        return nullptr;
    }
    for (int i = widget.GetChildCount() - 1; i >= 0; --i)
    {
        if (CLightWidget* const inner = FindIn(*widget.GetChild(i), place))
        {
            return inner;
        }
    }
    return tips.contains(&widget) ? &widget : nullptr;
}

STooltip CHostTooltips::GetTip(CLightWidget& widget) const
{
    const auto found = tips.find(&widget);
    if (found != tips.end())
    {
        return found->second.source();
    }
    STooltip tip;
    tip.text = host.GetTooltip();
    return tip;
}

bool CHostTooltips::ShowsOnClick(CLightWidget& widget) const
{
    const auto found = tips.find(&widget);
    return found != tips.end() && found->second.showOnClick;
}

} // namespace Mirel::GUI
