#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLateDestruction.h"
#include "Mirel/Core/ICapture.h"

namespace Mirel::Core
{

/// A capture with its events. One thread only.
class CCapture : public virtual ICapture
{
public:
    IEventProvider& GetBeginCaptureEventProvider() const override { return begin; }
    IEventProvider& GetEndCaptureEventProvider() const override { return end; }
    bool IsCaptured() const override { return captured; }

    void BeginCapture() override
    {
        if (!captured)
        {
            captured = true;
            begin.Notify();
        }
    }

    void EndCapture() override
    {
        if (captured)
        {
            captured = false;
            end.Notify();
        }
    }

    /// Reports that what is held has changed. A derived class decides what else that means for it.
    virtual void NotifyChanged() const
    {
        const CLateDestruction stayAlive;
        changed.Notify();
    }

    /// Fires on NotifyChanged and on nothing else.
    IEventProvider& GetChangedEventProvider() const { return changed; }

private:
    mutable CEventProvider changed;
    mutable CEventProvider begin;
    mutable CEventProvider end;
    bool captured = false;
};

} // namespace Mirel::Core
