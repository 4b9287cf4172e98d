#pragma once

#include "Mirel/DataModel/GUIWidgets/CLinearParamGraphics.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobKeyboardControl.h"
#include "Mirel/DataModel/GUIWidgets/CParamSliderMouseTarget.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"

namespace Mirel::DataModel::GUIWidgets
{

/// A thumb on a track that moves a parameter. Without a track's image only the thumb is seen and hit: a
/// marker over another widget, whose axis it shares by the zoom and offset of its control. GUI thread.
class CSkinLinearParamSlider : public GUI::CLightWidget
{
public:
    /// The parameter is not owned and must outlive the widget, and so must the opener, which may be null.
    CSkinLinearParamSlider(Objects::ICaptureParam& param, const SLinearImages& images,
                           IFineEditOpener* opener = nullptr, GUI::CLightWidget* parent_ = nullptr);
    ~CSkinLinearParamSlider() override;

    Controls::CParamControl& GetControl() { return control; }
    CLinearParamGraphics& GetSliderGraphics() { return graphics; }
    CParamSliderMouseTarget& GetSliderMouseTarget() { return mouseTarget; }
    CParamKnobKeyboardControl& GetKeyboardControl() { return keyboardControl; }

    void SetTrack(const CLinearTrack& track);

    /// As in CParamKnobMouseControl, but without one given (as at first) it is the way of the thumb, which
    /// then stays under the pointer.
    void SetPixelRange(float newPixelRange);

private:
    void UpdateState();
    void UpdateRange();

    Controls::CParamControl control;
    CLinearParamGraphics graphics;
    CParamSliderMouseTarget mouseTarget;
    CParamKnobKeyboardControl keyboardControl;
    float pixelRange = noPixelRange;
    Core::TCommand<CSkinLinearParamSlider> stateChanged{this, &CSkinLinearParamSlider::UpdateState};
    Core::TCommand<CSkinLinearParamSlider> sizeChanged{this, &CSkinLinearParamSlider::UpdateRange};
    CWidgetStateConnections stateConnections;
    CoreUtilities::CCallbackHelper draggingConnection;
    CoreUtilities::CCallbackHelper sizeConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
