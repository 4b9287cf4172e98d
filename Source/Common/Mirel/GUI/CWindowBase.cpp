#include "Mirel/GUI/CWindowBase.h"

#include <algorithm>

namespace Mirel::GUI
{

CWindowBase::CWindowBase(INativePlatform& platform_, const SNativeWindowOptions& options)
    : CWindowRoot(platform_),
      mouse(*this),
      focus(*this)
{
    SetNativeWindow(platform_.CreateNativeWindow(options, *this));
    FitContent();
}

CWindowBase::~CWindowBase()
{
    SetContent(nullptr, false);
    SetNativeWindow(nullptr);
}

void CWindowBase::SetContent(CWidget* newContent, bool owned)
{
    if (newContent != nullptr && newContent != content.Get() &&
        (newContent->GetParent() != nullptr || newContent->GetWindow() != nullptr))
    {
        return;
    }
    if (newContent != nullptr && newContent == content.Get())
    {
        content.Set(newContent, owned);
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    if (CWidget* const old = content.Get(); old != nullptr)
    {
        const Core::CLifeToken::CWatch oldWatch(old->GetLifeToken());
        const bool wasOwned = content.IsOwned();
        content.Set(old, false);
        content.Set(nullptr, false);
        old->SetWindow(nullptr);
        Forget(*old, true);
        if (wasOwned && oldWatch.IsAlive())
        {
            delete old;
        }
    }
    if (!watch.IsAlive() || newContent == nullptr)
    {
        return;
    }
    content.Set(newContent, owned);
    content->SetWindow(this);
    content->SetPosition({});
    FitContent();
    InvalidateWindow({CPoint(), GetContentSize()});
}

CSize CWindowBase::GetContentSize() const
{
    const CSize size = GetNativeWindow() == nullptr ? CSize() : GetNativeWindow()->GetSize();
    return {size.width / GetScale(), size.height / GetScale()};
}

void CWindowBase::InvalidateWindow(const CRect& rect)
{
    painter.Mark(rect);
    RequestPaint();
}

void CWindowBase::PaintNow()
{
    if (GetNativeWindow() != nullptr && GetNativeWindow()->IsShown() && painter.IsMarked())
    {
        const Graphics::CSimple2DRegion painted = painter.Paint(content.Get());
        GetNativeWindow()->Present(painter.GetPicture(), painted);
    }
}

const Graphics::CBitmap& CWindowBase::PaintPicture()
{
    PaintNow();
    painter.Paint(content.Get()); // of a hidden window
    return painter.GetPicture();
}

void CWindowBase::SetInputBlocked(bool blocked)
{
    const bool wasBlocked = IsInputBlocked();
    inputBlocks = std::max(inputBlocks + (blocked ? 1 : -1), 0);
    if (blocked && !wasBlocked)
    {
        mouse.OnCaptureLost();
    }
}

void CWindowBase::OnCloseRequested()
{
    if (!IsInputBlocked())
    {
        OnWindowCloseRequested();
    }
}

void CWindowBase::ShowCursor(const CCursor* cursor)
{
    if (GetNativeWindow() == nullptr)
    {
        return;
    }
    if (cursor != nullptr && cursor->GetPicture() != nullptr)
    {
        GetNativeWindow()->SetCursor(*cursor->GetPicture(), cursor->GetHotSpot());
    }
    else
    {
        GetNativeWindow()->SetCursor(cursor == nullptr ? ECursorShape::Normal : cursor->GetShape());
    }
}

void CWindowBase::OnWidgetRemoved(CWidget& widget)
{
    Forget(widget, true);
}

void CWindowBase::OnWidgetDestroyed(CWidget& widget)
{
    if (&widget == content.Get())
    {
        // It is being destroyed already.
        content.Set(&widget, false);
        content.Set(nullptr, false);
        widget.SetWindow(nullptr);
    }
    Forget(widget, false);
}

void CWindowBase::OnWidgetHidden(CWidget& widget)
{
    Forget(widget, true);
}

void CWindowBase::OnWidgetDisabled(CWidget& widget)
{
    Forget(widget, true);
}

bool CWindowBase::Announce(CWidget& widget, const COSXNativeNSEvent& event)
{
    const Core::CLifeToken::CWatch watch(life);
    const Core::CLifeToken::CWatch widgetWatch(widget.GetLifeToken());
    const bool handled = widget.GetEventsHandler().SendNative(event);
    return !handled && watch.IsAlive() && widgetWatch.IsAlive();
}

void CWindowBase::TakeNativeFocus()
{
    if (GetNativeWindow() != nullptr && !GetNativeWindow()->HasFocus())
    {
        GetNativeWindow()->SetFocus();
    }
}

bool CWindowBase::CaptureNative()
{
    return GetNativeWindow() != nullptr && GetNativeWindow()->CaptureMouse();
}

void CWindowBase::ReleaseNative()
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->ReleaseMouse();
    }
}

void CWindowBase::OnPaint(const Graphics::CSimple2DRegion& lost)
{
    if (GetNativeWindow() != nullptr)
    {
        Graphics::CSimple2DRegion shown = painter.Paint(content.Get());
        shown.Union(lost);
        GetNativeWindow()->Present(painter.GetPicture(), shown);
    }
}

void CWindowBase::OnResized(CSize /*size*/)
{
    const Core::CLifeToken::CWatch watch(life);
    FitContent();
    if (watch.IsAlive())
    {
        RequestPaint();
        OnWindowResized(GetContentSize());
    }
}

void CWindowBase::OnPointerEnter(const SNativeMouseEvent& event)
{
    OnPointerMove(event);
}

void CWindowBase::OnPointerLeave(const SNativeMouseEvent& event)
{
    if (!IsInputBlocked())
    {
        mouse.OnLeave(event);
    }
}

void CWindowBase::OnPointerMove(const SNativeMouseEvent& event)
{
    if (!IsInputBlocked())
    {
        mouse.OnMove(event);
    }
}

void CWindowBase::OnButtonDown(const SNativeMouseEvent& event)
{
    if (!IsInputBlocked())
    {
        mouse.OnDown(event);
    }
}

void CWindowBase::OnButtonUp(const SNativeMouseEvent& event)
{
    if (!IsInputBlocked())
    {
        mouse.OnUp(event);
    }
}

void CWindowBase::OnWheel(const SNativeWheelEvent& event)
{
    if (!IsInputBlocked())
    {
        mouse.OnWheel(event);
    }
}

bool CWindowBase::OnKeyDown(const SNativeKeyEvent& event)
{
    return IsInputBlocked() || focus.OnKey(event, true);
}

void CWindowBase::OnKeyUp(const SNativeKeyEvent& event)
{
    if (!IsInputBlocked())
    {
        focus.OnKey(event, false);
    }
}

/// What is seen keeps its size in skin pixels.
void CWindowBase::OnScaleChanged(int newScale)
{
    const CSize size = GetContentSize();
    SetScale(newScale);
    const Core::CLifeToken::CWatch watch(life);
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->SetSize(ToDevice(size));
    }
    if (watch.IsAlive())
    {
        FitContent();
    }
    if (watch.IsAlive())
    {
        RequestPaint();
    }
}

void CWindowBase::RequestPaint()
{
    if (GetNativeWindow() != nullptr && painter.IsMarked())
    {
        GetNativeWindow()->RequestPaint();
    }
}

void CWindowBase::FitContent()
{
    painter.SetSize(GetNativeWindow() == nullptr ? CSize() : GetNativeWindow()->GetSize(), GetScale());
    if (content)
    {
        content->SetSize(GetContentSize());
    }
}

void CWindowBase::Forget(CWidget& widget, bool isAlive)
{
    const Core::CLifeToken::CWatch watch(life);
    const Core::CLifeToken::CWatch widgetWatch(widget.GetLifeToken());
    mouse.Forget(widget, isAlive);
    if (watch.IsAlive() && widgetWatch.IsAlive())
    {
        focus.Forget(widget, isAlive);
    }
}

} // namespace Mirel::GUI
