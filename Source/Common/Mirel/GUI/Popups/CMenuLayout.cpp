#include "Mirel/GUI/Popups/CMenuLayout.h"

#include <algorithm>

namespace Mirel::GUI
{

namespace
{

constexpr int rowPadding = 4;
constexpr int separatorHeight = 9;
constexpr int shortcutGap = 24;
constexpr int smallestWidth = 80;
constexpr int widestText = 600;

char ToLower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool BeginsWith(const std::string& text, const std::string& beginning)
{
    const auto isSame = [](char a, char b) { return ToLower(a) == ToLower(b); };
    return text.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), text.begin(), isSame);
}

} // namespace

CMenuLayout::CMenuLayout(const CMenu& menu_, const CPopupLook& look) : menu(menu_)
{
    const int rowHeight = GetLineHeight(look.font) + 2 * rowPadding;
    int textWidth = 0;
    int shortcutWidth = 0;
    for (const SMenuItem& item : menu.GetItems())
    {
        textWidth = std::max(textWidth, MeasureText(look.font, item.text).width);
        shortcutWidth = std::max(shortcutWidth, MeasureText(look.font, item.shortcut).width);
    }
    const int shortcutSpace = shortcutWidth > 0 ? shortcutWidth + shortcutGap : 0;
    const int width =
        std::max(textLeft + std::min(textWidth, widestText) + shortcutSpace + arrowWidth, smallestWidth);
    int y = margin;
    for (const SMenuItem& item : menu.GetItems())
    {
        items.emplace_back(margin, y, width, item.isSeparator ? separatorHeight : rowHeight);
        y += items.back().height;
    }
    size = {width + 2 * margin, y + margin};
}

int CMenuLayout::Find(int y) const
{
    const auto found =
        std::find_if(items.begin(), items.end(),
                     [y](const CRect& item) { return y >= item.y && y < item.y + item.height; });
    return found == items.end() ? none : static_cast<int>(found - items.begin());
}

bool CMenuLayout::IsSelectable(int index) const
{
    return index >= 0 && index < GetCount() && !GetItem(index).isSeparator && GetItem(index).isEnabled;
}

int CMenuLayout::FindNext(int from, int step) const
{
    const int count = GetCount();
    int index = from == none && step < 0 ? count : from;
    for (int i = 0; i < count; ++i)
    {
        index = (index + step + count) % count;
        if (IsSelectable(index))
        {
            return index;
        }
    }
    return none;
}

int CMenuLayout::FindByLetter(int from, const std::string& letter) const
{
    int index = from;
    for (int i = 0; i < GetCount() && !letter.empty(); ++i)
    {
        index = FindNext(index, 1);
        if (index != none && BeginsWith(GetItem(index).text, letter))
        {
            return index;
        }
    }
    return none;
}

} // namespace Mirel::GUI
