#pragma once

#include "Mirel/DataModel/GUIWidgets/CGUIParamTextWidget.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobKeyboardControl.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobMouseControl.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"

#include <optional>

namespace Mirel::DataModel::GUIWidgets
{

/// A value's text that is turned as a knob is: drags, the wheel and the keys move the value, a double click
/// opens the window for typing. Its colour tells its state. GUI thread.
class CGUIParamTextControl : public CGUIParamTextWidget
{
public:
    /// Of the text, by state; one that is not given is the normal one.
    struct SColors
    {
        Graphics::CColor normal;
        std::optional<Graphics::CColor> disabled;
        std::optional<Graphics::CColor> hover;
        std::optional<Graphics::CColor> focus;
        std::optional<Graphics::CColor> pushed; ///< while it is dragged
    };

    /// The parameter is not owned and must outlive the widget, and so must the opener, which may be null.
    explicit CGUIParamTextControl(Objects::ICaptureParam& param, IFineEditOpener* opener = nullptr,
                                  GUI::CLightWidget* parent_ = nullptr);
    ~CGUIParamTextControl() override;

    Controls::CParamControl& GetControl() { return control; }
    CParamKnobMouseControl& GetMouseControl() { return mouseControl; }
    CParamKnobKeyboardControl& GetKeyboardControl() { return keyboardControl; }

    /// Of both ways of input: as in CParamKnobMouseControl.
    void SetPixelRange(float pixelRange);

    void SetColors(const SColors& newColors);

private:
    void UpdateState();

    Controls::CParamControl control;
    CParamKnobMouseControl mouseControl;
    CParamKnobKeyboardControl keyboardControl;
    SColors colors;
    Core::TCommand<CGUIParamTextControl> stateChanged{this, &CGUIParamTextControl::UpdateState};
    CWidgetStateConnections stateConnections;
    CoreUtilities::CCallbackHelper draggingConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
