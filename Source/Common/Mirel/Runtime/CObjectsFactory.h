#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Runtime/IObjectFactory.h"

namespace Mirel::Runtime
{

/// The process-wide table of classes that can be created by key: a pair of class key (what to make) and
/// interface key (as what it is wanted). Registration is over when static initialisation is; from then on any
/// thread may look up and create, without a lock.
class CObjectsFactory
{
public:
    /// Created on first use.
    static CObjectsFactory& Instance();

    CObjectsFactory() = default;
    CObjectsFactory(const CObjectsFactory&) = delete;
    CObjectsFactory& operator=(const CObjectsFactory&) = delete;

    /// A new object, owned by the caller, as a pointer to the interface of that key; null if the pair was not
    /// registered or a key is null.
    virtual void* Create(const char* classKey, const char* interfaceKey) const;
    virtual ~CObjectsFactory() = default;

    /// The factory of the pair; null if there is none.
    virtual const IObjectFactory* Find(const char* classKey, const char* interfaceKey) const;

    /// Enters a factory, which is not owned and must outlive all use. False, with the earlier one kept, if
    /// the pair is taken or a key is null.
    bool Register(const char* classKey, const char* interfaceKey, const IObjectFactory& factory);

private:
    Containers::TStringMap<const IObjectFactory*> factories;
};

} // namespace Mirel::Runtime
