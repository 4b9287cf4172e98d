#include "Mirel/GUI/DrawnDialogs/CAlertDialog.h"

#include "Mirel/GUI/DrawnDialogs/CAlertIcon.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr int margin = 16;
constexpr int spacing = 8;
constexpr int iconSide = 32;
constexpr int widestText = 400;
constexpr int highestText = 440;
constexpr int smallestWidth = 300;
constexpr int buttonRow = 26;

CSize GetTextSize(const CPopupLook& look, const SMessage& message)
{
    const CSize size = MeasureText(look.font, message.text, widestText);
    return {std::min(size.width + 1, widestText), std::min(size.height, highestText)};
}

CSize GetDialogSize(const CPopupLook& look, const SMessage& message)
{
    const CSize text = GetTextSize(look, message);
    return {std::max(3 * margin + iconSide + text.width, smallestWidth),
            3 * margin + std::max(text.height, iconSide) + buttonRow};
}

} // namespace

CAlertDialog::CAlertDialog(INativePlatform& platform_, const CPopupLook& look_, const SMessage& message,
                           const SDialogOwner& owner_, IDialogs::MessageReceiver answered_)
    : CDrawnDialog(platform_, look_, message.title, GetDialogSize(look_, message), owner_),
      kind(message.buttons),
      answered(std::move(answered_))
{
    icon = std::make_unique<CLightWidget>(&GetRoot(), new CAlertIcon(message.kind, look_), true);
    icon->SetSize({iconSide, iconSide});
    icon->Move({margin, margin});
    const CSize textSize = GetTextSize(look_, message);
    text = std::make_unique<CTextLightWidget>(&GetRoot());
    Graphics::CTextFormat format;
    format.flags |= Graphics::CTextFormat::multiline;
    text->GetTextDrawer().SetFont(look_.font);
    text->GetTextDrawer().SetColor(look_.text);
    text->GetTextDrawer().SetFormat(format);
    text->SetText(message.text.c_str());
    text->SetSize(textSize);
    text->Move({2 * margin + iconSide, margin + std::max((iconSide - textSize.height) / 2, 0)});
    const bool isYesNo = kind == EMessageButtons::YesNo || kind == EMessageButtons::YesNoCancel;
    AddButton(isYesNo ? "Yes" : "OK", EMessageAnswer::Yes);
    if (isYesNo)
    {
        AddButton("No", EMessageAnswer::No);
    }
    if (kind == EMessageButtons::OkCancel || kind == EMessageButtons::YesNoCancel)
    {
        AddButton("Cancel", EMessageAnswer::Cancel);
    }
    const CSize size = GetDialogSize(look_, message);
    int x = size.width - margin;
    for (auto place = buttons.rbegin(); place != buttons.rend(); ++place)
    {
        CPushButton& button = **place;
        x -= button.GetSize().width;
        button.Move({x, size.height - margin - button.GetSize().height});
        x -= spacing;
    }
    buttons.front()->SetDefault(true);
    SetFirstFocus(*buttons.front());
}

CPushButton* CAlertDialog::GetButton(int index) const
{
    return index >= 0 && index < static_cast<int>(buttons.size())
               ? buttons[static_cast<std::size_t>(index)].get()
               : nullptr;
}

void CAlertDialog::AddButton(const char* shown, EMessageAnswer answer)
{
    buttons.push_back(
        std::make_unique<CPushButton>(&GetRoot(), GetLook(), shown, [this, answer] { Answer(answer); }));
}

void CAlertDialog::OnGiveUp()
{
    switch (kind)
    {
    case EMessageButtons::Ok:
        Answer(EMessageAnswer::Yes);
        break;
    case EMessageButtons::YesNo:
        Answer(EMessageAnswer::No);
        break;
    default:
        Answer(EMessageAnswer::Cancel);
    }
}

bool CAlertDialog::OnSpareKey(const COSXKeyEvent& event)
{
    switch (event.key)
    {
    case ENativeKey::Left:
        MoveFocus(-1);
        return true;
    case ENativeKey::Right:
        MoveFocus(1);
        return true;
    case ENativeKey::Return:
        buttons.front()->Push();
        return true;
    default:
        return false;
    }
}

void CAlertDialog::Answer(EMessageAnswer answer)
{
    if (const auto call = std::exchange(answered, nullptr); call)
    {
        call(answer);
    }
}

void CAlertDialog::MoveFocus(int step)
{
    const auto focused =
        std::find_if(buttons.begin(), buttons.end(), [](const auto& button) { return button->HasFocus(); });
    const int index = focused == buttons.end() ? 0 : static_cast<int>(focused - buttons.begin()) + step;
    if (CPushButton* const button = GetButton(index); button != nullptr)
    {
        button->SetFocus();
    }
}

} // namespace Mirel::GUI
