#pragma once

#include "Mirel/DataModel/Controls/CBaseStringViewer.h"
#include "Mirel/GUI/CTextLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Shows a string. GUI thread.
class CGUIStringViewer : public GUI::CTextLightWidget
{
public:
    /// The string is not owned and must outlive the widget.
    explicit CGUIStringViewer(const Objects::IConstCaptureString& string,
                              GUI::CLightWidget* parent_ = nullptr)
        : CTextLightWidget(parent_),
          viewer(string),
          textConnection(&viewer.GetTextChangedEventProvider(), &textChanged)
    {
        UpdateText();
    }

    Controls::CBaseStringViewer& GetViewer() { return viewer; }

private:
    void UpdateText() { SetText(viewer.GetText()); }

    Controls::CBaseStringViewer viewer;
    Core::TCommand<CGUIStringViewer> textChanged{this, &CGUIStringViewer::UpdateText};
    CoreUtilities::CCallbackHelper textConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
