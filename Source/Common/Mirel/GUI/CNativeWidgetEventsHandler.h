#pragma once

#include "Mirel/GUI/CWidgetEventsTarget.h"

#include <memory>
#include <vector>

namespace Mirel::GUI
{

/// Sends what happens to a widget to all its events targets, in the order in which they were added. A target
/// may add and remove targets, and destroy the widget, while it is called. GUI thread only.
class CNativeWidgetEventsHandler
{
public:
    /// Not owned; must be removed before it dies. Null, and one that is there already, are ignored.
    void AddTarget(CWidgetEventsTarget* target);
    void RemoveTarget(CWidgetEventsTarget* target);

    void SendShown(bool shown) const;
    void SendEnabled(bool enabled) const;
    void SendSize(const COSXSizeEvent& event) const;
    void SendMove(const COSXPositionEvent& event) const;
    void SendDraw(const COSXNativeDrawEvent& event) const;
    void SendClose() const;

    /// Up to the first that handles it; true if one did.
    bool SendNative(const COSXNativeNSEvent& event) const;

private:
    using Targets = std::vector<CWidgetEventsTarget*>;

    template <class Call>
    void Deliver(const Call& call) const;

    /// Null entries are targets removed since; an own object so that it outlives a widget that goes
    /// meanwhile.
    std::shared_ptr<Targets> targets = std::make_shared<Targets>();
};

} // namespace Mirel::GUI
