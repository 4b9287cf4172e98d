#pragma once

#include "Mirel/GUI/Native/Dialogs/CMenu.h"
#include "Mirel/GUI/Native/INativeWindow.h"

#include <functional>
#include <string>

namespace Mirel::GUI
{

/// Shows menus: those that the toolkit draws in windows of kind Menu, and a script in tests. One menu with
/// its sub-menus is open at a time. GUI thread only.
class IMenuPresenter
{
public:
    virtual ~IMenuPresenter() = default;

    /// Opens the menu with its top left at a place of the screen, moved where it would not fit, and closes
    /// one that was open. The menu must live until closed is called, which comes once: after the chosen
    /// item's command ran, or without a choice. False if it cannot be shown; closed is then not called.
    virtual bool Open(const CMenu& menu, const INativeWindow& owner, CPoint screenPosition,
                      std::function<void()> closed) = 0;

    /// Closes the open menu without a choice.
    virtual void Close() = 0;
};

/// Shows the short text that explains a widget. GUI thread only.
class ITooltipPresenter
{
public:
    virtual ~ITooltipPresenter() = default;

    /// Shows the text (UTF-8) near a place of the screen, in the place of another. An empty one hides it.
    virtual void Show(const std::string& text, const INativeWindow& owner, CPoint screenPosition) = 0;
    virtual void Hide() = 0;
};

} // namespace Mirel::GUI
