#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/InputEvents.h"

namespace Mirel::GUI
{

class CWidget;
class CWindowBase;

/// Which widget of a window gets the keys. It keeps the focus whether or not the window has that of the
/// desktop. GUI thread only; handlers may destroy anything, the window included.
class CWindowFocus
{
public:
    explicit CWindowFocus(CWindowBase& window_) : window(window_) {}

    CWidget* Get() const { return focus; }

    /// Null for none. The old widget hears of it before the new one. False if the widget cannot have it, or
    /// if a handler gave it to another.
    bool Set(CWidget* widget);

    /// What the focus widget does not handle goes to those that it stands in. True if anyone handled it.
    bool OnKey(const SNativeKeyEvent& event, bool down);

    /// As CWindowMouse::Forget.
    void Forget(const CWidget& widget, bool isAlive);

private:
    bool OnModifier(const SNativeKeyEvent& event);

    template <class Send>
    bool SendUpward(const SNativeKeyEvent& event, const Send& send);

    CWindowBase& window;
    CWidget* focus = nullptr;
    std::uint32_t modifiers = 0;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
