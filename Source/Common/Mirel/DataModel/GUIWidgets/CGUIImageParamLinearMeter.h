#pragma once

#include "Mirel/DataModel/GUIWidgets/CLinearParamGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// An image that is seen up to a parameter's position, with a thumb at it. Takes no input. GUI thread.
class CGUIImageParamLinearMeter : public GUI::CLightWidget
{
public:
    /// The parameter is not owned and must outlive the widget.
    CGUIImageParamLinearMeter(const Objects::IConstCaptureParam& param, const SLinearImages& images,
                              GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          viewer(param),
          graphics(images, CLinearParamGraphics::EFill::ToPosition, viewer),
          stateConnections(*this, stateChanged)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUIImageParamLinearMeter() override { SetGraphics(nullptr, false); }

    Controls::CBaseParamViewer& GetViewer() { return viewer; }
    CLinearParamGraphics& GetMeterGraphics() { return graphics; }

    void SetTrack(const CLinearTrack& track) { graphics.SetTrack(track); }

private:
    void UpdateState() { graphics.SetState(GetWidgetState(*this, false)); }

    Controls::CBaseParamViewer viewer;
    CLinearParamGraphics graphics;
    Core::TCommand<CGUIImageParamLinearMeter> stateChanged{this, &CGUIImageParamLinearMeter::UpdateState};
    CWidgetStateConnections stateConnections;
};

} // namespace Mirel::DataModel::GUIWidgets
