#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"

#include "Mirel/DataModel/GUIWidgets/WidgetOnScreen.h"

namespace Mirel::DataModel::GUIWidgets
{

CSkinLinearParamSlider::CSkinLinearParamSlider(Objects::ICaptureParam& param, const SLinearImages& images,
                                               IFineEditOpener* opener, GUI::CLightWidget* parent_)
    : CLightWidget(parent_),
      control(param),
      graphics(images, CLinearParamGraphics::EFill::Whole, control),
      mouseTarget(control, graphics, opener),
      keyboardControl(control, opener, [this] { return ToScreen(*this); }),
      stateConnections(*this, stateChanged),
      draggingConnection(&mouseTarget.GetDraggingChangedEventProvider(), &stateChanged),
      sizeConnection(&GetSizeChangedEvent(), &sizeChanged)
{
    SetGraphics(&graphics, false);
    SetMouseTarget(&mouseTarget, false);
    SetKeyboardTarget(&keyboardControl, false);
    UpdateRange();
}

CSkinLinearParamSlider::~CSkinLinearParamSlider()
{
    mouseTarget.OnCaptureLost();
    SetMouseTarget(nullptr, false);
    SetKeyboardTarget(nullptr, false);
    SetGraphics(nullptr, false);
}

void CSkinLinearParamSlider::SetTrack(const CLinearTrack& track)
{
    graphics.SetTrack(track);
    mouseTarget.SetHorizontal(track.horizontal);
    UpdateRange();
}

void CSkinLinearParamSlider::SetPixelRange(float newPixelRange)
{
    pixelRange = newPixelRange;
    UpdateRange();
}

void CSkinLinearParamSlider::UpdateState()
{
    if (!IsEnabled())
    {
        mouseTarget.OnCaptureLost();
    }
    const EWidgetState state = GetWidgetState(*this, mouseTarget.IsDragging());
    graphics.SetState(state == StatePushed ? StateSelected : state);
}

void CSkinLinearParamSlider::UpdateRange()
{
    const float range =
        IsPixelRangeGiven(pixelRange) ? pixelRange : static_cast<float>(graphics.GetTrackLength());
    mouseTarget.SetPixelRange(range);
    keyboardControl.SetPixelRange(range);
}

} // namespace Mirel::DataModel::GUIWidgets
