#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobGraphics.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobKeyboardControl.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobMouseControl.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"

namespace Mirel::DataModel::GUIWidgets
{

/// A film strip that turns a parameter. Its catalog has a strip for each state: 0 normal, 1 disabled, 2 under
/// the pointer, 3 with the focus, 4 turned. GUI thread.
class CGUIImageParamKnob : public GUI::CLightWidget
{
public:
    /// The parameter is not owned and must outlive the widget, and so must the opener, which may be null. The
    /// catalog and what follows as of CMultiFilmStripDrawer.
    CGUIImageParamKnob(Objects::ICaptureParam& param, Graphics::CImageCatalog* catalog, bool owned,
                       int framesCount, Graphics::CMultiFilmStripDrawer::EOrientation orientation,
                       IFineEditOpener* opener = nullptr, GUI::CLightWidget* parent_ = nullptr);
    ~CGUIImageParamKnob() override;

    Controls::CParamControl& GetControl() { return control; }
    CParamKnobGraphics& GetKnobGraphics() { return graphics; }
    CParamKnobMouseControl& GetMouseControl() { return mouseControl; }
    CParamKnobKeyboardControl& GetKeyboardControl() { return keyboardControl; }

    /// Of both ways of input: as in CParamKnobMouseControl.
    void SetPixelRange(float pixelRange);

private:
    void UpdateState();

    Controls::CParamControl control;
    CParamKnobGraphics graphics;
    CParamKnobMouseControl mouseControl;
    CParamKnobKeyboardControl keyboardControl;
    Core::TCommand<CGUIImageParamKnob> stateChanged{this, &CGUIImageParamKnob::UpdateState};
    CWidgetStateConnections stateConnections;
    CoreUtilities::CCallbackHelper draggingConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
