#include "Mirel/GUI/CWindow.h"

#include "Mirel/GUI/Native/CNativeRunLoop.h"

namespace Mirel::GUI
{

namespace
{

CPoint GetMiddle(const CRect& around, CSize size)
{
    return Plus(around.GetOrigin(), {(around.width - size.width) / 2, (around.height - size.height) / 2});
}

} // namespace

CWindow::CWindow(INativePlatform& platform_, const SNativeWindowOptions& options)
    : CWindowBase(platform_, options)
{
}

CWindow::~CWindow() = default;

void CWindow::Show(bool shown)
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->Show(shown);
    }
}

bool CWindow::IsShown() const
{
    return GetNativeWindow() != nullptr && GetNativeWindow()->IsShown();
}

void CWindow::Raise()
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->Raise();
    }
}

void CWindow::SetSize(CSize size)
{
    if (GetNativeWindow() != nullptr && size != GetSize())
    {
        GetNativeWindow()->SetSize(ToDevice(size));
    }
}

CPoint CWindow::GetPosition() const
{
    return GetNativeWindow() == nullptr ? CPoint() : GetNativeWindow()->GetPosition();
}

void CWindow::SetPosition(CPoint devicePosition)
{
    if (GetNativeWindow() != nullptr && devicePosition != GetPosition())
    {
        GetNativeWindow()->SetPosition(devicePosition);
    }
}

void CWindow::Center(const CWindow* over)
{
    if (GetNativeWindow() == nullptr)
    {
        return;
    }
    const bool overOther = over != nullptr && over->GetNativeWindow() != nullptr;
    const CRect around =
        overOther ? CRect(over->GetNativeWindow()->GetScreenPosition(), over->GetNativeWindow()->GetSize())
                  : GetPlatform().GetScreens().front().workArea;
    SetPosition(GetMiddle(around, GetNativeWindow()->GetSize()));
}

void CWindow::SetOpacity(float opacity)
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->SetOpacity(opacity);
    }
}

bool CWindow::CanBeTransparent() const
{
    return GetNativeWindow() != nullptr && GetNativeWindow()->CanBeTransparent();
}

bool CWindow::RunModal(CWindowBase* blocked)
{
    if (GetNativeWindow() == nullptr)
    {
        return false;
    }
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    std::unique_ptr<Core::CLifeToken::CWatch> blockedWatch;
    if (blocked != nullptr)
    {
        blockedWatch = std::make_unique<Core::CLifeToken::CWatch>(blocked->GetLifeToken());
        blocked->SetInputBlocked(true);
    }
    Show(true);
    GetPlatform().GetRunLoop().RunUntil(
        [this, &watch] { return !watch.IsAlive() || !IsShown() || !GetNativeWindow()->IsOpen(); });
    if (blockedWatch != nullptr && blockedWatch->IsAlive())
    {
        blocked->SetInputBlocked(false);
    }
    return watch.IsAlive() && GetNativeWindow()->IsOpen();
}

void CWindow::OnWindowResized(CSize /*size*/)
{
    resized.Notify();
}

void CWindow::OnWindowMoved(CPoint /*devicePosition*/)
{
    moved.Notify();
}

void CWindow::OnWindowCloseRequested()
{
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    if (GetContent() != nullptr)
    {
        GetContent()->GetEventsHandler().SendClose();
    }
    if (watch.IsAlive())
    {
        closing.Notify();
    }
}

} // namespace Mirel::GUI
