#include "Mirel/DataModel/GUIWidgets/CPushUserControl.h"

#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

CPushUserControl::CPushUserControl(GUI::CLightWidget& widget_, CPushableImageWidgetGraphics& graphics_)
    : widget(widget_),
      graphics(graphics_),
      enabledConnection(&widget_.GetEnabledChangedEvent(), &enabledChanged)
{
}

void CPushUserControl::Cancel()
{
    wasPushed = false;
    keyHeld = false;
    SetPushed(false, false);
}

bool CPushUserControl::OnLeftDown(const GUI::COSXMouseEvent& event)
{
    ReadModifiers(event);
    if (!TakesPress(event))
    {
        SetPushed(true, true);
    }
    return true;
}

bool CPushUserControl::OnLeftUp(const GUI::COSXMouseEvent& event)
{
    ReadModifiers(event);
    wasPushed = false;
    SetPushed(false, widget.IsMouseOver());
    return true;
}

/// The second of two quick presses was not reported as one.
bool CPushUserControl::OnLeftDoubleClick(const GUI::COSXMouseEvent& event)
{
    const Core::CLifeToken::CWatch watch(life);
    OnLeftDown(event);
    return !watch.IsAlive() || OnLeftUp(event);
}

bool CPushUserControl::OnMouseEnter(const GUI::COSXMouseEvent& /*event*/)
{
    if (wasPushed)
    {
        SetPushed(true, false);
    }
    return false;
}

bool CPushUserControl::OnMouseLeave(const GUI::COSXMouseEvent& /*event*/)
{
    // What a key holds down does not care where the pointer is.
    if (!keyHeld)
    {
        wasPushed = IsPushed();
        SetPushed(false, false);
    }
    return false;
}

bool CPushUserControl::OnKeyDown(const GUI::COSXKeyEvent& event)
{
    if (!Pushes(event))
    {
        return false;
    }
    if (!IsPushed() && !event.repeat)
    {
        keyHeld = true;
        SetPushed(true, true);
    }
    return true;
}

bool CPushUserControl::OnKeyUp(const GUI::COSXKeyEvent& event)
{
    if (!Pushes(event))
    {
        return false;
    }
    if (std::exchange(keyHeld, false))
    {
        SetPushed(false, true);
    }
    return true;
}

bool CPushUserControl::OnFocusLost()
{
    if (keyHeld)
    {
        Cancel();
    }
    return false;
}

void CPushUserControl::OnEnabledChanged()
{
    if (!widget.IsEnabled())
    {
        Cancel();
    }
}

} // namespace Mirel::DataModel::GUIWidgets
