#include "Mirel/GUI/CLightMouseTarget.h"

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/OwnedTarget.h"

namespace Mirel::GUI
{

void CLightMouseTarget::SetTarget(CMouseTarget* newTarget, bool owned)
{
    target = HoldTarget(newTarget, owned);
}

bool CLightMouseTarget::OnLeftDown(const COSXMouseEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnLeftDown, event);
}

bool CLightMouseTarget::OnLeftUp(const COSXMouseEvent& event)
{
    return Send(&CMouseTarget::OnLeftUp, event);
}

bool CLightMouseTarget::OnLeftClick(const COSXMouseEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnLeftClick, event);
}

bool CLightMouseTarget::OnLeftDoubleClick(const COSXMouseEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnLeftDoubleClick, event);
}

bool CLightMouseTarget::OnRightDown(const COSXMouseEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnRightDown, event);
}

bool CLightMouseTarget::OnRightUp(const COSXMouseEvent& event)
{
    return Send(&CMouseTarget::OnRightUp, event);
}

bool CLightMouseTarget::OnRightClick(const COSXMouseEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnRightClick, event);
}

bool CLightMouseTarget::OnRightDoubleClick(const COSXMouseEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnRightDoubleClick, event);
}

bool CLightMouseTarget::OnMouseEnter(const COSXMouseEvent& event)
{
    return SetMouseOver(true) && Send(&CMouseTarget::OnMouseEnter, event);
}

bool CLightMouseTarget::OnMouseMove(const COSXMouseEvent& event)
{
    return Send(&CMouseTarget::OnMouseMove, event);
}

bool CLightMouseTarget::OnCursorUpdate(const COSXMouseEvent& event)
{
    return Send(&CMouseTarget::OnCursorUpdate, event);
}

bool CLightMouseTarget::OnMouseLeave(const COSXMouseEvent& event)
{
    return SetMouseOver(false) && Send(&CMouseTarget::OnMouseLeave, event);
}

bool CLightMouseTarget::OnMouseDrag(const COSXMouseEvent& event)
{
    return Send(&CMouseTarget::OnMouseDrag, event);
}

bool CLightMouseTarget::OnMouseWheel(const COSXMouseWheelEvent& event)
{
    return SendIfEnabled(&CMouseTarget::OnMouseWheel, event);
}

void CLightMouseTarget::OnCaptureLost()
{
    const auto held = target;
    if (held != nullptr)
    {
        held->OnCaptureLost();
    }
}

/// Nothing of this object is touched after the call, which may have destroyed the widget.
template <class Event>
bool CLightMouseTarget::Send(bool (CMouseTarget::*operation)(const Event&), const Event& event)
{
    const auto held = target;
    return held != nullptr && (held.get()->*operation)(event);
}

template <class Event>
bool CLightMouseTarget::SendIfEnabled(bool (CMouseTarget::*operation)(const Event&), const Event& event)
{
    return widget.IsEnabled() && Send(operation, event);
}

/// False if a listener destroyed the widget.
bool CLightMouseTarget::SetMouseOver(bool over)
{
    if (over == mouseOver)
    {
        return true;
    }
    const Core::CLifeToken::CWatch watch(life);
    mouseOver = over;
    mouseOverChanged.Notify();
    return watch.IsAlive();
}

} // namespace Mirel::GUI
