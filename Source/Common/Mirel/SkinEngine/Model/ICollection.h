#pragma once

#include "Mirel/Core/TIArgEventProvider.h"
#include "Mirel/SkinEngine/Model/ICount.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

namespace Mirel::SkinEngine
{

/// A collection as those see it who follow its count, which changes when all items of the new count are
/// there. GUI thread only.
class IConstCollection : public virtual IConstCount
{
public:
    /// The identifier; empty for a collection without one.
    virtual const char* GetId() const = 0;

    /// Fires before a change, with the count to come: the last moment for who holds something of an item that
    /// goes.
    virtual Core::TIArgEventProvider<int>& GetBeforeCountChangeEventProvider() const = 0;
};

template <>
struct TObjectInterface<IConstCollection>
{
    static constexpr const char* name = "IConstCollection";
    static constexpr const char* kind = "collection";
};

} // namespace Mirel::SkinEngine
