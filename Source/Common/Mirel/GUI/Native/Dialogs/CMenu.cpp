#include "Mirel/GUI/Native/Dialogs/CMenu.h"

namespace Mirel::GUI
{

SMenuItem& CMenu::AddItem(const std::string& text, Core::ICommand* command, bool owned)
{
    SMenuItem& item = items.emplace_back();
    item.text = text;
    item.command.Set(command, owned);
    return item;
}

void CMenu::AddSeparator()
{
    items.emplace_back().isSeparator = true;
}

CMenu& CMenu::AddSubMenu(const std::string& text)
{
    SMenuItem& item = items.emplace_back();
    item.text = text;
    item.subMenu = std::make_unique<CMenu>();
    return *item.subMenu;
}

} // namespace Mirel::GUI
