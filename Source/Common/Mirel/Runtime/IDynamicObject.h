#pragma once

#include "Mirel/Runtime/IRTTypeInfo.h"

namespace Mirel::Runtime
{

/// An object that tells its class and hands out what it can do by name.
class IDynamicObject
{
public:
    virtual const IRTTypeInfo& GetTypeInfo() const = 0;

    /// A pointer to the interface of that name, owned by the object; null if it does not have it. The pointer
    /// is of exactly the type that was entered under the name.
    virtual const void* GetInterface(const char* name) const = 0;
    virtual void* GetInterface(const char* name) = 0;

    virtual ~IDynamicObject() = default;
};

} // namespace Mirel::Runtime
