#pragma once

#include "Mirel/DataModel/GUIWidgets/CGUIRulerGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The scale of a parameter's description. GUI thread.
class CGUIRuler : public GUI::CLightWidget
{
public:
    /// The description is not owned and must outlive the widget.
    explicit CGUIRuler(const Objects::IConstParamInfo& info, GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          viewer(info),
          graphics(viewer)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUIRuler() override { SetGraphics(nullptr, false); }

    Controls::CParamViewerConfig& GetViewer() { return viewer; }
    CGUIRulerGraphics& GetRulerGraphics() { return graphics; }

private:
    Controls::CParamViewerConfig viewer;
    CGUIRulerGraphics graphics;
};

} // namespace Mirel::DataModel::GUIWidgets
