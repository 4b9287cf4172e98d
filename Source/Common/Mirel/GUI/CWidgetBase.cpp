#include "Mirel/GUI/CWidgetBase.h"

#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/CWindowBase.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Mirel::GUI
{

void CWidgetBase::SetPosition(CPoint newPosition)
{
    if (newPosition == position)
    {
        return;
    }
    Invalidate();
    const COSXPositionEvent event = {newPosition, std::exchange(position, newPosition)};
    Invalidate();
    GetEventsHandler().SendMove(event);
}

void CWidgetBase::SetSize(const CSize& newSize)
{
    if (newSize == size)
    {
        return;
    }
    Invalidate();
    const COSXSizeEvent event = {newSize, std::exchange(size, newSize)};
    Invalidate();
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    KeepBottomOfChildren(Core::SaturateToInt32(std::int64_t{size.height} - event.previous.height));
    if (watch.IsAlive())
    {
        OnResized();
    }
    if (watch.IsAlive())
    {
        GetEventsHandler().SendSize(event);
    }
}

void CWidgetBase::Show(bool newShown)
{
    if (newShown == shown)
    {
        return;
    }
    const bool aroundVisible = GetParent() == nullptr || GetParent()->IsVisible();
    Invalidate();
    shown = newShown;
    Invalidate();
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    CWindowBase* const window = GetWindow();
    if (!shown && window != nullptr)
    {
        window->OnWidgetHidden(AsWidget());
    }
    if (watch.IsAlive() && aroundVisible)
    {
        NotifyVisible(newShown);
    }
}

bool CWidgetBase::IsVisible() const
{
    const CWidgetBase* widget = this;
    while (widget->shown && widget->GetParent() != nullptr)
    {
        widget = widget->GetParent();
    }
    return widget->shown;
}

void CWidgetBase::Enable(bool newEnabled)
{
    if (newEnabled == enabled)
    {
        return;
    }
    enabled = newEnabled;
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    if (CWindowBase* const window = GetWindow(); !enabled && window != nullptr)
    {
        window->OnWidgetDisabled(AsWidget());
    }
    if (watch.IsAlive())
    {
        GetEventsHandler().SendEnabled(newEnabled);
    }
}

void CWidgetBase::SetOpacity(float newOpacity)
{
    const float clamped = std::clamp(newOpacity, 0.0F, 1.0F);
    if (clamped < opacity || clamped > opacity)
    {
        opacity = clamped;
        Invalidate();
    }
}

bool CWidgetBase::IsOpaque() const
{
    const CWidgetBase* widget = this;
    while (widget->opacity >= 1.0F && widget->GetParent() != nullptr)
    {
        widget = widget->GetParent();
    }
    return widget->opacity >= 1.0F;
}

void CWidgetBase::InvalidateRect(const CRect& rect)
{
    CWindowBase* const window = GetWindow();
    if (window == nullptr || !IsVisible())
    {
        return;
    }
    CRect seen = rect;
    for (const CWidgetBase* widget = this; widget != nullptr && !seen.IsEmpty(); widget = widget->GetParent())
    {
        seen = Plus(Intersect(seen, {CPoint(), widget->size}), widget->position);
    }
    if (!seen.IsEmpty())
    {
        window->InvalidateWindow(seen);
    }
}

void CWidgetBase::Update()
{
    if (CWindowBase* const window = GetWindow(); window != nullptr)
    {
        window->PaintNow();
    }
}

CPoint CWidgetBase::GetPositionInWindow() const
{
    CPoint sum;
    for (const CWidgetBase* widget = this; widget != nullptr; widget = widget->GetParent())
    {
        sum = Plus(sum, widget->position);
    }
    return sum;
}

CPoint CWidgetBase::GetScreenPosition() const
{
    const CWindowBase* const window = GetWindow();
    return window == nullptr ? CPoint() : window->ToScreen(GetPositionInWindow());
}

void CWidgetBase::KeepBottomOfChildren(int growth)
{
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    for (int i = 0; watch.IsAlive() && i < GetChildCount(); ++i)
    {
        if (CWidget* const child = GetChild(i); child->ShouldNotMoveWhileResize())
        {
            child->SetPosition(Plus(child->GetPosition(), {0, growth}));
        }
    }
}

/// To the widget and all in it that are shown themselves. Targets may change the tree meanwhile.
void CWidgetBase::NotifyVisible(bool visible)
{
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    GetEventsHandler().SendShown(visible);
    std::vector<const CWidget*> told;
    for (int i = 0; watch.IsAlive() && i < GetChildCount(); ++i)
    {
        CWidget* const child = GetChild(i);
        if (child->IsShown() && std::find(told.begin(), told.end(), child) == told.end())
        {
            told.push_back(child);
            child->NotifyVisible(visible);
            // Whatever came or went: those told stand in the list.
            i = watch.IsAlive() ? -1 : i;
        }
    }
}

} // namespace Mirel::GUI
