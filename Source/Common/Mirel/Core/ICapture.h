#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::Core
{

/// Read access to a capture: whether a user or a host is holding an object, as in a gesture on a knob.
class IConstCapture
{
public:
    /// Fires when the capture begins; the listener finds IsCaptured true.
    virtual IEventProvider& GetBeginCaptureEventProvider() const = 0;

    /// Fires when the capture ends; the listener finds IsCaptured false.
    virtual IEventProvider& GetEndCaptureEventProvider() const = 0;

    virtual bool IsCaptured() const = 0;
    virtual ~IConstCapture() = default;
};

/// A capture that can be begun and ended. Captures do not nest: a second begin and a second end do nothing.
class ICapture : public virtual IConstCapture
{
public:
    virtual void BeginCapture() = 0;
    virtual void EndCapture() = 0;
};

} // namespace Mirel::Core
