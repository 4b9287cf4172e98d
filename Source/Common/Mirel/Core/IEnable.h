#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::Core
{

/// Read access to a switch.
class IConstEnable
{
public:
    virtual bool IsEnabled() const = 0;

    /// Fires after each change of the switch.
    virtual IEventProvider& GetEnableChangedEventProvider() const = 0;
    virtual ~IConstEnable() = default;
};

/// A switch. To set it to what it is does nothing.
class IEnable : public virtual IConstEnable
{
public:
    virtual void Enable(bool enable) = 0;
};

} // namespace Mirel::Core
