#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/TOwnership.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::GUI
{

class CMenu;

struct SMenuItem
{
    std::string text;     ///< UTF-8; a separator has none
    std::string shortcut; ///< the keys that do the same, as they are shown beside the text; may be empty
    bool isSeparator = false;
    bool isEnabled = true;
    bool isChecked = false;
    Core::TOwnership<Core::ICommand> command; ///< runs when the item is chosen; may be none
    std::unique_ptr<CMenu> subMenu;           ///< none for an item that can be chosen
};

/// The entries of a menu, from the top. What shows them is an IMenuPresenter. GUI thread only.
class CMenu
{
public:
    /// The item may be changed until the next one is added. A null command makes an item that does nothing.
    SMenuItem& AddItem(const std::string& text, Core::ICommand* command, bool owned);
    void AddSeparator();

    /// The new menu belongs to this one.
    CMenu& AddSubMenu(const std::string& text);

    const std::vector<SMenuItem>& GetItems() const { return items; }

    /// The item that the keys begin at when the menu opens; -1, as at first, for none.
    void SetFirstSelected(int item) { firstSelected = item; }
    int GetFirstSelected() const { return firstSelected; }

    void Clear()
    {
        items.clear();
        firstSelected = -1;
    }

private:
    std::vector<SMenuItem> items;
    int firstSelected = -1;
};

} // namespace Mirel::GUI
