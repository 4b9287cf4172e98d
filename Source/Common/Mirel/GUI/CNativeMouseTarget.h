#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CMouseTarget.h"

#include <array>
#include <memory>

namespace Mirel::GUI
{

/// Makes presses and releases as they come from outside into what a widget's mouse target knows: a down for a
/// first press only, an up always, and a click or double click after a press here. Where a target may destroy
/// the widget, nothing more is sent. GUI thread only.
class CNativeMouseTarget
{
public:
    void SetTarget(CMouseTarget* newTarget, bool owned);
    CMouseTarget* GetTarget() const { return target.get(); }

    /// The press or release that the event names; other buttons than left and right are not handled.
    bool SendDown(const COSXMouseEvent& event);
    bool SendUp(const COSXMouseEvent& event);

    template <class Event>
    bool Send(bool (CMouseTarget::*operation)(const Event&), const Event& event)
    {
        const auto held = target;
        return held != nullptr && (held.get()->*operation)(event);
    }

    /// Presses so far are not followed by clicks; the target is told if there were any.
    void SendCaptureLost();

private:
    std::shared_ptr<CMouseTarget> target;
    std::array<bool, 2> down = {}; ///< The left and the right button were pressed here.
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
