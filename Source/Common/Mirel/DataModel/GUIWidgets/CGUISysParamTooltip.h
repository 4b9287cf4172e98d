#pragma once

#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysTooltip.h"

namespace Mirel::DataModel::GUIWidgets
{

/// A tooltip that tells a parameter's value. GUI thread.
class CGUISysParamTooltip : public CGUISysTooltip
{
public:
    /// The parameter is not owned and must outlive the widget; the rest as of CGUISysTooltip.
    CGUISysParamTooltip(const Objects::IConstCaptureParam& param, GUI::CHostTooltips* tips_,
                        GUI::CLightWidget* parent_ = nullptr)
        : CGUISysTooltip(tips_, parent_),
          viewer(param),
          textConnection(&viewer.GetTextChangedEventProvider(), &textChanged)
    {
    }

    std::string GetTipText() const override { return viewer.GetText(); }

private:
    Controls::CBaseParamTextViewer viewer;
    Core::TCommand<CGUISysParamTooltip> textChanged{this, &CGUISysParamTooltip::OnTextChanged};
    CoreUtilities::CCallbackHelper textConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
