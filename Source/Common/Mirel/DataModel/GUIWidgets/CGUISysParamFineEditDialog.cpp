#include "Mirel/DataModel/GUIWidgets/CGUISysParamFineEditDialog.h"

#include "Mirel/DataModel/Controls/TextToValue.h"

#include <cmath>
#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

CGUISysParamFineEditDialog::CGUISysParamFineEditDialog(GUI::INativePlatform& platform_,
                                                       const GUI::CPopupLook& look_,
                                                       Controls::CParamControl& control_,
                                                       Core::CPoint position, const GUI::SDialogOwner& owner_,
                                                       std::function<void()> closed_)
    : CTextDialog(
          platform_, look_, "Edit Value", Controls::CBaseParamTextViewer(control_.GetParam()).GetText(),
          position, owner_, [this](const std::string& text) { return SetValue(text); }, std::move(closed_)),
      control(control_)
{
}

/// In one gesture, whose listeners may destroy the dialog.
bool CGUISysParamFineEditDialog::SetValue(const std::string& text)
{
    float value = 0.0F;
    if (!Controls::TextToValue(control.GetInfo(), text, value) || std::isnan(value))
    {
        return false;
    }
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    control.BeginEdit();
    control.SetValue(value);
    if (watch.IsAlive())
    {
        control.EndEdit();
    }
    return true;
}

} // namespace Mirel::DataModel::GUIWidgets
