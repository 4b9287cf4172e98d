#pragma once

#include "Mirel/DataModel/GUIWidgets/CCurveGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Shows a curve. A widget that is hidden evaluates nothing, and one that is shown only what changed. GUI
/// thread.
class CGUICurveViewer : public GUI::CLightWidget
{
public:
    /// The curve is not owned and must outlive the widget.
    explicit CGUICurveViewer(const Objects::IConstCaptureCurve& curve, GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          viewer(curve),
          graphics(viewer)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUICurveViewer() override { SetGraphics(nullptr, false); }

    Controls::CCurveViewer& GetViewer() { return viewer; }
    CCurveGraphics& GetCurveGraphics() { return graphics; }

private:
    Controls::CCurveViewer viewer;
    CCurveGraphics graphics;
};

} // namespace Mirel::DataModel::GUIWidgets
