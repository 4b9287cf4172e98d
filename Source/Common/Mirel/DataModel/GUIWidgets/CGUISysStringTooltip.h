#pragma once

#include "Mirel/DataModel/Controls/CBaseStringViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUISysTooltip.h"

#include <optional>

namespace Mirel::DataModel::GUIWidgets
{

/// A tooltip that tells a string, or a text that stays. GUI thread.
class CGUISysStringTooltip : public CGUISysTooltip
{
public:
    /// The string is not owned and must outlive the widget; the rest as of CGUISysTooltip.
    CGUISysStringTooltip(const Objects::IConstCaptureString& string, GUI::CHostTooltips* tips_,
                         GUI::CLightWidget* parent_ = nullptr)
        : CGUISysTooltip(tips_, parent_),
          viewer(std::in_place, string),
          textConnection(&viewer->GetTextChangedEventProvider(), &textChanged)
    {
    }

    /// Null is the empty text.
    CGUISysStringTooltip(const char* text_, GUI::CHostTooltips* tips_, GUI::CLightWidget* parent_ = nullptr)
        : CGUISysTooltip(tips_, parent_),
          text(text_ == nullptr ? "" : text_),
          textConnection(nullptr, nullptr)
    {
    }

    std::string GetTipText() const override { return viewer.has_value() ? viewer->GetText() : text; }

private:
    std::optional<Controls::CBaseStringViewer> viewer;
    std::string text;
    Core::TCommand<CGUISysStringTooltip> textChanged{this, &CGUISysStringTooltip::OnTextChanged};
    CoreUtilities::CCallbackHelper textConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
