#pragma once

#include "Mirel/System/CBaseEvent.h"

namespace Mirel::System
{

/// A mark that stays set until it is reset, and releases all that wait for it.
class CEvent : public CBaseEvent
{
public:
    explicit CEvent(bool initial) : CBaseEvent(initial) {}

    void Set();
    void Reset();

    /// Returns at once if the mark is set; else waits, without bound if the time is negative. True also when
    /// the time is up or the wake was spurious: IsSet tells; false only on an error of the platform.
    bool Wait(int timeoutMs);
};

} // namespace Mirel::System
