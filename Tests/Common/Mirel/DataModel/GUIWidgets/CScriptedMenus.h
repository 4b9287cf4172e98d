#pragma once

#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"

#include <functional>
#include <string>
#include <utility>

namespace Tests
{

/// Notes the menus that are opened, and does what the user of the script does.
class CScriptedMenus : public Mirel::GUI::IMenuPresenter
{
public:
    bool Open(const Mirel::GUI::CMenu& menu_, const Mirel::GUI::INativeWindow& owner_,
              Mirel::Graphics::CPoint screenPosition, std::function<void()> closed_) override
    {
        if (refuses)
        {
            return false;
        }
        menu = &menu_;
        owner = &owner_;
        place = screenPosition;
        closed = std::move(closed_);
        ++opened;
        return true;
    }

    void Close() override
    {
        menu = nullptr;
        if (const auto tell = std::exchange(closed, nullptr); tell)
        {
            tell();
        }
    }

    /// "text|*checked|text".
    std::string GetItems() const
    {
        std::string items;
        for (const auto& item : menu->GetItems())
        {
            items.append(items.empty() ? "" : "|").append(item.isChecked ? "*" : "").append(item.text);
        }
        return items;
    }

    void Choose(int index)
    {
        menu->GetItems()[static_cast<std::size_t>(index)].command->Execute();
        Close();
    }

    const Mirel::GUI::CMenu* menu = nullptr; ///< Null while none is open.
    const Mirel::GUI::INativeWindow* owner = nullptr;
    Mirel::Graphics::CPoint place;
    int opened = 0;
    bool refuses = false;

private:
    std::function<void()> closed;
};

} // namespace Tests
