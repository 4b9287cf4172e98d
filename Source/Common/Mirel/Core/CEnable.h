#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/IEnable.h"

namespace Mirel::Core
{

/// A switch with its event. One thread only.
class CEnable : public virtual IEnable
{
public:
    explicit CEnable(bool enabled_ = true) : enabled(enabled_) {}

    bool IsEnabled() const override { return enabled; }
    IEventProvider& GetEnableChangedEventProvider() const override { return changed; }

    void Enable(bool enable) override
    {
        if (enable != enabled)
        {
            enabled = enable;
            changed.Notify();
        }
    }

private:
    bool enabled;
    mutable CEventProvider changed;
};

} // namespace Mirel::Core
