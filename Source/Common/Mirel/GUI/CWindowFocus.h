#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/InputEvents.h"

namespace Mirel::GUI
{

class CWidget;
class CWindowBase;

/// Which widget of a window gets the keys. It stays the same while the window is without the focus of the
/// desktop, but hears of that. GUI thread only; handlers may destroy anything, the window included.
class CWindowFocus
{
public:
    explicit CWindowFocus(CWindowBase& window_) : window(window_) {}

    CWidget* Get() const { return focus; }

    /// Null for none. The old widget hears of it before the new one. False if the widget cannot have it, or
    /// if a handler gave it to another.
    bool Set(CWidget* widget);

    /// The window has the focus of the desktop from now on, or not any more.
    void OnNativeFocus(bool gained);

    /// What the focus widget does not handle goes to those that it stands in. The Tab key, if nobody wants
    /// it, gives the focus to the next light widget (see FindFocusStops), with shift to the one before, round
    /// the ends. True if anyone handled it.
    bool OnKey(const SNativeKeyEvent& event, bool down);

    /// As CWindowMouse::Forget.
    void Forget(const CWidget& widget, bool isAlive);

private:
    bool GoToStop(bool forward);
    bool OnModifier(const SNativeKeyEvent& event);

    template <class Send>
    bool SendUpward(const SNativeKeyEvent& event, const Send& send);

    CWindowBase& window;
    CWidget* focus = nullptr;
    bool away = false; ///< The focus widget was told that the window lost the focus of the desktop.
    std::uint32_t modifiers = 0;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
