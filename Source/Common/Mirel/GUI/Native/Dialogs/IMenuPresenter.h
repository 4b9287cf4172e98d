#pragma once

#include "Mirel/GUI/Native/Dialogs/CMenu.h"
#include "Mirel/GUI/Native/INativeWindow.h"
#include "Mirel/Graphics/CColor.h"

#include <functional>
#include <optional>
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

/// A short text that explains something, and how it is shown.
struct STooltip
{
    std::string text;      ///< UTF-8, with line breaks where wanted
    int delayMs = 500;     ///< until it shows; 0 or less for at once
    int showTimeMs = 8000; ///< until it hides by itself; 0 or less for never
    bool isBalloon = false;
    bool isForPress = false; ///< stays while the pointer is outside of the window, which holds it by a press
    std::optional<Graphics::CColor> background; ///< none for the presenter's own
    std::optional<Graphics::CColor> textColor;
};

/// Shows the short text that explains a widget. GUI thread only.
class ITooltipPresenter
{
public:
    virtual ~ITooltipPresenter() = default;

    /// Shows the text (UTF-8) near a place of the screen, in the place of another. An empty one hides it.
    virtual void Show(const std::string& text, const INativeWindow& owner, CPoint screenPosition) = 0;
    virtual void Hide() = 0;

    /// The same with all that a tooltip has. Those who show texts only show the text at once.
    virtual void ShowTip(const STooltip& tip, const INativeWindow& owner, CPoint screenPosition)
    {
        Show(tip.text, owner, screenPosition);
    }

    /// Another text for the tooltip that waits or shows, which stays where it is; an empty one hides it.
    /// Nothing without one.
    virtual void SetTipText(const std::string& /*text*/) {}
};

} // namespace Mirel::GUI
