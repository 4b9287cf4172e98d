#pragma once

#include "Mirel/DataModel/GUIWidgets/CParamKnobGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// A film strip that shows a parameter and takes no input. GUI thread.
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
          graphics(catalog, owned, framesCount, orientation, viewer)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUIImageParamMeter() override { SetGraphics(nullptr, false); }

    Controls::CBaseParamViewer& GetViewer() { return viewer; }
    CParamKnobGraphics& GetMeterGraphics() { return graphics; }

private:
    Controls::CBaseParamViewer viewer;
    CParamKnobGraphics graphics;
};

} // namespace Mirel::DataModel::GUIWidgets
