#include "Mirel/GUI/DrawnDialogs/CTextDialog.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr int width = 180;
constexpr int margin = 10;

/// More than anybody types into one line.
constexpr std::size_t longestText = 256;

CSize GetDialogSize(const CPopupLook& look)
{
    constexpr int padding = 10; // of the field
    return {width, GetLineHeight(look.font) + padding + 2 * margin};
}

} // namespace

CTextDialog::CTextDialog(INativePlatform& platform_, const CPopupLook& look_, const std::string& title,
                         const std::string& text, CPoint place, const SDialogOwner& owner_, Taker take_,
                         std::function<void()> closed_)
    : CDrawnDialog(platform_, look_, title, GetDialogSize(look_), owner_, false, place),
      take(std::move(take_)),
      closed(std::move(closed_)),
      field(std::make_unique<CTextField>(&GetRoot(), look_))
{
    field->SetMaxLength(longestText);
    field->SetConfirmHandler([this] { Confirm(); });
    SetFirstFocus(*field);
    CTextDialog::OnLayout(GetSize());
    field->SetText(text);
    field->SelectAll();
}

void CTextDialog::OnLayout(CSize size)
{
    field->SetSize({std::max(size.width - 2 * margin, 1), field->GetNaturalHeight()});
    field->Move({margin, std::max((size.height - field->GetNaturalHeight()) / 2, 0)});
}

void CTextDialog::Confirm()
{
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    const Taker handOver = take; // The dialog may go meanwhile; so for the text.
    const bool isTaken = handOver(std::string(field->GetText()));
    if (!watch.IsAlive())
    {
        return;
    }
    if (isTaken)
    {
        Close();
        return;
    }
    field->SetWrong(true);
    field->SelectAll();
}

void CTextDialog::Close()
{
    if (const auto call = std::exchange(closed, nullptr); call)
    {
        call();
    }
}

} // namespace Mirel::GUI
