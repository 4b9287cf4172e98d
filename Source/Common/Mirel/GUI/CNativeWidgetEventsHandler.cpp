#include "Mirel/GUI/CNativeWidgetEventsHandler.h"

#include <algorithm>

namespace Mirel::GUI
{

void CNativeWidgetEventsHandler::AddTarget(CWidgetEventsTarget* target)
{
    if (target != nullptr && std::find(targets->begin(), targets->end(), target) == targets->end())
    {
        // Only outside of a delivery may places be given up: its walk counts them.
        if (targets.use_count() == 1)
        {
            std::erase(*targets, nullptr);
        }
        targets->push_back(target);
    }
}

void CNativeWidgetEventsHandler::RemoveTarget(CWidgetEventsTarget* target)
{
    std::replace(targets->begin(), targets->end(), target, static_cast<CWidgetEventsTarget*>(nullptr));
}

void CNativeWidgetEventsHandler::SendShown(bool shown) const
{
    const COSXOpenEvent event = {shown};
    Deliver(
        [&event](CWidgetEventsTarget& target)
        {
            event.shown ? target.OnShow(event) : target.OnHide(event);
            return false;
        });
}

void CNativeWidgetEventsHandler::SendEnabled(bool enabled) const
{
    const COSXEnableEvent event = {enabled};
    Deliver(
        [&event](CWidgetEventsTarget& target)
        {
            event.enabled ? target.OnEnable(event) : target.OnDisable(event);
            return false;
        });
}

void CNativeWidgetEventsHandler::SendSize(const COSXSizeEvent& event) const
{
    Deliver(
        [&event](CWidgetEventsTarget& target)
        {
            target.OnSize(event);
            return false;
        });
}

void CNativeWidgetEventsHandler::SendMove(const COSXPositionEvent& event) const
{
    Deliver(
        [&event](CWidgetEventsTarget& target)
        {
            target.OnMove(event);
            return false;
        });
}

void CNativeWidgetEventsHandler::SendDraw(const COSXNativeDrawEvent& event) const
{
    Deliver(
        [&event](CWidgetEventsTarget& target)
        {
            target.OnDraw(event);
            return false;
        });
}

void CNativeWidgetEventsHandler::SendClose() const
{
    Deliver(
        [](CWidgetEventsTarget& target)
        {
            target.OnClose();
            return false;
        });
}

bool CNativeWidgetEventsHandler::SendNative(const COSXNativeNSEvent& event) const
{
    bool handled = false;
    Deliver(
        [&](CWidgetEventsTarget& target)
        {
            handled = target.OnNativeEvent(event);
            return handled;
        });
    return handled;
}

/// Until call(target) is true. Nothing of this object is touched after a call.
template <class Call>
void CNativeWidgetEventsHandler::Deliver(const Call& call) const
{
    const auto held = targets;
    for (std::size_t i = 0; i < held->size(); ++i)
    {
        if (CWidgetEventsTarget* const target = (*held)[i]; target != nullptr && call(*target))
        {
            return;
        }
    }
}

} // namespace Mirel::GUI
