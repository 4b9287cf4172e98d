#pragma once

#include "Mirel/DataModel/GUIWidgets/CXYCurvesGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Shows one curve against another. GUI thread.
class CXYCurvesViewer : public GUI::CLightWidget
{
public:
    /// The curves are not owned and must outlive the widget.
    CXYCurvesViewer(const Objects::IConstCaptureCurve& xCurve, const Objects::IConstCaptureCurve& yCurve,
                    GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          xViewer(xCurve),
          yViewer(yCurve),
          graphics(xViewer, yViewer)
    {
        SetGraphics(&graphics, false);
    }
    ~CXYCurvesViewer() override { SetGraphics(nullptr, false); }

    Controls::CCurveViewer& GetXViewer() { return xViewer; }
    Controls::CCurveViewer& GetYViewer() { return yViewer; }
    CXYCurvesGraphics& GetCurvesGraphics() { return graphics; }

private:
    Controls::CCurveViewer xViewer;
    Controls::CCurveViewer yViewer;
    CXYCurvesGraphics graphics;
};

} // namespace Mirel::DataModel::GUIWidgets
