#pragma once

#include <iterator>
#include <list>

namespace Mirel::Core
{

/// The listeners of an event provider and the walk that delivers to them; L is the class of the listeners,
/// which are not owned. No lock. Not for use by itself: see CEventProvider and TArgEventProvider.
template <class L>
class TListenerList
{
public:
    /// Null is ignored.
    void Connect(L* listener)
    {
        if (listener != nullptr)
        {
            items.push_back({listener, false});
        }
    }

    /// Removes every item of the listener.
    void Disconnect(L* listener)
    {
        for (auto item = items.begin(); item != items.end();)
        {
            if (item->listener != listener)
            {
                ++item;
            }
            else if (item->running)
            {
                // The delivery on the stack still needs the item's link to go on from.
                item->listener = nullptr;
                ++item;
            }
            else
            {
                item = items.erase(item);
            }
        }
    }

    /// Calls call(L&) for each listener that is not active already, in the order of connection. Allocates
    /// nothing. An exception of a listener passes through and leaves its item marked active.
    template <class Call>
    void Deliver(const Call& call)
    {
        for (auto item = items.begin(); item != items.end();)
        {
            if (item->running)
            {
                ++item;
                continue;
            }
            item->running = true;
            call(*item->listener);
            item->running = false;
            // Only now: the listener may have connected and disconnected others.
            item = item->listener == nullptr ? items.erase(item) : std::next(item);
        }
    }

private:
    struct CItem
    {
        L* listener; ///< Null once disconnected while running: the delivery that runs it erases the item.
        bool running;
    };

    std::list<CItem> items;
};

/// The destroying form of Disconnect, the same for all providers: does nothing for null; else disconnects
/// through the provider's own plain form and, if asked, destroys the listener and nulls the caller's pointer.
template <class P, class L>
void DisconnectAndDestroy(P& provider, L*& listener, bool destroyListener)
{
    if (listener == nullptr)
    {
        return;
    }
    provider.Disconnect(listener);
    if (destroyListener)
    {
        delete listener;
        listener = nullptr;
    }
}

} // namespace Mirel::Core
