#include "Mirel/DataModel/GUIWidgets/CFineEditOpener.h"

namespace Mirel::DataModel::GUIWidgets
{

CFineEditOpener::CFineEditOpener(GUI::INativePlatform& platform_, const GUI::CPopupLook& look_,
                                 GUI::CWindowBase* window_)
    : platform(platform_),
      look(look_)
{
    owner.window = window_;
}

void CFineEditOpener::OpenFineEdit(Controls::CParamControl& control, Core::CPoint position)
{
    dialog.reset();
    if (!control.IsEditable())
    {
        return;
    }
    dialog = std::make_unique<CGUISysParamFineEditDialog>(platform, look, control, position, owner,
                                                          [this] { dialog.reset(); });
    if (!dialog->Open())
    {
        dialog.reset();
    }
}

void CFineEditOpener::CloseFineEdit(const Controls::CParamControl& control)
{
    if (dialog != nullptr && &dialog->GetControl() == &control)
    {
        dialog.reset();
    }
}

} // namespace Mirel::DataModel::GUIWidgets
