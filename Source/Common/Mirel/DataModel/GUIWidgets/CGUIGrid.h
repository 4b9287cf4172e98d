#pragma once

#include "Mirel/DataModel/GUIWidgets/CGridGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// A grid over the axes of two parameter descriptions. GUI thread.
class CGUIGrid : public GUI::CLightWidget
{
public:
    /// The descriptions are not owned and must outlive the widget.
    CGUIGrid(const Objects::IConstParamInfo& xInfo, const Objects::IConstParamInfo& yInfo,
             GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          xViewer(xInfo),
          yViewer(yInfo),
          graphics(xViewer, yViewer)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUIGrid() override { SetGraphics(nullptr, false); }

    Controls::CParamViewerConfig& GetXViewer() { return xViewer; }
    Controls::CParamViewerConfig& GetYViewer() { return yViewer; }
    CGridGraphics& GetGridGraphics() { return graphics; }

private:
    Controls::CParamViewerConfig xViewer;
    Controls::CParamViewerConfig yViewer;
    CGridGraphics graphics;
};

} // namespace Mirel::DataModel::GUIWidgets
