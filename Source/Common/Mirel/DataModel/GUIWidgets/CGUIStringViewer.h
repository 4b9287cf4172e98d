#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CBaseStringViewer.h"
#include "Mirel/GUI/CTextLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Shows a string of the model. GUI thread.
class CGUIStringViewer : public GUI::CTextLightWidget
{
public:
    /// The string is not owned and must outlive the widget.
    explicit CGUIStringViewer(const Objects::IConstCaptureString& string,
                              GUI::CLightWidget* parent_ = nullptr)
        : CTextLightWidget(parent_),
          viewer(string),
          connection(&viewer.GetTextChangedEventProvider(), &textChanged)
    {
        SetText(viewer.GetText());
    }

    Controls::CBaseStringViewer& GetViewer() { return viewer; }

    /// Lets the widget take the size of its text, now and with every other text, along the axes that are
    /// named.
    void FitToText(bool fitWidth, bool fitHeight)
    {
        fitsWidth = fitWidth;
        fitsHeight = fitHeight;
        Fit();
    }

private:
    void OnTextChanged()
    {
        SetText(viewer.GetText());
        Fit();
    }

    void Fit()
    {
        if (!fitsWidth && !fitsHeight)
        {
            return;
        }
        const Core::CSize size = GetSize();
        const Core::CSize needed = GetTextDrawer().GetNaturalSize(fitsWidth ? 0 : size.width);
        SetSize({fitsWidth ? needed.width : size.width, fitsHeight ? needed.height : size.height});
    }

    Controls::CBaseStringViewer viewer;
    bool fitsWidth = false;
    bool fitsHeight = false;
    Core::TCommand<CGUIStringViewer> textChanged{this, &CGUIStringViewer::OnTextChanged};
    CoreUtilities::CCallbackHelper connection;
};

} // namespace Mirel::DataModel::GUIWidgets
