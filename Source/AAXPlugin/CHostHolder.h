#pragma once

#include "AAXPlugin/Interface/TACFReference.h"

class IACFUnknown;

namespace MirelExt::AAXPlugin
{

/// The host of this process, from start-up to shut-down. Any thread.
///
/// It has no destructor on purpose: a host that never calls shut-down may be gone when the module is
/// unloaded.
class CHostHolder
{
public:
    static CHostHolder& GetInstance();

    /// Takes a reference to the host, unless there is one already or `newHost` is null.
    void Set(IACFUnknown* newHost);

    /// Releases the host. Nothing happens without one.
    void Clear();

    /// Holds nothing if there is no host.
    TACFReference<IACFUnknown> Get() const;

private:
    IACFUnknown* host = nullptr;
};

} // namespace MirelExt::AAXPlugin
