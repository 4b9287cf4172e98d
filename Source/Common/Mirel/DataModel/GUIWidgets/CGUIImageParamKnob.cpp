#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

enum EState
{
    StateNormal,
    StateDisabled,
    StateHover,
    StateFocus,
    StatePushed
};

} // namespace

CGUIImageParamKnob::CGUIImageParamKnob(Objects::ICaptureParam& param, Graphics::CImageCatalog* catalog,
                                       bool owned, int framesCount,
                                       Graphics::CMultiFilmStripDrawer::EOrientation orientation,
                                       IFineEditOpener* opener, GUI::CLightWidget* parent_)
    : CLightWidget(parent_),
      control(param),
      graphics(catalog, owned, framesCount, orientation, control),
      mouseControl(control, opener),
      keyboardControl(control, opener, [this] { return GetAbsolutePosition(); }),
      enabledConnection(&GetEnabledChangedEvent(), &stateChanged),
      mouseOverConnection(&GetMouseOverChangedEvent(), &stateChanged),
      focusConnection(&GetFocusChangedEvent(), &stateChanged),
      draggingConnection(&mouseControl.GetDraggingChangedEventProvider(), &stateChanged)
{
    SetGraphics(&graphics, false);
    SetMouseTarget(&mouseControl, false);
    SetKeyboardTarget(&keyboardControl, false);
}

CGUIImageParamKnob::~CGUIImageParamKnob()
{
    mouseControl.OnCaptureLost();
    SetMouseTarget(nullptr, false);
    SetKeyboardTarget(nullptr, false);
    SetGraphics(nullptr, false);
}

void CGUIImageParamKnob::SetPixelRange(float pixelRange)
{
    mouseControl.SetPixelRange(pixelRange);
    keyboardControl.SetPixelRange(pixelRange);
}

void CGUIImageParamKnob::UpdateState()
{
    EState state = StateNormal;
    if (!IsEnabled())
    {
        state = StateDisabled;
    }
    else if (mouseControl.IsDragging())
    {
        state = StatePushed;
    }
    else if (IsMouseOver())
    {
        state = StateHover;
    }
    else if (HasFocus())
    {
        state = StateFocus;
    }
    graphics.SetState(state);
}

} // namespace Mirel::DataModel::GUIWidgets
