#pragma once

#include <cstddef>
#include <iterator>
#include <list>
#include <memory>
#include <unordered_map>

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
        if (listener == nullptr)
        {
            return;
        }
        items.push_back({listener, false});
        if (index != nullptr)
        {
            index->emplace(listener, std::prev(items.end()));
        }
        else if (items.size() > longestPlainList)
        {
            MakeIndex();
        }
    }

    /// Removes every item of the listener.
    void Disconnect(L* listener)
    {
        if (index != nullptr)
        {
            const auto [first, last] = index->equal_range(listener);
            for (auto entry = first; entry != last; ++entry)
            {
                Remove(entry->second);
            }
            index->erase(first, last);
            return;
        }
        for (auto item = items.begin(); item != items.end();)
        {
            item = item->listener == listener ? Remove(item) : std::next(item);
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

    using CIterator = typename std::list<CItem>::iterator;

    /// Above it listeners are looked up instead of searched: a parameter that thousands of widgets show would
    /// take minutes to lose them one by one.
    static constexpr std::size_t longestPlainList = 64;

    void MakeIndex()
    {
        index = std::make_unique<std::unordered_multimap<const L*, CIterator>>();
        for (auto item = items.begin(); item != items.end(); ++item)
        {
            if (item->listener != nullptr)
            {
                index->emplace(item->listener, item);
            }
        }
    }

    /// The item behind.
    CIterator Remove(CIterator item)
    {
        if (!item->running)
        {
            return items.erase(item);
        }
        // The delivery on the stack still needs the item's link to go on from.
        item->listener = nullptr;
        return std::next(item);
    }

    std::list<CItem> items;
    std::unique_ptr<std::unordered_multimap<const L*, CIterator>> index; ///< Once there are many.
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
