#include "Mirel/GUI/Controls/CTextField.h"

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CTextLayout.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr int padding = 6;
constexpr int blinkPeriodMs = 530;

using EUnit = CTextEditing::EUnit;

} // namespace

CTextField::CTextField(CLightWidget* parent_, const CPopupLook& look_)
    : CDrawnControl(parent_, look_),
      self(std::make_shared<CTextField*>(this))
{
    SetCursor(std::make_shared<CCursor>(ECursorShape::IBeam));
}

CTextField::~CTextField()
{
    StopBlinking();
}

void CTextField::SetText(const std::string& text)
{
    editing.SetText(text);
    scroll = 0;
    isWrong = false;
    AfterMove();
}

void CTextField::SelectAll()
{
    editing.SelectAll();
    AfterMove();
}

void CTextField::SetWrong(bool newWrong)
{
    isWrong = newWrong;
    Invalidate();
}

int CTextField::GetNaturalHeight() const
{
    constexpr int verticalPadding = 5;
    return GetLineHeight(GetLook().font) + 2 * verticalPadding;
}

void CTextField::Paint(Graphics::CDrawSurface& surface, CSize size)
{
    ScrollToCaret(); // The size may be another than when the text was set.
    const CPopupLook& look = GetLook();
    surface.SetFillColor(look.field);
    surface.FillRect({CPoint(), size});
    const Graphics::CColor edge = HasFocus() ? look.accent : look.border;
    DrawFrame(surface, {CPoint(), size}, isWrong ? look.error : edge);
    surface.SaveState();
    surface.ClipToRect({padding - 1, 1, size.width - 2 * padding + 2, size.height - 2});
    const int height = GetLineHeight(look.font);
    const int top = (size.height - height) / 2;
    const auto xOf = [this](std::size_t place) { return padding - scroll + GetX(place); };
    surface.SetFont(look.font);
    surface.SetPenColor(IsEnabled() ? look.text : look.disabledText);
    surface.DrawText(GetText().c_str(), {padding - scroll, top});
    if (editing.HasSelection() && HasFocus())
    {
        const int begin = xOf(editing.GetSelectionBegin());
        const CRect selection = {begin, top, xOf(editing.GetSelectionEnd()) - begin, height};
        surface.SetFillColor(look.accent);
        surface.FillRect(selection);
        surface.ClipToRect(selection);
        surface.SetPenColor(look.onAccent);
        surface.DrawText(GetText().c_str(), {padding - scroll, top});
    }
    else if (HasFocus() && isCaretSeen)
    {
        surface.SetFillColor(look.text);
        surface.FillRect({xOf(editing.GetCaret()), top, 1, height});
    }
    surface.RestoreState();
}

bool CTextField::OnLeftDown(const COSXMouseEvent& event)
{
    editing.MoveTo(FindPosition(event.position.x), event.IsModifierDown(EModifierKey::Shift));
    AfterMove();
    return true;
}

bool CTextField::OnLeftDoubleClick(const COSXMouseEvent& event)
{
    editing.SelectWordAt(FindPosition(event.position.x));
    AfterMove();
    return true;
}

bool CTextField::OnMouseDrag(const COSXMouseEvent& event)
{
    editing.MoveTo(FindPosition(event.position.x), true);
    AfterMove();
    return true;
}

bool CTextField::AcceptsKey(const COSXKeyEvent& event)
{
    switch (event.key)
    {
    case ENativeKey::Character:
        return !event.text.empty() || event.IsModifierDown(EModifierKey::Control);
    case ENativeKey::Return:
        return static_cast<bool>(confirmed);
    case ENativeKey::Left:
    case ENativeKey::Right:
    case ENativeKey::Home:
    case ENativeKey::End:
    case ENativeKey::Backspace:
    case ENativeKey::Delete:
    case ENativeKey::Insert:
        return true;
    default:
        return false;
    }
}

bool CTextField::OnKeyDown(const COSXKeyEvent& event)
{
    if (event.key == ENativeKey::Return && confirmed)
    {
        const auto call = confirmed; // The field may go.
        call();
        return true;
    }
    const EUnit unit = event.IsModifierDown(EModifierKey::Control) ? EUnit::Word : EUnit::Character;
    return UseClipboard(event) || MoveCaret(event, unit, event.IsModifierDown(EModifierKey::Shift)) ||
           Edit(event);
}

bool CTextField::Edit(const COSXKeyEvent& event)
{
    const EUnit unit = event.IsModifierDown(EModifierKey::Control) ? EUnit::Word : EUnit::Character;
    bool isChanged = false;
    switch (event.key)
    {
    case ENativeKey::Backspace:
        isChanged = editing.Delete(unit, false);
        break;
    case ENativeKey::Delete:
        isChanged = editing.Delete(unit, true);
        break;
    default:
        isChanged = !event.text.empty() && editing.Insert(event.text);
    }
    if (isChanged)
    {
        AfterChange();
    }
    return true;
}

bool CTextField::MoveCaret(const COSXKeyEvent& event, EUnit unit, bool isExtending)
{
    switch (event.key)
    {
    case ENativeKey::Left:
        editing.Move(unit, false, isExtending);
        break;
    case ENativeKey::Right:
        editing.Move(unit, true, isExtending);
        break;
    case ENativeKey::Home:
        editing.Move(EUnit::Line, false, isExtending);
        break;
    case ENativeKey::End:
        editing.Move(EUnit::Line, true, isExtending);
        break;
    default:
        return false;
    }
    AfterMove();
    return true;
}

bool CTextField::UseClipboard(const COSXKeyEvent& event)
{
    const bool isControl = event.IsModifierDown(EModifierKey::Control);
    const bool isShift = event.IsModifierDown(EModifierKey::Shift);
    const bool isLetter = event.key == ENativeKey::Character && isControl;
    const auto is = [&](char32_t letter)
    { return isLetter && (event.character == letter || event.character == letter - U'a' + U'A'); };
    if (is(U'a'))
    {
        SelectAll();
    }
    else if (is(U'c') || (event.key == ENativeKey::Insert && isControl))
    {
        Copy();
    }
    else if (is(U'x') || (event.key == ENativeKey::Delete && isShift))
    {
        Copy();
        if (editing.HasSelection() && editing.Delete(EUnit::Character, true))
        {
            AfterChange();
        }
    }
    else if (is(U'v') || (event.key == ENativeKey::Insert && isShift))
    {
        Paste();
    }
    else
    {
        return false;
    }
    return true;
}

void CTextField::Copy() const
{
    INativePlatform* const platform = FindPlatform();
    if (platform != nullptr && editing.HasSelection())
    {
        platform->SetClipboardText(editing.GetSelectedText());
    }
}

void CTextField::Paste()
{
    INativePlatform* const platform = FindPlatform();
    if (platform == nullptr)
    {
        return;
    }
    platform->RequestClipboardText(
        [field = std::weak_ptr<CTextField*>(self)](const std::string& text)
        {
            const auto alive = field.lock();
            if (alive != nullptr && !text.empty() && (*alive)->editing.Insert(text))
            {
                (*alive)->AfterChange();
            }
        });
}

bool CTextField::OnFocusGained()
{
    isCaretSeen = true;
    if (INativePlatform* const platform = FindPlatform(); platform != nullptr && timer == 0)
    {
        loop = &platform->GetRunLoop();
        timer = loop->AddTimer(blinkPeriodMs,
                               [this]
                               {
                                   isCaretSeen = !isCaretSeen;
                                   Invalidate();
                               });
    }
    return CDrawnControl::OnFocusGained();
}

bool CTextField::OnFocusLost()
{
    StopBlinking();
    return CDrawnControl::OnFocusLost();
}

void CTextField::AfterMove()
{
    isCaretSeen = true;
    ScrollToCaret();
    Invalidate();
}

void CTextField::AfterChange()
{
    isWrong = false;
    AfterMove();
    if (changed)
    {
        const auto call = changed; // The field may go.
        call();
    }
}

/// Pixels from the beginning of the text.
int CTextField::GetX(std::size_t place) const
{
    const auto& font = GetLook().font;
    const std::string before = GetText().substr(0, place);
    const auto layout = font == nullptr || before.empty() ? nullptr : font->LayOut(before.c_str(), {});
    return layout == nullptr ? 0 : Core::TruncateToInt32(std::round(layout->GetWidth()));
}

/// The boundary between characters that is nearest.
std::size_t CTextField::FindPosition(int x) const
{
    const int wanted = x - padding + scroll;
    std::size_t place = 0;
    while (place < GetText().size())
    {
        const std::size_t next = editing.Step(place, true);
        if (wanted * 2 < GetX(place) + GetX(next))
        {
            break;
        }
        place = next;
    }
    return place;
}

void CTextField::ScrollToCaret()
{
    const int room = std::max(GetSize().width - 2 * padding - 1, 0);
    const int x = GetX(editing.GetCaret());
    const int end = std::max(GetX(GetText().size()) - room, 0);
    scroll = std::min(std::clamp(scroll, std::max(x - room, 0), std::max(x, 0)), end);
}

void CTextField::StopBlinking()
{
    if (timer != 0)
    {
        loop->RemoveTimer(std::exchange(timer, 0));
    }
}

} // namespace Mirel::GUI
