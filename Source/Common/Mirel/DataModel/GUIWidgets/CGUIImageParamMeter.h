#pragma once

#include "Mirel/DataModel/GUIWidgets/CParamKnobGraphics.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// A film strip that shows a parameter and takes no input. Its catalog is as that of CGUIImageParamKnob. GUI
/// thread.
class CGUIImageParamMeter : public GUI::CLightWidget
{
public:
    /// The parameter is not owned and must outlive the widget; the rest as of CMultiFilmStripDrawer.
    CGUIImageParamMeter(const Objects::IConstCaptureParam& param, Graphics::CImageCatalog* catalog,
                        bool owned, int framesCount,
                        Graphics::CMultiFilmStripDrawer::EOrientation orientation,
                        GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          viewer(param),
          graphics(catalog, owned, framesCount, orientation, viewer),
          stateConnections(*this, stateChanged)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUIImageParamMeter() override { SetGraphics(nullptr, false); }

    Controls::CBaseParamViewer& GetViewer() { return viewer; }
    CParamKnobGraphics& GetMeterGraphics() { return graphics; }

private:
    void UpdateState() { graphics.SetState(GetWidgetState(*this, false)); }

    Controls::CBaseParamViewer viewer;
    CParamKnobGraphics graphics;
    Core::TCommand<CGUIImageParamMeter> stateChanged{this, &CGUIImageParamMeter::UpdateState};
    CWidgetStateConnections stateConnections;
};

} // namespace Mirel::DataModel::GUIWidgets
