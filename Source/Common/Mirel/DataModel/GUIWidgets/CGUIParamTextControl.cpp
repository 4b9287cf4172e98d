#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"

#include "Mirel/DataModel/GUIWidgets/WidgetOnScreen.h"

namespace Mirel::DataModel::GUIWidgets
{

CGUIParamTextControl::CGUIParamTextControl(Objects::ICaptureParam& param, IFineEditOpener* opener,
                                           GUI::CLightWidget* parent_)
    : CGUIParamTextWidget(param, parent_),
      control(param),
      mouseControl(control, opener),
      keyboardControl(control, opener, [this] { return ToScreen(*this); }),
      stateConnections(*this, stateChanged),
      draggingConnection(&mouseControl.GetDraggingChangedEventProvider(), &stateChanged)
{
    SetMouseTarget(&mouseControl, false);
    SetKeyboardTarget(&keyboardControl, false);
}

CGUIParamTextControl::~CGUIParamTextControl()
{
    mouseControl.OnCaptureLost();
    SetMouseTarget(nullptr, false);
    SetKeyboardTarget(nullptr, false);
}

void CGUIParamTextControl::SetPixelRange(float pixelRange)
{
    mouseControl.SetPixelRange(pixelRange);
    keyboardControl.SetPixelRange(pixelRange);
}

void CGUIParamTextControl::SetColors(const SColors& newColors)
{
    colors = newColors;
    UpdateState();
}

void CGUIParamTextControl::UpdateState()
{
    if (!IsEnabled())
    {
        mouseControl.OnCaptureLost();
    }
    const auto colorOf = [this](EWidgetState state)
    {
        switch (state)
        {
        case StateDisabled:
            return colors.disabled;
        case StateHover:
            return colors.hover;
        case StateFocus:
            return colors.focus;
        case StatePushed:
            return colors.pushed;
        default:
            return std::optional<Graphics::CColor>();
        }
    };
    GetTextDrawer().SetColor(
        colorOf(GetWidgetState(*this, mouseControl.IsDragging())).value_or(colors.normal));
}

} // namespace Mirel::DataModel::GUIWidgets
