#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::SkinEngine
{

/// Read access to a count that a model can show, as that of a collection's items. GUI thread only.
class IConstCount
{
public:
    virtual int GetCount() const = 0;

    /// Fires after each change of the count.
    virtual Core::IEventProvider& GetCountChangedEventProvider() const = 0;
    virtual ~IConstCount() = default;
};

/// A count that can be set. Counts also come from saved states, that is from strangers: whoever implements
/// this keeps to its own range, whatever it is given.
class ICount : public virtual IConstCount
{
public:
    virtual void SetCount(int count) = 0;
};

} // namespace Mirel::SkinEngine
