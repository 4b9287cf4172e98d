#include "Mirel/GUI/Controls/CListBox.h"

#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <cmath>

namespace Mirel::GUI
{

namespace
{

constexpr int barWidth = 12;
constexpr int rowPadding = 3;
constexpr int folderWidth = 22;

void DrawFolder(Graphics::CDrawSurface& surface, CPoint place, Graphics::CColor color)
{
    surface.SetFillColor(color);
    surface.FillRect({place.x, place.y, 6, 3});
    surface.FillRect({place.x, place.y + 2, 13, 9});
}

char ToLower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

CListBox::CListBox(CLightWidget* parent_, const CPopupLook& look_) : CDrawnControl(parent_, look_) {}

void CListBox::SetItems(std::vector<SItem> newItems)
{
    items = std::move(newItems);
    selected = none;
    firstRow = 0;
    Invalidate();
}

void CListBox::Select(int index)
{
    selected = index >= 0 && index < GetCount() ? index : none;
    if (selected != none)
    {
        ScrollTo(std::clamp(firstRow, selected - GetVisibleRows() + 1, selected));
    }
    Invalidate();
}

int CListBox::GetRowHeight() const
{
    return GetLineHeight(GetLook().font) + 2 * rowPadding;
}

void CListBox::Paint(Graphics::CDrawSurface& surface, CSize size)
{
    const CPopupLook& look = GetLook();
    surface.SetFillColor(look.field);
    surface.FillRect({CPoint(), size});
    surface.SaveState();
    surface.ClipToRect({1, 1, size.width - 2, size.height - 2});
    const int height = GetRowHeight();
    const int width = size.width - 2 - (HasScrollBar() ? barWidth : 0);
    for (int i = firstRow; i < GetCount() && (i - firstRow) * height < size.height; ++i)
    {
        const CRect row = {1, 1 + (i - firstRow) * height, width, height};
        const SItem& item = GetItem(i);
        const bool isSelected = i == selected;
        if (isSelected)
        {
            surface.SetFillColor(HasFocus() ? look.accent : look.buttonHover);
            surface.FillRect(row);
        }
        const Graphics::CColor color = isSelected && HasFocus() ? look.onAccent : look.text;
        if (item.isFolder)
        {
            DrawFolder(surface, {row.x + 5, row.y + (height - 11) / 2},
                       isSelected && HasFocus() ? look.onAccent : look.accent);
        }
        DrawLabel(surface, look.font, item.text,
                  {row.x + folderWidth + 2, row.y, row.width - folderWidth - 6, height}, color);
    }
    if (HasScrollBar())
    {
        surface.SetFillColor(isDraggingThumb ? look.accent : look.border);
        surface.FillRect(GetThumb());
    }
    surface.RestoreState();
    DrawFrame(surface, {CPoint(), size}, HasFocus() ? look.accent : look.border);
}

bool CListBox::OnLeftDown(const COSXMouseEvent& event)
{
    const bool isOnBar = HasScrollBar() && event.position.x >= GetSize().width - barWidth - 1;
    if (!isOnBar)
    {
        SelectByUser(FindRow(event.position));
        return true;
    }
    const CRect thumb = GetThumb();
    if (event.position.y < thumb.y || event.position.y >= thumb.y + thumb.height)
    {
        ScrollTo(firstRow + (event.position.y < thumb.y ? -GetVisibleRows() : GetVisibleRows()));
        return true;
    }
    isDraggingThumb = true;
    dragStart = event.position.y;
    dragFirstRow = firstRow;
    Invalidate();
    return true;
}

bool CListBox::OnLeftUp(const COSXMouseEvent& /*event*/)
{
    isDraggingThumb = false;
    Invalidate();
    return true;
}

bool CListBox::OnLeftDoubleClick(const COSXMouseEvent& event)
{
    if (selected != none && FindRow(event.position) == selected)
    {
        Activate();
    }
    return true;
}

bool CListBox::OnMouseDrag(const COSXMouseEvent& event)
{
    const int way = GetSize().height - 2 - GetThumb().height;
    if (isDraggingThumb && way > 0)
    {
        const std::int64_t rows = GetCount() - GetVisibleRows();
        ScrollTo(dragFirstRow + static_cast<int>((event.position.y - dragStart) * rows / way));
    }
    return true;
}

bool CListBox::OnMouseWheel(const COSXMouseWheelEvent& event)
{
    constexpr double rowsPerNotch = 3.0;
    ScrollTo(firstRow - Core::TruncateToInt32(std::round(static_cast<double>(event.deltaY) * rowsPerNotch)));
    return true;
}

bool CListBox::AcceptsKey(const COSXKeyEvent& event)
{
    switch (event.key)
    {
    case ENativeKey::Up:
    case ENativeKey::Down:
    case ENativeKey::PageUp:
    case ENativeKey::PageDown:
    case ENativeKey::Home:
    case ENativeKey::End:
        return true;
    case ENativeKey::Return:
        return selected != none && activateHandler;
    case ENativeKey::Character:
        return !event.text.empty();
    default:
        return false;
    }
}

bool CListBox::OnKeyDown(const COSXKeyEvent& event)
{
    const int last = GetCount() - 1;
    const int page = std::max(GetVisibleRows() - 1, 1);
    switch (event.key)
    {
    case ENativeKey::Up:
        SelectByUser(selected == none ? last : std::max(selected - 1, 0));
        break;
    case ENativeKey::Down:
        SelectByUser(std::min(selected + 1, last));
        break;
    case ENativeKey::PageUp:
        SelectByUser(std::max(selected - page, 0));
        break;
    case ENativeKey::PageDown:
        SelectByUser(std::min(selected + page, last));
        break;
    case ENativeKey::Home:
        SelectByUser(0);
        break;
    case ENativeKey::End:
        SelectByUser(last);
        break;
    case ENativeKey::Return:
        Activate();
        break;
    default:
        SelectByUser(FindByLetter(event.text));
    }
    return true;
}

int CListBox::GetVisibleRows() const
{
    return std::max((GetSize().height - 2) / GetRowHeight(), 1);
}

int CListBox::FindRow(CPoint place) const
{
    const int row = place.y < 1 ? none : firstRow + (place.y - 1) / GetRowHeight();
    return row < GetCount() ? row : none;
}

CRect CListBox::GetThumb() const
{
    constexpr int shortest = 16;
    const CSize size = GetSize();
    const int room = size.height - 2;
    const int rows = std::max(GetCount(), 1);
    const int length = std::max(static_cast<int>(std::int64_t{room} * GetVisibleRows() / rows), shortest);
    const int hidden = std::max(GetCount() - GetVisibleRows(), 1);
    const int y = 1 + static_cast<int>(std::int64_t{room - length} * firstRow / hidden);
    return {size.width - barWidth + 1, y, barWidth - 4, length};
}

void CListBox::ScrollTo(int row)
{
    const int wanted = std::clamp(row, 0, std::max(GetCount() - GetVisibleRows(), 0));
    if (wanted != firstRow)
    {
        firstRow = wanted;
        Invalidate();
    }
}

void CListBox::SelectByUser(int index)
{
    if (index < 0 || index >= GetCount() || index == selected)
    {
        return;
    }
    Select(index);
    if (selectHandler)
    {
        const auto call = selectHandler;
        call();
    }
}

void CListBox::Activate() const
{
    if (activateHandler)
    {
        const auto call = activateHandler; // The box may go.
        call();
    }
}

/// The next after the selected one that begins with it.
int CListBox::FindByLetter(const std::string& letter) const
{
    for (int i = 1; i <= GetCount() && !letter.empty(); ++i)
    {
        const int index = (selected + i + GetCount()) % GetCount();
        const std::string& text = GetItem(index).text;
        if (text.size() >= letter.size() &&
            std::equal(letter.begin(), letter.end(), text.begin(),
                       [](char a, char b) { return ToLower(a) == ToLower(b); }))
        {
            return index;
        }
    }
    return none;
}

} // namespace Mirel::GUI
