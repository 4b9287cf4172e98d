#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"

#include "Mirel/DataModel/GUIWidgets/WidgetOnScreen.h"

namespace Mirel::DataModel::GUIWidgets
{

CGUIImageParamKnob::CGUIImageParamKnob(Objects::ICaptureParam& param, Graphics::CImageCatalog* catalog,
                                       bool owned, int framesCount,
                                       Graphics::CMultiFilmStripDrawer::EOrientation orientation,
                                       IFineEditOpener* opener, GUI::CLightWidget* parent_)
    : CLightWidget(parent_),
      control(param),
      graphics(catalog, owned, framesCount, orientation, control),
      mouseControl(control, opener),
      keyboardControl(control, opener, [this] { return ToScreen(*this); }),
      stateConnections(*this, stateChanged),
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
    if (!IsEnabled())
    {
        mouseControl.OnCaptureLost();
    }
    graphics.SetState(GetWidgetState(*this, mouseControl.IsDragging()));
}

} // namespace Mirel::DataModel::GUIWidgets
