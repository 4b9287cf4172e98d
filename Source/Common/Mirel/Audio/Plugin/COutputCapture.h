#pragma once

#include "Mirel/Core/IEventProvider.h"
#include "Mirel/System/CMTEventProvider.h"

#include <atomic>

namespace Mirel::Audio::Plugin
{

/// What the captures of a filter's outputs, and their like, have in common: the mark that one was published,
/// and its event.
///
/// The event is not fired where the value is published: its listeners would run on the audio thread, behind
/// its lock. That thread only sets the mark, which neither waits nor allocates. Whoever shows the value calls
/// DeliverChange from a timer of its own thread, and there the listeners run.
class COutputCapture
{
public:
    COutputCapture() = default;
    COutputCapture(const COutputCapture&) = delete;
    COutputCapture& operator=(const COutputCapture&) = delete;

    /// Fires on the thread that delivers the change. Any thread but the audio thread.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    /// Whether a change waits to be delivered. Any thread.
    bool IsChanged() const { return isChanged.load(std::memory_order_relaxed); }

    /// Fires the event once if anything was published since the last delivery, to all listeners, whoever
    /// delivers. Any thread but the audio thread.
    void DeliverChange() const
    {
        // Taken back first: what is published while the listeners run is delivered the next time.
        if (isChanged.exchange(false, std::memory_order_relaxed))
        {
            changed.Notify();
        }
    }

protected:
    ~COutputCapture() = default;

    /// The thread that writes the value. The mark orders nothing but itself: readers of the value get that
    /// from the lock.
    void MarkChanged() { isChanged.store(true, std::memory_order_relaxed); }

private:
    // Listening and delivering change nothing of the value.
    mutable std::atomic<bool> isChanged{false};
    mutable System::CMTEventProvider changed;
};

} // namespace Mirel::Audio::Plugin
