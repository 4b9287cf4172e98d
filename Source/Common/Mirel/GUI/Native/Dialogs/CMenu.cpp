#include "Mirel/GUI/Native/Dialogs/CMenu.h"

#include <utility>

namespace Mirel::GUI
{

namespace
{

class CFunctionCommand : public Core::ICommand
{
public:
    explicit CFunctionCommand(std::function<void()> run_) : run(std::move(run_)) {}
    void Execute() override { run(); }

private:
    std::function<void()> run;
};

} // namespace

SMenuItem& CMenu::AddItem(const std::string& text, Core::ICommand* command, bool owned)
{
    SMenuItem& item = items.emplace_back();
    item.text = text;
    item.command.Set(command, owned);
    return item;
}

SMenuItem& CMenu::AddItem(const std::string& text, std::function<void()> action)
{
    return AddItem(text, new CFunctionCommand(std::move(action)), true);
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
