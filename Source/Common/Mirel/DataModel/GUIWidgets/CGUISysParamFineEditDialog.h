#pragma once

#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"
#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/GUI/DrawnDialogs/CTextDialog.h"

#include <functional>
#include <string>

namespace Mirel::DataModel::GUIWidgets
{

/// The small window in which a value is typed, beginning with that of a control. GUI thread only.
class CGUISysParamFineEditDialog : public GUI::CTextDialog
{
public:
    /// The control must outlive the dialog. position: device pixels of the screen. closed is called once,
    /// when the user is done; it may destroy the dialog.
    CGUISysParamFineEditDialog(GUI::INativePlatform& platform_, const GUI::CPopupLook& look_,
                               Controls::CParamControl& control_, Core::CPoint position,
                               const GUI::SDialogOwner& owner_, std::function<void()> closed_);

    const Controls::CParamControl& GetControl() const { return control; }

private:
    bool SetValue(const std::string& text);

    Controls::CParamControl& control;
};

} // namespace Mirel::DataModel::GUIWidgets
