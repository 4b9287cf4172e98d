#pragma once

#include "Mirel/GUI/Native/Dialogs/CMenu.h"
#include "Mirel/GUI/PointMath.h"
#include "Mirel/GUI/Popups/CPopupLook.h"

#include <vector>

namespace Mirel::GUI
{

/// Where the items of a menu stand, in skin pixels from the top left of the menu as if it were shown whole.
/// GUI thread only.
class CMenuLayout
{
public:
    static constexpr int none = -1;
    static constexpr int margin = 4;
    static constexpr int textLeft = 26; ///< leaves room for the check mark
    static constexpr int arrowWidth = 18;

    /// The menu must outlive the object.
    CMenuLayout(const CMenu& menu_, const CPopupLook& look);

    const CMenu& GetMenu() const { return menu; }
    int GetCount() const { return static_cast<int>(items.size()); }
    const SMenuItem& GetItem(int index) const { return menu.GetItems()[static_cast<std::size_t>(index)]; }
    CSize GetSize() const { return size; }
    CRect GetItemRect(int index) const { return items[static_cast<std::size_t>(index)]; }

    /// The item at a height; none for margins. Separators count.
    int Find(int y) const;

    /// Whether an item can be chosen or opened.
    bool IsSelectable(int index) const;

    /// The next item that can be, from the given one (or none) on, in steps of 1 or -1, round the ends; none
    /// if there is not one.
    int FindNext(int from, int step) const;

    /// The next after the given one whose text begins with the character, of ASCII letters either case.
    int FindByLetter(int from, const std::string& letter) const;

private:
    const CMenu& menu;
    CSize size;
    std::vector<CRect> items;
};

} // namespace Mirel::GUI
