#pragma once

#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"
#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/GUI/Controls/CTextField.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialog.h"

#include <functional>
#include <memory>

namespace Mirel::DataModel::GUIWidgets
{

/// The small window in which a value is typed: it shows the value's text, selected. Return sets the value and
/// closes it, a text that stands for no value stays for another try; escape closes it. GUI thread only.
class CGUISysParamFineEditDialog : public GUI::CDrawnDialog
{
public:
    /// The control must outlive the dialog. position: device pixels of the screen. closed is called once,
    /// when the user is done; it may destroy the dialog.
    CGUISysParamFineEditDialog(GUI::INativePlatform& platform_, const GUI::CPopupLook& look_,
                               Controls::CParamControl& control_, Core::CPoint position,
                               const GUI::SDialogOwner& owner_, std::function<void()> closed_);

    const Controls::CParamControl& GetControl() const { return control; }
    GUI::CTextField& GetField() const { return *field; }

protected:
    void OnGiveUp() override { Close(); }
    void OnLayout(Core::CSize size) override;

private:
    void Confirm();
    void Close();

    Controls::CParamControl& control;
    std::function<void()> closed;
    std::unique_ptr<GUI::CTextField> field;
};

} // namespace Mirel::DataModel::GUIWidgets
