#pragma once

#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"
#include "Mirel/GUI/CTextLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Shows a parameter's value as text. GUI thread.
class CGUIParamTextWidget : public GUI::CTextLightWidget
{
public:
    /// The parameter is not owned and must outlive the widget.
    explicit CGUIParamTextWidget(const Objects::IConstCaptureParam& param,
                                 GUI::CLightWidget* parent_ = nullptr)
        : CTextLightWidget(parent_),
          viewer(param),
          textConnection(&viewer.GetTextChangedEventProvider(), &textChanged)
    {
        UpdateText();
    }

    Controls::CBaseParamTextViewer& GetTextViewer() { return viewer; }

private:
    void UpdateText() { SetText(viewer.GetText()); }

    Controls::CBaseParamTextViewer viewer;
    Core::TCommand<CGUIParamTextWidget> textChanged{this, &CGUIParamTextWidget::UpdateText};
    CoreUtilities::CCallbackHelper textConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
