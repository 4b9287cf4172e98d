#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::Core
{

/// Something whose value changes can be listened to. To be observed does not change an object, so a const one
/// hands out its event as well.
class IValueChangedEventProvider
{
public:
    /// Fires after each change, on the thread that changed the value.
    virtual IEventProvider& GetValueChangedEventProvider() const = 0;
    virtual ~IValueChangedEventProvider() = default;
};

} // namespace Mirel::Core
