#include "Mirel/DataModel/GUIWidgets/CGUISysParamFineEditDialog.h"

#include "Mirel/DataModel/Controls/TextToValue.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

constexpr int width = 180;
constexpr int margin = 10;

/// No value has a longer text.
constexpr std::size_t longestText = 256;

Core::CSize GetDialogSize(const GUI::CPopupLook& look)
{
    constexpr int padding = 10; // of the field
    return {width, GUI::GetLineHeight(look.font) + padding + 2 * margin};
}

} // namespace

CGUISysParamFineEditDialog::CGUISysParamFineEditDialog(GUI::INativePlatform& platform_,
                                                       const GUI::CPopupLook& look_,
                                                       Controls::CParamControl& control_,
                                                       Core::CPoint position, const GUI::SDialogOwner& owner_,
                                                       std::function<void()> closed_)
    : CDrawnDialog(platform_, look_, "Edit Value", GetDialogSize(look_), owner_, false, position),
      control(control_),
      closed(std::move(closed_)),
      field(std::make_unique<GUI::CTextField>(&GetRoot(), look_))
{
    field->SetMaxLength(longestText);
    field->SetConfirmHandler([this] { Confirm(); });
    AddStop(*field);
    OnLayout(GetSize());
    field->SetText(Controls::CBaseParamTextViewer(control.GetParam()).GetText());
    field->SelectAll();
}

void CGUISysParamFineEditDialog::OnLayout(Core::CSize size)
{
    field->SetSize({std::max(size.width - 2 * margin, 1), field->GetNaturalHeight()});
    field->Move({margin, std::max((size.height - field->GetNaturalHeight()) / 2, 0)});
}

void CGUISysParamFineEditDialog::Confirm()
{
    float value = 0.0F;
    if (!Controls::TextToValue(control.GetInfo(), field->GetText(), value) || std::isnan(value))
    {
        field->SetWrong(true);
        field->SelectAll();
        return;
    }
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    control.BeginEdit();
    control.SetValue(value);
    if (watch.IsAlive())
    {
        control.EndEdit();
        Close();
    }
}

void CGUISysParamFineEditDialog::Close()
{
    if (const auto call = std::exchange(closed, nullptr); call)
    {
        call();
    }
}

} // namespace Mirel::DataModel::GUIWidgets
