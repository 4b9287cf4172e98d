#pragma once

#include "Mirel/DataModel/GUIWidgets/CGUISysParamFineEditDialog.h"
#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"

#include <memory>

namespace Mirel::DataModel::GUIWidgets
{

/// Opens fine-edit dialogs over one window, which gets no input meanwhile. GUI thread only.
class CFineEditOpener : public IFineEditOpener
{
public:
    /// The platform must outlive the object, the window every dialog; null for none.
    CFineEditOpener(GUI::INativePlatform& platform_, const GUI::CPopupLook& look_,
                    GUI::CWindowBase* window_ = nullptr);
    CFineEditOpener(const CFineEditOpener&) = delete;
    CFineEditOpener& operator=(const CFineEditOpener&) = delete;

    void OpenFineEdit(Controls::CParamControl& control, Core::CPoint position) override;

    /// Closes the dialog of a control that is going, without setting anything.
    void CloseFineEdit(const Controls::CParamControl& control);

    /// Null while none is open.
    CGUISysParamFineEditDialog* GetDialog() const { return dialog.get(); }

private:
    GUI::INativePlatform& platform;
    GUI::CPopupLook look;
    GUI::SDialogOwner owner;
    std::unique_ptr<CGUISysParamFineEditDialog> dialog;
};

} // namespace Mirel::DataModel::GUIWidgets
