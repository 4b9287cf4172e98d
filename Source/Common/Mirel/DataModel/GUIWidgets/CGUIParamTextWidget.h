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
                                 GUI::CLightWidget* parent_ = nullptr);

    Controls::CBaseParamTextViewer& GetTextViewer() { return viewer; }

    /// Lets the widget take the size of the longest text that a value is known to have, now and with every
    /// change of the description, along the axes that are named. Font and format must stand.
    void FitToValues(bool fitWidth, bool fitHeight);

private:
    void UpdateText() { SetText(viewer.GetText()); }
    void Fit();
    Core::CSize MeasureValues() const;

    Controls::CBaseParamTextViewer viewer;
    bool fitsWidth = false;
    bool fitsHeight = false;
    Core::TCommand<CGUIParamTextWidget> textChanged{this, &CGUIParamTextWidget::UpdateText};
    Core::TCommand<CGUIParamTextWidget> infoChanged{this, &CGUIParamTextWidget::Fit};
    CoreUtilities::CCallbackHelper textConnection;
    CoreUtilities::CCallbackHelper infoConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
