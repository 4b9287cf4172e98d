#pragma once

#include "Mirel/System/CBaseEvent.h"

namespace Mirel::System
{

/// A mark that releases one waiter, which takes it with it.
class CWaitableEvent : public CBaseEvent
{
public:
    explicit CWaitableEvent(bool initial) : CBaseEvent(initial) {}

    void Set();

    /// If the mark is set, clears it and returns at once. Else waits. A wait without bound (negative time)
    /// clears the mark when it ends. A timed wait does not: a mark that ended it makes the next wait return
    /// at once. True when woken and when the time is up; false only on an error of the platform.
    /// The nanoseconds, from 0 to a million, are added to a time that is not negative.
    bool Wait(int timeoutMs, int nanoseconds = 0);
};

} // namespace Mirel::System
