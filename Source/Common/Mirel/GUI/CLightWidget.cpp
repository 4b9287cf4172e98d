#include "Mirel/GUI/CLightWidget.h"

#include "Mirel/GUI/CEmptyGraphics.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Mirel/GUI/ILightWidgetHost.h"
#include "Mirel/GUI/SiblingCover.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

/// Two listeners that disagree about a size would never come to an end.
constexpr int maxSizeRounds = 8;

CSize Larger(CSize a, CSize b)
{
    return {std::max(a.width, b.width), std::max(a.height, b.height)};
}

} // namespace

CLightWidget::CLightWidget(CLightWidget* parent_) : CLightWidget(parent_, nullptr, false) {}

CLightWidget::CLightWidget(CLightWidget* parent_, Graphics::IGraphics* graphics_, bool graphicsOwned)
    : mouse(*this),
      keyboard(*this),
      onGraphicsChanged(this, &CLightWidget::OnGraphicsChanged),
      recursive(std::make_unique<CRecursiveGraphics>(*this))
{
    SetGraphics(graphics_, graphicsOwned);
    if (parent_ != nullptr)
    {
        parent_->AddChild(this);
    }
}

CLightWidget::~CLightWidget()
{
    // What handles the input may be gone with the derived class.
    SetMouseTarget(nullptr, false);
    SetKeyboardTarget(nullptr, false);
    Clear();
    if (ILightWidgetHost* const ownHost = GetHost(); ownHost != nullptr)
    {
        if (parent != nullptr)
        {
            parent->MarkDirty();
            InvalidateAround(GetArea());
        }
        ownHost->OnLightDestroyed(*this);
    }
    if (parent != nullptr)
    {
        parent->MarkDirty();
        parent->Unlink(*this);
    }
    graphics->GetChangedEvent().Disconnect(&onGraphicsChanged);
}

void CLightWidget::Enable(bool enable)
{
    if (enable != enabled)
    {
        enabled = enable;
        enabledChanged.Notify();
    }
}

CLightWidget* CLightWidget::GetFocusTarget()
{
    return focusOnClick && enabled && GetKeyboardTarget() != nullptr ? this : nullptr;
}

void CLightWidget::Show(bool newShown)
{
    if (newShown == shown)
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    if (parent != nullptr)
    {
        parent->MarkDirty();
    }
    InvalidateAround(GetArea());
    shown = newShown;
    InvalidateAround(GetArea());
    ILightWidgetHost* const treeHost = GetHost();
    if (!shown && treeHost != nullptr)
    {
        treeHost->OnLightHidden(*this);
    }
    if (watch.IsAlive())
    {
        shownChanged.Notify();
    }
}

bool CLightWidget::IsVisible() const
{
    const CLightWidget* widget = this;
    while (widget->shown && widget->parent != nullptr)
    {
        widget = widget->parent;
    }
    return widget->shown && (widget->host == nullptr || widget->host->IsLightVisible());
}

void CLightWidget::Move(const CPoint& newPosition)
{
    if (newPosition == position)
    {
        return;
    }
    if (parent != nullptr)
    {
        parent->MarkDirty();
    }
    InvalidateAround(GetArea());
    position = newPosition;
    InvalidateAround(GetArea());
    moved.Notify();
}

void CLightWidget::MoveBy(CPoint delta)
{
    Move(Plus(position, delta));
}

CSize CLightWidget::GetSize() const
{
    return graphics->GetSize();
}

void CLightWidget::SetSize(const CSize& newSize)
{
    graphics->SetSize(newSize);
}

void CLightWidget::Attach(CLightWidget& newParent, bool front_)
{
    newParent.AddChild(this, front_);
}

bool CLightWidget::IsTransparent() const
{
    return opacity < 1.0F || !graphics->IsOpaque();
}

void CLightWidget::SetFocus()
{
    if (ILightWidgetHost* const treeHost = GetHost(); treeHost != nullptr)
    {
        treeHost->SetLightFocus(this);
    }
}

bool CLightWidget::HasFocus() const
{
    return keyboard.HasFocus();
}

void CLightWidget::SetOpacity(float newOpacity)
{
    const float clamped = std::clamp(newOpacity, 0.0F, 1.0F);
    if (!(clamped < opacity || clamped > opacity))
    {
        return;
    }
    if (parent != nullptr)
    {
        parent->MarkDirty();
    }
    opacity = clamped;
    InvalidateAround(GetArea());
    opacityChanged.Notify();
}

void CLightWidget::Invalidate()
{
    InvalidateRect(GetArea());
}

void CLightWidget::InvalidateRect(const CRect& rect)
{
    if (!rect.IsEmpty())
    {
        MarkDirty();
        InvalidateAround(rect);
    }
}

void CLightWidget::SetCursor(CSharedCursor newCursor)
{
    if (newCursor == cursor)
    {
        return;
    }
    cursor = std::move(newCursor);
    if (ILightWidgetHost* const treeHost = GetHost(); treeHost != nullptr)
    {
        treeHost->OnLightCursorChanged(*this);
    }
}

CPoint CLightWidget::GetAbsolutePosition() const
{
    CPoint sum = position;
    for (const CLightWidget* widget = parent; widget != nullptr; widget = widget->parent)
    {
        sum = Plus(sum, widget->position);
    }
    return sum;
}

CWidget* CLightWidget::GetRootWidget() const
{
    ILightWidgetHost* const treeHost = GetHost();
    return treeHost == nullptr ? nullptr : treeHost->GetHostWidget();
}

CLightWidgetLayoutCell& CLightWidget::GetCell()
{
    if (cell == nullptr)
    {
        cell = std::make_unique<CLightWidgetLayoutCell>(*this);
    }
    return *cell;
}

void CLightWidget::SetGraphics(Graphics::IGraphics* newGraphics, bool owned)
{
    if (newGraphics != nullptr && newGraphics == graphics.Get())
    {
        graphics.Set(newGraphics, owned);
        return;
    }
    if (graphics)
    {
        graphics->GetChangedEvent().Disconnect(&onGraphicsChanged);
    }
    if (newGraphics == nullptr)
    {
        graphics.Set(new CEmptyGraphics(knownSize), true);
    }
    else
    {
        graphics.Set(newGraphics, owned);
    }
    graphics->GetChangedEvent().Connect(onGraphicsChanged);
    OnGraphicsChanged({CPoint(), Larger(knownSize, GetSize())});
}

void CLightWidget::SetBuffered(bool buffered)
{
    recursive->SetBuffered(buffered);
}

bool CLightWidget::IsBuffered() const
{
    return recursive->IsBuffered();
}

bool CLightWidget::CaptureMouse()
{
    ILightWidgetHost* const treeHost = GetHost();
    return treeHost != nullptr && treeHost->CaptureLightMouse(*this);
}

void CLightWidget::ReleaseMouse()
{
    if (ILightWidgetHost* const treeHost = GetHost(); treeHost != nullptr)
    {
        treeHost->ReleaseLightMouse(*this);
    }
}

void CLightWidget::SetHost(ILightWidgetHost* newHost)
{
    host = newHost;
}

ILightWidgetHost* CLightWidget::GetHost() const
{
    const CLightWidget* widget = this;
    while (widget->parent != nullptr)
    {
        widget = widget->parent;
    }
    return widget->host;
}

/// The pictures that this widget and those around it keep are out of date, seen or not.
void CLightWidget::MarkDirty()
{
    for (CLightWidget* widget = this; widget != nullptr; widget = widget->parent)
    {
        widget->recursive->MarkDirty();
    }
}

/// Asks the host for a repaint of what the tree lets be seen of the rectangle.
void CLightWidget::InvalidateAround(const CRect& rect)
{
    if (rect.IsEmpty() || !IsVisible())
    {
        return;
    }
    CRect seen = rect;
    const CLightWidget* widget = this;
    for (; widget->parent != nullptr && !seen.IsEmpty(); widget = widget->parent)
    {
        const CLightWidget& around = *widget->parent;
        seen = around.WithoutCovered(Intersect(Plus(seen, widget->position), around.GetArea()), *widget);
    }
    if (!seen.IsEmpty() && widget->host != nullptr)
    {
        widget->host->InvalidateLight(seen);
    }
}

/// What the siblings in front of the child leave of a rectangle.
CRect CLightWidget::WithoutCovered(CRect rect, const CLightWidget& child) const
{
    auto place = std::find(children.begin(), children.end(), &child);
    for (++place; place != children.end() && !rect.IsEmpty(); ++place)
    {
        if ((*place)->shown && !(*place)->IsTransparent())
        {
            rect = WithoutCover(rect, (*place)->GetFrame());
        }
    }
    return rect;
}

void CLightWidget::OnGraphicsChanged(const CRect& rect)
{
    InvalidateRect(rect);
    const Core::CLifeToken::CWatch watch(life);
    for (int round = 0; round < maxSizeRounds && GetSize() != knownSize; ++round)
    {
        const CSize old = std::exchange(knownSize, GetSize());
        if (cell != nullptr)
        {
            cell->OnWidgetSizeChanged();
        }
        if (watch.IsAlive())
        {
            // The graphics do not report what was changed from within their report.
            InvalidateRect({CPoint(), Larger(Larger(old, knownSize), GetSize())});
            sizeChanged.Notify();
        }
        if (!watch.IsAlive())
        {
            return;
        }
    }
}

} // namespace Mirel::GUI
