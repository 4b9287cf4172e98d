#include "Mirel/GUI/Popups/CPopupWindow.h"

#include "Mirel/Graphics/CDrawSurface.h"

#include <utility>

namespace Mirel::GUI
{

CPopupWindow::CPopupWindow(INativePlatform& platform_, ENativeWindowKind kind, const CRect& frame_,
                           const INativeWindow* owner)
    : frame(frame_),
      scale(platform_.GetScale())
{
    SNativeWindowOptions options;
    options.kind = kind;
    options.position = frame.GetOrigin();
    options.isPlaced = true;
    options.size = frame.GetSize();
    options.owner = owner;
    options.isResizable = false;
    window = platform_.CreateNativeWindow(options, *this);
    picture.SetSize(frame.GetSize());
}

CPopupWindow::~CPopupWindow() = default;

bool CPopupWindow::Show()
{
    if (window == nullptr)
    {
        return false;
    }
    window->Show(true);
    window->RequestPaint();
    return true;
}

void CPopupWindow::SetFrame(const CRect& newFrame)
{
    if (newFrame == frame)
    {
        return;
    }
    frame = newFrame;
    picture.SetSize(frame.GetSize());
    if (window != nullptr)
    {
        window->SetPosition(frame.GetOrigin());
        window->SetSize(frame.GetSize());
    }
    Invalidate();
}

void CPopupWindow::Invalidate()
{
    isOutdated = true;
    if (window != nullptr)
    {
        window->RequestPaint();
    }
}

CSize CPopupWindow::GetSkinSize() const
{
    return {(frame.width + scale - 1) / scale, (frame.height + scale - 1) / scale};
}

CPoint CPopupWindow::ToSkin(CPoint devicePoint) const
{
    const auto divide = [this](int value) { return (value < 0 ? value - scale + 1 : value) / scale; };
    return {divide(devicePoint.x), divide(devicePoint.y)};
}

void CPopupWindow::OnPaint(const Graphics::CSimple2DRegion& lost)
{
    if (window == nullptr)
    {
        return;
    }
    Graphics::CSimple2DRegion shown = lost;
    if (std::exchange(isOutdated, false))
    {
        const auto surface = picture.CreateSurface();
        surface->Scale(scale);
        Draw(*surface);
        shown.Union(CRect(CPoint(), frame.GetSize()));
    }
    window->Present(picture, shown);
}

} // namespace Mirel::GUI
